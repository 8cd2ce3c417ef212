package com.kestrum.tavrel.graph;

import static com.kestrum.tavrel.graph.Checks.point;

import com.kestrum.corvel.SbVec2f;
import com.kestrum.tavrel.internal.JarInitializer;

/**
 * A rectangle given by two opposite corners, in the coordinates of its domain.
 *
 * <p>{@link PoBase#createInstance} with the type name "PoRectangle" makes the same default
 * rectangle, seen as a {@link PoBase}.
 */
public class PoRectangle extends PoQuorvex {
    static {
        JarInitializer.init();
    }

    /**
     * A new node with the toolkit's default geometry (corners (0, 0) and (1, 1)); holds one
     * reference on its native node.
     */
    public PoRectangle() {
        this(ctorImpl());
    }

    /**
     * A new node; holds one reference on its native node.
     *
     * @param corner1 a corner
     * @param corner2 the opposite corner
     */
    public PoRectangle(SbVec2f corner1, SbVec2f corner2) {
        this(ctorImpl1(point(corner1, "corner1"), point(corner2, "corner2")));
    }

    /**
     * A Java object for the native node at the handle (non-zero); takes a reference on it.
     *
     * @param handle the address of the native object
     */
    protected PoRectangle(long handle) {
        super(handle);
    }

    /**
     * The name of the class's toolkit type.
     *
     * @return the name of the class's toolkit type
     */
    public static String getClassTypeName() {
        return getClassTypeId();
    }

    /**
     * The address of the class's node-kit catalog, which belongs to the toolkit.
     *
     * @return the address of the class's node-kit catalog, which belongs to the toolkit
     */
    public static long getClassNodekitCatalog() {
        return getClassNodekitCatalogImpl();
    }

    private static native long ctorImpl();

    private static native long ctorImpl1(float[] corner1, float[] corner2);

    private static native String getClassTypeId();

    private static native long getClassNodekitCatalogImpl();
}
