package com.kestrum.tavrel.testkit;

/** Direct access to the toolkit stand-in. */
public final class Toolkit {
    static {
        TestLibrary.ensureLoaded();
    }

    private Toolkit() {}

    /** A new native PoTavrel object (for its resource handle). */
    public static native long newPoTavrel();

    public static native int poTavrelInitCount();

    /** Number of SoModuleCheck objects constructed with the version. */
    public static native int moduleCheckCount(int version);

    public static native int moduleCheckTotal();

    public static native String parentTypeName(String typeName);

    /** The data (action-method index of node types) of the named type, -1 when unknown. */
    public static native int typeData(String typeName);

    /**
     * The Java object that the binding core gives native code for the address, as an instance of
     * the dotted class name ({@code ObjectHelper::getManagedObject}).
     */
    public static native Object managedObject(String dottedClassName, long address);
}
