package com.kestrum.tavrel.graph;

import static com.kestrum.tavrel.graph.Checks.notNull;

import com.kestrum.tavrel.internal.JarInitializer;

/** A logarithmic polar axis from a centre (x0, y0) to a point (x1, y1). */
public class PoPolarLogAxis extends PoPolarAxis {
    static {
        JarInitializer.init();
    }

    /** Which digits of a decade get a graduation. */
    public enum DecadeListDefs {
        DECADELISTAUTO(JarInitializer.value(DecadeListDefs::getDECADELISTAUTONative)),
        DECADELISTNONAUTO(JarInitializer.value(DecadeListDefs::getDECADELISTNONAUTONative));

        private final int value;

        DecadeListDefs(int value) {
            this.value = value;
        }

        /** The toolkit's value of the constant. */
        public int getValue() {
            return value;
        }

        /** The constant with the toolkit's value, or null. */
        public static DecadeListDefs fromValue(int value) {
            for (DecadeListDefs c : values()) {
                if (c.value == value) {
                    return c;
                }
            }
            return null;
        }

        private static native int getDECADELISTAUTONative();

        private static native int getDECADELISTNONAUTONative();
    }

    /** How ten powers are written. */
    public enum TenPowGradReps {
        TENPOWERPOW10(JarInitializer.value(TenPowGradReps::getTENPOWERPOW10Native)),
        TENPOWERDECIMAL(JarInitializer.value(TenPowGradReps::getTENPOWERDECIMALNative)),
        TENPOWERAUTO(JarInitializer.value(TenPowGradReps::getTENPOWERAUTONative));

        private final int value;

        TenPowGradReps(int value) {
            this.value = value;
        }

        /** The toolkit's value of the constant. */
        public int getValue() {
            return value;
        }

        /** The constant with the toolkit's value, or null. */
        public static TenPowGradReps fromValue(int value) {
            for (TenPowGradReps c : values()) {
                if (c.value == value) {
                    return c;
                }
            }
            return null;
        }

        private static native int getTENPOWERPOW10Native();

        private static native int getTENPOWERDECIMALNative();

        private static native int getTENPOWERAUTONative();
    }

    /** How the other graduations of a decade are written. */
    public enum DecadeReps {
        DECADENONE(JarInitializer.value(DecadeReps::getDECADENONENative)),
        DECADEASTENPOWER(JarInitializer.value(DecadeReps::getDECADEASTENPOWERNative)),
        DECADEDECIMAL(JarInitializer.value(DecadeReps::getDECADEDECIMALNative)),
        DECADEDIGIT(JarInitializer.value(DecadeReps::getDECADEDIGITNative)),
        DECADEAUTO(JarInitializer.value(DecadeReps::getDECADEAUTONative));

        private final int value;

        DecadeReps(int value) {
            this.value = value;
        }

        /** The toolkit's value of the constant. */
        public int getValue() {
            return value;
        }

        /** The constant with the toolkit's value, or null. */
        public static DecadeReps fromValue(int value) {
            for (DecadeReps c : values()) {
                if (c.value == value) {
                    return c;
                }
            }
            return null;
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
     */
    public PoPolarLogAxis(float x0, float y0, float x1, float y1, DecadeListDefs def, int[] decades) {
        this(ctorImpl1(x0, y0, x1, y1, notNull(def, "def").getValue(), PoLogAxis.unsignedShorts(decades),
                decades == null ? 0 : decades.length));
    }

    /** A Java object for the native node at the handle (non-zero); takes a reference on it. */
    protected PoPolarLogAxis(long handle) {
        super(handle);
    }

    /**
     * The logarithmic graduation settings: the decade list in use (unsigned 16-bit values), how ten
     * powers and the other graduations are written, the font and a value of the toolkit's.
     */
    public record LogGrad(int[] decades, TenPowGradReps tenPowerRep, DecadeReps decadeRep, String fontName,
            float value) {}

    public LogGrad getLogGrad() {
        LogGradOutputs o = new LogGradOutputs();
        getLogGradImpl(handle(), o.count, o.decades, o.tenPowerRep, o.decadeRep, o.fontName, o.value);
        return new LogGrad(o.decadeList(), TenPowGradReps.fromValue(o.tenPowerRep[0]),
                DecadeReps.fromValue(o.decadeRep[0]), o.fontName[0], o.value[0]);
    }

    /** The name of the class's toolkit type. */
    public static String getClassTypeName() {
        return getClassTypeId();
    }

    /** The address of the class's node-kit catalog, which belongs to the toolkit. */
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
