package com.kestrum.tavrel.data;

import com.kestrum.tavrel.internal.Checks;
import com.kestrum.tavrel.internal.JarInitializer;
import java.nio.FloatBuffer;

/**
 * An unstructured three-dimensional mesh of tetrahedra, pyramids, wedges and hexahedra. The
 * mesh keeps its node arrays ({@link #getNodes}, {@link #getCoordinates}).
 */
public class PbIndexedMesh3D extends PbMesh3D {
    static {
        JarInitializer.init();
    }

    /**
     * An empty mesh. The data-duplication flag is kept and reported; the mesh copies what it is
     * given whatever the flag says.
     *
     * @param isDataDuplicated whether the mesh copies the arrays it is given (the flag is kept and reported)
     */
    public PbIndexedMesh3D(boolean isDataDuplicated) {
        super(ctorImpl(isDataDuplicated));
    }

    /**
     * A copy of another mesh: geometry and data sets.
     *
     * @param other the object to copy
     */
    public PbIndexedMesh3D(PbIndexedMesh3D other) {
        super(ctorImpl1(handleOf(other, "other")));
    }

    /**
     * A view of a native mesh, for subclasses.
     *
     * @param handle the address of the native object
     */
    protected PbIndexedMesh3D(long handle) {
        super(handle);
    }

    /**
     * A mesh of numNodes nodes and numCells cells: cellTypes[c] is the number of nodes of cell c
     * (4 tetrahedron, 5 pyramid, 6 wedge, 8 hexahedron), cellIndex lists the nodes of every
     * cell, cell after cell.
     *
     * @param numNodes the number of nodes
     * @param x the x coordinates
     * @param y the y coordinates
     * @param z the z coordinates, or null
     * @param numCells the number of cells
     * @param cellTypes the number of nodes of each cell
     * @param cellIndex the nodes of every cell, one after the other
     * @param isDataDuplicated whether the mesh copies the arrays it is given (the flag is kept and reported)
     */
    public PbIndexedMesh3D(int numNodes, float[] x, float[] y, float[] z, int numCells, int[] cellTypes,
            int[] cellIndex, boolean isDataDuplicated) {
        super(ctorImpl2(Checks.indexedMesh3D(numNodes, x, y, z, numCells, cellTypes, cellIndex), x, y, z, numCells, cellTypes,
                cellIndex, isDataDuplicated));
    }

    /**
     * Replaces the geometry (see the constructor).
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
        changeGeometry(h -> setGeometryImpl(h, Checks.indexedMesh3D(numNodes, x, y, z, numCells, cellTypes,
                cellIndex), x, y, z, numCells, cellTypes, cellIndex));
    }

    /**
     * The node arrays x, y, z without a copy.
     *
     * @return the node arrays x, y, z without a copy
     */
    public FloatBuffer[] getNodes() {
        Object[] x = new Object[1];
        Object[] y = new Object[1];
        Object[] z = new Object[1];
        getNodesImpl(handle(), x, y, z);
        return new FloatBuffer[] {Checks.floats(x), Checks.floats(y), Checks.floats(z)};
    }

    private static native long ctorImpl(boolean isDataDuplicated);

    private static native long ctorImpl1(long other);

    private static native long ctorImpl2(int numNodes, float[] x, float[] y, float[] z, int numCells,
            int[] cellTypes, int[] cellIndex, boolean isDataDuplicated);

    private native void setGeometryImpl(long handle, int numNodes, float[] x, float[] y, float[] z, int numCells,
            int[] cellTypes, int[] cellIndex);

    private native void getNodesImpl(long handle, Object[] xOut, Object[] yOut, Object[] zOut);
}
