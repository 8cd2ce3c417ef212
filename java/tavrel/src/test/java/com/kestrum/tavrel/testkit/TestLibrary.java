package com.kestrum.tavrel.testkit;

import com.kestrum.tavrel.internal.JarInitializer;

/** Loads the test-only native library (after the product), once. */
public final class TestLibrary {
    private static boolean loaded;

    private TestLibrary() {}

    public static synchronized void ensureLoaded() {
        if (!loaded) {
            JarInitializer.init();
            String path = System.getProperty("tavrel.testkit.library");
            if (path == null) {
                throw new IllegalStateException("System property tavrel.testkit.library is not set");
            }
            System.load(path);
            loaded = true;
        }
    }
}
