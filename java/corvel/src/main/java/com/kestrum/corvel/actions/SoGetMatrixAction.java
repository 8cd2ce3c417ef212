package com.kestrum.corvel.actions;


/** Computes the transformation matrix of a node. */
public class SoGetMatrixAction extends SoAction {
    static {
        registerViews("com.kestrum.corvel.actions.SoGetMatrixAction", SoGetMatrixAction::new);
    }

    /** A new action, owned by this object. */
    public SoGetMatrixAction() {
        super("SoGetMatrixAction");
    }

    /**
     * An action made by this class's subclasses ({@link SoAction#SoAction(String)}).
     *
     * @param javaClassName the name of the Java class that makes the object
     */
    protected SoGetMatrixAction(String javaClassName) {
        super(javaClassName);
    }

    /**
     * A view of a native action owned elsewhere.
     *
     * @param handle the address of the native object
     */
    protected SoGetMatrixAction(long handle) {
        super(handle);
    }
}
