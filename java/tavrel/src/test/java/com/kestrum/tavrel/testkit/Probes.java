package com.kestrum.tavrel.testkit;

/** Raises the events of native probe points, and reads their registrations. */
public final class Probes {
    static {
        TestLibrary.ensureLoaded();
    }

    /** The probe's events, numbered as in the toolkit. */
    public static final int MOTION = 0;
    public static final int CHANGE_CELL = 1;
    public static final int ENTER_MESH = 2;
    public static final int LEAVE_MESH = 3;

    private Probes() {}

    /** Raises one event with the cell address (0 for none) on the calling thread. */
    public static void raise(long probe, int event, long cell) {
        raise(probe, new int[] {event}, new long[] {cell});
    }

    /** Raises events[i] with cells[i], in order, within one native call. */
    public static native void raise(long probe, int[] events, long[] cells);

    /** The same on a new native thread; returns when that thread has ended. */
    public static native void raiseOnNativeThread(long probe, int[] events, long[] cells);

    /** Moves the probe to a point whose containing cell is given (0 and -1 outside the mesh). */
    public static native void moveTo(long probe, float x, float y, float z, long cell, long cellIndex);

    public static native boolean hasCallbackFunction(long probe, int event);

    public static native long callbackUserData(long probe, int event);
}
