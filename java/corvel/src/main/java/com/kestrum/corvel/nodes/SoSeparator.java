package com.kestrum.corvel.nodes;

/**
 * A group that scopes the traversal state: the elements its children set are popped when the
 * traversal leaves it, and the values from before come back.
 */
public class SoSeparator extends SoGroup {
    static {
        com.kestrum.corvel.misc.ManagedObjects.registerWrapper("com.kestrum.corvel.nodes.SoSeparator",
                SoSeparator::new);
    }

    /** A new separator without children. */
    public SoSeparator() {
        super(newSeparatorNative());
    }

    /**
     * A view of a native separator.
     *
     * @param handle the native separator's address
     */
    protected SoSeparator(long handle) {
        super(handle);
    }

    private static native long newSeparatorNative();
}
