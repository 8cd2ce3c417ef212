package com.kestrum.tavrel;

import com.kestrum.tavrel.internal.JarInitializer;

/** The Tavrel extension: its product name and version, as the toolkit reports them. */
public final class PoTavrel {
    static {
        JarInitializer.init();
    }

    private PoTavrel() {}

    /**
     * The product name of the Tavrel extension, as the toolkit reports it.
     *
     * @return the product name of the Tavrel extension, as the toolkit reports it
     */
    public static String getProductName() {
        return getProductNameImpl();
    }

    /**
     * The version of the Tavrel extension, as the toolkit reports it.
     *
     * @return the version of the Tavrel extension, as the toolkit reports it
     */
    public static String getVersion() {
        return getVersionImpl();
    }

    private static native String getProductNameImpl();

    private static native String getVersionImpl();

    /** Frees a native {@code PoTavrel} object. */
    static final class NativeResourceHandle extends com.kestrum.tavrel.internal.NativeResourceHandle {
        static {
            JarInitializer.init();
        }

        NativeResourceHandle(long handle) {
            super(handle);
        }

        @Override
        protected void deleteNativeHandle(long handle) {
            deleteNativeHandleImpl(handle);
        }

        private static native void deleteNativeHandleImpl(long handle);
    }
}
