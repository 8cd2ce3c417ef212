package com.kestrum.tavrel.graph;

import com.kestrum.tavrel.internal.Enums;
import com.kestrum.tavrel.internal.JarInitializer;

/** The labels of the points of a curve. */
public class PoLabel extends PoBase {
    static {
        JarInitializer.init();
    }

    /** Whether a label shows a value or a name. */
    public enum ValueTypes {
        /** VALUE */
        VALUE(JarInitializer.value(ValueTypes::getVALUENative)),
        /** NAME */
        NAME(JarInitializer.value(ValueTypes::getNAMENative));

        private final int value;

        ValueTypes(int value) {
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
        public static ValueTypes fromValue(int value) {
            return Enums.fromValue(values(), ValueTypes::getValue, value);
        }

        private static native int getVALUENative();

        private static native int getNAMENative();
    }

    /** Where a label goes. */
    public enum Positions {
        /** VALUEPOS */
        VALUEPOS(JarInitializer.value(Positions::getVALUEPOSNative)),
        /** MIDDLEPOS */
        MIDDLEPOS(JarInitializer.value(Positions::getMIDDLEPOSNative)),
        /** THRESHOLDPOS */
        THRESHOLDPOS(JarInitializer.value(Positions::getTHRESHOLDPOSNative));

        private final int value;

        Positions(int value) {
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
        public static Positions fromValue(int value) {
            return Enums.fromValue(values(), Positions::getValue, value);
        }

        private static native int getVALUEPOSNative();

        private static native int getMIDDLEPOSNative();

        private static native int getTHRESHOLDPOSNative();
    }

    /** The axis whose values the labels show. */
    public enum AxisType {
        /** X */
        X(JarInitializer.value(AxisType::getXNative)),
        /** Y */
        Y(JarInitializer.value(AxisType::getYNative));

        private final int value;

        AxisType(int value) {
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
        public static AxisType fromValue(int value) {
            return Enums.fromValue(values(), AxisType::getValue, value);
        }

        private static native int getXNative();

        private static native int getYNative();
    }

    /** A node with the toolkit's defaults. */
    public PoLabel() {
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
