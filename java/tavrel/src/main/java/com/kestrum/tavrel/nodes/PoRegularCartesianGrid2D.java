package com.kestrum.tavrel.nodes;

import com.kestrum.tavrel.internal.Checks;
import com.kestrum.tavrel.data.PbRegularCartesianGrid2D;
import com.kestrum.tavrel.internal.JarInitializer;

/**
 * A mesh node holding a regular grid: nodes evenly spread over a rectangle ({@link
 * PbRegularCartesianGrid2D}). See {@link PoMeshProperty} for what the node does in a scene and for
 * the view of its mesh.
 */
public class PoRegularCartesianGrid2D extends PoMeshProperty {
    static {
        JarInitializer.init();
    }

    /** A node holding an empty mesh. */
    public PoRegularCartesianGrid2D() {
        super(ctorImpl(), PbRegularCartesianGrid2D.class);
    }

    /**
     * The name of the class's toolkit type.
     *
     * @return the name of the class's toolkit type
     */
    public static String getClassTypeName() {
        return getClassTypeId();
    }

    /** The node's mesh, as a {@link PbRegularCartesianGrid2D} (see {@link PoMeshProperty#getMesh}). */
    @Override
    public PbRegularCartesianGrid2D getMesh() {
        return (PbRegularCartesianGrid2D) super.getMesh();
    }

    /**
     * Replaces the geometry of the node's mesh. A grid of numX x numY nodes evenly spread over
     * [xmin, xmax] x [ymin, ymax]; z one elevation per node, or null for none.
     *
     * @param numX the number of nodes along x
     * @param numY the number of nodes along y
     * @param xmin the smallest x
     * @param ymin the smallest y
     * @param xmax the largest x
     * @param ymax the largest y
     * @param z the z coordinates, or null
     */
    public void setGeometry(int numX, int numY, float xmin, float ymin, float xmax, float ymax, float[] z) {
        setGeometryWith(h -> {
            Checks.regularGrid(z, numX, numY);
            setGeometryImpl(h, numX, numY, xmin, ymin, xmax, ymax, z);
        });
    }

    private static native long ctorImpl();

    private static native String getClassTypeId();

    private native void setGeometryImpl(long handle, int numX, int numY, float xmin, float ymin, float xmax,
            float ymax, float[] z);
}
