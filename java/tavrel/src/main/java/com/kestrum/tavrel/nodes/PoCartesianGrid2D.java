package com.kestrum.tavrel.nodes;

import com.kestrum.tavrel.internal.Checks;
import com.kestrum.tavrel.data.PbCartesianGrid2D;
import com.kestrum.tavrel.internal.JarInitializer;

/**
 * A mesh node holding a curvilinear grid: x and y given per node ({@link PbCartesianGrid2D}). See
 * {@link PoMeshProperty} for what the node does in a scene and for the view of its mesh.
 */
public class PoCartesianGrid2D extends PoMeshProperty {
    static {
        JarInitializer.init();
    }

    /** A node holding an empty mesh. */
    public PoCartesianGrid2D() {
        super(ctorImpl(), PbCartesianGrid2D.class);
    }

    /**
     * The name of the class's toolkit type.
     *
     * @return the name of the class's toolkit type
     */
    public static String getClassTypeName() {
        return getClassTypeId();
    }

    /** The node's mesh, as a {@link PbCartesianGrid2D} (see {@link PoMeshProperty#getMesh}). */
    @Override
    public PbCartesianGrid2D getMesh() {
        return (PbCartesianGrid2D) super.getMesh();
    }

    /**
     * Replaces the geometry of the node's mesh. A grid of numX x numY nodes: x and y one value per
     * node, z one elevation per node or null for none.
     *
     * @param numX the number of nodes along x
     * @param numY the number of nodes along y
     * @param x the x coordinates
     * @param y the y coordinates
     * @param z the z coordinates, or null
     */
    public void setGeometry(int numX, int numY, float[] x, float[] y, float[] z) {
        setGeometryWith(h -> {
            Checks.grid2D(numX, numY, x, y, z, false);
            setGeometryImpl(h, numX, numY, x, y, z);
        });
    }

    private static native long ctorImpl();

    private static native String getClassTypeId();

    private native void setGeometryImpl(long handle, int numX, int numY, float[] x, float[] y, float[] z);
}
