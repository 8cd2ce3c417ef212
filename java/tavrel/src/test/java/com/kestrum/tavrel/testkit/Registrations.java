package com.kestrum.tavrel.testkit;

import java.nio.file.Paths;

/**
 * Calls the product's own registration of a probe's motion callback with any object as the
 * callback object, past the Java types (an object whose class has no field "userData").
 */
public final class Registrations {
    static {
        TestLibrary.ensureLoaded();
        String product = Paths.get(System.getProperty("kestrum.native.dir"), System.mapLibraryName("com.kestrum.tavrel"))
                .toString();
        if (!bind(product)) {
            throw new IllegalStateException("no motion-callback setter in " + product);
        }
    }

    private Registrations() {}

    private static native boolean bind(String productPath);

    /** The product's PoMeshProbePoint.setMotionCallbackImpl with these arguments. */
    public static native void setMotionCallback(long probe, Object callbackObject, Object userData, long bridge);
}
