package com.kestrum.tavrel.graph;

import static com.kestrum.tavrel.graph.Checks.count;
import static com.kestrum.tavrel.graph.Checks.notNull;

import com.kestrum.corvel.SbVec3f;
import com.kestrum.tavrel.internal.Enums;
import com.kestrum.tavrel.internal.JarInitializer;

/**
 * A logarithmic axis: graduations at the ten powers, or at the digits of a decade list in each
 * decade, between the exponents at its two ends. With equal exponents (0 and 0) the exponents
 * are the coordinates along the axis.
 */
public class PoLogAxis extends PoCartesianAxis {
    static {
        JarInitializer.init();
    }

    /** Which digits of a decade get a graduation. */
    public enum DecadeListDefs {
        /** The toolkit's {@code DECADELISTAUTO}. */
        DECADELISTAUTO(JarInitializer.value(DecadeListDefs::getDECADELISTAUTONative)),
        /** The toolkit's {@code DECADELISTNONAUTO}. */
        DECADELISTNONAUTO(JarInitializer.value(DecadeListDefs::getDECADELISTNONAUTONative));

        private final int value;

        DecadeListDefs(int value) {
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
        public static DecadeListDefs fromValue(int value) {
            return Enums.fromValue(values(), DecadeListDefs::getValue, value);
        }

        private static native int getDECADELISTAUTONative();

        private static native int getDECADELISTNONAUTONative();
    }

    /** How ten powers are written. */
    public enum TenPowGradReps {
        /** The toolkit's {@code TENPOWERPOW10}. */
        TENPOWERPOW10(JarInitializer.value(TenPowGradReps::getTENPOWERPOW10Native)),
        /** The toolkit's {@code TENPOWERDECIMAL}. */
        TENPOWERDECIMAL(JarInitializer.value(TenPowGradReps::getTENPOWERDECIMALNative)),
        /** The toolkit's {@code TENPOWERAUTO}. */
        TENPOWERAUTO(JarInitializer.value(TenPowGradReps::getTENPOWERAUTONative));

        private final int value;

        TenPowGradReps(int value) {
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
        public static TenPowGradReps fromValue(int value) {
            return Enums.fromValue(values(), TenPowGradReps::getValue, value);
        }

        private static native int getTENPOWERPOW10Native();

        private static native int getTENPOWERDECIMALNative();

        private static native int getTENPOWERAUTONative();
    }

    /** How the other graduations of a decade are written. */
    public enum DecadeReps {
        /** The toolkit's {@code DECADENONE}. */
        DECADENONE(JarInitializer.value(DecadeReps::getDECADENONENative)),
        /** The toolkit's {@code DECADEASTENPOWER}. */
        DECADEASTENPOWER(JarInitializer.value(DecadeReps::getDECADEASTENPOWERNative)),
        /** The toolkit's {@code DECADEDECIMAL}. */
        DECADEDECIMAL(JarInitializer.value(DecadeReps::getDECADEDECIMALNative)),
        /** The toolkit's {@code DECADEDIGIT}. */
        DECADEDIGIT(JarInitializer.value(DecadeReps::getDECADEDIGITNative)),
        /** The toolkit's {@code DECADEAUTO}. */
        DECADEAUTO(JarInitializer.value(DecadeReps::getDECADEAUTONative));

        private final int value;

        DecadeReps(int value) {
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
        public static DecadeReps fromValue(int value) {
            return Enums.fromValue(values(), DecadeReps::getValue, value);
        }

        private static native int getDECADENONENative();

        private static native int getDECADEASTENPOWERNative();

        private static native int getDECADEDECIMALNative();

        private static native int getDECADEDIGITNative();

        private static native int getDECADEAUTONative();
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
    public PoLogAxis() {
        this(ctorImpl());
    }

    /**
     * An axis from start along the direction of its type to the coordinate end, its exponents the
     * coordinates.
     *
     * @param decades the digits of a decade that get a graduation, each 0 to 65,535 (at most
     *     32,767 of them); null for none
     * @param start the start point
     * @param end the coordinate of the axis's end along its direction
     * @param type the axis's plane and direction
     * @param def which decades are graduated
     */
    public PoLogAxis(SbVec3f start, float end, PoCartesianAxis.Types type, DecadeListDefs def, int[] decades) {
        this(ctorImpl1(Checks.point(start, "start"), end, PoLinearAxis.value(type), value(def),
                unsignedShorts(decades), decades == null ? 0 : decades.length));
    }

    /**
     * As the constructor above, the exponents running from expStart at the start to expEnd at the end.
     *
     * @param start the start point
     * @param end the coordinate of the axis's end along its direction
     * @param type the axis's plane and direction
     * @param def which decades are graduated
     * @param decades the decade list, unsigned 16-bit values
     * @param expStart the exponent at the start of the axis
     * @param expEnd the exponent at the end of the axis
     */
    public PoLogAxis(SbVec3f start, float end, PoCartesianAxis.Types type, DecadeListDefs def, int[] decades,
            float expStart, float expEnd) {
        this(ctorImpl2(Checks.point(start, "start"), end, PoLinearAxis.value(type), value(def),
                unsignedShorts(decades), decades == null ? 0 : decades.length, expStart, expEnd));
    }

    /**
     * A Java object for the native node at the handle (non-zero); takes a reference on it.
     *
     * @param handle the address of the native object
     */
    protected PoLogAxis(long handle) {
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
     * The logarithmic graduation settings: the decade list in use (unsigned 16-bit values), how ten
     * powers and the other graduations are written, the font and a value of the toolkit's.
     */
    public record LogGrad(int[] decades, TenPowGradReps tenPowerRep, DecadeReps decadeRep, String fontName,
            float value) {}

    /**
     * The settings of the logarithmic graduations, with the decade list the toolkit wrote.
     *
     * @return the settings of the logarithmic graduations, with the decade list the toolkit wrote
     */
    public LogGrad getLogGrad() {
        LogGradOutputs o = new LogGradOutputs();
        getLogGradImpl(handle(), o.count, o.decades, o.tenPowerRep, o.decadeRep, o.fontName, o.value);
        return new LogGrad(o.decadeList(), TenPowGradReps.fromValue(o.tenPowerRep[0]),
                DecadeReps.fromValue(o.decadeRep[0]), o.fontName[0], o.value[0]);
    }

    private static int value(DecadeListDefs def) {
        return notNull(def, "def").getValue();
    }

    /** A decade list as the toolkit's unsigned shorts; null for null. */
    static short[] unsignedShorts(int[] decades) {
        if (decades == null) {
            return null;
        }
        count(decades.length, Short.MAX_VALUE, "number of decades");
        short[] list = new short[decades.length];
        for (int i = 0; i < decades.length; i++) {
            if (decades[i] < 0 || decades[i] > 0xFFFF) {
                throw new IllegalArgumentException("decades[" + i + "] is " + decades[i] + ", not 0 to 65535");
            }
            list[i] = (short) decades[i];
        }
        return list;
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

    private static native long ctorImpl1(float[] start, float end, int type, int decadeListDef, short[] decades,
            int count);

    private static native long ctorImpl2(float[] start, float end, int type, int decadeListDef, short[] decades,
            int count, float expStart, float expEnd);

    private native void getMultFactorImpl(long handle, int[] position, float[] factor);

    private native void getLogGradImpl(long handle, short[] count, short[] decades, int[] tenPowerRep,
            int[] decadeRep, String[] fontName, float[] value);
}
