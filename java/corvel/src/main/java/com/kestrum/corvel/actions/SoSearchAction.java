package com.kestrum.corvel.actions;

import com.kestrum.corvel.misc.ManagedObjects;

/** Searches a scene graph. */
public class SoSearchAction extends SoAction {
    static {
        ManagedObjects.registerWrapper("com.kestrum.corvel.actions.SoSearchAction", SoSearchAction::new);
    }

    /** A new action, owned by this object. */
    public SoSearchAction() {
        super("SoSearchAction");
    }

    /** An action made by this class's subclasses ({@link SoAction#SoAction(String)}). */
    protected SoSearchAction(String javaClassName) {
        super(javaClassName);
    }

    /** A view of a native action owned elsewhere. */
    protected SoSearchAction(long handle) {
        super(handle);
    }
}
