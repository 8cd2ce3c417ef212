package com.kestrum.tavrel.data;

import com.kestrum.tavrel.internal.JarInitializer;

/** The facets of one cell of a mesh. */
public class PoCellFacets extends PoMesh {
    static {
        JarInitializer.init();
    }

    /** A new node that holds one reference on its native node. */
    public PoCellFacets() {
        this(ctorImpl());
    }

    /**
     * A Java object for the native node at the handle (non-zero); takes a reference on it.
     *
     * @param handle the address of the native object
     */
    protected PoCellFacets(long handle) {
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

    private static native String getClassTypeId();

    private static native long getClassNodekitCatalogImpl();
}
