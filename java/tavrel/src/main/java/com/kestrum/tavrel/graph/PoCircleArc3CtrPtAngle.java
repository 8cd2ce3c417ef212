package com.kestrum.tavrel.graph;

import static com.kestrum.tavrel.graph.Checks.point;

import com.kestrum.corvel.SbVec3f;
import com.kestrum.tavrel.internal.JarInitializer;

/**
 * A 3D arc given by its centre, start point, angle and the normal of its plane.
 */
public class PoCircleArc3CtrPtAngle extends PoCircleArc3 {
    static {
        JarInitializer.init();
    }

    /** A new node with the toolkit's default geometry; holds one reference on its native node. */
    public PoCircleArc3CtrPtAngle() {
        this(ctorImpl());
    }

    /**
     * A new node; holds one reference on its native node.
     *
     * @param center the centre
     * @param point the start
     * @param angle the angle in radians, counter-clockwise seen from the normal's tip
     * @param normal the normal of the plane
     */
    public PoCircleArc3CtrPtAngle(SbVec3f center, SbVec3f point, float angle, SbVec3f normal) {
        this(ctorImpl1(point(center, "center"), point(point, "point"), angle, point(normal, "normal")));
    }

    /**
     * A Java object for the native node at the handle (non-zero); takes a reference on it.
     *
     * @param handle the address of the native object
     */
    protected PoCircleArc3CtrPtAngle(long handle) {
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

    private static native long ctorImpl1(float[] center, float[] point, float angle, float[] normal);

    private static native String getClassTypeId();

    private static native long getClassNodekitCatalogImpl();
}
