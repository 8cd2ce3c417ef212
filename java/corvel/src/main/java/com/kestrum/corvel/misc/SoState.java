package com.kestrum.corvel.misc;

/** The traversal state of an action: a view of the native state, which belongs to its action. */
public class SoState extends NativeObject {
    static {
        CorvelNative.ensureLoaded();
        ManagedObjects.registerWrapper("com.kestrum.corvel.misc.SoState", SoState::new);
    }

    /**
     * A view of a native traversal state owned by its action.
     *
     * @param handle the address of the native object
     */
    protected SoState(long handle) {
        super(handle);
    }
}
