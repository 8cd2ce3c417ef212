package com.kestrum.corvel.actions;


/** Counts the primitives of a scene graph. */
public class SoGetPrimitiveCountAction extends SoAction {
    static {
        registerViews("com.kestrum.corvel.actions.SoGetPrimitiveCountAction", SoGetPrimitiveCountAction::new);
    }

    /** A new action, owned by this object. */
    public SoGetPrimitiveCountAction() {
        super("SoGetPrimitiveCountAction");
    }

    /**
     * An action made by this class's subclasses ({@link SoAction#SoAction(String)}).
     *
     * @param javaClassName the name of the Java class that makes the object
     */
    protected SoGetPrimitiveCountAction(String javaClassName) {
        super(javaClassName);
    }

    /**
     * A view of a native action owned elsewhere.
     *
     * @param handle the address of the native object
     */
    protected SoGetPrimitiveCountAction(long handle) {
        super(handle);
    }
}
