package com.kestrum.tavrel.nodes;

import com.kestrum.tavrel.internal.Checks;
import com.kestrum.tavrel.data.PbIrregularMesh1D;
import com.kestrum.tavrel.internal.JarInitializer;

/**
 * A mesh node holding a 1D mesh of nodes at given abscissas ({@link PbIrregularMesh1D}). See {@link
 * PoMeshProperty} for what the node does in a scene and for the view of its mesh.
 */
public class PoIrregularMesh1D extends PoMeshProperty {
    static {
        JarInitializer.init();
    }

    /** A node holding an empty mesh. */
    public PoIrregularMesh1D() {
        super(ctorImpl(), PbIrregularMesh1D.class);
    }

    /**
     * The name of the class's toolkit type.
     *
     * @return the name of the class's toolkit type
     */
    public static String getClassTypeName() {
        return getClassTypeId();
    }

    /** The node's mesh, as a {@link PbIrregularMesh1D} (see {@link PoMeshProperty#getMesh}). */
    @Override
    public PbIrregularMesh1D getMesh() {
        return (PbIrregularMesh1D) super.getMesh();
    }

    /**
     * Replaces the geometry of the node's mesh. numNodes nodes at the abscissas x.
     *
     * @param numNodes the number of nodes
     * @param x the x coordinates
     */
    public void setGeometry(int numNodes, float[] x) {
        setGeometryWith(h -> {
            Checks.nodes1D(numNodes, x);
            setGeometryImpl(h, numNodes, x);
        });
    }

    private static native long ctorImpl();

    private static native String getClassTypeId();

    private native void setGeometryImpl(long handle, int numNodes, float[] x);
}
