package com.kestrum.tavrel.graph;

import com.kestrum.tavrel.internal.Enums;
import com.kestrum.tavrel.internal.JarInitializer;

/** A curve drawn as a line of a thickness. */
public class PoCurveLine extends PoBase {
    static {
        JarInitializer.init();
    }

    /** Whether the line's thickness is given a part or a vertex. */
    public enum ThicknessBindings {
        /** PERPARTTHICKNESS */
        PERPARTTHICKNESS(JarInitializer.value(ThicknessBindings::getPERPARTTHICKNESSNative)),
        /** PERVERTEXTHICKNESS */
        PERVERTEXTHICKNESS(JarInitializer.value(ThicknessBindings::getPERVERTEXTHICKNESSNative));

        private final int value;

        ThicknessBindings(int value) {
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
        public static ThicknessBindings fromValue(int value) {
            return Enums.fromValue(values(), ThicknessBindings::getValue, value);
        }

        private static native int getPERPARTTHICKNESSNative();

        private static native int getPERVERTEXTHICKNESSNative();
    }

    /** A node with the toolkit's defaults. */
    public PoCurveLine() {
        super(ctorImpl());
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
}
