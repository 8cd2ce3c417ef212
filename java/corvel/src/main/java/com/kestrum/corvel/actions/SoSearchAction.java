package com.kestrum.corvel.actions;


/** Searches a scene graph. */
public class SoSearchAction extends SoAction {
    static {
        registerViews("com.kestrum.corvel.actions.SoSearchAction", SoSearchAction::new);
    }

    /** A new action, owned by this object. */
    public SoSearchAction() {
        super("SoSearchAction");
    }

    /**
     * An action made by this class's subclasses ({@link SoAction#SoAction(String)}).
     *
     * @param javaClassName the name of the Java class that makes the object
     */
    protected SoSearchAction(String javaClassName) {
        super(javaClassName);
    }

    /**
     * A view of a native action owned elsewhere.
     *
     * @param handle the address of the native object
     */
    protected SoSearchAction(long handle) {
        super(handle);
    }
}
