package com.kestrum.tavrel.data;

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
     */
    public PbTetrahedronMesh3D(boolean isDataDuplicated) {
        super(ctorImpl(isDataDuplicated));
    }

    /** A copy of another mesh: geometry and data sets. */
    public PbTetrahedronMesh3D(PbTetrahedronMesh3D other) {
        super(ctorImpl1(handleOf(other, "other")));
    }

    /** A view of a native mesh, for subclasses. */
    protected PbTetrahedronMesh3D(long handle) {
        super(handle);
    }

    /** A mesh of numNodes nodes and tetrahedra given by 4 node indices each. */
    public PbTetrahedronMesh3D(int numNodes, float[] x, float[] y, float[] z, int numTetrahedra, int[] tetrahedraNodes,
            boolean isDataDuplicated) {
        super(ctorImpl2(checkFixed(numNodes, x, y, z, numTetrahedra, 4, tetrahedraNodes, "tetrahedraNodes"), x, y, z,
                numTetrahedra, tetrahedraNodes, isDataDuplicated));
    }

    /** Replaces the geometry. */
    public void setGeometry(int numNodes, float[] x, float[] y, float[] z, int numTetrahedra, int[] tetrahedraNodes) {
        long h = handle();
        setGeometryImpl(h, checkFixed(numNodes, x, y, z, numTetrahedra, 4, tetrahedraNodes, "tetrahedraNodes"), x, y,
                z, numTetrahedra, tetrahedraNodes);
        geometryChanged();
    }

    private static native long ctorImpl(boolean isDataDuplicated);

    private static native long ctorImpl1(long other);

    private static native long ctorImpl2(int numNodes, float[] x, float[] y, float[] z, int numCells,
            int[] cellNodes, boolean isDataDuplicated);

    private native void setGeometryImpl(long handle, int numNodes, float[] x, float[] y, float[] z, int numCells,
            int[] cellNodes);
}
