package com.kestrum.tavrel.nodes;

import com.kestrum.corvel.nodes.SoNode;
import com.kestrum.tavrel.internal.Enums;
import com.kestrum.tavrel.internal.JarInitializer;

/**
 * A property node that gives the graphs after it in the scene their text attributes.
 *
 * <p>The node keeps its values in named fields, set as text (see
 * {@link com.kestrum.tavrel.nodes the package}):
 *
 * <ul>
 *   <li>{@code "fontName"}: the font (default {@code Sans});</li>
 *   <li>{@code "lineLengthType"}: a {@link LineLengths} value (default {@code LINELENGTHMAX});</li>
 *   <li>{@code "lineLength"}: the length of text lines, 0 for no limit (default {@code 0}).</li>
 * </ul>
 *
 * <p>It becomes the current one of its kind when traversed, and is released as the package says.
 */
public class PoMiscTextAttr extends SoNode {
    static {
        JarInitializer.init();
    }

    /** What the line length of text is. */
    public enum LineLengths {
        /** The length is a maximum. */
        LINELENGTHMAX(JarInitializer.value(LineLengths::getLINELENGTHMAXNative)),
        /** The length is a minimum. */
        LINELENGTHMIN(JarInitializer.value(LineLengths::getLINELENGTHMINNative));

        private final int value;

        LineLengths(int value) {
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
        public static LineLengths fromValue(int value) {
            return Enums.fromValue(values(), LineLengths::getValue, value);
        }

        private static native int getLINELENGTHMAXNative();

        private static native int getLINELENGTHMINNative();
    }

    /** A node with the default values of its fields. */
    public PoMiscTextAttr() {
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
