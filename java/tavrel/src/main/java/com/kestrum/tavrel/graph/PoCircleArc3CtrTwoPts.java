package com.kestrum.tavrel.graph;

import static com.kestrum.tavrel.graph.Checks.point;

import com.kestrum.corvel.SbVec3f;
import com.kestrum.tavrel.internal.JarInitializer;

/**
 * A 3D arc given by its centre and two points: it starts at the first and runs the short way to
 * the direction of the second.
 */
public class PoCircleArc3CtrTwoPts extends PoCircleArc3 {
    static {
        JarInitializer.init();
    }

    /** A new node with the toolkit's default geometry; holds one reference on its native node. */
    public PoCircleArc3CtrTwoPts() {
        this(ctorImpl());
    }

    /**
     * A new node; holds one reference on its native node.
     *
     * @param center the centre
     * @param p1 the start
     * @param p2 a point in the direction of the end
     */
    public PoCircleArc3CtrTwoPts(SbVec3f center, SbVec3f p1, SbVec3f p2) {
        this(ctorImpl1(point(center, "center"), point(p1, "p1"), point(p2, "p2")));
    }

    /**
     * A Java object for the native node at the handle (non-zero); takes a reference on it.
     *
     * @param handle the address of the native object
     */
    protected PoCircleArc3CtrTwoPts(long handle) {
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

    private static native long ctorImpl1(float[] center, float[] p1, float[] p2);

    private static native String getClassTypeId();

    private static native long getClassNodekitCatalogImpl();
}
