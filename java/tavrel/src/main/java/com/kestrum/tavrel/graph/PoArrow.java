package com.kestrum.tavrel.graph;

import static com.kestrum.tavrel.graph.Checks.notNull;

import com.kestrum.corvel.SbVec2f;
import com.kestrum.tavrel.internal.Enums;
import com.kestrum.tavrel.internal.JarInitializer;

/**
 * An arrow: a polyline of 2D points with a pattern at each end.
 */
public class PoArrow extends PoQuorvex {
    static {
        JarInitializer.init();
    }

    /** The pattern at an end of an arrow. */
    public enum PatternTypes {
        /** None. */
        NOPATTERN(JarInitializer.value(PatternTypes::getNOPATTERNNative)),
        /** A triangle pointing outwards. */
        DIRECTTRIANGLE(JarInitializer.value(PatternTypes::getDIRECTTRIANGLENative)),
        /** A triangle pointing inwards. */
        INDIRECTTRIANGLE(JarInitializer.value(PatternTypes::getINDIRECTTRIANGLENative)),
        /** A rectangle. */
        RECTANGLE(JarInitializer.value(PatternTypes::getRECTANGLENative));

        private final int value;

        PatternTypes(int value) {
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
        public static PatternTypes fromValue(int value) {
            return Enums.fromValue(values(), PatternTypes::getValue, value);
        }

        private static native int getNOPATTERNNative();

        private static native int getDIRECTTRIANGLENative();

        private static native int getINDIRECTTRIANGLENative();

        private static native int getRECTANGLENative();
    }

    /** A new arrow with the toolkit's default (no points); holds one reference on its native node. */
    public PoArrow() {
        this(ctorImpl());
    }

    /**
     * A new arrow along the first numPoints points; holds one reference on its native node.
     *
     * @param numPoints the number of points the arrow takes (0 or more)
     * @param points at least numPoints points, none of them null; may be null when numPoints is 0
     * @param startPattern the pattern at the first point
     * @param endPattern the pattern at the last point
     * @param width the first size of the patterns
     * @param length the second size of the patterns
     */
    public PoArrow(int numPoints, SbVec2f[] points, PatternTypes startPattern, PatternTypes endPattern, float width,
            float length) {
        this(ctorImpl1(numPoints, ChartChecks.vectors(points, numPoints, "points"),
                notNull(startPattern, "startPattern").getValue(), notNull(endPattern, "endPattern").getValue(), width,
                length));
    }

    /**
     * As {@link #PoArrow(int, SbVec2f[], PatternTypes, PatternTypes, float, float)} along all the points.
     *
     * @param points the points
     * @param startPattern the pattern at the first point
     * @param endPattern the pattern at the last point
     * @param width the width of the arrow's patterns
     * @param length the length
     * @return the arrow
     */
    public static PoArrow along(SbVec2f[] points, PatternTypes startPattern, PatternTypes endPattern, float width,
            float length) {
        return new PoArrow(notNull(points, "points").length, points, startPattern, endPattern, width, length);
    }

    /**
     * A Java object for the native node at the handle (non-zero); takes a reference on it.
     *
     * @param handle the address of the native object
     */
    protected PoArrow(long handle) {
        super(handle);
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

    private static native long ctorImpl();

    private static native long ctorImpl1(int numPoints, Object[] points, int startPattern, int endPattern,
            float width, float length);

    private static native String getClassTypeId();

    private static native long getClassNodekitCatalogImpl();
}
