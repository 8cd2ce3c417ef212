package com.kestrum.tavrel.data;

import com.kestrum.tavrel.internal.Checks;
import com.kestrum.tavrel.internal.JarInitializer;

/**
 * A rectilinear grid: node (i, j, k) is at (x[i], y[j], z[k]). The mesh keeps its arrays:
 * {@link #getCoordinates} gives x (numX values), y (numY) and z (numZ); {@link #setCoordinates}
 * takes arrays of those lengths. Its cells are voxels.
 */
public class PbParalCartesianGrid3D extends PbGrid3D {
    static {
        JarInitializer.init();
    }

    /**
     * An empty mesh. The data-duplication flag is kept and reported; the mesh copies what it is
     * given whatever the flag says.
     *
     * @param isDataDuplicated whether the mesh copies the arrays it is given (the flag is kept and reported)
     */
    public PbParalCartesianGrid3D(boolean isDataDuplicated) {
        super(ctorImpl(isDataDuplicated), true);
    }

    /**
     * A copy of another mesh: geometry and data sets.
     *
     * @param other the object to copy
     */
    public PbParalCartesianGrid3D(PbParalCartesianGrid3D other) {
        super(ctorImpl1(handleOf(other, "other")), true);
    }

    /**
     * A view of a native mesh, for subclasses.
     *
     * @param handle the address of the native object
     */
    protected PbParalCartesianGrid3D(long handle) {
        super(handle, true);
    }

    /**
     * A grid of numX x numY x numZ nodes, x of numX values, y of numY, z of numZ.
     *
     * @param numX the number of nodes along x
     * @param numY the number of nodes along y
     * @param numZ the number of nodes along z
     * @param x the x coordinates
     * @param y the y coordinates
     * @param z the z coordinates, or null
     * @param isDataDuplicated whether the mesh copies the arrays it is given (the flag is kept and reported)
     */
    public PbParalCartesianGrid3D(int numX, int numY, int numZ, float[] x, float[] y, float[] z, boolean isDataDuplicated) {
        super(create(numX, numY, numZ, x, y, z, isDataDuplicated), true);
    }

    private static long create(int numX, int numY, int numZ, float[] x, float[] y, float[] z,
            boolean isDataDuplicated) {
        Checks.grid3D(numX, numY, numZ, x, y, z, true);
        return ctorImpl2(numX, numY, numZ, x, y, z, isDataDuplicated);
    }

    private static native long ctorImpl(boolean isDataDuplicated);

    private static native long ctorImpl1(long other);

    private static native long ctorImpl2(int numX, int numY, int numZ, float[] x, float[] y, float[] z,
            boolean isDataDuplicated);
}
