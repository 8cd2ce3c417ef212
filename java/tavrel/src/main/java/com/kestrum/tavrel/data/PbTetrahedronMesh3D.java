package com.kestrum.tavrel.data;

import com.kestrum.tavrel.internal.Checks;
import com.kestrum.tavrel.internal.JarInitializer;

/**
 * A three-dimensional mesh of tetrahedra.
 */
public class PbTetrahedronMesh3D extends PbIndexedMesh3D {
    static {
        JarInitializer.init();
    }

    /**
     * An empty mesh. The data-duplication flag is kept and reported; the mesh copies what it is
     * given whatever the flag says.
     *
     * @param isDataDuplicated whether the mesh copies the arrays it is given (the flag is kept and reported)
     */
    public PbTetrahedronMesh3D(boolean isDataDuplicated) {
        super(ctorImpl(isDataDuplicated));
    }

    /**
     * A copy of another mesh: geometry and data sets.
     *
     * @param other the object to copy
     */
    public PbTetrahedronMesh3D(PbTetrahedronMesh3D other) {
        super(ctorImpl1(handleOf(other, "other")));
    }

    /**
     * A view of a native mesh, for subclasses.
     *
     * @param handle the address of the native object
     */
    protected PbTetrahedronMesh3D(long handle) {
        super(handle);
    }

    /**
     * A mesh of numNodes nodes and tetrahedra given by 4 node indices each.
     *
     * @param numNodes the number of nodes
     * @param x the x coordinates
     * @param y the y coordinates
     * @param z the z coordinates, or null
     * @param numTetrahedra the number of tetrahedra
     * @param tetrahedraNodes the four nodes of every tetrahedron, one after the other
     * @param isDataDuplicated whether the mesh copies the arrays it is given (the flag is kept and reported)
     */
    public PbTetrahedronMesh3D(int numNodes, float[] x, float[] y, float[] z, int numTetrahedra, int[] tetrahedraNodes,
            boolean isDataDuplicated) {
        super(ctorImpl2(Checks.fixedCells3D(numNodes, x, y, z, numTetrahedra, 4, tetrahedraNodes, "tetrahedraNodes"), x, y, z,
                numTetrahedra, tetrahedraNodes, isDataDuplicated));
    }

    /**
     * Replaces the geometry.
     *
     * @param numNodes the number of nodes
     * @param x the x coordinates
     * @param y the y coordinates
     * @param z the z coordinates, or null
     * @param numTetrahedra the number of tetrahedra
     * @param tetrahedraNodes the four nodes of every tetrahedron, one after the other
     */
    public void setGeometry(int numNodes, float[] x, float[] y, float[] z, int numTetrahedra, int[] tetrahedraNodes) {
        changeGeometry(h -> setGeometryImpl(h, Checks.fixedCells3D(numNodes, x, y, z, numTetrahedra, 4,
                tetrahedraNodes, "tetrahedraNodes"), x, y, z, numTetrahedra, tetrahedraNodes));
    }

    private static native long ctorImpl(boolean isDataDuplicated);

    private static native long ctorImpl1(long other);

    private static native long ctorImpl2(int numNodes, float[] x, float[] y, float[] z, int numCells,
            int[] cellNodes, boolean isDataDuplicated);

    private native void setGeometryImpl(long handle, int numNodes, float[] x, float[] y, float[] z, int numCells,
            int[] cellNodes);
}
