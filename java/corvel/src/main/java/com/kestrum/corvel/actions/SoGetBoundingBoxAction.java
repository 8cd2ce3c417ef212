package com.kestrum.corvel.actions;


/** Computes the bounding box of a scene graph. */
public class SoGetBoundingBoxAction extends SoAction {
    static {
        registerViews("com.kestrum.corvel.actions.SoGetBoundingBoxAction", SoGetBoundingBoxAction::new);
    }

    /** A new action, owned by this object. */
    public SoGetBoundingBoxAction() {
        super("SoGetBoundingBoxAction");
    }

    /**
     * An action made by this class's subclasses ({@link SoAction#SoAction(String)}).
     *
     * @param javaClassName the name of the Java class that makes the object
     */
    protected SoGetBoundingBoxAction(String javaClassName) {
        super(javaClassName);
    }

    /**
     * A view of a native action owned elsewhere.
     *
     * @param handle the address of the native object
     */
    protected SoGetBoundingBoxAction(long handle) {
        super(handle);
    }
}
