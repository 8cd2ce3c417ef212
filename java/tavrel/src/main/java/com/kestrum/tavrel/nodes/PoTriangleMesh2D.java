package com.kestrum.tavrel.nodes;

import com.kestrum.tavrel.internal.Checks;
import com.kestrum.tavrel.data.PbTriangleMesh2D;
import com.kestrum.tavrel.internal.JarInitializer;

/**
 * A mesh node holding a 2D mesh of triangles ({@link PbTriangleMesh2D}). See {@link PoMeshProperty}
 * for what the node does in a scene and for the view of its mesh.
 */
public class PoTriangleMesh2D extends PoMeshProperty {
    static {
        JarInitializer.init();
    }

    /** A node holding an empty mesh. */
    public PoTriangleMesh2D() {
        super(ctorImpl(), PbTriangleMesh2D.class);
    }

    /**
     * The name of the class's toolkit type.
     *
     * @return the name of the class's toolkit type
     */
    public static String getClassTypeName() {
        return getClassTypeId();
    }

    /** The node's mesh, as a {@link PbTriangleMesh2D} (see {@link PoMeshProperty#getMesh}). */
    @Override
    public PbTriangleMesh2D getMesh() {
        return (PbTriangleMesh2D) super.getMesh();
    }

    /**
     * Replaces the geometry of the node's mesh. The nodes alone, triangulated as a fan around node
     * 0 in the order given (right for a convex polygon given in order).
     *
     * @param numNodes the number of nodes
     * @param x the x coordinates
     * @param y the y coordinates
     */
    public void setGeometry(int numNodes, float[] x, float[] y) {
        setGeometryWith(h -> {
            Checks.nodes2D(numNodes, x, y, null);
            setGeometryImpl(h, numNodes, x, y);
        });
    }

    /**
     * Replaces the geometry of the node's mesh. A mesh of numNodes nodes and triangles given by 3
     * node indices each.
     *
     * @param numNodes the number of nodes
     * @param x the x coordinates
     * @param y the y coordinates
     * @param numTriangles the number of triangles
     * @param triangleNodes the three nodes of every triangle, one after the other
     */
    public void setGeometry(int numNodes, float[] x, float[] y, int numTriangles, int[] triangleNodes) {
        setGeometryWith(h -> {
            Checks.fixedCells2D(numNodes, x, y, null, numTriangles, 3, triangleNodes, "triangleNodes");
            setGeometryImpl1(h, numNodes, x, y, numTriangles, triangleNodes);
        });
    }

    /**
     * Replaces the geometry of the node's mesh. As above, with one elevation per node in z.
     *
     * @param numNodes the number of nodes
     * @param x the x coordinates
     * @param y the y coordinates
     * @param z the z coordinates, or null
     * @param numTriangles the number of triangles
     * @param triangleNodes the three nodes of every triangle, one after the other
     */
    public void setGeometry(int numNodes, float[] x, float[] y, float[] z, int numTriangles, int[] triangleNodes) {
        setGeometryWith(h -> {
            Checks.fixedCells2D(numNodes, x, y, Checks.notNull(z, "z"), numTriangles, 3, triangleNodes,
                    "triangleNodes");
            setGeometryImpl2(h, numNodes, x, y, z, numTriangles, triangleNodes);
        });
    }

    private static native long ctorImpl();

    private static native String getClassTypeId();

    private native void setGeometryImpl(long handle, int numNodes, float[] x, float[] y);

    private native void setGeometryImpl1(long handle, int numNodes, float[] x, float[] y, int numTriangles,
            int[] triangleNodes);

    private native void setGeometryImpl2(long handle, int numNodes, float[] x, float[] y, float[] z, int numTriangles,
            int[] triangleNodes);
}
