package com.kestrum.tavrel.nodes;

import com.kestrum.tavrel.internal.Checks;
import com.kestrum.tavrel.data.PbHexahedronMesh3D;
import com.kestrum.tavrel.internal.JarInitializer;

/**
 * A mesh node holding a 3D mesh of hexahedra ({@link PbHexahedronMesh3D}). See {@link
 * PoMeshProperty} for what the node does in a scene and for the view of its mesh.
 */
public class PoHexahedronMesh3D extends PoMeshProperty {
    static {
        JarInitializer.init();
    }

    /** A node holding an empty mesh. */
    public PoHexahedronMesh3D() {
        super(ctorImpl(), PbHexahedronMesh3D.class);
    }

    /**
     * The name of the class's toolkit type.
     *
     * @return the name of the class's toolkit type
     */
    public static String getClassTypeName() {
        return getClassTypeId();
    }

    /** The node's mesh, as a {@link PbHexahedronMesh3D} (see {@link PoMeshProperty#getMesh}). */
    @Override
    public PbHexahedronMesh3D getMesh() {
        return (PbHexahedronMesh3D) super.getMesh();
    }

    /**
     * Replaces the geometry of the node's mesh. A mesh of numNodes nodes and hexahedra given by 8
     * node indices each.
     *
     * @param numNodes the number of nodes
     * @param x the x coordinates
     * @param y the y coordinates
     * @param z the z coordinates, or null
     * @param numHexahedra the number of hexahedra
     * @param hexahedronNodes the eight nodes of every hexahedron, one after the other
     */
    public void setGeometry(int numNodes, float[] x, float[] y, float[] z, int numHexahedra, int[] hexahedronNodes) {
        setGeometryWith(h -> {
            Checks.fixedCells3D(numNodes, x, y, z, numHexahedra, 8, hexahedronNodes, "hexahedronNodes");
            setGeometryImpl(h, numNodes, x, y, z, numHexahedra, hexahedronNodes);
        });
    }

    private static native long ctorImpl();

    private static native String getClassTypeId();

    private native void setGeometryImpl(long handle, int numNodes, float[] x, float[] y, float[] z, int numHexahedra,
            int[] hexahedronNodes);
}
