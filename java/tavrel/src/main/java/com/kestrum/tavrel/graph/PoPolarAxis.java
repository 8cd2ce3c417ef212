package com.kestrum.tavrel.graph;

import com.kestrum.tavrel.internal.Enums;
import com.kestrum.tavrel.internal.JarInitializer;

/** Base of the polar axes, whose values are distances from a centre. */
public abstract class PoPolarAxis extends PoAxis {
    static {
        JarInitializer.init();
    }

    /** Where the multiplying factor is written. */
    public enum MultFactorPositions {
        /** The toolkit's {@code MULTFACTORSTART}. */
        MULTFACTORSTART(JarInitializer.value(MultFactorPositions::getMULTFACTORSTARTNative)),
        /** The toolkit's {@code MULTFACTOREND}. */
        MULTFACTOREND(JarInitializer.value(MultFactorPositions::getMULTFACTORENDNative)),
        /** The toolkit's {@code MULTFACTOREXTR}. */
        MULTFACTOREXTR(JarInitializer.value(MultFactorPositions::getMULTFACTOREXTRNative)),
        /** The toolkit's {@code MULTFACTORGRAD}. */
        MULTFACTORGRAD(JarInitializer.value(MultFactorPositions::getMULTFACTORGRADNative));

        private final int value;

        MultFactorPositions(int value) {
            this.value = value;
        }

        /** {@return the toolkit's value of the constant} */
        public int getValue() {
            return value;
        }

        /**
         * {@return the constant with the toolkit's value, or null}
         *
         * @param value the toolkit's value
         */
        public static MultFactorPositions fromValue(int value) {
            return Enums.fromValue(values(), MultFactorPositions::getValue, value);
        }

        private static native int getMULTFACTORSTARTNative();

        private static native int getMULTFACTORENDNative();

        private static native int getMULTFACTOREXTRNative();

        private static native int getMULTFACTORGRADNative();
    }

    /**
     * A Java object for the native node at the handle (non-zero); takes a reference on it.
     *
     * @param handle the address of the native object
     */
    protected PoPolarAxis(long handle) {
        super(handle);
    }

    /** Where the multiplying factor is written, and the factor. */
    public record MultFactor(MultFactorPositions position, float factor) {}

    /**
     * The settings of the multiplication factor.
     *
     * @return the settings of the multiplication factor
     */
    public MultFactor getMultFactor() {
        int[] position = new int[1];
        float[] factor = new float[1];
        getMultFactorImpl(handle(), position, factor);
        return new MultFactor(MultFactorPositions.fromValue(position[0]), factor[0]);
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

    private static native String getClassTypeId();

    private static native long getClassNodekitCatalogImpl();

    private native void getMultFactorImpl(long handle, int[] position, float[] factor);
}
