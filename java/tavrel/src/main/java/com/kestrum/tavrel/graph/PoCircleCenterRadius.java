package com.kestrum.tavrel.graph;

import static com.kestrum.tavrel.graph.Checks.point;

import com.kestrum.corvel.SbVec2f;
import com.kestrum.tavrel.internal.JarInitializer;

/**
 * A 2D circle given by its centre and radius (a negative radius counts as its absolute value).
 */
public class PoCircleCenterRadius extends PoCircle {
    static {
        JarInitializer.init();
    }

    /**
     * A new node with the toolkit's default geometry (centre (0, 0), radius 1); holds one reference
     * on its native node.
     */
    public PoCircleCenterRadius() {
        this(ctorImpl());
    }

    /**
     * A new node; holds one reference on its native node.
     *
     * @param center the centre
     * @param radius the radius
     */
    public PoCircleCenterRadius(SbVec2f center, float radius) {
        this(ctorImpl1(point(center, "center"), radius));
    }

    /**
     * A Java object for the native node at the handle (non-zero); takes a reference on it.
     *
     * @param handle the address of the native object
     */
    protected PoCircleCenterRadius(long handle) {
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

    private static native long ctorImpl1(float[] center, float radius);

    private static native String getClassTypeId();

    private static native long getClassNodekitCatalogImpl();
}
