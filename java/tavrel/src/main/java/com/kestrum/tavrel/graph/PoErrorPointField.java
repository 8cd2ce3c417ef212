package com.kestrum.tavrel.graph;

import static com.kestrum.tavrel.graph.Checks.notNull;

import com.kestrum.corvel.SbVec2f;
import com.kestrum.tavrel.internal.Enums;
import com.kestrum.tavrel.internal.JarInitializer;

/**
 * Points with an error in x and in y each, drawn as a shape and a skeleton. The node keeps a copy
 * of the points and errors it is given.
 */
public class PoErrorPointField extends PoQuorvex {
    static {
        JarInitializer.init();
    }

    /** The shape drawn around each point. */
    public enum ShapeTypes {
        /** NOSHAPE */
        NOSHAPE(JarInitializer.value(ShapeTypes::getNOSHAPENative)),
        /** RECTANGLESHAPE */
        RECTANGLESHAPE(JarInitializer.value(ShapeTypes::getRECTANGLESHAPENative)),
        /** QUADRANGLESHAPE */
        QUADRANGLESHAPE(JarInitializer.value(ShapeTypes::getQUADRANGLESHAPENative)),
        /** ELLIPSESHAPE */
        ELLIPSESHAPE(JarInitializer.value(ShapeTypes::getELLIPSESHAPENative));

        private final int value;

        ShapeTypes(int value) {
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
        public static ShapeTypes fromValue(int value) {
            return Enums.fromValue(values(), ShapeTypes::getValue, value);
        }

        private static native int getNOSHAPENative();

        private static native int getRECTANGLESHAPENative();

        private static native int getQUADRANGLESHAPENative();

        private static native int getELLIPSESHAPENative();
    }

    /** The skeleton drawn through each point. */
    public enum SkeletonTypes {
        /** NOSKELETON */
        NOSKELETON(JarInitializer.value(SkeletonTypes::getNOSKELETONNative)),
        /** CROSS1SKELETON */
        CROSS1SKELETON(JarInitializer.value(SkeletonTypes::getCROSS1SKELETONNative)),
        /** CROSS2SKELETON */
        CROSS2SKELETON(JarInitializer.value(SkeletonTypes::getCROSS2SKELETONNative)),
        /** CROSS3SKELETON */
        CROSS3SKELETON(JarInitializer.value(SkeletonTypes::getCROSS3SKELETONNative)),
        /** BARSKELETON */
        BARSKELETON(JarInitializer.value(SkeletonTypes::getBARSKELETONNative));

        private final int value;

        SkeletonTypes(int value) {
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
        public static SkeletonTypes fromValue(int value) {
            return Enums.fromValue(values(), SkeletonTypes::getValue, value);
        }

        private static native int getNOSKELETONNative();

        private static native int getCROSS1SKELETONNative();

        private static native int getCROSS2SKELETONNative();

        private static native int getCROSS3SKELETONNative();

        private static native int getBARSKELETONNative();
    }

    /** A node without points, with the toolkit's defaults. */
    public PoErrorPointField() {
        super(ctorImpl());
    }

    /**
     * Error points at the first num points with the first num errors of each list.
     *
     * @param num the number of elements to use
     * @param points the points
     * @param xErrors the error of each point along x
     * @param yErrors the error of each point along y
     * @param shape the shape drawn at each point
     * @param skeleton whether only the outline of the shapes is drawn
     * @throws IllegalArgumentException when num is negative or more than the points or a list
     * @throws NullPointerException when an argument or a point is null
     */
    public PoErrorPointField(int num, SbVec2f[] points, float[] xErrors, float[] yErrors, ShapeTypes shape,
            SkeletonTypes skeleton) {
        super(ctorImpl1(Checks.count(num, Checks.vectors(points, "points").length, "num"), points,
                Checks.length(xErrors, num, "xErrors"), Checks.length(yErrors, num, "yErrors"),
                notNull(shape, "shape").getValue(), notNull(skeleton, "skeleton").getValue()));
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

    private static native long ctorImpl1(int num, Object[] points, float[] xErrors, float[] yErrors, int shape,
            int skeleton);
}
