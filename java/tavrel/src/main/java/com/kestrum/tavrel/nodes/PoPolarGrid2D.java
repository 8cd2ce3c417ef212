package com.kestrum.tavrel.nodes;

import com.kestrum.tavrel.internal.Checks;
import com.kestrum.tavrel.data.PbPolarGrid2D;
import com.kestrum.tavrel.internal.JarInitializer;

/**
 * A mesh node holding a polar grid: node (i, j) at radius x[i] and angle y[j] (degrees) ({@link
 * PbPolarGrid2D}). See {@link PoMeshProperty} for what the node does in a scene and for the view of
 * its mesh.
 */
public class PoPolarGrid2D extends PoMeshProperty {
    static {
        JarInitializer.init();
    }

    /** A node holding an empty mesh. */
    public PoPolarGrid2D() {
        super(ctorImpl(), PbPolarGrid2D.class);
    }

    /**
     * The name of the class's toolkit type.
     *
     * @return the name of the class's toolkit type
     */
    public static String getClassTypeName() {
        return getClassTypeId();
    }

    /** The node's mesh, as a {@link PbPolarGrid2D} (see {@link PoMeshProperty#getMesh}). */
    @Override
    public PbPolarGrid2D getMesh() {
        return (PbPolarGrid2D) super.getMesh();
    }

    /**
     * Replaces the geometry of the node's mesh. A grid of numX radii (x) and numY angles in degrees
     * (y); z one elevation per node, or null for none.
     *
     * @param numX the number of nodes along x
     * @param numY the number of nodes along y
     * @param x the x coordinates
     * @param y the y coordinates
     * @param z the z coordinates, or null
     */
    public void setGeometry(int numX, int numY, float[] x, float[] y, float[] z) {
        setGeometryWith(h -> {
            Checks.grid2D(numX, numY, x, y, z, true);
            setGeometryImpl(h, numX, numY, x, y, z);
        });
    }

    private static native long ctorImpl();

    private static native String getClassTypeId();

    private native void setGeometryImpl(long handle, int numX, int numY, float[] x, float[] y, float[] z);
}
