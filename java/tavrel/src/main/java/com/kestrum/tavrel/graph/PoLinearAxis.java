package com.kestrum.tavrel.graph;

import static com.kestrum.tavrel.graph.Checks.notNull;

import com.kestrum.corvel.SbVec3f;
import com.kestrum.tavrel.internal.Enums;
import com.kestrum.tavrel.internal.JarInitializer;

/**
 * A linear axis: graduations at the multiples of a step between the values at its two ends.
 * With equal graduation values (0 and 0) the values are the coordinates along the axis.
 */
public class PoLinearAxis extends PoCartesianAxis {
    static {
        JarInitializer.init();
    }

    /** Whether graduations must fit. */
    public enum GradFits {
        /** The toolkit's {@code GRADFIT}. */
        GRADFIT(JarInitializer.value(GradFits::getGRADFITNative)),
        /** The toolkit's {@code GRADUNFIT}. */
        GRADUNFIT(JarInitializer.value(GradFits::getGRADUNFITNative));

        private final int value;

        GradFits(int value) {
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
        public static GradFits fromValue(int value) {
            return Enums.fromValue(values(), GradFits::getValue, value);
        }

        private static native int getGRADFITNative();

        private static native int getGRADUNFITNative();
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

    /** A new axis with the toolkit's defaults; holds one reference on its native node. */
    public PoLinearAxis() {
        this(ctorImpl());
    }

    /**
     * An axis from start along the direction of its type to the coordinate end, its values the
     * coordinates, graduated every step (0 or less: automatic).
     *
     * @param start the start point
     * @param end the coordinate of the axis's end along its direction
     * @param type the axis's plane and direction
     * @param step the step between two values
     */
    public PoLinearAxis(SbVec3f start, float end, PoCartesianAxis.Types type, float step) {
        this(ctorImpl1(Checks.point(start, "start"), end, value(type), step));
    }

    /**
     * As the constructor above, the values running from gradStart at the start to gradEnd at the end.
     *
     * @param start the start point
     * @param end the coordinate of the axis's end along its direction
     * @param type the axis's plane and direction
     * @param gradStart the value of the first graduation
     * @param gradEnd the value of the last graduation
     * @param step the step between two values
     */
    public PoLinearAxis(SbVec3f start, float end, PoCartesianAxis.Types type, float gradStart, float gradEnd,
            float step) {
        this(ctorImpl2(Checks.point(start, "start"), end, value(type), gradStart, gradEnd, step));
    }

    /**
     * A Java object for the native node at the handle (non-zero); takes a reference on it.
     *
     * @param handle the address of the native object
     */
    protected PoLinearAxis(long handle) {
        super(handle);
    }

    private final Kept<PbNumericDisplayFormat> format = new Kept<>(PbNumericDisplayFormat.class, "format");

    /**
     * Sets the number format of the labels; null for none. A change of the node. The node keeps
     * the format's address, so this object keeps the Java object as long as it is set.
     *
     * @param format the format, or null for none
     */
    public void setFormat(PbNumericDisplayFormat format) {
        this.format.setRebuilding(this, format, this::setFormatImpl);
    }

    /**
     * The number format, or null: the Java object set earlier, else a view of the address.
     *
     * @return the number format, or null: the Java object set earlier, else a view of the address
     */
    public PbNumericDisplayFormat getFormat() {
        return format.get(getFormatImpl(handle()));
    }

    /**
     * The distance between two graduations (the automatic one when none was given).
     *
     * @return the distance between two graduations (the automatic one when none was given)
     */
    public float getStep() {
        return getStepImpl(handle());
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

    static int value(PoCartesianAxis.Types type) {
        return notNull(type, "type").getValue();
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

    private static native long ctorImpl();

    private static native long ctorImpl1(float[] start, float end, int type, float step);

    private static native long ctorImpl2(float[] start, float end, int type, float gradStart, float gradEnd,
            float step);

    private native void setFormatImpl(long handle, long format);

    private native long getFormatImpl(long handle);

    private native float getStepImpl(long handle);

    private native void getMultFactorImpl(long handle, int[] position, float[] factor);
}
