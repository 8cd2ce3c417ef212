package com.kestrum.tavrel.nodes;

import com.kestrum.tavrel.internal.Checks;
import com.kestrum.tavrel.data.PbIndexedMesh3D;
import com.kestrum.tavrel.internal.JarInitializer;

/**
 * A mesh node holding an unstructured 3D mesh of tetrahedra, pyramids, wedges and hexahedra ({@link
 * PbIndexedMesh3D}). See {@link PoMeshProperty} for what the node does in a scene and for the view
 * of its mesh.
 */
public class PoIndexedMesh3D extends PoMeshProperty {
    static {
        JarInitializer.init();
    }

    /** A node holding an empty mesh. */
    public PoIndexedMesh3D() {
        super(ctorImpl(), PbIndexedMesh3D.class);
    }

    /**
     * The name of the class's toolkit type.
     *
     * @return the name of the class's toolkit type
     */
    public static String getClassTypeName() {
        return getClassTypeId();
    }

    /** The node's mesh, as a {@link PbIndexedMesh3D} (see {@link PoMeshProperty#getMesh}). */
    @Override
    public PbIndexedMesh3D getMesh() {
        return (PbIndexedMesh3D) super.getMesh();
    }

    /**
     * Replaces the geometry of the node's mesh. A mesh of numNodes nodes and numCells cells:
     * cellTypes[c] is the number of nodes of cell c (4, 5, 6 or 8), cellIndex lists the nodes of
     * every cell, cell after cell.
     *
     * @param numNodes the number of nodes
     * @param x the x coordinates
     * @param y the y coordinates
     * @param z the z coordinates, or null
     * @param numCells the number of cells
     * @param cellTypes the number of nodes of each cell
     * @param cellIndex the nodes of every cell, one after the other
     */
    public void setGeometry(int numNodes, float[] x, float[] y, float[] z, int numCells, int[] cellTypes,
            int[] cellIndex) {
        setGeometryWith(h -> {
            Checks.indexedMesh3D(numNodes, x, y, z, numCells, cellTypes, cellIndex);
            setGeometryImpl(h, numNodes, x, y, z, numCells, cellTypes, cellIndex);
        });
    }

    private static native long ctorImpl();

    private static native String getClassTypeId();

    private native void setGeometryImpl(long handle, int numNodes, float[] x, float[] y, float[] z, int numCells,
            int[] cellTypes, int[] cellIndex);
}
