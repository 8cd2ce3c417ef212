package com.kestrum.tavrel.data;

import com.kestrum.corvel.nodekits.SoBaseKit;
import com.kestrum.tavrel.internal.JarInitializer;

/**
 * Base of the node kits of the extension that draw; the mesh representations derive from it.
 */
public abstract class PoDessvane extends SoBaseKit {
    static {
        JarInitializer.init();
    }

    /**
     * A Java object for the native node at the handle (non-zero); takes a reference on it.
     *
     * @param handle the address of the native object
     */
    protected PoDessvane(long handle) {
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
