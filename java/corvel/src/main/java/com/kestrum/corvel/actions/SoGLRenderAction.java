package com.kestrum.corvel.actions;

import com.kestrum.corvel.misc.ManagedObjects;

/** Renders the scene graph. */
public class SoGLRenderAction extends SoAction {
    static {
        ManagedObjects.registerWrapper("com.kestrum.corvel.actions.SoGLRenderAction", SoGLRenderAction::new);
    }

    /** A new action, owned by this object. */
    public SoGLRenderAction() {
        super("SoGLRenderAction");
    }

    /** An action made by this class's subclasses ({@link SoAction#SoAction(String)}). */
    protected SoGLRenderAction(String javaClassName) {
        super(javaClassName);
    }

    /** A view of a native action owned elsewhere. */
    protected SoGLRenderAction(long handle) {
        super(handle);
    }
}
