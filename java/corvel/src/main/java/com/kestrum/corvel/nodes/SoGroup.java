package com.kestrum.corvel.nodes;

/** A node with an ordered list of children; actions traverse them in order. */
public class SoGroup extends SoNode {
    static {
        com.kestrum.corvel.misc.ManagedObjects.registerWrapper("com.kestrum.corvel.nodes.SoGroup", SoGroup::new);
    }

    public SoGroup() {
        super(newNative());
    }

    protected SoGroup(long handle) {
        super(handle);
    }

    /** Appends a child; the group references it. A node added twice is traversed twice. */
    public void addChild(SoNode child) {
        addChildNative(handle(), handleOf(child, "child"));
    }

    public int getNumChildren() {
        return getNumChildrenNative(handle());
    }

    private static native long newNative();

    private static native void addChildNative(long handle, long child);

    private static native int getNumChildrenNative(long handle);
}
