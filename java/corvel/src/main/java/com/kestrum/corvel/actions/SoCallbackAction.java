package com.kestrum.corvel.actions;

import com.kestrum.corvel.misc.ManagedObjects;

/** Traverses the scene graph and calls back at each node. */
public class SoCallbackAction extends SoAction {
    static {
        ManagedObjects.registerWrapper("com.kestrum.corvel.actions.SoCallbackAction", SoCallbackAction::new);
    }

    /** A new action, owned by this object. */
    public SoCallbackAction() {
        super("SoCallbackAction");
    }

    /** An action made by this class's subclasses ({@link SoAction#SoAction(String)}). */
    protected SoCallbackAction(String javaClassName) {
        super(javaClassName);
    }

    /** A view of a native action owned elsewhere. */
    protected SoCallbackAction(long handle) {
        super(handle);
    }
}
