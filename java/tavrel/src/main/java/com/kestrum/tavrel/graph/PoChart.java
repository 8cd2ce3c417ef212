package com.kestrum.tavrel.graph;

import com.kestrum.tavrel.internal.Enums;
import com.kestrum.tavrel.internal.JarInitializer;

/** Base of the charts, with the ways a chart binds its colours. */
public abstract class PoChart extends PoBase {
    static {
        JarInitializer.init();
    }

    /** How a chart's colours go with its parts. */
    public enum ColorBindings {
        /** The colour the chart inherits from the scene. */
        INHERITED(JarInitializer.value(ColorBindings::getINHERITEDNative)),
        /** One colour per vertex. */
        PERVERTEX(JarInitializer.value(ColorBindings::getPERVERTEXNative)),
        /** One colour per part. */
        PERPART(JarInitializer.value(ColorBindings::getPERPARTNative));

        private final int value;

        ColorBindings(int value) {
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
        public static ColorBindings fromValue(int value) {
            return Enums.fromValue(values(), ColorBindings::getValue, value);
        }

        private static native int getINHERITEDNative();

        private static native int getPERVERTEXNative();

        private static native int getPERPARTNative();
    }

    /**
     * A Java object for the native node at the handle (non-zero); takes a reference on it.
     *
     * @param handle the address of the native object
     */
    protected PoChart(long handle) {
        super(handle);
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
}
