package com.kestrum.tavrel.data;

import com.kestrum.tavrel.internal.JarInitializer;

/** Base of the representations of a 2D mesh. */
public abstract class PoMesh2D extends PoMesh {
    static {
        JarInitializer.init();
    }

    private final MeshUse<PbMesh2D> mesh2D = meshUse(PbMesh2D.class);

    /**
     * A Java object for the native node at the handle (non-zero); takes a reference on it.
     *
     * @param handle the address of the native object
     */
    protected PoMesh2D(long handle) {
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
     * Sets the mesh drawn, which must be a 2D mesh ({@link PbMesh2D}); null for none.
     *
     * @throws IllegalArgumentException when the mesh is not a 2D mesh
     */
    @Override
    public void setMesh(PbMesh mesh) {
        setMesh(meshOfClass(mesh, PbMesh2D.class));
    }

    /**
     * Sets the 2D mesh drawn; null for none. The node keeps the mesh's address, so this object
     * keeps the Java object as long as it is set.
     *
     * @param mesh the mesh, or null for none
     * @throws IllegalArgumentException when the mesh is a view of a traversal's state (its
     *     element's mesh, valid only during the traversal)
     */
    public void setMesh(PbMesh2D mesh) {
        setMeshWith(mesh2D, mesh, this::setMeshImpl);
    }

    /**
     * The 2D mesh drawn, or null for none.
     *
     * <p>The Java object set earlier while the node still holds its address, else the registered
     * Java object of that address, else null.
     */
    @Override
    public PbMesh2D getMesh() {
        return mesh2D.get(getMeshImpl(handle()));
    }

    private static native String getClassTypeId();

    private static native long getClassNodekitCatalogImpl();

    private native void setMeshImpl(long handle, long object);

    private native long getMeshImpl(long handle);
}
