package com.kestrum.corvel.actions;


/** Distributes a scene graph. */
public class SoDistributeAction extends SoAction {
    static {
        registerViews("com.kestrum.corvel.actions.SoDistributeAction", SoDistributeAction::new);
    }

    /** A new action, owned by this object. */
    public SoDistributeAction() {
        super("SoDistributeAction");
    }

    /**
     * An action made by this class's subclasses ({@link SoAction#SoAction(String)}).
     *
     * @param javaClassName the name of the Java class that makes the object
     */
    protected SoDistributeAction(String javaClassName) {
        super(javaClassName);
    }

    /**
     * A view of a native action owned elsewhere.
     *
     * @param handle the address of the native object
     */
    protected SoDistributeAction(long handle) {
        super(handle);
    }
}
