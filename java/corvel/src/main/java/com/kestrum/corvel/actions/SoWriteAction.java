package com.kestrum.corvel.actions;


/** Writes a scene graph as text. */
public class SoWriteAction extends SoAction {
    static {
        registerViews("com.kestrum.corvel.actions.SoWriteAction", SoWriteAction::new);
    }

    /** A new action, owned by this object. */
    public SoWriteAction() {
        super("SoWriteAction");
    }

    /**
     * An action made by this class's subclasses ({@link SoAction#SoAction(String)}).
     *
     * @param javaClassName the name of the Java class that makes the object
     */
    protected SoWriteAction(String javaClassName) {
        super(javaClassName);
    }

    /**
     * A view of a native action owned elsewhere.
     *
     * @param handle the address of the native object
     */
    protected SoWriteAction(long handle) {
        super(handle);
    }

    /**
     * What the traversals of this action wrote so far.
     *
     * @return what the traversals of this action wrote so far
     */
    public String getOutput() {
        return getOutputNative(handle());
    }

    private static native String getOutputNative(long handle);
}
