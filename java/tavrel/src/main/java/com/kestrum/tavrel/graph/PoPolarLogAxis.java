package com.kestrum.tavrel.graph;

import static com.kestrum.tavrel.graph.Checks.notNull;

import com.kestrum.tavrel.internal.Enums;
import com.kestrum.tavrel.internal.JarInitializer;

/** A logarithmic polar axis from a centre (x0, y0) to a point (x1, y1). */
public class PoPolarLogAxis extends PoPolarAxis {
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

    /** A new axis with the toolkit's defaults; holds one reference on its native node. */
    public PoPolarLogAxis() {
        this(ctorImpl());
    }

    /**
     * The axis from (x0, y0) to (x1, y1).
     *
     * @param decades the digits of a decade that get a graduation, each 0 to 65,535 (at most
     *     32,767 of them); null for none
     * @param x0 the x of the start point
     * @param y0 the y of the start point
     * @param x1 the x of the end point
     * @param y1 the y of the end point
     * @param def which decades are graduated
     */
    public PoPolarLogAxis(float x0, float y0, float x1, float y1, DecadeListDefs def, int[] decades) {
        this(ctorImpl1(x0, y0, x1, y1, notNull(def, "def").getValue(), PoLogAxis.unsignedShorts(decades),
                decades == null ? 0 : decades.length));
    }

    /**
     * A Java object for the native node at the handle (non-zero); takes a reference on it.
     *
     * @param handle the address of the native object
     */
    protected PoPolarLogAxis(long handle) {
        super(handle);
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

    private static native long ctorImpl1(float x0, float y0, float x1, float y1, int decadeListDef, short[] decades,
            int count);

    private native void getLogGradImpl(long handle, short[] count, short[] decades, int[] tenPowerRep,
            int[] decadeRep, String[] fontName, float[] value);
}
