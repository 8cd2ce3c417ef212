package com.kestrum.tavrel.testkit;

import java.util.Arrays;
import java.util.List;

/** Inside the curves, histograms and legends of the toolkit stand-in. */
public final class Charts {
    static {
        TestLibrary.ensureLoaded();
    }

    private Charts() {}

    /** The parts the node made at its last build, one line a part (empty before the first). */
    public static List<String> parts(long node) {
        return Arrays.asList(builtParts(node));
    }

    private static native String[] builtParts(long node);
}
