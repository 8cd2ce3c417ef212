package com.kestrum.tavrel.data;

import com.kestrum.tavrel.internal.Checks;
import com.kestrum.corvel.SbVec3f;
import com.kestrum.tavrel.internal.JarInitializer;

/**
 * Base of the three-dimensional structured grids of numX x numY x numZ nodes: node (i, j, k)
 * has the index (i * numY + j) * numZ + k; cells number likewise with each count reduced by 1.
 */
public abstract class PbGrid3D extends PbMesh3D {
    static {
        JarInitializer.init();
    }

    /** Whether x, y and z hold one value per index along their axis rather than one per node. */
    private final boolean perAxis;

    /**
     * Wraps a native 3D grid (made by a subclass's constructor, or owned elsewhere).
     *
     * @param handle the address of the native object
     */
    protected PbGrid3D(long handle) {
        this(handle, false);
    }

    PbGrid3D(long handle, boolean perAxis) {
        super(handle);
        this.perAxis = perAxis;
    }

    /**
     * The node counts {numX, numY, numZ}.
     *
     * @return the node counts {numX, numY, numZ}
     */
    public int[] getDim() {
        int[] x = new int[1];
        int[] y = new int[1];
        int[] z = new int[1];
        getDimImpl(handle(), x, y, z);
        return new int[] {x[0], y[0], z[0]};
    }

    /**
     * The coordinates of the node of indices i, j, k.
     *
     * @param i the index along x
     * @param j the index along y
     * @param k the index along z
     * @return the coordinates of the node of indices i, j, k
     * @throws IndexOutOfBoundsException when an index is outside the grid
     */
    public SbVec3f getNodeCoord(int i, int j, int k) {
        long h = handle();
        int[] dim = getDim();
        Checks.index(i, dim[0], "i");
        Checks.index(j, dim[1], "j");
        Checks.index(k, dim[2], "k");
        float[] out = new float[3];
        getNodeCoordImpl(h, i, j, k, out);
        return new SbVec3f(out);
    }

    /**
     * The (i, j, k) of node n; {-1, -1, -1} for a grid without nodes in its second or third direction.
     *
     * @param n the index of the node
     * @return the (i, j, k) of node n; {-1, -1, -1} for a grid without nodes in its second or third direction
     */
    public int[] getNodeIndices(int n) {
        int[][] out = new int[3][1];
        getNodeIndicesImpl(handle(), n, out[0], out[1], out[2]);
        return new int[] {out[0][0], out[1][0], out[2][0]};
    }

    /**
     * The (i, j, k) of cell n; {-1, -1, -1} for a grid with fewer than two nodes in those directions.
     *
     * @param n the index of the cell
     * @return the (i, j, k) of cell n; {-1, -1, -1} for a grid with fewer than two nodes in those directions
     */
    public int[] getCellIndices(int n) {
        int[][] out = new int[3][1];
        getCellIndicesImpl(handle(), n, out[0], out[1], out[2]);
        return new int[] {out[0][0], out[1][0], out[2][0]};
    }

    /**
     * Replaces the geometry; x, y and z are read as each grid keeps them (see the class).
     *
     * @param numX the number of nodes along x
     * @param numY the number of nodes along y
     * @param numZ the number of nodes along z
     * @param x the x coordinates
     * @param y the y coordinates
     * @param z the z coordinates, or null
     */
    public void setGeometry(int numX, int numY, int numZ, float[] x, float[] y, float[] z) {
        changeGeometry(h -> {
            Checks.grid3D(numX, numY, numZ, x, y, z, perAxis);
            setGeometryImpl(h, numX, numY, numZ, x, y, z);
        });
    }

    private native void getNodeCoordImpl(long handle, int i, int j, int k, float[] out);

    private native void getDimImpl(long handle, int[] out1, int[] out2, int[] out3);

    private native void getNodeIndicesImpl(long handle, int n, int[] iOut, int[] jOut, int[] kOut);

    private native void getCellIndicesImpl(long handle, int n, int[] iOut, int[] jOut, int[] kOut);

    private native void setGeometryImpl(long handle, int numX, int numY, int numZ, float[] x, float[] y,
            float[] z);
}
