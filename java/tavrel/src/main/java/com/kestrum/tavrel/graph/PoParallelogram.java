package com.kestrum.tavrel.graph;

import static com.kestrum.tavrel.graph.Checks.point;

import com.kestrum.corvel.SbVec2f;
import com.kestrum.tavrel.internal.JarInitializer;

/**
 * A 2D parallelogram given by three consecutive corners a, b, c; the fourth is a + c - b.
 */
public class PoParallelogram extends PoQuorvex {
    static {
        JarInitializer.init();
    }

    /** A new node with the toolkit's default geometry; holds one reference on its native node. */
    public PoParallelogram() {
        this(ctorImpl());
    }

    /**
     * A new node; holds one reference on its native node.
     *
     * @param a a first corner
     * @param b the corner between a and c
     * @param c a third corner
     */
    public PoParallelogram(SbVec2f a, SbVec2f b, SbVec2f c) {
        this(ctorImpl1(point(a, "a"), point(b, "b"), point(c, "c")));
    }

    /**
     * A Java object for the native node at the handle (non-zero); takes a reference on it.
     *
     * @param handle the address of the native object
     */
    protected PoParallelogram(long handle) {
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

    private static native long ctorImpl1(float[] a, float[] b, float[] c);

    private static native String getClassTypeId();

    private static native long getClassNodekitCatalogImpl();
}
