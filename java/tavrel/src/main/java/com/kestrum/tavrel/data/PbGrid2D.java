package com.kestrum.tavrel.data;

import com.kestrum.tavrel.internal.Checks;
import com.kestrum.corvel.SbVec3f;
import com.kestrum.tavrel.internal.JarInitializer;

/**
 * Base of the two-dimensional structured grids of numX x numY nodes: node (i, j) has the index
 * i * numY + j and cell (i, j) the index i * (numY - 1) + j.
 */
public abstract class PbGrid2D extends PbMesh2D {
    static {
        JarInitializer.init();
    }

    /** Whether x and y hold one value per column and per row rather than one per node. */
    private final boolean perAxis;

    /**
     * Wraps a native 2D grid (made by a subclass's constructor, or owned elsewhere).
     *
     * @param handle the address of the native object
     */
    protected PbGrid2D(long handle) {
        this(handle, false);
    }

    PbGrid2D(long handle, boolean perAxis) {
        super(handle);
        this.perAxis = perAxis;
    }

    /**
     * The node counts {numX, numY}.
     *
     * @return the node counts {numX, numY}
     */
    public int[] getDim() {
        int[] x = new int[1];
        int[] y = new int[1];
        getDimImpl(handle(), x, y);
        return new int[] {x[0], y[0]};
    }

    /**
     * The coordinates of the node at column i and row j.
     *
     * @param i the column
     * @param j the row
     * @return the coordinates of the node at column i and row j
     * @throws IndexOutOfBoundsException when i or j is outside the grid
     */
    public SbVec3f getNodeCoord(int i, int j) {
        long h = handle();
        int[] dim = getDim();
        Checks.index(i, dim[0], "i");
        Checks.index(j, dim[1], "j");
        float[] out = new float[3];
        getNodeCoordImpl(h, i, j, out);
        return new SbVec3f(out);
    }

    /**
     * The (i, j) of node n. An n outside the grid gives indices outside it; a grid without
     * nodes in its second direction gives {-1, -1}.
     *
     * @param n the index of the node
     * @return the (i, j) of node n
     */
    public int[] getNodeIndices(int n) {
        int[] i = new int[1];
        int[] j = new int[1];
        getNodeIndicesImpl(handle(), n, i, j);
        return new int[] {i[0], j[0]};
    }

    /**
     * The (i, j) of cell n; {-1, -1} for a grid with fewer than two nodes in its second direction.
     *
     * @param n the index of the cell
     * @return the (i, j) of cell n; {-1, -1} for a grid with fewer than two nodes in its second direction
     */
    public int[] getCellIndices(int n) {
        int[] i = new int[1];
        int[] j = new int[1];
        getCellIndicesImpl(handle(), n, i, j);
        return new int[] {i[0], j[0]};
    }

    /**
     * Replaces the geometry; x and y are read as each grid keeps them (see the class).
     *
     * @param numX the number of nodes along x
     * @param numY the number of nodes along y
     * @param x the x coordinates
     * @param y the y coordinates
     */
    public void setGeometry(int numX, int numY, float[] x, float[] y) {
        changeGeometry(h -> {
            Checks.grid2D(numX, numY, x, y, null, perAxis);
            setGeometryImpl(h, numX, numY, x, y);
        });
    }

    /**
     * Replaces the geometry, with one elevation per node in z.
     *
     * @param numX the number of nodes along x
     * @param numY the number of nodes along y
     * @param x the x coordinates
     * @param y the y coordinates
     * @param z the z coordinates, or null
     */
    public void setGeometry(int numX, int numY, float[] x, float[] y, float[] z) {
        changeGeometry(h -> {
            Checks.grid2D(numX, numY, x, y, Checks.notNull(z, "z"), perAxis);
            setGeometryImpl1(h, numX, numY, x, y, z);
        });
    }

    private native void getNodeCoordImpl(long handle, int i, int j, float[] out);

    private native void getDimImpl(long handle, int[] out1, int[] out2);

    private native void getNodeIndicesImpl(long handle, int n, int[] iOut, int[] jOut);

    private native void getCellIndicesImpl(long handle, int n, int[] iOut, int[] jOut);

    private native void setGeometryImpl(long handle, int numX, int numY, float[] x, float[] y);

    private native void setGeometryImpl1(long handle, int numX, int numY, float[] x, float[] y, float[] z);
}
