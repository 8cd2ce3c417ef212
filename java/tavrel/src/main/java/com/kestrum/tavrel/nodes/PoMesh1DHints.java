package com.kestrum.tavrel.nodes;

import com.kestrum.corvel.nodes.SoNode;
import com.kestrum.tavrel.internal.Enums;
import com.kestrum.tavrel.internal.JarInitializer;

/**
 * A property node that tells the 1D-mesh graphs after it in the scene how to join their points.
 *
 * <p>The node keeps its values in named fields, set as text (see
 * {@link com.kestrum.tavrel.nodes the package}):
 *
 * <ul>
 *   <li>{@code "geomInterpretation"}: a {@link GeomInterpretations} value (default
 * {@code ASIS}).</li>
 * </ul>
 *
 * <p>It becomes the current one of its kind when traversed, and is released as the package says.
 */
public class PoMesh1DHints extends SoNode {
    static {
        JarInitializer.init();
    }

    /** How the points of a 1D mesh are joined. */
    public enum GeomInterpretations {
        /** Straight lines between the points. */
        ASIS(JarInitializer.value(GeomInterpretations::getASISNative)),
        /** A smooth curve through the points. */
        SMOOTH(JarInitializer.value(GeomInterpretations::getSMOOTHNative)),
        /** Steps along x. */
        STAIRSX(JarInitializer.value(GeomInterpretations::getSTAIRSXNative)),
        /** Steps along y. */
        STAIRSY(JarInitializer.value(GeomInterpretations::getSTAIRSYNative)),
        /** Bars along x. */
        HISTOX(JarInitializer.value(GeomInterpretations::getHISTOXNative)),
        /** Bars along y. */
        HISTOY(JarInitializer.value(GeomInterpretations::getHISTOYNative)),
        /** Steps along x, centred on the points. */
        STAIRS2X(JarInitializer.value(GeomInterpretations::getSTAIRS2XNative)),
        /** Steps along y, centred on the points. */
        STAIRS2Y(JarInitializer.value(GeomInterpretations::getSTAIRS2YNative));

        private final int value;

        GeomInterpretations(int value) {
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
        public static GeomInterpretations fromValue(int value) {
            return Enums.fromValue(values(), GeomInterpretations::getValue, value);
        }

        private static native int getASISNative();

        private static native int getSMOOTHNative();

        private static native int getSTAIRSXNative();

        private static native int getSTAIRSYNative();

        private static native int getHISTOXNative();

        private static native int getHISTOYNative();

        private static native int getSTAIRS2XNative();

        private static native int getSTAIRS2YNative();
    }

    /** A node with the default values of its fields. */
    public PoMesh1DHints() {
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
