package com.kestrum.tavrel.data;

import com.kestrum.tavrel.graph.PbDataMapping;
import com.kestrum.tavrel.graph.PbIsovaluesList;
import com.kestrum.tavrel.internal.JarInitializer;
import com.kestrum.tavrel.internal.JavaViews;

/**
 * Base of the mesh representations: the mesh drawn, the data mappings that colour it and the
 * isovalues that contouring uses.
 */
public abstract class PoMesh extends PoDessvane {
    static {
        JarInitializer.init();
    }

    /** How a representation colours the mesh. */
    public enum ColoringTypes {
        /** The toolkit's {@code COLORINHERITED}. */
        COLORINHERITED(JarInitializer.value(ColoringTypes::getCOLORINHERITEDNative)),
        /** The toolkit's {@code COLORAVERAGE}. */
        COLORAVERAGE(JarInitializer.value(ColoringTypes::getCOLORAVERAGENative)),
        /** The toolkit's {@code COLORMAPPING}. */
        COLORMAPPING(JarInitializer.value(ColoringTypes::getCOLORMAPPINGNative)),
        /** The toolkit's {@code COLORCONTOURING}. */
        COLORCONTOURING(JarInitializer.value(ColoringTypes::getCOLORCONTOURINGNative)),
        /** The toolkit's {@code COLORTEXTURECONTOURING}. */
        COLORTEXTURECONTOURING(JarInitializer.value(ColoringTypes::getCOLORTEXTURECONTOURINGNative));

        private final int value;

        ColoringTypes(int value) {
            this.value = value;
        }

        /**
         * The toolkit's value of the constant.
         *
         * @return the toolkit's value of the constant
         */
        public int getValue() {
            return value;
        }

        private static native int getCOLORINHERITEDNative();

        private static native int getCOLORAVERAGENative();

        private static native int getCOLORMAPPINGNative();

        private static native int getCOLORCONTOURINGNative();

        private static native int getCOLORTEXTURECONTOURINGNative();
    }

    private PbMesh mesh;
    private PbDataMapping dataMapping;
    private PbDataMapping moduleDataMapping;
    private PbIsovaluesList isovaluesList;

    /**
     * A Java object for the native node at the handle (non-zero); takes a reference on it.
     *
     * @param handle the address of the native object
     */
    protected PoMesh(long handle) {
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
     * Sets the mesh drawn; null for none.
     *
     * <p>The node keeps the object's address, so this object keeps the Java object as long as it
     * is set.
     *
     * @param mesh the mesh, or null for none
     */
    public void setMesh(PbMesh mesh) {
        setMeshImpl(handle(), handleOrZero(mesh, "mesh"));
        this.mesh = mesh;
    }

    /**
     * The mesh drawn, or null for none.
     *
     * <p>The Java object set earlier while the node still holds its address, else the registered
     * Java object of that address, else null.
     *
     * @return the mesh drawn, or null for none
     */
    public PbMesh getMesh() {
        return JavaViews.find(PbMesh.class, getMeshImpl(handle()), mesh);
    }

    /**
     * Sets the data mapping that colours the mesh by its values; null for none.
     *
     * <p>The node keeps the object's address, so this object keeps the Java object as long as it
     * is set.
     *
     * @param dataMapping the data mapping, or null for none
     */
    public void setDataMapping(PbDataMapping dataMapping) {
        setDataMappingImpl(handle(), handleOrZero(dataMapping, "dataMapping"));
        this.dataMapping = dataMapping;
    }

    /**
     * The data mapping that colours the mesh by its values, or null for none.
     *
     * <p>The Java object set earlier while the node still holds its address, else the registered
     * Java object of that address, else null.
     *
     * @return the data mapping that colours the mesh by its values, or null for none
     */
    public PbDataMapping getDataMapping() {
        return JavaViews.find(PbDataMapping.class, getDataMappingImpl(handle()), dataMapping);
    }

    /**
     * Sets the data mapping that colours vectors by their module; null for none.
     *
     * <p>The node keeps the object's address, so this object keeps the Java object as long as it
     * is set.
     *
     * @param moduleDataMapping the data mapping of the vectors' lengths, or null for none
     */
    public void setModuleDataMapping(PbDataMapping moduleDataMapping) {
        setModuleDataMappingImpl(handle(), handleOrZero(moduleDataMapping, "moduleDataMapping"));
        this.moduleDataMapping = moduleDataMapping;
    }

    /**
     * The data mapping that colours vectors by their module, or null for none.
     *
     * <p>The Java object set earlier while the node still holds its address, else the registered
     * Java object of that address, else null.
     *
     * @return the data mapping that colours vectors by their module, or null for none
     */
    public PbDataMapping getModuleDataMapping() {
        return JavaViews.find(PbDataMapping.class, getModuleDataMappingImpl(handle()), moduleDataMapping);
    }

    /**
     * Sets the list of isovalues used for contouring; null for none.
     *
     * <p>The node keeps the object's address, so this object keeps the Java object as long as it
     * is set.
     *
     * @param isovaluesList the isovalue list, or null for none
     */
    public void setIsovaluesList(PbIsovaluesList isovaluesList) {
        setIsovaluesListImpl(handle(), handleOrZero(isovaluesList, "isovaluesList"));
        this.isovaluesList = isovaluesList;
    }

    /**
     * The list of isovalues used for contouring, or null for none.
     *
     * <p>The Java object set earlier while the node still holds its address, else the registered
     * Java object of that address, else null.
     *
     * @return the list of isovalues used for contouring, or null for none
     */
    public PbIsovaluesList getIsovaluesList() {
        return JavaViews.find(PbIsovaluesList.class, getIsovaluesListImpl(handle()), isovaluesList);
    }

    /** The Java object given to {@link #setMesh}, or null. */
    final PbMesh meshObject() {
        return mesh;
    }

    /** The mesh (or null) as a mesh of the class a representation needs. */
    static <M extends PbMesh> M meshOfClass(PbMesh mesh, Class<M> type) {
        if (mesh != null && !type.isInstance(mesh)) {
            throw new IllegalArgumentException("mesh is not a " + type.getSimpleName() + ": " + mesh.getClass().getName());
        }
        return type.cast(mesh);
    }

    private static native String getClassTypeId();

    private static native long getClassNodekitCatalogImpl();

    private native void setMeshImpl(long handle, long object);

    private native long getMeshImpl(long handle);

    private native void setDataMappingImpl(long handle, long object);

    private native long getDataMappingImpl(long handle);

    private native void setModuleDataMappingImpl(long handle, long object);

    private native long getModuleDataMappingImpl(long handle);

    private native void setIsovaluesListImpl(long handle, long object);

    private native long getIsovaluesListImpl(long handle);
}
