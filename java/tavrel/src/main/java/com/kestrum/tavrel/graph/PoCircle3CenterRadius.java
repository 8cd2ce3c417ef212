package com.kestrum.tavrel.graph;

import static com.kestrum.tavrel.graph.Checks.point;

import com.kestrum.corvel.SbVec3f;
import com.kestrum.tavrel.internal.JarInitializer;

/**
 * A 3D circle given by its centre, radius and the normal of its plane.
 */
public class PoCircle3CenterRadius extends PoCircle3 {
    static {
        JarInitializer.init();
    }

    /** A new node with the toolkit's default geometry; holds one reference on its native node. */
    public PoCircle3CenterRadius() {
        this(ctorImpl());
    }

    /**
     * A new node; holds one reference on its native node.
     *
     * @param center the centre
     * @param radius the radius
     * @param normal the normal of the plane (need not be of unit length)
     */
    public PoCircle3CenterRadius(SbVec3f center, float radius, SbVec3f normal) {
        this(ctorImpl1(point(center, "center"), radius, point(normal, "normal")));
    }

    /**
     * A Java object for the native node at the handle (non-zero); takes a reference on it.
     *
     * @param handle the address of the native object
     */
    protected PoCircle3CenterRadius(long handle) {
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

    private static native long ctorImpl1(float[] center, float radius, float[] normal);

    private static native String getClassTypeId();

    private static native long getClassNodekitCatalogImpl();
}
