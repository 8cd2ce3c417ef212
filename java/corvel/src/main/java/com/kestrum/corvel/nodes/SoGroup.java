package com.kestrum.corvel.nodes;

/** A node with an ordered list of children; actions traverse them in order. */
public class SoGroup extends SoNode {
    static {
        com.kestrum.corvel.misc.ManagedObjects.registerWrapper("com.kestrum.corvel.nodes.SoGroup", SoGroup::new);
    }

    /** An empty group. */
    public SoGroup() {
        super(newNative());
    }

    /**
     * Wraps a native group (made by a subclass's constructor, or owned elsewhere).
     *
     * @param handle the address of the native object
     */
    protected SoGroup(long handle) {
        super(handle);
    }

    /**
     * Appends a child; the group references it. A node added twice is traversed twice.
     *
     * @param child the node to add
     */
    public void addChild(SoNode child) {
        addChildNative(handle(), handleOf(child, "child"));
    }

    /**
     * The number of children.
     *
     * @return the number of children
     */
    public int getNumChildren() {
        return getNumChildrenNative(handle());
    }

    private static native long newNative();

    private static native void addChildNative(long handle, long child);

    private static native int getNumChildrenNative(long handle);
}
