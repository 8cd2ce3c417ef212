package com.kestrum.tavrel.testkit;

import com.kestrum.corvel.misc.DebugOutput;
import java.util.List;

/** Captures the debug lines that the native code prints while an action runs. */
public final class Debug {
    private Debug() {}

    /** An action that may throw. */
    @FunctionalInterface
    public interface Action {
        void run() throws Exception;
    }

    /** Runs the action and returns the debug lines it printed. */
    public static List<String> capture(Action action) throws Exception {
        DebugOutput.Mode mode = DebugOutput.getMode();
        DebugOutput.setMode(DebugOutput.Mode.CAPTURE);
        DebugOutput.takeCaptured();
        try {
            action.run();
            return DebugOutput.takeCaptured();
        } finally {
            DebugOutput.setMode(mode);
        }
    }
}
