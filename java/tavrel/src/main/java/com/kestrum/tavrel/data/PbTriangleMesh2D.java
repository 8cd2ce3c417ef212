package com.kestrum.tavrel.data;

import com.kestrum.tavrel.internal.Checks;
import com.kestrum.tavrel.internal.JarInitializer;

/**
 * A two-dimensional mesh of triangles.
 */
public class PbTriangleMesh2D extends PbIndexedMesh2D {
    static {
        JarInitializer.init();
    }

    /**
     * An empty mesh. The data-duplication flag is kept and reported; the mesh copies what it is
     * given whatever the flag says.
     *
     * @param isDataDuplicated whether the mesh copies the arrays it is given (the flag is kept and reported)
     */
    public PbTriangleMesh2D(boolean isDataDuplicated) {
        super(ctorImpl(isDataDuplicated));
    }

    /**
     * A copy of another mesh: geometry and data sets.
     *
     * @param other the object to copy
     */
    public PbTriangleMesh2D(PbTriangleMesh2D other) {
        super(ctorImpl1(handleOf(other, "other")));
    }

    /**
     * A view of a native mesh, for subclasses.
     *
     * @param handle the address of the native object
     */
    protected PbTriangleMesh2D(long handle) {
        super(handle);
    }

    /**
     * A mesh of numNodes nodes and triangles given by 3 node indices each.
     *
     * @param numNodes the number of nodes
     * @param x the x coordinates
     * @param y the y coordinates
     * @param numTriangles the number of triangles
     * @param triangleNodes the three nodes of every triangle, one after the other
     * @param isDataDuplicated whether the mesh copies the arrays it is given (the flag is kept and reported)
     */
    public PbTriangleMesh2D(int numNodes, float[] x, float[] y, int numTriangles, int[] triangleNodes,
            boolean isDataDuplicated) {
        super(ctorImpl2(Checks.fixedCells2D(numNodes, x, y, null, numTriangles, 3, triangleNodes, "triangleNodes"), x, y,
                numTriangles, triangleNodes, isDataDuplicated));
    }

    /**
     * As above, with one elevation per node in z.
     *
     * @param numNodes the number of nodes
     * @param x the x coordinates
     * @param y the y coordinates
     * @param z the z coordinates, or null
     * @param numTriangles the number of triangles
     * @param triangleNodes the three nodes of every triangle, one after the other
     * @param isDataDuplicated whether the mesh copies the arrays it is given (the flag is kept and reported)
     */
    public PbTriangleMesh2D(int numNodes, float[] x, float[] y, float[] z, int numTriangles, int[] triangleNodes,
            boolean isDataDuplicated) {
        super(ctorImpl3(Checks.fixedCells2D(numNodes, x, y, Checks.notNull(z, "z"), numTriangles, 3, triangleNodes,
                "triangleNodes"), x, y, z, numTriangles, triangleNodes, isDataDuplicated));
    }

    /**
     * Replaces the geometry.
     *
     * @param numNodes the number of nodes
     * @param x the x coordinates
     * @param y the y coordinates
     * @param numTriangles the number of triangles
     * @param triangleNodes the three nodes of every triangle, one after the other
     */
    public void setGeometry(int numNodes, float[] x, float[] y, int numTriangles, int[] triangleNodes) {
        changeGeometry(h -> setGeometryImpl(h, Checks.fixedCells2D(numNodes, x, y, null, numTriangles, 3,
                triangleNodes, "triangleNodes"), x, y, numTriangles, triangleNodes));
    }

    /**
     * Replaces the geometry, with one elevation per node in z.
     *
     * @param numNodes the number of nodes
     * @param x the x coordinates
     * @param y the y coordinates
     * @param z the z coordinates, or null
     * @param numTriangles the number of triangles
     * @param triangleNodes the three nodes of every triangle, one after the other
     */
    public void setGeometry(int numNodes, float[] x, float[] y, float[] z, int numTriangles,
            int[] triangleNodes) {
        changeGeometry(h -> setGeometryImpl2(h, Checks.fixedCells2D(numNodes, x, y, Checks.notNull(z, "z"),
                numTriangles, 3, triangleNodes, "triangleNodes"), x, y, z, numTriangles, triangleNodes));
    }

    /**
     * Replaces the nodes and triangulates them as a fan around node 0, in the order given (right
     * for a convex polygon given in order).
     *
     * @param numNodes the number of nodes
     * @param x the x coordinates
     * @param y the y coordinates
     */
    public void setGeometry(int numNodes, float[] x, float[] y) {
        changeGeometry(h -> setGeometryImpl1(h, Checks.nodes2D(numNodes, x, y, null), x, y));
    }

    private static native long ctorImpl(boolean isDataDuplicated);

    private static native long ctorImpl1(long other);

    private static native long ctorImpl2(int numNodes, float[] x, float[] y, int numCells, int[] cellNodes,
            boolean isDataDuplicated);

    private static native long ctorImpl3(int numNodes, float[] x, float[] y, float[] z, int numCells,
            int[] cellNodes, boolean isDataDuplicated);

    private native void setGeometryImpl(long handle, int numNodes, float[] x, float[] y, int numCells,
            int[] cellNodes);

    private native void setGeometryImpl2(long handle, int numNodes, float[] x, float[] y, float[] z,
            int numCells, int[] cellNodes);

    private native void setGeometryImpl1(long handle, int numNodes, float[] x, float[] y);
}
