package com.kestrum.tavrel.data;

import com.kestrum.tavrel.internal.JarInitializer;

/** The sides of a 2D mesh raised by its values, down to a threshold. */
public class PoMeshSides extends PoMesh2D {
    static {
        JarInitializer.init();
    }

    /** What the sides reach down to. */
    public enum ThresholdTypes {
        /** The toolkit's {@code THRESHOLDZMIN}. */
        THRESHOLDZMIN(JarInitializer.value(ThresholdTypes::getTHRESHOLDZMINNative)),
        /** The toolkit's {@code THRESHOLDZMAX}. */
        THRESHOLDZMAX(JarInitializer.value(ThresholdTypes::getTHRESHOLDZMAXNative)),
        /** The toolkit's {@code THRESHOLDVALUE}. */
        THRESHOLDVALUE(JarInitializer.value(ThresholdTypes::getTHRESHOLDVALUENative));

        private final int value;

        ThresholdTypes(int value) {
            this.value = value;
        }

        /** {@return the toolkit's value of the constant} */
        public int getValue() {
            return value;
        }

        private static native int getTHRESHOLDZMINNative();

        private static native int getTHRESHOLDZMAXNative();

        private static native int getTHRESHOLDVALUENative();
    }

    /** A new node that holds one reference on its native node. */
    public PoMeshSides() {
        this(ctorImpl());
    }

    /**
     * A Java object for the native node at the handle (non-zero); takes a reference on it.
     *
     * @param handle the address of the native object
     */
    protected PoMeshSides(long handle) {
        super(handle);
    }

    /**
     * The name of the class's toolkit type.
     *
     * @return the name of the class's toolkit type
     */
    public static String getClassTypeName() {
        return getClassTypeId();
    }

    /**
     * The address of the class's node-kit catalog, which belongs to the toolkit.
     *
     * @return the address of the class's node-kit catalog, which belongs to the toolkit
     */
    public static long getClassNodekitCatalog() {
        return getClassNodekitCatalogImpl();
    }

    private static native long ctorImpl();

    private static native String getClassTypeId();

    private static native long getClassNodekitCatalogImpl();
}
