package com.kestrum.tavrel.data;

import com.kestrum.tavrel.internal.Checks;
import com.kestrum.tavrel.internal.JarInitializer;

/**
 * A regular grid: numX x numY nodes evenly spread over a rectangle. The mesh keeps no
 * coordinate arrays. {@link #setGeometry(int, int, float[], float[])} takes the extent from the
 * first and last elements of x (numX values) and y (numY values). Its cells are pixels.
 */
public class PbRegularCartesianGrid2D extends PbGrid2D {
    static {
        JarInitializer.init();
    }

    /**
     * An empty mesh. The data-duplication flag is kept and reported; the mesh copies what it is
     * given whatever the flag says.
     *
     * @param isDataDuplicated whether the mesh copies the arrays it is given (the flag is kept and reported)
     */
    public PbRegularCartesianGrid2D(boolean isDataDuplicated) {
        super(ctorImpl(isDataDuplicated), true);
    }

    /**
     * A copy of another mesh: geometry and data sets.
     *
     * @param other the object to copy
     */
    public PbRegularCartesianGrid2D(PbRegularCartesianGrid2D other) {
        super(ctorImpl1(handleOf(other, "other")), true);
    }

    /**
     * A view of a native mesh, for subclasses.
     *
     * @param handle the address of the native object
     */
    protected PbRegularCartesianGrid2D(long handle) {
        super(handle, true);
    }

    /**
     * numX x numY nodes evenly spread over [xmin, xmax] x [ymin, ymax].
     *
     * @param numX the number of nodes along x
     * @param numY the number of nodes along y
     * @param xmin the smallest x
     * @param ymin the smallest y
     * @param xmax the largest x
     * @param ymax the largest y
     * @param isDataDuplicated whether the mesh copies the arrays it is given (the flag is kept and reported)
     */
    public PbRegularCartesianGrid2D(int numX, int numY, float xmin, float ymin, float xmax, float ymax,
            boolean isDataDuplicated) {
        super(ctorImpl2(counts(numX, numY, null), numY, xmin, ymin, xmax, ymax, isDataDuplicated), true);
    }

    /**
     * As above, with one elevation per node in z.
     *
     * @param numX the number of nodes along x
     * @param numY the number of nodes along y
     * @param xmin the smallest x
     * @param ymin the smallest y
     * @param xmax the largest x
     * @param ymax the largest y
     * @param z the z coordinates, or null
     * @param isDataDuplicated whether the mesh copies the arrays it is given (the flag is kept and reported)
     */
    public PbRegularCartesianGrid2D(int numX, int numY, float xmin, float ymin, float xmax, float ymax, float[] z,
            boolean isDataDuplicated) {
        super(ctorImpl3(counts(numX, numY, Checks.notNull(z, "z")), numY, xmin, ymin, xmax, ymax, z,
                isDataDuplicated), true);
    }

    /**
     * A grid over the extent of another one, with new node counts.
     *
     * @param numX the number of nodes along x
     * @param numY the number of nodes along y
     * @param grid the grid whose geometry is copied
     */
    public PbRegularCartesianGrid2D(int numX, int numY, PbRegularCartesianGrid2D grid) {
        super(ctorImpl4(counts(numX, numY, null), numY, handleOf(grid, "grid")), true);
    }

    /**
     * Replaces the geometry: numX x numY nodes over [xmin, xmax] x [ymin, ymax].
     *
     * @param numX the number of nodes along x
     * @param numY the number of nodes along y
     * @param xmin the smallest x
     * @param ymin the smallest y
     * @param xmax the largest x
     * @param ymax the largest y
     */
    public void setGeometry(int numX, int numY, float xmin, float ymin, float xmax, float ymax) {
        changeGeometry(h -> setGeometryImpl(h, counts(numX, numY, null), numY, xmin, ymin, xmax, ymax));
    }

    /**
     * As above, with one elevation per node in z.
     *
     * @param numX the number of nodes along x
     * @param numY the number of nodes along y
     * @param xmin the smallest x
     * @param ymin the smallest y
     * @param xmax the largest x
     * @param ymax the largest y
     * @param z the z coordinates, or null
     */
    public void setGeometry(int numX, int numY, float xmin, float ymin, float xmax, float ymax, float[] z) {
        changeGeometry(h -> setGeometryImpl1(h, counts(numX, numY, Checks.notNull(z, "z")), numY, xmin, ymin, xmax,
                ymax, z));
    }

    /** Checks the counts (and the elevations when given); returns numX. */
    private static int counts(int numX, int numY, float[] z) {
        int n = Checks.product(Checks.count(numX, "numX"), Checks.count(numY, "numY"));
        Checks.optional(z, n, "z");
        return numX;
    }

    private static native long ctorImpl(boolean isDataDuplicated);

    private static native long ctorImpl1(long other);

    private static native long ctorImpl2(int numX, int numY, float xmin, float ymin, float xmax, float ymax,
            boolean isDataDuplicated);

    private static native long ctorImpl3(int numX, int numY, float xmin, float ymin, float xmax, float ymax,
            float[] z, boolean isDataDuplicated);

    private static native long ctorImpl4(int numX, int numY, long grid);

    private native void setGeometryImpl(long handle, int numX, int numY, float xmin, float ymin, float xmax,
            float ymax);

    private native void setGeometryImpl1(long handle, int numX, int numY, float xmin, float ymin, float xmax,
            float ymax, float[] z);
}
