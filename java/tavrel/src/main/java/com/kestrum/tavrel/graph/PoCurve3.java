package com.kestrum.tavrel.graph;

import static com.kestrum.tavrel.graph.Checks.notNull;

import com.kestrum.corvel.SbVec3f;
import com.kestrum.tavrel.internal.Enums;
import com.kestrum.tavrel.internal.JarInitializer;

/**
 * A 3D curve through a list of points. The node keeps a copy of the points it is given; it draws
 * them when it is rebuilt.
 */
public class PoCurve3 extends PoQuorvex {
    static {
        JarInitializer.init();
    }

    /** How a 3D curve is drawn through its points. */
    public enum CurveReps {
        /** CURVENONE */
        CURVENONE(JarInitializer.value(CurveReps::getCURVENONENative)),
        /** CURVEPOLYLINE */
        CURVEPOLYLINE(JarInitializer.value(CurveReps::getCURVEPOLYLINENative)),
        /** CURVESMOOTH */
        CURVESMOOTH(JarInitializer.value(CurveReps::getCURVESMOOTHNative));

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
    }

    /** A curve without points. */
    public PoCurve3() {
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
    public PoCurve3(int numPoints, SbVec3f[] points, CurveReps curveRep) {
        super(ctorImpl1(Checks.count(numPoints, Checks.vectors(points, "points").length, "numPoints"), points,
                notNull(curveRep, "curveRep").getValue()));
    }

    /**
     * A curve through the points given as x, y, z triples, drawn as curveRep says.
     *
     * @param xyz the points as x, y, z triples
     * @param curveRep how the curve is drawn
     * @throws IllegalArgumentException when the length of xyz is not a multiple of 3
     */
    public PoCurve3(float[] xyz, CurveReps curveRep) {
        this(Checks.triples(xyz, "xyz"), curveRep);
    }

    private PoCurve3(SbVec3f[] points, CurveReps curveRep) {
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
