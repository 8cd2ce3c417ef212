package com.kestrum.tavrel.testkit;

import java.util.Arrays;
import java.util.List;

/** What the JVM's JNI checks printed (see {@link JniCheckExtension}). */
public final class JniWarnings {
    static {
        TestLibrary.ensureLoaded();
    }

    private JniWarnings() {}

    /** Starts watching the process's output for JNI warnings; true when in place. */
    public static native boolean install();

    private static native String[] drain();

    /** Makes the JVM print a local-reference warning (to check that warnings are seen). */
    public static native void provokeLocalReferenceWarning();

    /** Makes the JVM print a warning for a JNI call made while an exception is pending. */
    public static native void provokeExceptionPendingWarning();

    /** The warnings printed since the last call. */
    public static List<String> take() {
        return Arrays.asList(drain());
    }
}
