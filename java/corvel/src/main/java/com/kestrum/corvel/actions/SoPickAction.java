package com.kestrum.corvel.actions;


/** Base of the picking actions. */
public class SoPickAction extends SoAction {
    static {
        registerViews("com.kestrum.corvel.actions.SoPickAction", SoPickAction::new);
    }

    /** A new action, owned by this object. */
    public SoPickAction() {
        super("SoPickAction");
    }

    /**
     * An action made by this class's subclasses ({@link SoAction#SoAction(String)}).
     *
     * @param javaClassName the name of the Java class that makes the object
     */
    protected SoPickAction(String javaClassName) {
        super(javaClassName);
    }

    /**
     * A view of a native action owned elsewhere.
     *
     * @param handle the address of the native object
     */
    protected SoPickAction(long handle) {
        super(handle);
    }
}
