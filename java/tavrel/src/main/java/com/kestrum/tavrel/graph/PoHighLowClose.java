package com.kestrum.tavrel.graph;

import com.kestrum.tavrel.internal.Enums;
import com.kestrum.tavrel.internal.JarInitializer;

/**
 * A high-low-close chart: at each x a bar from the low to the high value, with a mark at the close
 * value. The node keeps a copy of the values it is given.
 */
public class PoHighLowClose extends PoQuorvex {
    static {
        JarInitializer.init();
    }

    /** Where the close mark sits on its bar. */
    public enum HorCloseBarPositions {
        /** LEFT */
        LEFT(JarInitializer.value(HorCloseBarPositions::getLEFTNative)),
        /** MIDDLE */
        MIDDLE(JarInitializer.value(HorCloseBarPositions::getMIDDLENative)),
        /** RIGHT */
        RIGHT(JarInitializer.value(HorCloseBarPositions::getRIGHTNative));

        private final int value;

        HorCloseBarPositions(int value) {
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
        public static HorCloseBarPositions fromValue(int value) {
            return Enums.fromValue(values(), HorCloseBarPositions::getValue, value);
        }

        private static native int getLEFTNative();

        private static native int getMIDDLENative();

        private static native int getRIGHTNative();
    }

    /** A node without points, with the toolkit's defaults. */
    public PoHighLowClose() {
        super(ctorImpl());
    }

    /**
     * A chart of the first num values of each list.
     *
     * @param num the number of elements to use
     * @param x the x coordinates
     * @param high the high value of each point
     * @param low the low value of each point
     * @param close the closing value of each point
     * @throws IllegalArgumentException when num is negative or more than a list
     * @throws NullPointerException when a list is null
     */
    public PoHighLowClose(int num, float[] x, float[] high, float[] low, float[] close) {
        super(ctorImpl1(Checks.count(num, Integer.MAX_VALUE, "num"), Checks.length(x, num, "x"),
                Checks.length(high, num, "high"),
                Checks.length(low, num, "low"), Checks.length(close, num, "close")));
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

    private static native long ctorImpl1(int num, float[] x, float[] high, float[] low, float[] close);
}
