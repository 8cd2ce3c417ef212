package com.kestrum.tavrel.nodes;

import com.kestrum.tavrel.internal.Checks;
import com.kestrum.tavrel.data.PbIndexedMesh2D;
import com.kestrum.tavrel.internal.JarInitializer;

/**
 * A mesh node holding an unstructured 2D mesh of triangles and quadrangles ({@link
 * PbIndexedMesh2D}). See {@link PoMeshProperty} for what the node does in a scene and for the view
 * of its mesh.
 */
public class PoIndexedMesh2D extends PoMeshProperty {
    static {
        JarInitializer.init();
    }

    /** A node holding an empty mesh. */
    public PoIndexedMesh2D() {
        super(ctorImpl(), PbIndexedMesh2D.class);
    }

    /**
     * The name of the class's toolkit type.
     *
     * @return the name of the class's toolkit type
     */
    public static String getClassTypeName() {
        return getClassTypeId();
    }

    /** The node's mesh, as a {@link PbIndexedMesh2D} (see {@link PoMeshProperty#getMesh}). */
    @Override
    public PbIndexedMesh2D getMesh() {
        return (PbIndexedMesh2D) super.getMesh();
    }

    /**
     * Replaces the geometry of the node's mesh. A mesh of numNodes nodes and numCells cells:
     * cellTypes[c] is the number of nodes of cell c (3 or 4), cellIndex lists the nodes of every
     * cell, cell after cell.
     *
     * @param numNodes the number of nodes
     * @param x the x coordinates
     * @param y the y coordinates
     * @param numCells the number of cells
     * @param cellTypes the number of nodes of each cell
     * @param cellIndex the nodes of every cell, one after the other
     */
    public void setGeometry(int numNodes, float[] x, float[] y, int numCells, int[] cellTypes, int[] cellIndex) {
        setGeometryWith(h -> {
            Checks.indexedMesh2D(numNodes, x, y, null, numCells, cellTypes, cellIndex);
            setGeometryImpl(h, numNodes, x, y, numCells, cellTypes, cellIndex);
        });
    }

    /**
     * Replaces the geometry of the node's mesh. As above, with one elevation per node in z.
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
            Checks.indexedMesh2D(numNodes, x, y, Checks.notNull(z, "z"), numCells, cellTypes, cellIndex);
            setGeometryImpl1(h, numNodes, x, y, z, numCells, cellTypes, cellIndex);
        });
    }

    private static native long ctorImpl();

    private static native String getClassTypeId();

    private native void setGeometryImpl(long handle, int numNodes, float[] x, float[] y, int numCells, int[] cellTypes,
            int[] cellIndex);

    private native void setGeometryImpl1(long handle, int numNodes, float[] x, float[] y, float[] z, int numCells,
            int[] cellTypes, int[] cellIndex);
}
