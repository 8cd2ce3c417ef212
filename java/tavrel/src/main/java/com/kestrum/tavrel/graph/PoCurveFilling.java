package com.kestrum.tavrel.graph;

import com.kestrum.tavrel.internal.Enums;
import com.kestrum.tavrel.internal.JarInitializer;

/** The filling under a curve, towards an axis. */
public class PoCurveFilling extends PoBase {
    static {
        JarInitializer.init();
    }

    /** Whether the filling or bars go horizontally or vertically. */
    public enum Orientations {
        /** HORIZONTAL */
        HORIZONTAL(JarInitializer.value(Orientations::getHORIZONTALNative)),
        /** VERTICAL */
        VERTICAL(JarInitializer.value(Orientations::getVERTICALNative));

        private final int value;

        Orientations(int value) {
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
        public static Orientations fromValue(int value) {
            return Enums.fromValue(values(), Orientations::getValue, value);
        }

        private static native int getHORIZONTALNative();

        private static native int getVERTICALNative();
    }

    /** A node with the toolkit's defaults. */
    public PoCurveFilling() {
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
