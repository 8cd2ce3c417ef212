package com.kestrum.tavrel.nodes;

import com.kestrum.tavrel.internal.Checks;
import com.kestrum.tavrel.data.PbTetrahedronMesh3D;
import com.kestrum.tavrel.internal.JarInitializer;

/**
 * A mesh node holding a 3D mesh of tetrahedra ({@link PbTetrahedronMesh3D}). See {@link
 * PoMeshProperty} for what the node does in a scene and for the view of its mesh.
 */
public class PoTetrahedronMesh3D extends PoMeshProperty {
    static {
        JarInitializer.init();
    }

    /** A node holding an empty mesh. */
    public PoTetrahedronMesh3D() {
        super(ctorImpl(), PbTetrahedronMesh3D.class);
    }

    /**
     * The name of the class's toolkit type.
     *
     * @return the name of the class's toolkit type
     */
    public static String getClassTypeName() {
        return getClassTypeId();
    }

    /** The node's mesh, as a {@link PbTetrahedronMesh3D} (see {@link PoMeshProperty#getMesh}). */
    @Override
    public PbTetrahedronMesh3D getMesh() {
        return (PbTetrahedronMesh3D) super.getMesh();
    }

    /**
     * Replaces the geometry of the node's mesh. A mesh of numNodes nodes and tetrahedra given by 4
     * node indices each.
     *
     * @param numNodes the number of nodes
     * @param x the x coordinates
     * @param y the y coordinates
     * @param z the z coordinates, or null
     * @param numTetrahedra the number of tetrahedra
     * @param tetrahedronNodes the four nodes of every tetrahedron, one after the other
     */
    public void setGeometry(int numNodes, float[] x, float[] y, float[] z, int numTetrahedra, int[] tetrahedronNodes) {
        setGeometryWith(h -> {
            Checks.fixedCells3D(numNodes, x, y, z, numTetrahedra, 4, tetrahedronNodes, "tetrahedronNodes");
            setGeometryImpl(h, numNodes, x, y, z, numTetrahedra, tetrahedronNodes);
        });
    }

    private static native long ctorImpl();

    private static native String getClassTypeId();

    private native void setGeometryImpl(long handle, int numNodes, float[] x, float[] y, float[] z, int numTetrahedra,
            int[] tetrahedronNodes);
}
