package com.kestrum.tavrel.nodes;

import com.kestrum.tavrel.internal.Enums;
import com.kestrum.tavrel.internal.JarInitializer;

/**
 * A 1D-mesh filter that keeps the points whose x (or y) coordinate is one of a list, float for
 * float.
 *
 * <p>The node keeps its values in named fields, set as text (see
 * {@link com.kestrum.tavrel.nodes the package}):
 *
 * <ul>
 *   <li>{@code "axis"}: the coordinate compared, an {@link AxisType} value (default
 * {@code X});</li>
 *   <li>{@code "coordinates"}: the list; without one no point is kept (default none).</li>
 * </ul>
 *
 * <p>It becomes the current one of its kind when traversed, and is released as the package says.
 */
public class PoCoordinateListFilter extends PoMesh1DFilter {
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
    public PoCoordinateListFilter() {
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
