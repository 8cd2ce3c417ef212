package com.kestrum.tavrel.graph;

import static com.kestrum.tavrel.graph.Checks.notNull;

import com.kestrum.corvel.SbVec2f;
import com.kestrum.tavrel.internal.Enums;
import com.kestrum.tavrel.internal.JarInitializer;

/**
 * Several histograms over the same value names: numHistog lists of numValues values, one after
 * the other. The node keeps a copy of the values and names it is given.
 */
public class PoMultipleHistogram extends PoHistogram {
    static {
        JarInitializer.init();
    }

    /** The order in which the values of the histograms are read. */
    public enum HistogPaths {
        /** ROWCOLUMN */
        ROWCOLUMN(JarInitializer.value(HistogPaths::getROWCOLUMNNative)),
        /** COLUMNROW */
        COLUMNROW(JarInitializer.value(HistogPaths::getCOLUMNROWNative));

        private final int value;

        HistogPaths(int value) {
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
        public static HistogPaths fromValue(int value) {
            return Enums.fromValue(values(), HistogPaths::getValue, value);
        }

        private static native int getROWCOLUMNNative();

        private static native int getCOLUMNROWNative();
    }

    /** How the histograms are drawn together. */
    public enum Representations {
        /** JUXTAPOSED */
        JUXTAPOSED(JarInitializer.value(Representations::getJUXTAPOSEDNative)),
        /** ACCUMULATED */
        ACCUMULATED(JarInitializer.value(Representations::getACCUMULATEDNative)),
        /** PERCENTAGE */
        PERCENTAGE(JarInitializer.value(Representations::getPERCENTAGENative));

        private final int value;

        Representations(int value) {
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
        public static Representations fromValue(int value) {
            return Enums.fromValue(values(), Representations::getValue, value);
        }

        private static native int getJUXTAPOSEDNative();

        private static native int getACCUMULATEDNative();

        private static native int getPERCENTAGENative();
    }

    /** A multiple histogram without values. */
    public PoMultipleHistogram() {
        super(ctorImpl());
    }

    /**
     * Histograms of numHistog x numValues values (histogram after histogram), with numHistog
     * histogram names and numValues value names, their bars sharing histogSize from the origin
     * along the axis of type.
     *
     * @param origin the origin
     * @param histogSize the size of the histogram along its axis
     * @param type the direction of the bars
     * @param numHistog the number of histograms
     * @param numValues the number of values
     * @param values the values
     * @param histogNames the names of the histograms
     * @param valueNames the names of the values
     * @throws IllegalArgumentException when a count is negative or an array too short
     * @throws NullPointerException when an argument or a name is null
     */
    public PoMultipleHistogram(SbVec2f origin, float histogSize, PoHistogram.Types type, int numHistog,
            int numValues, float[] values, String[] histogNames, String[] valueNames) {
        super(ctorImpl1(Checks.point(origin, "origin"), histogSize, notNull(type, "type").getValue(),
                Checks.count(numHistog, Integer.MAX_VALUE, "numHistog"),
                Checks.count(numValues, Integer.MAX_VALUE, "numValues"),
                Checks.length(values, (long) numHistog * numValues, "values"),
                Checks.strings(histogNames, numHistog, "histogNames"),
                Checks.strings(valueNames, numValues, "valueNames")));
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

    private static native long ctorImpl1(float[] origin, float histogSize, int type, int numHistog, int numValues,
            float[] values, Object[] histogNames, Object[] valueNames);
}
