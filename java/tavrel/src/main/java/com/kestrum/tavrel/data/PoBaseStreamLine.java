package com.kestrum.tavrel.data;

import com.kestrum.tavrel.internal.JarInitializer;

/**
 * Base of the stream representations of a 3D mesh's vector data; on its own it shows the start
 * points.
 */
public class PoBaseStreamLine extends PoMesh3D {
    static {
        JarInitializer.init();
    }

    /** The direction in which stream lines are followed from their start points. */
    public enum IntegrationDirections {
        /** The toolkit's {@code FORWARD}. */
        FORWARD(JarInitializer.value(IntegrationDirections::getFORWARDNative)),
        /** The toolkit's {@code BACKWARD}. */
        BACKWARD(JarInitializer.value(IntegrationDirections::getBACKWARDNative));

        private final int value;

        IntegrationDirections(int value) {
            this.value = value;
        }

        /** {@return the toolkit's value of the constant} */
        public int getValue() {
            return value;
        }

        private static native int getFORWARDNative();

        private static native int getBACKWARDNative();
    }

    /** A new node that holds one reference on its native node. */
    public PoBaseStreamLine() {
        this(ctorImpl());
    }

    /**
     * A Java object for the native node at the handle (non-zero); takes a reference on it.
     *
     * @param handle the address of the native object
     */
    protected PoBaseStreamLine(long handle) {
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

    private static native long ctorImpl();

    private static native String getClassTypeId();

    private static native long getClassNodekitCatalogImpl();
}
