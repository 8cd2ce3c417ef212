package com.kestrum.corvel.misc;

/**
 * The traversal state of an action: a view of the native state, which belongs to its action and
 * lives only while the action's {@code apply} runs. The view is disposed when that apply
 * returns ({@link Traversals}); its methods, and the methods that take it, then throw
 * {@link IllegalStateException}.
 */
public class SoState extends NativeObject {
    static {
        CorvelNative.ensureLoaded();
        ManagedObjects.registerWrapper("com.kestrum.corvel.misc.SoState", SoState::new);
    }

    /**
     * A view of a native state, tied to the traversal in progress on the calling thread.
     *
     * @param handle the native state's address
     */
    protected SoState(long handle) {
        super(handle);
        Traversals.own(this);
        if (!isDisposed()) {
            registerAsPeer(false);
        }
    }

    /**
     * The number of depths opened and not yet closed (by separators).
     *
     * @return the depth, 0 at the top of the traversal
     * @throws IllegalStateException when the traversal is over
     */
    public int getDepth() {
        return getDepthNative(handle());
    }

    /**
     * Sets the cache flag: while it is set, elements read during the traversal are captured.
     *
     * @param open the flag
     * @throws IllegalStateException when the traversal is over
     */
    public void setCacheOpen(boolean open) {
        setCacheOpenNative(handle(), open);
    }

    /**
     * The cache flag.
     *
     * @return whether elements read are captured
     * @throws IllegalStateException when the traversal is over
     */
    public boolean isCacheOpen() {
        return isCacheOpenNative(handle());
    }

    /**
     * The number of elements captured so far while the cache flag was set.
     *
     * @return the count
     * @throws IllegalStateException when the traversal is over
     */
    public int getNumCaptured() {
        return getNumCapturedNative(handle());
    }

    private static native int getDepthNative(long handle);

    private static native void setCacheOpenNative(long handle, boolean open);

    private static native boolean isCacheOpenNative(long handle);

    private static native int getNumCapturedNative(long handle);
}
