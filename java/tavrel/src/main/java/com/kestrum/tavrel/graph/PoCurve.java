package com.kestrum.tavrel.graph;

import static com.kestrum.tavrel.graph.Checks.notNull;

import com.kestrum.corvel.SbVec2f;
import com.kestrum.tavrel.internal.Enums;
import com.kestrum.tavrel.internal.JarInitializer;

/**
 * A 2D curve through a list of points. The node keeps a copy of the points it is given; it draws
 * them when it is rebuilt.
 */
public class PoCurve extends PoQuorvex {
    static {
        JarInitializer.init();
    }

    /** How a curve filters its points before drawing them. */
    public enum FilterTypes {
        /** INACTIVE */
        INACTIVE(JarInitializer.value(FilterTypes::getINACTIVENative)),
        /** ALLPOINTS */
        ALLPOINTS(JarInitializer.value(FilterTypes::getALLPOINTSNative)),
        /** INDEXPERIOD */
        INDEXPERIOD(JarInitializer.value(FilterTypes::getINDEXPERIODNative)),
        /** INDEXLIST */
        INDEXLIST(JarInitializer.value(FilterTypes::getINDEXLISTNative)),
        /** XPERIOD */
        XPERIOD(JarInitializer.value(FilterTypes::getXPERIODNative)),
        /** XLIST */
        XLIST(JarInitializer.value(FilterTypes::getXLISTNative));

        private final int value;

        FilterTypes(int value) {
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
        public static FilterTypes fromValue(int value) {
            return Enums.fromValue(values(), FilterTypes::getValue, value);
        }

        private static native int getINACTIVENative();

        private static native int getALLPOINTSNative();

        private static native int getINDEXPERIODNative();

        private static native int getINDEXLISTNative();

        private static native int getXPERIODNative();

        private static native int getXLISTNative();
    }

    /** How a curve is drawn through its points. */
    public enum CurveReps {
        /** CURVENONE */
        CURVENONE(JarInitializer.value(CurveReps::getCURVENONENative)),
        /** CURVEPOLYLINE */
        CURVEPOLYLINE(JarInitializer.value(CurveReps::getCURVEPOLYLINENative)),
        /** CURVESMOOTH */
        CURVESMOOTH(JarInitializer.value(CurveReps::getCURVESMOOTHNative)),
        /** CURVESTAIRSX */
        CURVESTAIRSX(JarInitializer.value(CurveReps::getCURVESTAIRSXNative)),
        /** CURVESTAIRSY */
        CURVESTAIRSY(JarInitializer.value(CurveReps::getCURVESTAIRSYNative)),
        /** CURVEHISTOX */
        CURVEHISTOX(JarInitializer.value(CurveReps::getCURVEHISTOXNative)),
        /** CURVEHISTOY */
        CURVEHISTOY(JarInitializer.value(CurveReps::getCURVEHISTOYNative)),
        /** CURVESTAIRS2X */
        CURVESTAIRS2X(JarInitializer.value(CurveReps::getCURVESTAIRS2XNative)),
        /** CURVESTAIRS2Y */
        CURVESTAIRS2Y(JarInitializer.value(CurveReps::getCURVESTAIRS2YNative));

        private final int value;

        CurveReps(int value) {
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
        public static CurveReps fromValue(int value) {
            return Enums.fromValue(values(), CurveReps::getValue, value);
        }

        private static native int getCURVENONENative();

        private static native int getCURVEPOLYLINENative();

        private static native int getCURVESMOOTHNative();

        private static native int getCURVESTAIRSXNative();

        private static native int getCURVESTAIRSYNative();

        private static native int getCURVEHISTOXNative();

        private static native int getCURVEHISTOYNative();

        private static native int getCURVESTAIRS2XNative();

        private static native int getCURVESTAIRS2YNative();
    }

    /** A curve without points. */
    public PoCurve() {
        super(ctorImpl());
    }

    /**
     * A curve through the first numPoints of the points, drawn as curveRep says.
     *
     * @param numPoints the number of points
     * @param points the points
     * @param curveRep how the curve is drawn
     * @throws IllegalArgumentException when numPoints is negative or more than the points
     * @throws NullPointerException when points, one of them or curveRep is null
     */
    public PoCurve(int numPoints, SbVec2f[] points, CurveReps curveRep) {
        super(ctorImpl1(Checks.count(numPoints, Checks.vectors(points, "points").length, "numPoints"), points,
                notNull(curveRep, "curveRep").getValue()));
    }

    /**
     * A curve through the points given as x, y pairs, drawn as curveRep says.
     *
     * @param xy the points as x, y pairs
     * @param curveRep how the curve is drawn
     * @throws IllegalArgumentException when xy has an odd length
     */
    public PoCurve(float[] xy, CurveReps curveRep) {
        this(Checks.pairs(xy, "xy"), curveRep);
    }

    private PoCurve(SbVec2f[] points, CurveReps curveRep) {
        this(points.length, points, curveRep);
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

    private static native long ctorImpl1(int numPoints, Object[] points, int curveRep);
}
