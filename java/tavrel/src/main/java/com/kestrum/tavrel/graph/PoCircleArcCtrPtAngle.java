package com.kestrum.tavrel.graph;

import static com.kestrum.tavrel.graph.Checks.point;

import com.kestrum.corvel.SbVec2f;
import com.kestrum.tavrel.internal.JarInitializer;

/**
 * A 2D arc given by its centre, its start point and the angle it spans.
 */
public class PoCircleArcCtrPtAngle extends PoCircleArc {
    static {
        JarInitializer.init();
    }

    /** A new node with the toolkit's default geometry; holds one reference on its native node. */
    public PoCircleArcCtrPtAngle() {
        this(ctorImpl());
    }

    /**
     * A new node; holds one reference on its native node.
     *
     * @param center the centre
     * @param point the start, at the radius from the centre
     * @param angle the angle in radians, counter-clockwise when positive
     */
    public PoCircleArcCtrPtAngle(SbVec2f center, SbVec2f point, float angle) {
        this(ctorImpl1(point(center, "center"), point(point, "point"), angle));
    }

    /**
     * A Java object for the native node at the handle (non-zero); takes a reference on it.
     *
     * @param handle the address of the native object
     */
    protected PoCircleArcCtrPtAngle(long handle) {
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

    private static native long ctorImpl1(float[] center, float[] point, float angle);

    private static native String getClassTypeId();

    private static native long getClassNodekitCatalogImpl();
}
