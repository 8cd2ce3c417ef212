package com.kestrum.tavrel.data;

import com.kestrum.tavrel.internal.Checks;
import com.kestrum.tavrel.internal.JarInitializer;

/**
 * A two-dimensional mesh of quadrangles.
 */
public class PbQuadrangleMesh2D extends PbIndexedMesh2D {
    static {
        JarInitializer.init();
    }

    /**
     * An empty mesh. The data-duplication flag is kept and reported; the mesh copies what it is
     * given whatever the flag says.
     *
     * @param isDataDuplicated whether the mesh copies the arrays it is given (the flag is kept and reported)
     */
    public PbQuadrangleMesh2D(boolean isDataDuplicated) {
        super(ctorImpl(isDataDuplicated));
    }

    /**
     * A copy of another mesh: geometry and data sets.
     *
     * @param other the object to copy
     */
    public PbQuadrangleMesh2D(PbQuadrangleMesh2D other) {
        super(ctorImpl1(handleOf(other, "other")));
    }

    /**
     * A view of a native mesh, for subclasses.
     *
     * @param handle the address of the native object
     */
    protected PbQuadrangleMesh2D(long handle) {
        super(handle);
    }

    /**
     * A mesh of numNodes nodes and quadrangles given by 4 node indices each.
     *
     * @param numNodes the number of nodes
     * @param x the x coordinates
     * @param y the y coordinates
     * @param numQuadrangles the number of quadrangles
     * @param quadrangleNodes the four nodes of every quadrangle, one after the other
     * @param isDataDuplicated whether the mesh copies the arrays it is given (the flag is kept and reported)
     */
    public PbQuadrangleMesh2D(int numNodes, float[] x, float[] y, int numQuadrangles, int[] quadrangleNodes,
            boolean isDataDuplicated) {
        super(ctorImpl2(Checks.fixedCells2D(numNodes, x, y, null, numQuadrangles, 4, quadrangleNodes, "quadrangleNodes"), x, y,
                numQuadrangles, quadrangleNodes, isDataDuplicated));
    }

    /**
     * As above, with one elevation per node in z.
     *
     * @param numNodes the number of nodes
     * @param x the x coordinates
     * @param y the y coordinates
     * @param z the z coordinates, or null
     * @param numQuadrangles the number of quadrangles
     * @param quadrangleNodes the four nodes of every quadrangle, one after the other
     * @param isDataDuplicated whether the mesh copies the arrays it is given (the flag is kept and reported)
     */
    public PbQuadrangleMesh2D(int numNodes, float[] x, float[] y, float[] z, int numQuadrangles, int[] quadrangleNodes,
            boolean isDataDuplicated) {
        super(ctorImpl3(Checks.fixedCells2D(numNodes, x, y, Checks.notNull(z, "z"), numQuadrangles, 4, quadrangleNodes,
                "quadrangleNodes"), x, y, z, numQuadrangles, quadrangleNodes, isDataDuplicated));
    }

    /**
     * Replaces the geometry.
     *
     * @param numNodes the number of nodes
     * @param x the x coordinates
     * @param y the y coordinates
     * @param numQuadrangles the number of quadrangles
     * @param quadrangleNodes the four nodes of every quadrangle, one after the other
     */
    public void setGeometry(int numNodes, float[] x, float[] y, int numQuadrangles, int[] quadrangleNodes) {
        changeGeometry(h -> setGeometryImpl(h, Checks.fixedCells2D(numNodes, x, y, null, numQuadrangles, 4,
                quadrangleNodes, "quadrangleNodes"), x, y, numQuadrangles, quadrangleNodes));
    }

    /**
     * Replaces the geometry, with one elevation per node in z.
     *
     * @param numNodes the number of nodes
     * @param x the x coordinates
     * @param y the y coordinates
     * @param z the z coordinates, or null
     * @param numQuadrangles the number of quadrangles
     * @param quadrangleNodes the four nodes of every quadrangle, one after the other
     */
    public void setGeometry(int numNodes, float[] x, float[] y, float[] z, int numQuadrangles,
            int[] quadrangleNodes) {
        changeGeometry(h -> setGeometryImpl1(h, Checks.fixedCells2D(numNodes, x, y, Checks.notNull(z, "z"),
                numQuadrangles, 4, quadrangleNodes, "quadrangleNodes"), x, y, z, numQuadrangles, quadrangleNodes));
    }

    private static native long ctorImpl(boolean isDataDuplicated);

    private static native long ctorImpl1(long other);

    private static native long ctorImpl2(int numNodes, float[] x, float[] y, int numCells, int[] cellNodes,
            boolean isDataDuplicated);

    private static native long ctorImpl3(int numNodes, float[] x, float[] y, float[] z, int numCells,
            int[] cellNodes, boolean isDataDuplicated);

    private native void setGeometryImpl(long handle, int numNodes, float[] x, float[] y, int numCells,
            int[] cellNodes);

    private native void setGeometryImpl1(long handle, int numNodes, float[] x, float[] y, float[] z,
            int numCells, int[] cellNodes);
}
