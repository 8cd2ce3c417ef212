package com.kestrum.tavrel.testkit;

/** Inside the graph nodes and attribute objects of the toolkit stand-in. */
public final class Graphs {
    static {
        TestLibrary.ensureLoaded();
    }

    private Graphs() {}

    /** A graph node (of PoChart's type) whose class does not override rebuild; no reference taken. */
    public static native long newPlainGraphNode();

    /** Number of builds of the node so far. */
    public static native int buildCount(long node);

    /** The outline of a rectangle's last build, three floats a point. */
    public static native float[] outline(long rectangle);

    /** Number of pre-rebuild (or post-rebuild) callbacks registered on the node. */
    public static native int numCallbacks(long node, boolean pre);

    /** The user-data pointer of a registered callback. */
    public static native long callbackUserData(long node, boolean pre, int index);

    /** The revision of an attribute object (raised by each change). */
    public static native int revision(long attribute);

    /** The value as the numeric format writes it. */
    public static native String format(long format, float value);

    /** The date of the coordinate as the date mapping writes it. */
    public static native String date(long mapping, float coord);
}
