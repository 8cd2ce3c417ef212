package com.kestrum.tavrel.graph;

import static com.kestrum.tavrel.graph.Checks.notNull;

import com.kestrum.corvel.SbVec2f;
import com.kestrum.tavrel.internal.Enums;
import com.kestrum.tavrel.internal.JarInitializer;

/**
 * Points with a low and a high error in x and in y each. The node keeps a copy of the points and
 * errors it is given.
 */
public class PoBiErrorPointField extends PoQuorvex {
    static {
        JarInitializer.init();
    }

    /** How the errors are read: fixed or relative to the value, as they are or in percent. */
    public enum VariationTypes {
        /** FIXEDVARIATION */
        FIXEDVARIATION(JarInitializer.value(VariationTypes::getFIXEDVARIATIONNative)),
        /** RELVARIATION */
        RELVARIATION(JarInitializer.value(VariationTypes::getRELVARIATIONNative)),
        /** PERCENTFIXEDVARIATION */
        PERCENTFIXEDVARIATION(JarInitializer.value(VariationTypes::getPERCENTFIXEDVARIATIONNative)),
        /** PERCENTRELVARIATION */
        PERCENTRELVARIATION(JarInitializer.value(VariationTypes::getPERCENTRELVARIATIONNative));

        private final int value;

        VariationTypes(int value) {
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
        public static VariationTypes fromValue(int value) {
            return Enums.fromValue(values(), VariationTypes::getValue, value);
        }

        private static native int getFIXEDVARIATIONNative();

        private static native int getRELVARIATIONNative();

        private static native int getPERCENTFIXEDVARIATIONNative();

        private static native int getPERCENTRELVARIATIONNative();
    }

    /** A node without points, with the toolkit's defaults. */
    public PoBiErrorPointField() {
        super(ctorImpl());
    }

    /**
     * Error points at the first num points with the first num errors of each list; flag1 and
     * flag2 reach the toolkit as given.
     *
     * @param num the number of elements to use
     * @param points the points
     * @param xLow the error below each point along x
     * @param xHigh the error above each point along x
     * @param yLow the error below each point along y
     * @param yHigh the error above each point along y
     * @param variationType how the variations are read
     * @param flag1 whether the x errors are drawn
     * @param flag2 whether the y errors are drawn
     * @throws IllegalArgumentException when num is negative or more than the points or a list
     * @throws NullPointerException when an argument or a point is null
     */
    public PoBiErrorPointField(int num, SbVec2f[] points, float[] xLow, float[] xHigh, float[] yLow, float[] yHigh,
            VariationTypes variationType, int flag1, int flag2) {
        super(ctorImpl1(Checks.count(num, Checks.vectors(points, "points").length, "num"), points,
                Checks.length(xLow, num, "xLow"), Checks.length(xHigh, num, "xHigh"), Checks.length(yLow, num, "yLow"),
                Checks.length(yHigh, num, "yHigh"), notNull(variationType, "variationType").getValue(), flag1, flag2));
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

    private static native long ctorImpl1(int num, Object[] points, float[] xLow, float[] xHigh, float[] yLow,
            float[] yHigh, int variationType, int flag1, int flag2);
}
