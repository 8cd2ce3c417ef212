package com.kestrum.tavrel.nodes;

import com.kestrum.corvel.nodes.SoNode;
import com.kestrum.tavrel.internal.Enums;
import com.kestrum.tavrel.internal.JarInitializer;

/**
 * A property node that tells the graphs after it in the scene how to lay out their labels.
 *
 * <p>The node keeps its values in named fields, set as text (see
 * {@link com.kestrum.tavrel.nodes the package}):
 *
 * <ul>
 *   <li>{@code "labelPath"}: a {@link LabelPaths} value (default {@code PATHRIGHT});</li>
 *   <li>{@code "justification"}: a {@link Justifications} value (default {@code LEFT}).</li>
 * </ul>
 *
 * <p>It becomes the current one of its kind when traversed, and is released as the package says.
 */
public class PoLabelHints extends SoNode {
    static {
        JarInitializer.init();
    }

    /** The direction in which label text runs. */
    public enum LabelPaths {
        /** Text running to the right. */
        PATHRIGHT(JarInitializer.value(LabelPaths::getPATHRIGHTNative)),
        /** Text running to the left. */
        PATHLEFT(JarInitializer.value(LabelPaths::getPATHLEFTNative)),
        /** Text running up. */
        PATHUP(JarInitializer.value(LabelPaths::getPATHUPNative)),
        /** Text running down. */
        PATHDOWN(JarInitializer.value(LabelPaths::getPATHDOWNNative)),
        /** The direction chosen by the graph. */
        PATHDEPEND(JarInitializer.value(LabelPaths::getPATHDEPENDNative));

        private final int value;

        LabelPaths(int value) {
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
        public static LabelPaths fromValue(int value) {
            return Enums.fromValue(values(), LabelPaths::getValue, value);
        }

        private static native int getPATHRIGHTNative();

        private static native int getPATHLEFTNative();

        private static native int getPATHUPNative();

        private static native int getPATHDOWNNative();

        private static native int getPATHDEPENDNative();
    }

    /** How labels are justified. */
    public enum Justifications {
        /** Left-justified. */
        LEFT(JarInitializer.value(Justifications::getLEFTNative)),
        /** Centred. */
        CENTER(JarInitializer.value(Justifications::getCENTERNative)),
        /** Right-justified. */
        RIGHT(JarInitializer.value(Justifications::getRIGHTNative)),
        /** The justification chosen by the graph. */
        DEPEND(JarInitializer.value(Justifications::getDEPENDNative));

        private final int value;

        Justifications(int value) {
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
        public static Justifications fromValue(int value) {
            return Enums.fromValue(values(), Justifications::getValue, value);
        }

        private static native int getLEFTNative();

        private static native int getCENTERNative();

        private static native int getRIGHTNative();

        private static native int getDEPENDNative();
    }

    /** A node with the default values of its fields. */
    public PoLabelHints() {
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
