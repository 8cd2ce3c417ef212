package com.kestrum.tavrel.data;

import com.kestrum.tavrel.internal.JarInitializer;

/** A plane section through a 3D mesh. */
public class PoMeshCrossSection extends PoMesh3D {
    static {
        JarInitializer.init();
    }

    /** How the section is computed. */
    public enum CrossSectionMethods {
        /** The toolkit's {@code DEFAULT}. */
        DEFAULT(JarInitializer.value(CrossSectionMethods::getDEFAULTNative)),
        /** The toolkit's {@code ISOSURFACE}. */
        ISOSURFACE(JarInitializer.value(CrossSectionMethods::getISOSURFACENative)),
        /** The toolkit's {@code INTERSECTION}. */
        INTERSECTION(JarInitializer.value(CrossSectionMethods::getINTERSECTIONNative));

        private final int value;

        CrossSectionMethods(int value) {
            this.value = value;
        }

        /** {@return the toolkit's value of the constant} */
        public int getValue() {
            return value;
        }

        private static native int getDEFAULTNative();

        private static native int getISOSURFACENative();

        private static native int getINTERSECTIONNative();
    }

    /** A new node that holds one reference on its native node. */
    public PoMeshCrossSection() {
        this(ctorImpl());
    }

    /**
     * A Java object for the native node at the handle (non-zero); takes a reference on it.
     *
     * @param handle the address of the native object
     */
    protected PoMeshCrossSection(long handle) {
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

    /**
     * Sets how the section is computed. The method is a plain member of the node: nothing in the
     * scene graph is notified of the change.
     *
     * @param method how the section is computed
     */
    public void setCrossSectionMethod(CrossSectionMethods method) {
        if (method == null) {
            throw new NullPointerException("method is null");
        }
        setCrossSectionMethodImpl(handle(), method.getValue());
    }

    private static native long ctorImpl();

    private static native String getClassTypeId();

    private static native long getClassNodekitCatalogImpl();

    private native void setCrossSectionMethodImpl(long handle, int method);
}
