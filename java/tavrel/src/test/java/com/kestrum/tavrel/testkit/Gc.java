package com.kestrum.tavrel.testkit;

import java.lang.ref.WeakReference;

/** Forcing the collection of an object. */
public final class Gc {
    private Gc() {}

    /** Runs the collector until the referent is gone; fails after ten seconds. */
    public static void collect(WeakReference<?> reference) throws InterruptedException {
        long deadline = System.nanoTime() + 10_000_000_000L;
        while (reference.get() != null) {
            if (System.nanoTime() > deadline) {
                throw new AssertionError("the object was not collected within ten seconds");
            }
            System.gc();
            Thread.sleep(10);
        }
    }
}
