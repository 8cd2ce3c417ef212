package com.kestrum.tavrel.data;

import com.kestrum.tavrel.graph.PbDataMapping;
import com.kestrum.tavrel.graph.PbIsovaluesList;
import com.kestrum.tavrel.internal.JarInitializer;
import com.kestrum.tavrel.internal.JavaViews;
import com.kestrum.tavrel.internal.MeshViews;
import java.util.List;
import java.util.concurrent.CopyOnWriteArrayList;

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

        /** {@return the toolkit's value of the constant} */
        public int getValue() {
            return value;
        }

        private static native int getCOLORINHERITEDNative();

        private static native int getCOLORAVERAGENative();

        private static native int getCOLORMAPPINGNative();

        private static native int getCOLORCONTOURINGNative();

        private static native int getCOLORTEXTURECONTOURINGNative();
    }

    private final MeshUse<PbMesh> mesh = new MeshUse<>(PbMesh.class);
    /** The meshes of the subclasses' own setters. */
    private final List<MeshUse<?>> otherMeshes = new CopyOnWriteArrayList<>();
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
        MeshUse<PbMesh> first = mesh;
        List<MeshUse<?>> others = otherMeshes;
        MeshViews.onUnreachable(this, () -> {
            first.nodeCollected();
            others.forEach(MeshUse::nodeCollected);
        });
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
     * is set. A view of the mesh of a mesh node or field keeps that mesh alive while this
     * representation may draw it (see {@link #dispose}).
     *
     * @param mesh the mesh, or null for none
     * @throws IllegalArgumentException when the mesh is a view of a traversal's state (its
     *     element's mesh, valid only during the traversal)
     */
    public void setMesh(PbMesh mesh) {
        setMeshWith(this.mesh, mesh, this::setMeshImpl);
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
        return mesh.get(getMeshImpl(handle()));
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
        setDataMappingImpl(handle(), handleOrZero(JavaViews.keepable(dataMapping, "dataMapping"), "dataMapping"));
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
        setModuleDataMappingImpl(handle(), handleOrZero(JavaViews.keepable(moduleDataMapping, "moduleDataMapping"), "moduleDataMapping"));
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
        setIsovaluesListImpl(handle(), handleOrZero(JavaViews.keepable(isovaluesList, "isovaluesList"), "isovaluesList"));
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
        return mesh.remembered();
    }

    /** A class's own native setter of its mesh, given the handles of the node and of the mesh (0 for none). */
    @FunctionalInterface
    interface MeshCall {
        void call(long handle, long mesh);
    }

    /** Sets a mesh (or null) that the node keeps the address of, with the class's native setter. */
    final <M extends PbMesh> void setMeshWith(MeshUse<M> use, M mesh, MeshCall setMeshImpl) {
        long h = handle();
        long m = handleOrZero(mesh, "mesh");
        use.set(mesh, () -> setMeshImpl.call(h, m));
    }

    /** The mesh of a subclass's own setter, kept like the one of {@link #setMesh}. */
    final <M extends PbMesh> MeshUse<M> meshUse(Class<M> type) {
        MeshUse<M> use = new MeshUse<>(type);
        otherMeshes.add(use);
        return use;
    }

    /**
     * Disposes of the Java object (see {@link com.kestrum.corvel.nodes.SoNode}). A mesh of a mesh node given to this
     * representation stays alive as long as the representation's native object does: it is let
     * go here when the native object goes with this Java object, and is kept otherwise.
     */
    @Override
    public void dispose() {
        if (isDisposed()) {
            return;
        }
        boolean nativeGone = getRefCount() == 1 && !isHeld();
        super.dispose();
        mesh.nodeDisposed(nativeGone);
        for (MeshUse<?> use : otherMeshes) {
            use.nodeDisposed(nativeGone);
        }
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
