package com.kestrum.tavrel.nodes;

import com.kestrum.tavrel.internal.Checks;
import com.kestrum.tavrel.data.PbQuadrangleMesh2D;
import com.kestrum.tavrel.internal.JarInitializer;

/**
 * A mesh node holding a 2D mesh of quadrangles ({@link PbQuadrangleMesh2D}). See {@link
 * PoMeshProperty} for what the node does in a scene and for the view of its mesh.
 */
public class PoQuadrangleMesh2D extends PoMeshProperty {
    static {
        JarInitializer.init();
    }

    /** A node holding an empty mesh. */
    public PoQuadrangleMesh2D() {
        super(ctorImpl(), PbQuadrangleMesh2D.class);
    }

    /**
     * The name of the class's toolkit type.
     *
     * @return the name of the class's toolkit type
     */
    public static String getClassTypeName() {
        return getClassTypeId();
    }

    /** The node's mesh, as a {@link PbQuadrangleMesh2D} (see {@link PoMeshProperty#getMesh}). */
    @Override
    public PbQuadrangleMesh2D getMesh() {
        return (PbQuadrangleMesh2D) super.getMesh();
    }

    /**
     * Replaces the geometry of the node's mesh. A mesh of numNodes nodes and quadrangles given by 4
     * node indices each.
     *
     * @param numNodes the number of nodes
     * @param x the x coordinates
     * @param y the y coordinates
     * @param numQuadrangles the number of quadrangles
     * @param quadrangleNodes the four nodes of every quadrangle, one after the other
     */
    public void setGeometry(int numNodes, float[] x, float[] y, int numQuadrangles, int[] quadrangleNodes) {
        setGeometryWith(h -> {
            Checks.fixedCells2D(numNodes, x, y, null, numQuadrangles, 4, quadrangleNodes, "quadrangleNodes");
            setGeometryImpl(h, numNodes, x, y, numQuadrangles, quadrangleNodes);
        });
    }

    /**
     * Replaces the geometry of the node's mesh. As above, with one elevation per node in z.
     *
     * @param numNodes the number of nodes
     * @param x the x coordinates
     * @param y the y coordinates
     * @param z the z coordinates, or null
     * @param numQuadrangles the number of quadrangles
     * @param quadrangleNodes the four nodes of every quadrangle, one after the other
     */
    public void setGeometry(int numNodes, float[] x, float[] y, float[] z, int numQuadrangles, int[] quadrangleNodes) {
        setGeometryWith(h -> {
            Checks.fixedCells2D(numNodes, x, y, Checks.notNull(z, "z"), numQuadrangles, 4, quadrangleNodes,
                    "quadrangleNodes");
            setGeometryImpl1(h, numNodes, x, y, z, numQuadrangles, quadrangleNodes);
        });
    }

    private static native long ctorImpl();

    private static native String getClassTypeId();

    private native void setGeometryImpl(long handle, int numNodes, float[] x, float[] y, int numQuadrangles,
            int[] quadrangleNodes);

    private native void setGeometryImpl1(long handle, int numNodes, float[] x, float[] y, float[] z,
            int numQuadrangles, int[] quadrangleNodes);
}
