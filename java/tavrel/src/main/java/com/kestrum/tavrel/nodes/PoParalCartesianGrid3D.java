package com.kestrum.tavrel.nodes;

import com.kestrum.tavrel.internal.Checks;
import com.kestrum.tavrel.data.PbParalCartesianGrid3D;
import com.kestrum.tavrel.internal.JarInitializer;

/**
 * A mesh node holding a rectilinear 3D grid: node (i, j, k) at (x[i], y[j], z[k]) ({@link
 * PbParalCartesianGrid3D}). See {@link PoMeshProperty} for what the node does in a scene and for
 * the view of its mesh.
 */
public class PoParalCartesianGrid3D extends PoMeshProperty {
    static {
        JarInitializer.init();
    }

    /** A node holding an empty mesh. */
    public PoParalCartesianGrid3D() {
        super(ctorImpl(), PbParalCartesianGrid3D.class);
    }

    /**
     * The name of the class's toolkit type.
     *
     * @return the name of the class's toolkit type
     */
    public static String getClassTypeName() {
        return getClassTypeId();
    }

    /** The node's mesh, as a {@link PbParalCartesianGrid3D} (see {@link PoMeshProperty#getMesh}). */
    @Override
    public PbParalCartesianGrid3D getMesh() {
        return (PbParalCartesianGrid3D) super.getMesh();
    }

    /**
     * Replaces the geometry of the node's mesh. A grid of numX x numY x numZ nodes: x of numX
     * values, y of numY values, z of numZ values.
     *
     * @param numX the number of nodes along x
     * @param numY the number of nodes along y
     * @param numZ the number of nodes along z
     * @param x the x coordinates
     * @param y the y coordinates
     * @param z the z coordinates, or null
     */
    public void setGeometry(int numX, int numY, int numZ, float[] x, float[] y, float[] z) {
        setGeometryWith(h -> {
            Checks.grid3D(numX, numY, numZ, x, y, z, true);
            setGeometryImpl(h, numX, numY, numZ, x, y, z);
        });
    }

    private static native long ctorImpl();

    private static native String getClassTypeId();

    private native void setGeometryImpl(long handle, int numX, int numY, int numZ, float[] x, float[] y, float[] z);
}
