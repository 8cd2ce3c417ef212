package com.kestrum.tavrel.data;

import com.kestrum.tavrel.internal.Checks;
import com.kestrum.tavrel.internal.JarInitializer;

/**
 * A three-dimensional mesh of hexahedra (4 nodes of the bottom face, then the 4 of the top
 * face, in the same turn).
 */
public class PbHexahedronMesh3D extends PbIndexedMesh3D {
    static {
        JarInitializer.init();
    }

    /**
     * An empty mesh. The data-duplication flag is kept and reported; the mesh copies what it is
     * given whatever the flag says.
     *
     * @param isDataDuplicated whether the mesh copies the arrays it is given (the flag is kept and reported)
     */
    public PbHexahedronMesh3D(boolean isDataDuplicated) {
        super(ctorImpl(isDataDuplicated));
    }

    /**
     * A copy of another mesh: geometry and data sets.
     *
     * @param other the object to copy
     */
    public PbHexahedronMesh3D(PbHexahedronMesh3D other) {
        super(ctorImpl1(handleOf(other, "other")));
    }

    /**
     * A view of a native mesh, for subclasses.
     *
     * @param handle the address of the native object
     */
    protected PbHexahedronMesh3D(long handle) {
        super(handle);
    }

    /**
     * A mesh of numNodes nodes and hexahedra given by 8 node indices each.
     *
     * @param numNodes the number of nodes
     * @param x the x coordinates
     * @param y the y coordinates
     * @param z the z coordinates, or null
     * @param numHexahedra the number of hexahedra
     * @param hexahedraNodes the eight nodes of every hexahedron, one after the other
     * @param isDataDuplicated whether the mesh copies the arrays it is given (the flag is kept and reported)
     */
    public PbHexahedronMesh3D(int numNodes, float[] x, float[] y, float[] z, int numHexahedra, int[] hexahedraNodes,
            boolean isDataDuplicated) {
        super(ctorImpl2(Checks.fixedCells3D(numNodes, x, y, z, numHexahedra, 8, hexahedraNodes, "hexahedraNodes"), x, y, z,
                numHexahedra, hexahedraNodes, isDataDuplicated));
    }

    /**
     * Replaces the geometry.
     *
     * @param numNodes the number of nodes
     * @param x the x coordinates
     * @param y the y coordinates
     * @param z the z coordinates, or null
     * @param numHexahedra the number of hexahedra
     * @param hexahedraNodes the eight nodes of every hexahedron, one after the other
     */
    public void setGeometry(int numNodes, float[] x, float[] y, float[] z, int numHexahedra, int[] hexahedraNodes) {
        changeGeometry(h -> setGeometryImpl(h, Checks.fixedCells3D(numNodes, x, y, z, numHexahedra, 8, hexahedraNodes,
                "hexahedraNodes"), x, y, z, numHexahedra, hexahedraNodes));
    }

    private static native long ctorImpl(boolean isDataDuplicated);

    private static native long ctorImpl1(long other);

    private static native long ctorImpl2(int numNodes, float[] x, float[] y, float[] z, int numCells,
            int[] cellNodes, boolean isDataDuplicated);

    private native void setGeometryImpl(long handle, int numNodes, float[] x, float[] y, float[] z, int numCells,
            int[] cellNodes);
}
