package com.kestrum.tavrel.nodes;

import com.kestrum.tavrel.internal.Checks;
import com.kestrum.tavrel.data.PbRegularMesh1D;
import com.kestrum.tavrel.internal.JarInitializer;

/**
 * A mesh node holding a 1D mesh of evenly spaced nodes ({@link PbRegularMesh1D}). See {@link
 * PoMeshProperty} for what the node does in a scene and for the view of its mesh.
 */
public class PoRegularMesh1D extends PoMeshProperty {
    static {
        JarInitializer.init();
    }

    /** A node holding an empty mesh. */
    public PoRegularMesh1D() {
        super(ctorImpl(), PbRegularMesh1D.class);
    }

    /**
     * The name of the class's toolkit type.
     *
     * @return the name of the class's toolkit type
     */
    public static String getClassTypeName() {
        return getClassTypeId();
    }

    /** The node's mesh, as a {@link PbRegularMesh1D} (see {@link PoMeshProperty#getMesh}). */
    @Override
    public PbRegularMesh1D getMesh() {
        return (PbRegularMesh1D) super.getMesh();
    }

    /**
     * Replaces the geometry of the node's mesh. numNodes nodes evenly spaced from xmin to xmax.
     *
     * @param numNodes the number of nodes
     * @param xmin the smallest x
     * @param xmax the largest x
     */
    public void setGeometry(int numNodes, float xmin, float xmax) {
        setGeometryWith(h -> {
            Checks.count(numNodes, "numNodes");
            setGeometryImpl(h, numNodes, xmin, xmax);
        });
    }

    private static native long ctorImpl();

    private static native String getClassTypeId();

    private native void setGeometryImpl(long handle, int numNodes, float xmin, float xmax);
}
