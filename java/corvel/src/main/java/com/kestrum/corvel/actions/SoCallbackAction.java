package com.kestrum.corvel.actions;


/** Traverses the scene graph and calls back at each node. */
public class SoCallbackAction extends SoAction {
    static {
        registerViews("com.kestrum.corvel.actions.SoCallbackAction", SoCallbackAction::new);
    }

    /** A new action, owned by this object. */
    public SoCallbackAction() {
        super("SoCallbackAction");
    }

    /**
     * An action made by this class's subclasses ({@link SoAction#SoAction(String)}).
     *
     * @param javaClassName the name of the Java class that makes the object
     */
    protected SoCallbackAction(String javaClassName) {
        super(javaClassName);
    }

    /**
     * A view of a native action owned elsewhere.
     *
     * @param handle the address of the native object
     */
    protected SoCallbackAction(long handle) {
        super(handle);
    }
}
