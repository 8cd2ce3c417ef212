package com.kestrum.tavrel.graph;

import static com.kestrum.tavrel.graph.Checks.notNull;

import com.kestrum.corvel.SbVec2f;
import com.kestrum.tavrel.internal.Enums;
import com.kestrum.tavrel.internal.JarInitializer;

/**
 * A 2D curve with an error bar at each point: a low and a high variation a point, read as the
 * variation type says. The node keeps a copy of what it is given.
 */
public class PoErrorCurve extends PoQuorvex {
    static {
        JarInitializer.init();
    }

    /** How the variations of an error curve are read: fixed or relative to the value, as they are or in percent. */
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

    /** How the errors of an error curve are drawn. */
    public enum ErrorCurveReps {
        /** HIGHLOWCLOSE */
        HIGHLOWCLOSE(JarInitializer.value(ErrorCurveReps::getHIGHLOWCLOSENative)),
        /** LINEBAR */
        LINEBAR(JarInitializer.value(ErrorCurveReps::getLINEBARNative)),
        /** FILLED */
        FILLED(JarInitializer.value(ErrorCurveReps::getFILLEDNative));

        private final int value;

        ErrorCurveReps(int value) {
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
        public static ErrorCurveReps fromValue(int value) {
            return Enums.fromValue(values(), ErrorCurveReps::getValue, value);
        }

        private static native int getHIGHLOWCLOSENative();

        private static native int getLINEBARNative();

        private static native int getFILLEDNative();
    }

    /** An error curve without points. */
    public PoErrorCurve() {
        super(ctorImpl());
    }

    /**
     * An error curve through the first numPoints of the points, with the first numPoints of each
     * variation list.
     *
     * @param numPoints the number of points
     * @param points the points
     * @param lowVariation the variation below each point
     * @param highVariation the variation above each point
     * @param variationType how the variations are read
     * @param errorCurveRep how the errors are drawn
     * @throws IllegalArgumentException when numPoints is negative or more than the points or a list
     * @throws NullPointerException when an array, a point or an enumeration is null
     */
    public PoErrorCurve(int numPoints, SbVec2f[] points, float[] lowVariation, float[] highVariation,
            VariationTypes variationType, ErrorCurveReps errorCurveRep) {
        super(ctorImpl1(Checks.count(numPoints, Checks.vectors(points, "points").length, "numPoints"), points,
                Checks.length(lowVariation, numPoints, "lowVariation"),
                Checks.length(highVariation, numPoints, "highVariation"),
                notNull(variationType, "variationType").getValue(), notNull(errorCurveRep, "errorCurveRep")
                        .getValue()));
    }

    /**
     * An error curve through the points given as x, y pairs, one variation of each list a point.
     *
     * @param xy the points as x, y pairs
     * @param lowVariation the variation below each point
     * @param highVariation the variation above each point
     * @param variationType how the variations are read
     * @param errorCurveRep how the errors are drawn
     * @throws IllegalArgumentException when xy has an odd length or a list is too short
     */
    public PoErrorCurve(float[] xy, float[] lowVariation, float[] highVariation, VariationTypes variationType,
            ErrorCurveReps errorCurveRep) {
        this(Checks.pairs(xy, "xy"), lowVariation, highVariation, variationType, errorCurveRep);
    }

    private PoErrorCurve(SbVec2f[] points, float[] lowVariation, float[] highVariation, VariationTypes variationType,
            ErrorCurveReps errorCurveRep) {
        this(points.length, points, lowVariation, highVariation, variationType, errorCurveRep);
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

    private static native long ctorImpl1(int numPoints, Object[] points, float[] lowVariation,
            float[] highVariation, int variationType, int errorCurveRep);
}
