package com.kestrum.tavrel.data;

import com.kestrum.tavrel.internal.Checks;
import com.kestrum.tavrel.internal.JarInitializer;

/**
 * A regular grid over a box. The mesh keeps no coordinate arrays. {@link
 * #setGeometry(int, int, int, float[], float[], float[])} takes the extent from the first and
 * last elements of x, y and z (numX, numY and numZ values). Its cells are voxels.
 */
public class PbRegularCartesianGrid3D extends PbGrid3D {
    static {
        JarInitializer.init();
    }

    /**
     * An empty mesh. The data-duplication flag is kept and reported; the mesh copies what it is
     * given whatever the flag says.
     *
     * @param isDataDuplicated whether the mesh copies the arrays it is given (the flag is kept and reported)
     */
    public PbRegularCartesianGrid3D(boolean isDataDuplicated) {
        super(ctorImpl(isDataDuplicated), true);
    }

    /**
     * A copy of another mesh: geometry and data sets.
     *
     * @param other the object to copy
     */
    public PbRegularCartesianGrid3D(PbRegularCartesianGrid3D other) {
        super(ctorImpl1(handleOf(other, "other")), true);
    }

    /**
     * A view of a native mesh, for subclasses.
     *
     * @param handle the address of the native object
     */
    protected PbRegularCartesianGrid3D(long handle) {
        super(handle, true);
    }

    /**
     * numX x numY x numZ nodes evenly spread over a box.
     *
     * @param numX the number of nodes along x
     * @param numY the number of nodes along y
     * @param numZ the number of nodes along z
     * @param xmin the smallest x
     * @param ymin the smallest y
     * @param zmin the smallest z
     * @param xmax the largest x
     * @param ymax the largest y
     * @param zmax the largest z
     * @param isDataDuplicated whether the mesh copies the arrays it is given (the flag is kept and reported)
     */
    public PbRegularCartesianGrid3D(int numX, int numY, int numZ, float xmin, float ymin, float zmin, float xmax,
            float ymax, float zmax, boolean isDataDuplicated) {
        super(ctorImpl2(counts(numX, numY, numZ), numY, numZ, xmin, ymin, zmin, xmax, ymax, zmax, isDataDuplicated), true);
    }

    /**
     * Replaces the geometry: numX x numY x numZ nodes over the box.
     *
     * @param numX the number of nodes along x
     * @param numY the number of nodes along y
     * @param numZ the number of nodes along z
     * @param xmin the smallest x
     * @param ymin the smallest y
     * @param zmin the smallest z
     * @param xmax the largest x
     * @param ymax the largest y
     * @param zmax the largest z
     */
    public void setGeometry(int numX, int numY, int numZ, float xmin, float ymin, float zmin, float xmax, float ymax,
            float zmax) {
        changeGeometry(h -> setGeometryImpl(h, counts(numX, numY, numZ), numY, numZ, xmin, ymin, zmin, xmax, ymax,
                zmax));
    }

    /** Checks the counts; returns numX. */
    private static int counts(int numX, int numY, int numZ) {
        Checks.product(Checks.count(numX, "numX"), Checks.count(numY, "numY"), Checks.count(numZ, "numZ"));
        return numX;
    }

    private static native long ctorImpl(boolean isDataDuplicated);

    private static native long ctorImpl1(long other);

    private static native long ctorImpl2(int numX, int numY, int numZ, float xmin, float ymin, float zmin,
            float xmax, float ymax, float zmax, boolean isDataDuplicated);

    private native void setGeometryImpl(long handle, int numX, int numY, int numZ, float xmin, float ymin,
            float zmin, float xmax, float ymax, float zmax);
}
