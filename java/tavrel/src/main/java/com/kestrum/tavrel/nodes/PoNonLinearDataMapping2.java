package com.kestrum.tavrel.nodes;

import com.kestrum.tavrel.internal.Enums;
import com.kestrum.tavrel.internal.JarInitializer;

/**
 * A data mapping given by a list of values and a list of colours: with
 * {@link Types#NONLINEARPERLEVEL} one colour per interval (one more colour than values), with
 * {@link Types#LINEARPERLEVEL} one colour per value, interpolated between them.
 *
 * <p>The node keeps its values in named fields, set as text (see
 * {@link com.kestrum.tavrel.nodes the package}):
 *
 * <ul>
 *   <li>{@code "type"}: a {@link Types} value (default {@code NONLINEARPERLEVEL});</li>
 *   <li>{@code "value"}: the values, in increasing order (default none);</li>
 *   <li>{@code "color"}: the colours, three numbers each; missing ones are black (default
 * none).</li>
 * </ul>
 *
 * <p>It becomes the current one of its kind when traversed, and is released as the package says.
 */
public class PoNonLinearDataMapping2 extends PoDataMapping {
    static {
        JarInitializer.init();
    }

    /** How the colours are spread over the values. */
    public enum Types {
        /** One colour per interval between values. */
        NONLINEARPERLEVEL(JarInitializer.value(Types::getNONLINEARPERLEVELNative)),
        /** Colours interpolated between values. */
        LINEARPERLEVEL(JarInitializer.value(Types::getLINEARPERLEVELNative));

        private final int value;

        Types(int value) {
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
        public static Types fromValue(int value) {
            return Enums.fromValue(values(), Types::getValue, value);
        }

        private static native int getNONLINEARPERLEVELNative();

        private static native int getLINEARPERLEVELNative();
    }

    /** A node with the default values of its fields. */
    public PoNonLinearDataMapping2() {
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
