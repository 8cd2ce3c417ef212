package com.kestrum.corvel.actions;


/** Picks along a ray. */
public class SoRayPickAction extends SoPickAction {
    static {
        registerViews("com.kestrum.corvel.actions.SoRayPickAction", SoRayPickAction::new);
    }

    /** A new action, owned by this object. */
    public SoRayPickAction() {
        super("SoRayPickAction");
    }

    /**
     * An action made by this class's subclasses ({@link SoAction#SoAction(String)}).
     *
     * @param javaClassName the name of the Java class that makes the object
     */
    protected SoRayPickAction(String javaClassName) {
        super(javaClassName);
    }

    /**
     * A view of a native action owned elsewhere.
     *
     * @param handle the address of the native object
     */
    protected SoRayPickAction(long handle) {
        super(handle);
    }
}
