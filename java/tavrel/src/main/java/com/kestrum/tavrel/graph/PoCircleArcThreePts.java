package com.kestrum.tavrel.graph;

import static com.kestrum.tavrel.graph.Checks.point;

import com.kestrum.corvel.SbVec2f;
import com.kestrum.tavrel.internal.JarInitializer;

/**
 * A 2D arc from a first point through a second to a third. Collinear points: the node draws the
 * segment from the first to the third.
 */
public class PoCircleArcThreePts extends PoCircleArc {
    static {
        JarInitializer.init();
    }

    /** A new node with the toolkit's default geometry; holds one reference on its native node. */
    public PoCircleArcThreePts() {
        this(ctorImpl());
    }

    /**
     * A new node; holds one reference on its native node.
     *
     * @param p1 the start
     * @param p2 a point on the arc
     * @param p3 the end
     */
    public PoCircleArcThreePts(SbVec2f p1, SbVec2f p2, SbVec2f p3) {
        this(ctorImpl1(point(p1, "p1"), point(p2, "p2"), point(p3, "p3")));
    }

    /**
     * A Java object for the native node at the handle (non-zero); takes a reference on it.
     *
     * @param handle the address of the native object
     */
    protected PoCircleArcThreePts(long handle) {
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

    private static native long ctorImpl1(float[] p1, float[] p2, float[] p3);

    private static native String getClassTypeId();

    private static native long getClassNodekitCatalogImpl();
}
