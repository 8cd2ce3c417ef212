package com.kestrum.tavrel.data;

import com.kestrum.tavrel.internal.Checks;
import com.kestrum.tavrel.internal.JarInitializer;

/**
 * A polar grid: x holds numX radii and y numY angles in degrees; node (i, j) is at
 * (x[i] cos y[j], x[i] sin y[j]). The mesh keeps no coordinate arrays. Its cells are quadrangles.
 */
public class PbPolarGrid2D extends PbGrid2D {
    static {
        JarInitializer.init();
    }

    /**
     * An empty mesh. The data-duplication flag is kept and reported; the mesh copies what it is
     * given whatever the flag says.
     *
     * @param isDataDuplicated whether the mesh copies the arrays it is given (the flag is kept and reported)
     */
    public PbPolarGrid2D(boolean isDataDuplicated) {
        super(ctorImpl(isDataDuplicated), true);
    }

    /**
     * A copy of another mesh: geometry and data sets.
     *
     * @param other the object to copy
     */
    public PbPolarGrid2D(PbPolarGrid2D other) {
        super(ctorImpl1(handleOf(other, "other")), true);
    }

    /**
     * A view of a native mesh, for subclasses.
     *
     * @param handle the address of the native object
     */
    protected PbPolarGrid2D(long handle) {
        super(handle, true);
    }

    /**
     * A grid of numX x numY nodes, x of numX values, y of numY values.
     *
     * @param numX the number of nodes along x
     * @param numY the number of nodes along y
     * @param x the x coordinates
     * @param y the y coordinates
     * @param isDataDuplicated whether the mesh copies the arrays it is given (the flag is kept and reported)
     */
    public PbPolarGrid2D(int numX, int numY, float[] x, float[] y, boolean isDataDuplicated) {
        super(create(numX, numY, x, y, null, isDataDuplicated), true);
    }

    /**
     * As above, with one elevation per node in z.
     *
     * @param numX the number of nodes along x
     * @param numY the number of nodes along y
     * @param x the x coordinates
     * @param y the y coordinates
     * @param z the z coordinates, or null
     * @param isDataDuplicated whether the mesh copies the arrays it is given (the flag is kept and reported)
     */
    public PbPolarGrid2D(int numX, int numY, float[] x, float[] y, float[] z, boolean isDataDuplicated) {
        super(create(numX, numY, x, y, Checks.notNull(z, "z"), isDataDuplicated), true);
    }

    private static long create(int numX, int numY, float[] x, float[] y, float[] z, boolean isDataDuplicated) {
        Checks.grid2D(numX, numY, x, y, z, true);
        return z == null ? ctorImpl2(numX, numY, x, y, isDataDuplicated)
                : ctorImpl3(numX, numY, x, y, z, isDataDuplicated);
    }

    private static native long ctorImpl(boolean isDataDuplicated);

    private static native long ctorImpl1(long other);

    private static native long ctorImpl2(int numX, int numY, float[] x, float[] y, boolean isDataDuplicated);

    private static native long ctorImpl3(int numX, int numY, float[] x, float[] y, float[] z,
            boolean isDataDuplicated);
}
