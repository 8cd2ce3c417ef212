package com.kestrum.tavrel.data;

import com.kestrum.tavrel.internal.JarInitializer;

/** The surface of a 3D mesh where its values equal a level. */
public class PoMeshLevelSurf extends PoMesh3D {
    static {
        JarInitializer.init();
    }

    /** Which side of the level surface its normals face. */
    public enum SurfOrientations {
        /** The toolkit's {@code ORIENTEDTOMIN}. */
        ORIENTEDTOMIN(JarInitializer.value(SurfOrientations::getORIENTEDTOMINNative)),
        /** The toolkit's {@code ORIENTEDTOMAX}. */
        ORIENTEDTOMAX(JarInitializer.value(SurfOrientations::getORIENTEDTOMAXNative));

        private final int value;

        SurfOrientations(int value) {
            this.value = value;
        }

        /** {@return the toolkit's value of the constant} */
        public int getValue() {
            return value;
        }

        private static native int getORIENTEDTOMINNative();

        private static native int getORIENTEDTOMAXNative();
    }

    /** A new node that holds one reference on its native node. */
    public PoMeshLevelSurf() {
        this(ctorImpl());
    }

    /**
     * A Java object for the native node at the handle (non-zero); takes a reference on it.
     *
     * @param handle the address of the native object
     */
    protected PoMeshLevelSurf(long handle) {
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
