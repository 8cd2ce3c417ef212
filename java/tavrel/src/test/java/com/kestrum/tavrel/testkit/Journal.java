package com.kestrum.tavrel.testkit;

import java.util.Arrays;
import java.util.List;
import java.util.stream.Collectors;

/** The toolkit stand-in's call journal: one line per toolkit call the binding made. */
public final class Journal {
    static {
        TestLibrary.ensureLoaded();
    }

    private Journal() {}

    /** Clears the journal and starts recording. */
    public static void start() {
        clear();
        setEnabled(true);
    }

    /** Stops recording and returns what was recorded. */
    public static List<String> stop() {
        setEnabled(false);
        return Arrays.asList(lines());
    }

    /** The lines recorded so far that start with the prefix. */
    public static List<String> linesStartingWith(String prefix) {
        return Arrays.stream(lines()).filter(l -> l.startsWith(prefix)).collect(Collectors.toList());
    }

    /** Adds a line of the test's own (a marker between toolkit calls) while recording. */
    public static native void note(String text);

    public static native void setEnabled(boolean on);

    /** Gives every line from now on also to the native function at that address (0: none). */
    static native void setListener(long address);

    public static native void clear();

    public static native String[] lines();
}
