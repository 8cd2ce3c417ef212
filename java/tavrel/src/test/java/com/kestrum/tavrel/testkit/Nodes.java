package com.kestrum.tavrel.testkit;

/**
 * Calls of nodes' virtual operations as the toolkit makes them, toolkit nodes of other
 * classes, and type inspection.
 */
public final class Nodes {
    static {
        TestLibrary.ensureLoaded();
    }

    private Nodes() {}

    /**
     * Calls the node's virtual operation (fixed arguments: name "f", flags 3, cell 4 with 0.5,
     * a new action, ...) and returns its result as text: "" for void, true/false, numbers,
     * addresses in decimal, quoted strings, or null. A Java exception that the call left pending
     * is thrown, and the result is still available from {@link #lastResult()}.
     */
    public static String call(long node, String operation) {
        invoke(node, operation);
        return lastResult();
    }

    public static native void invoke(long node, String operation);

    public static native String lastResult();

    /** The names {@link #call} knows. */
    public static native String[] operationNames();

    public static native String fileFormatName(long node);

    /** The pointer the last {@link #fileFormatName} call got from the node. */
    public static native long fileFormatNamePointer();

    /** What that pointer reads now. */
    public static native String lastFileFormatNameText();

    /** The toolkit's node.internalAddChild(child). */
    public static native void addChild(long parent, long child);

    /** Number of children in the node's child list, -1 when it has none. */
    public static native int numChildren(long node);

    public static native void applyGenericAction(long node);

    /** The cells among 0..values.length-1 that the filter accepts, as a representation asks. */
    public static native int[] selectCells(long filter, float[] values);

    /** A toolkit PoNode of another class; its operations record "ToolkitNode::op". */
    public static native long newToolkitNode();

    /** A toolkit PoCellFilter of another class that accepts odd cells. */
    public static native long newOddCellFilter();

    public static native long newField(String name);

    public static native void ref(long node);

    public static native void unref(long node);

    /** The node's reference count, read without taking a reference. */
    public static native int refCount(long node);

    public static native String typeName(long node);

    public static native boolean typeIsBad(long node);

    public static native int typeData(long node);

    public static native int renderMode(long node);

    public static native int numFieldDataEntries(long node);

    public static native boolean isBuiltIn(long node);

    public static native long createInstance(String typeName, boolean onNewThread);
}
