package com.kestrum.tavrel.graph;

import com.kestrum.tavrel.internal.JarInitializer;

/**
 * Base of the 2D circles, in the plane z = 0 of their domain: see {@link PoCircleCenterRadius} and
 * {@link PoCircleThreePoints}.
 */
public abstract class PoCircle extends PoQuorvex {
    static {
        JarInitializer.init();
    }

    /**
     * A Java object for the native node at the handle (non-zero); takes a reference on it.
     *
     * @param handle the address of the native object
     */
    protected PoCircle(long handle) {
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

    private static native String getClassTypeId();

    private static native long getClassNodekitCatalogImpl();
}
