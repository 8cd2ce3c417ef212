package com.kestrum.tavrel.data;

import com.kestrum.tavrel.internal.JarInitializer;

/** Vectors of a 3D mesh on a cross section. */
public class PoMesh3DVecCrossSection extends PoMesh3D {
    static {
        JarInitializer.init();
    }

    /** How the vectors are projected on the section. */
    public enum ProjectionTypes {
        /** The toolkit's {@code NOPROJECTION}. */
        NOPROJECTION(JarInitializer.value(ProjectionTypes::getNOPROJECTIONNative)),
        /** The toolkit's {@code PROJECTIONONPLANE}. */
        PROJECTIONONPLANE(JarInitializer.value(ProjectionTypes::getPROJECTIONONPLANENative)),
        /** The toolkit's {@code PROJECTIONONNORMAL}. */
        PROJECTIONONNORMAL(JarInitializer.value(ProjectionTypes::getPROJECTIONONNORMALNative));

        private final int value;

        ProjectionTypes(int value) {
            this.value = value;
        }

        /** {@return the toolkit's value of the constant} */
        public int getValue() {
            return value;
        }

        private static native int getNOPROJECTIONNative();

        private static native int getPROJECTIONONPLANENative();

        private static native int getPROJECTIONONNORMALNative();
    }

    /** A new node that holds one reference on its native node. */
    public PoMesh3DVecCrossSection() {
        this(ctorImpl());
    }

    /**
     * A Java object for the native node at the handle (non-zero); takes a reference on it.
     *
     * @param handle the address of the native object
     */
    protected PoMesh3DVecCrossSection(long handle) {
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
