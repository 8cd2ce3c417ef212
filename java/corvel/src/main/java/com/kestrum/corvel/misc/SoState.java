package com.kestrum.corvel.misc;

/** The traversal state of an action: a view of the native state, which belongs to its action. */
public class SoState extends NativeObject {
    static {
        CorvelNative.ensureLoaded();
        ManagedObjects.registerWrapper("com.kestrum.corvel.misc.SoState", SoState::new);
    }

    protected SoState(long handle) {
        super(handle);
    }
}
