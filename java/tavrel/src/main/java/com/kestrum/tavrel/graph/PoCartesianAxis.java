package com.kestrum.tavrel.graph;

import com.kestrum.tavrel.internal.Enums;
import com.kestrum.tavrel.internal.JarInitializer;

/** Base of the axes drawn along a coordinate direction: linear, logarithmic and generalised axes. */
public abstract class PoCartesianAxis extends PoAxis {
    static {
        JarInitializer.init();
    }

    /** The direction of the axis and the side of its graduations. */
    public enum Types {
        /** The toolkit's {@code XY}. */
        XY(JarInitializer.value(Types::getXYNative)),
        /** The toolkit's {@code XZ}. */
        XZ(JarInitializer.value(Types::getXZNative)),
        /** The toolkit's {@code YX}. */
        YX(JarInitializer.value(Types::getYXNative)),
        /** The toolkit's {@code YZ}. */
        YZ(JarInitializer.value(Types::getYZNative)),
        /** The toolkit's {@code ZX}. */
        ZX(JarInitializer.value(Types::getZXNative)),
        /** The toolkit's {@code ZY}. */
        ZY(JarInitializer.value(Types::getZYNative));

        private final int value;

        Types(int value) {
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
        public static Types fromValue(int value) {
            return Enums.fromValue(values(), Types::getValue, value);
        }

        private static native int getXYNative();

        private static native int getXZNative();

        private static native int getYXNative();

        private static native int getYZNative();

        private static native int getZXNative();

        private static native int getZYNative();
    }

    /**
     * A Java object for the native node at the handle (non-zero); takes a reference on it.
     *
     * @param handle the address of the native object
     */
    protected PoCartesianAxis(long handle) {
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
