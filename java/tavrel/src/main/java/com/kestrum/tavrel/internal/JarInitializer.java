package com.kestrum.tavrel.internal;

import com.kestrum.corvel.misc.CorvelNative;
import com.kestrum.corvel.misc.NativeLibraries;
import java.util.function.IntSupplier;

/**
 * Start-up of the Tavrel extension: loads the native libraries and initialises the extension
 * in the toolkit, once per process. Every class with native methods runs {@link #init()} before
 * its first native call.
 */
public final class JarInitializer {
    private static volatile boolean initialized;

    private JarInitializer() {}

    public static void init() {
        if (initialized) {
            return;
        }
        synchronized (JarInitializer.class) {
            if (!initialized) {
                CorvelNative.ensureLoaded();
                // The binding core reads the libraries out of this module: on the module path it
                // may, because the folder's name is no package name ("native" is a keyword), so the
                // folder is not encapsulated. A folder named like a package would be hidden from it.
                NativeLibraries.load(JarInitializer.class, "/com/kestrum/tavrel/native/linux-x86-64",
                        "zel_tavrel", "com.kestrum.tavrel");
                initNative();
                initialized = true;
            }
        }
    }

    /**
     * Reads a native enumeration value after making sure the library is ready; used by the
     * constants of the Java enumerations, which are built before any other static code runs.
     */
    public static int value(IntSupplier nativeGetter) {
        init();
        return nativeGetter.getAsInt();
    }

    private static native void initNative();
}
