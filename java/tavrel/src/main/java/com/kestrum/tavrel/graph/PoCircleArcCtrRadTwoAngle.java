package com.kestrum.tavrel.graph;

import static com.kestrum.tavrel.graph.Checks.point;

import com.kestrum.corvel.SbVec2f;
import com.kestrum.tavrel.internal.JarInitializer;

/**
 * A 2D arc given by its centre, radius and the angles of its ends.
 */
public class PoCircleArcCtrRadTwoAngle extends PoCircleArc {
    static {
        JarInitializer.init();
    }

    /** A new node with the toolkit's default geometry; holds one reference on its native node. */
    public PoCircleArcCtrRadTwoAngle() {
        this(ctorImpl());
    }

    /**
     * A new node; holds one reference on its native node.
     *
     * @param center the centre
     * @param radius the radius
     * @param angle1 the angle of the start, in radians
     * @param angle2 the angle of the end, in radians
     */
    public PoCircleArcCtrRadTwoAngle(SbVec2f center, float radius, float angle1, float angle2) {
        this(ctorImpl1(point(center, "center"), radius, angle1, angle2));
    }

    /**
     * A Java object for the native node at the handle (non-zero); takes a reference on it.
     *
     * @param handle the address of the native object
     */
    protected PoCircleArcCtrRadTwoAngle(long handle) {
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

    private static native long ctorImpl1(float[] center, float radius, float angle1, float angle2);

    private static native String getClassTypeId();

    private static native long getClassNodekitCatalogImpl();
}
