package com.kestrum.tavrel.graph;

import com.kestrum.tavrel.internal.JarInitializer;

/** A curve drawn as a ribbon. */
public class PoRibbon extends PoBase {
    static {
        JarInitializer.init();
    }

    /** A node with the toolkit's defaults. */
    public PoRibbon() {
        super(ctorImpl());
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

    private static native long ctorImpl();
}
