package com.kestrum.tavrel.nodes;

import com.kestrum.corvel.nodes.SoNode;
import com.kestrum.tavrel.internal.Enums;
import com.kestrum.tavrel.internal.JarInitializer;

/**
 * A property node that tells the graphs after it in the scene how to write numbers.
 *
 * <p>The node keeps its values in named fields, set as text (see
 * {@link com.kestrum.tavrel.nodes the package}):
 *
 * <ul>
 *   <li>{@code "formatType"}: a {@link FormatTypes} value (default {@code AUTOFORMAT});</li>
 *   <li>{@code "width"}: the width, padded with spaces on the left (default {@code 0});</li>
 *   <li>{@code "precision"}: the digits after the point, or the significant digits (default
 * {@code 6}).</li>
 * </ul>
 *
 * <p>It becomes the current one of its kind when traversed, and is released as the package says.
 */
public class PoNumericDisplayFormat extends SoNode {
    static {
        JarInitializer.init();
    }

    /** How numbers are written. */
    public enum FormatTypes {
        /** Fixed or exponent form, whichever is shorter. */
        AUTOFORMAT(JarInitializer.value(FormatTypes::getAUTOFORMATNative)),
        /** Fixed point. */
        FLOATFORMAT(JarInitializer.value(FormatTypes::getFLOATFORMATNative)),
        /** Rounded to an integer. */
        INTEGERFORMAT(JarInitializer.value(FormatTypes::getINTEGERFORMATNative));

        private final int value;

        FormatTypes(int value) {
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
        public static FormatTypes fromValue(int value) {
            return Enums.fromValue(values(), FormatTypes::getValue, value);
        }

        private static native int getAUTOFORMATNative();

        private static native int getFLOATFORMATNative();

        private static native int getINTEGERFORMATNative();
    }

    /** A node with the default values of its fields. */
    public PoNumericDisplayFormat() {
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
