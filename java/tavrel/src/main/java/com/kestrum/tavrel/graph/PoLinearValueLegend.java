package com.kestrum.tavrel.graph;

import com.kestrum.corvel.SbVec2f;
import com.kestrum.tavrel.internal.Enums;
import com.kestrum.tavrel.internal.JarInitializer;

/** A value legend of values distributed linearly, in the rectangle between two corners. */
public class PoLinearValueLegend extends PoValueLegend {
    static {
        JarInitializer.init();
    }

    /** Which values of the isovalue list the legend shows. */
    public enum ValueDistributions {
        /** ALLVALUES */
        ALLVALUES(JarInitializer.value(ValueDistributions::getALLVALUESNative)),
        /** LINEARVALUES */
        LINEARVALUES(JarInitializer.value(ValueDistributions::getLINEARVALUESNative)),
        /** MINMAXVALUES */
        MINMAXVALUES(JarInitializer.value(ValueDistributions::getMINMAXVALUESNative));

        private final int value;

        ValueDistributions(int value) {
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
        public static ValueDistributions fromValue(int value) {
            return Enums.fromValue(values(), ValueDistributions::getValue, value);
        }

        private static native int getALLVALUESNative();

        private static native int getLINEARVALUESNative();

        private static native int getMINMAXVALUESNative();
    }

    /** A legend with the toolkit's default corners and distribution. */
    public PoLinearValueLegend() {
        super(ctorImpl());
    }

    /**
     * A legend between the corners showing the values as distribution says.
     *
     * @param corner1 one corner of the legend
     * @param corner2 the opposite corner of the legend
     * @param distribution how the values are spread along the legend
     * @throws NullPointerException when an argument is null
     */
    public PoLinearValueLegend(SbVec2f corner1, SbVec2f corner2, ValueDistributions distribution) {
        super(ctorImpl1(Checks.point(corner1, "corner1"), Checks.point(corner2, "corner2"),
                Checks.notNull(distribution, "distribution").getValue()));
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

    private static native long ctorImpl1(float[] corner1, float[] corner2, int distribution);
}
