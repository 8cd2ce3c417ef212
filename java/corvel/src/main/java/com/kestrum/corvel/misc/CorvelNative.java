package com.kestrum.corvel.misc;

/** Loads the toolkit's core libraries and the binding core, once. */
public final class CorvelNative {
    private static boolean loaded;

    private CorvelNative() {}

    /**
     * Loads the toolkit's core libraries and the binding core, unless they are loaded already.
     *
     * @throws UnsatisfiedLinkError when a library cannot be found or loaded
     */
    public static synchronized void ensureLoaded() {
        if (!loaded) {
            NativeLibraries.load(CorvelNative.class, "/com/kestrum/corvel/native/linux-x86-64",
                    "zel_corvel_base", "zel_corvel", "zel_corvel_gl", "com.kestrum.corvel");
            loaded = true;
        }
    }
}
