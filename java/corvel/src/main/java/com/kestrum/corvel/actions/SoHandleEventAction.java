package com.kestrum.corvel.actions;


/** Hands an event to the nodes of a scene graph. */
public class SoHandleEventAction extends SoAction {
    static {
        registerViews("com.kestrum.corvel.actions.SoHandleEventAction", SoHandleEventAction::new);
    }

    /** A new action, owned by this object. */
    public SoHandleEventAction() {
        super("SoHandleEventAction");
    }

    /**
     * An action made by this class's subclasses ({@link SoAction#SoAction(String)}).
     *
     * @param javaClassName the name of the Java class that makes the object
     */
    protected SoHandleEventAction(String javaClassName) {
        super(javaClassName);
    }

    /**
     * A view of a native action owned elsewhere.
     *
     * @param handle the address of the native object
     */
    protected SoHandleEventAction(long handle) {
        super(handle);
    }
}
