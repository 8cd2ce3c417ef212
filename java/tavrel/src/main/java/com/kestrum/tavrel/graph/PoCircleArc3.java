package com.kestrum.tavrel.graph;

import com.kestrum.tavrel.internal.Enums;
import com.kestrum.tavrel.internal.JarInitializer;

/**
 * Base of the 3D circle arcs.
 */
public abstract class PoCircleArc3 extends PoQuorvex {
    static {
        JarInitializer.init();
    }

    /** How an arc is closed when it is drawn. */
    public enum ArcTypes {
        /** Not closed. */
        OPENED(JarInitializer.value(ArcTypes::getOPENEDNative)),
        /** Closed by the chord between its ends. */
        ENDCLOSE(JarInitializer.value(ArcTypes::getENDCLOSENative)),
        /** Closed through the centre, as a pie slice. */
        CENTERCLOSE(JarInitializer.value(ArcTypes::getCENTERCLOSENative));

        private final int value;

        ArcTypes(int value) {
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
        public static ArcTypes fromValue(int value) {
            return Enums.fromValue(values(), ArcTypes::getValue, value);
        }

        private static native int getOPENEDNative();

        private static native int getENDCLOSENative();

        private static native int getCENTERCLOSENative();
    }

    /**
     * A Java object for the native node at the handle (non-zero); takes a reference on it.
     *
     * @param handle the address of the native object
     */
    protected PoCircleArc3(long handle) {
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
