package com.kestrum.tavrel.nodes;

import com.kestrum.tavrel.internal.Enums;
import com.kestrum.tavrel.internal.JarInitializer;

/**
 * A 1D-mesh filter that keeps one point per period of x (or y): the first point, then each point
 * whose coordinate is at least one period beyond the last point kept.
 *
 * <p>The node keeps its values in named fields, set as text (see
 * {@link com.kestrum.tavrel.nodes the package}):
 *
 * <ul>
 *   <li>{@code "axis"}: the coordinate looked at, an {@link AxisType} value (default
 * {@code X});</li>
 *   <li>{@code "period"}: the period; one that is not positive keeps every point (default
 * {@code 1}).</li>
 * </ul>
 *
 * <p>It becomes the current one of its kind when traversed, and is released as the package says.
 */
public class PoPeriodFilter extends PoMesh1DFilter {
    static {
        JarInitializer.init();
    }

    /** The coordinate that the filter looks at. */
    public enum AxisType {
        /** The x coordinate. */
        X(JarInitializer.value(AxisType::getXNative)),
        /** The y coordinate. */
        Y(JarInitializer.value(AxisType::getYNative));

        private final int value;

        AxisType(int value) {
            this.value = value;
        }

        /**
         * The toolkit's value of the constant.
         *
         * @return the value
         */
        public int getValue() {
            return value;
        }

        /**
         * The constant with the toolkit's value.
         *
         * @param value a toolkit value
         * @return the constant, or null for a value outside the enumeration
         */
        public static AxisType fromValue(int value) {
            return Enums.fromValue(values(), AxisType::getValue, value);
        }

        private static native int getXNative();

        private static native int getYNative();
    }

    /** A node with the default values of its fields. */
    public PoPeriodFilter() {
        super(ctorImpl());
    }

    /**
     * The name of the class's toolkit type.
     *
     * @return the type name
     */
    public static String getClassTypeName() {
        return getClassTypeId();
    }

    private static native long ctorImpl();

    private static native String getClassTypeId();
}
