package com.kestrum.corvel.misc;

import java.util.Arrays;
import java.util.List;

/**
 * The debug output of the native bindings (lines such as
 * "DEBUG: NTV MTHD->PoProbeCallback::invoke"). Off by default; the environment variable
 * KESTRUM_DEBUG=1 sends it to standard error from the start.
 */
public final class DebugOutput {
    /** Where debug lines go. */
    public enum Mode {
        /** Dropped. */
        OFF,
        /** Written to standard error. */
        STANDARD_ERROR,
        /** Kept in memory until {@link #takeCaptured()}. */
        CAPTURE
    }

    static {
        CorvelNative.ensureLoaded();
    }

    private DebugOutput() {}

    /**
     * Sends the debug lines where the mode says, from the next line on.
     *
     * @param mode where the lines go
     * @throws NullPointerException when mode is null
     */
    public static void setMode(Mode mode) {
        setModeNative(Arguments.notNull(mode, "mode").ordinal());
    }

    /**
     * Where the debug lines go now.
     *
     * @return where the debug lines go now
     */
    public static Mode getMode() {
        return Mode.values()[getModeNative()];
    }

    /**
     * The lines captured since the last call, oldest first, each with its trailing newline.
     *
     * @return the lines captured since the last call, oldest first, each with its trailing newline
     */
    public static List<String> takeCaptured() {
        return Arrays.asList(takeCapturedNative());
    }

    private static native void setModeNative(int mode);

    private static native int getModeNative();

    private static native String[] takeCapturedNative();
}
