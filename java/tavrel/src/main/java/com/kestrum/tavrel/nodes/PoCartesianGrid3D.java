package com.kestrum.tavrel.nodes;

import com.kestrum.tavrel.internal.Checks;
import com.kestrum.tavrel.data.PbCartesianGrid3D;
import com.kestrum.tavrel.internal.JarInitializer;

/**
 * A mesh node holding a curvilinear 3D grid: x, y and z given per node ({@link PbCartesianGrid3D}).
 * See {@link PoMeshProperty} for what the node does in a scene and for the view of its mesh.
 */
public class PoCartesianGrid3D extends PoMeshProperty {
    static {
        JarInitializer.init();
    }

    /** A node holding an empty mesh. */
    public PoCartesianGrid3D() {
        super(ctorImpl(), PbCartesianGrid3D.class);
    }

    /**
     * The name of the class's toolkit type.
     *
     * @return the name of the class's toolkit type
     */
    public static String getClassTypeName() {
        return getClassTypeId();
    }

    /** The node's mesh, as a {@link PbCartesianGrid3D} (see {@link PoMeshProperty#getMesh}). */
    @Override
    public PbCartesianGrid3D getMesh() {
        return (PbCartesianGrid3D) super.getMesh();
    }

    /**
     * Replaces the geometry of the node's mesh. A grid of numX x numY x numZ nodes: x, y and z one
     * value per node.
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
            Checks.grid3D(numX, numY, numZ, x, y, z, false);
            setGeometryImpl(h, numX, numY, numZ, x, y, z);
        });
    }

    private static native long ctorImpl();

    private static native String getClassTypeId();

    private native void setGeometryImpl(long handle, int numX, int numY, int numZ, float[] x, float[] y, float[] z);
}
