package com.kestrum.tavrel.nodes;

import com.kestrum.tavrel.internal.Checks;
import com.kestrum.tavrel.data.PbRegularCartesianGrid3D;
import com.kestrum.tavrel.internal.JarInitializer;

/**
 * A mesh node holding a regular 3D grid: nodes evenly spread over a box ({@link
 * PbRegularCartesianGrid3D}). See {@link PoMeshProperty} for what the node does in a scene and for
 * the view of its mesh.
 */
public class PoRegularCartesianGrid3D extends PoMeshProperty {
    static {
        JarInitializer.init();
    }

    /** A node holding an empty mesh. */
    public PoRegularCartesianGrid3D() {
        super(ctorImpl(), PbRegularCartesianGrid3D.class);
    }

    /**
     * The name of the class's toolkit type.
     *
     * @return the name of the class's toolkit type
     */
    public static String getClassTypeName() {
        return getClassTypeId();
    }

    /** The node's mesh, as a {@link PbRegularCartesianGrid3D} (see {@link PoMeshProperty#getMesh}). */
    @Override
    public PbRegularCartesianGrid3D getMesh() {
        return (PbRegularCartesianGrid3D) super.getMesh();
    }

    /**
     * Replaces the geometry of the node's mesh. A grid of numX x numY x numZ nodes evenly spread
     * over the box from (xmin, ymin, zmin) to (xmax, ymax, zmax).
     *
     * @param numX the number of nodes along x
     * @param numY the number of nodes along y
     * @param numZ the number of nodes along z
     * @param xmin the smallest x
     * @param ymin the smallest y
     * @param zmin the smallest z
     * @param xmax the largest x
     * @param ymax the largest y
     * @param zmax the largest z
     */
    public void setGeometry(int numX, int numY, int numZ, float xmin, float ymin, float zmin, float xmax, float ymax,
            float zmax) {
        setGeometryWith(h -> {
            Checks.regularGrid(null, numX, numY, numZ);
            setGeometryImpl(h, numX, numY, numZ, xmin, ymin, zmin, xmax, ymax, zmax);
        });
    }

    private static native long ctorImpl();

    private static native String getClassTypeId();

    private native void setGeometryImpl(long handle, int numX, int numY, int numZ, float xmin, float ymin, float zmin,
            float xmax, float ymax, float zmax);
}
