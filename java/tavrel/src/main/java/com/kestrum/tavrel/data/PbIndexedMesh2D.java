package com.kestrum.tavrel.data;

import com.kestrum.tavrel.internal.Checks;
import com.kestrum.tavrel.internal.JarInitializer;
import java.nio.FloatBuffer;

/**
 * An unstructured two-dimensional mesh of triangles and quadrangles. The mesh keeps its node
 * arrays ({@link #getNodes}, {@link #getCoordinates}).
 */
public class PbIndexedMesh2D extends PbMesh2D {
    static {
        JarInitializer.init();
    }

    /**
     * An empty mesh. The data-duplication flag is kept and reported; the mesh copies what it is
     * given whatever the flag says.
     *
     * @param isDataDuplicated whether the mesh copies the arrays it is given (the flag is kept and reported)
     */
    public PbIndexedMesh2D(boolean isDataDuplicated) {
        super(ctorImpl(isDataDuplicated));
    }

    /**
     * A copy of another mesh: geometry and data sets.
     *
     * @param other the object to copy
     */
    public PbIndexedMesh2D(PbIndexedMesh2D other) {
        super(ctorImpl1(handleOf(other, "other")));
    }

    /**
     * A view of a native mesh, for subclasses.
     *
     * @param handle the address of the native object
     */
    protected PbIndexedMesh2D(long handle) {
        super(handle);
    }

    /**
     * A mesh of numNodes nodes and numCells cells: cellTypes[c] is the number of nodes of cell c
     * (3 or 4), cellIndex lists the nodes of every cell, cell after cell.
     *
     * @param numNodes the number of nodes
     * @param x the x coordinates
     * @param y the y coordinates
     * @param numCells the number of cells
     * @param cellTypes the number of nodes of each cell
     * @param cellIndex the nodes of every cell, one after the other
     * @param isDataDuplicated whether the mesh copies the arrays it is given (the flag is kept and reported)
     */
    public PbIndexedMesh2D(int numNodes, float[] x, float[] y, int numCells, int[] cellTypes, int[] cellIndex,
            boolean isDataDuplicated) {
        super(ctorImpl2(Checks.indexedMesh2D(numNodes, x, y, null, numCells, cellTypes, cellIndex), x, y, numCells, cellTypes,
                cellIndex, isDataDuplicated));
    }

    /**
     * As above, with one elevation per node in z.
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
    public PbIndexedMesh2D(int numNodes, float[] x, float[] y, float[] z, int numCells, int[] cellTypes,
            int[] cellIndex, boolean isDataDuplicated) {
        super(ctorImpl3(Checks.indexedMesh2D(numNodes, x, y, Checks.notNull(z, "z"), numCells, cellTypes, cellIndex), x, y, z,
                numCells, cellTypes, cellIndex, isDataDuplicated));
    }

    /**
     * Replaces the geometry (see the constructor).
     *
     * @param numNodes the number of nodes
     * @param x the x coordinates
     * @param y the y coordinates
     * @param numCells the number of cells
     * @param cellTypes the number of nodes of each cell
     * @param cellIndex the nodes of every cell, one after the other
     */
    public void setGeometry(int numNodes, float[] x, float[] y, int numCells, int[] cellTypes, int[] cellIndex) {
        changeGeometry(h -> setGeometryImpl(h, Checks.indexedMesh2D(numNodes, x, y, null, numCells, cellTypes,
                cellIndex), x, y, numCells, cellTypes, cellIndex));
    }

    /**
     * Replaces the geometry, with one elevation per node in z.
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
        changeGeometry(h -> setGeometryImpl1(h, Checks.indexedMesh2D(numNodes, x, y, Checks.notNull(z, "z"), numCells,
                cellTypes, cellIndex), x, y, z, numCells, cellTypes, cellIndex));
    }

    /**
     * The node arrays x, y, z without a copy (z is null without elevations).
     *
     * @return the node arrays x, y, z without a copy (z is null without elevations)
     */
    public FloatBuffer[] getNodes() {
        Object[] x = new Object[1];
        Object[] y = new Object[1];
        Object[] z = new Object[1];
        getNodesImpl(handle(), x, y, z);
        return new FloatBuffer[] {Checks.floats(x), Checks.floats(y), Checks.floats(z)};
    }

    /**
     * The node arrays x and y without a copy.
     *
     * @return the node arrays x and y without a copy
     */
    public FloatBuffer[] get2DNodes() {
        Object[] x = new Object[1];
        Object[] y = new Object[1];
        get2DNodesImpl(handle(), x, y);
        return new FloatBuffer[] {Checks.floats(x), Checks.floats(y)};
    }

    /**
     * Sets the orientation of the mesh's elements.
     *
     * @param orientation the elements' orientation
     * @throws NullPointerException when orientation is null
     */
    public void setElemOrientation(ElemOrientations orientation) {
        setElemOrientationImpl(handle(), Checks.notNull(orientation, "orientation").getValue());
    }

    /** How the cells are oriented. */
    public enum ElemOrientations {
        /** The toolkit's {@code ORIENTATION_AS_IS}. */
        ORIENTATION_AS_IS(JarInitializer.value(ElemOrientations::getORIENTATIONASISNative)),
        /** The toolkit's {@code ORIENTATION_Z_POS}. */
        ORIENTATION_Z_POS(JarInitializer.value(ElemOrientations::getORIENTATIONZPOSNative)),
        /** The toolkit's {@code ORIENTATION_Z_NEG}. */
        ORIENTATION_Z_NEG(JarInitializer.value(ElemOrientations::getORIENTATIONZNEGNative));

        private final int value;

        ElemOrientations(int value) {
            this.value = value;
        }

        /** {@return the toolkit's value of the constant} */
        public int getValue() {
            return value;
        }

        private static native int getORIENTATIONASISNative();

        private static native int getORIENTATIONZPOSNative();

        private static native int getORIENTATIONZNEGNative();
    }

    private static native long ctorImpl(boolean isDataDuplicated);

    private static native long ctorImpl1(long other);

    private static native long ctorImpl2(int numNodes, float[] x, float[] y, int numCells, int[] cellTypes,
            int[] cellIndex, boolean isDataDuplicated);

    private static native long ctorImpl3(int numNodes, float[] x, float[] y, float[] z, int numCells,
            int[] cellTypes, int[] cellIndex, boolean isDataDuplicated);

    private native void setGeometryImpl(long handle, int numNodes, float[] x, float[] y, int numCells,
            int[] cellTypes, int[] cellIndex);

    private native void setGeometryImpl1(long handle, int numNodes, float[] x, float[] y, float[] z, int numCells,
            int[] cellTypes, int[] cellIndex);

    private native void getNodesImpl(long handle, Object[] xOut, Object[] yOut, Object[] zOut);

    private native void get2DNodesImpl(long handle, Object[] xOut, Object[] yOut);

    private native void setElemOrientationImpl(long handle, int orientation);
}
