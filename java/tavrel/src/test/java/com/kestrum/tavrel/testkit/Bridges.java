package com.kestrum.tavrel.testkit;

/** Raises events on callback bridges directly, as the toolkit objects that hold them do. */
public final class Bridges {
    static {
        TestLibrary.ensureLoaded();
    }

    private Bridges() {}

    /** A rebuild event of the node at the address, on the rebuild bridge at the address. */
    public static native void raiseRebuild(long bridge, long node);

    /** count rebuild events of the node within one native call. */
    public static native void raiseRebuilds(long bridge, long node, int count);
}
