package com.kestrum.tavrel.data;

import com.kestrum.tavrel.internal.Checks;
import com.kestrum.tavrel.internal.JarInitializer;

/**
 * A one-dimensional mesh of evenly spaced nodes. It keeps no coordinate arrays.
 */
public class PbRegularMesh1D extends PbMesh1D {
    static {
        JarInitializer.init();
    }

    /** An empty mesh. */
    public PbRegularMesh1D() {
        super(ctorImpl());
    }

    /**
     * A copy of another mesh.
     *
     * @param other the object to copy
     */
    public PbRegularMesh1D(PbRegularMesh1D other) {
        super(ctorImpl1(handleOf(other, "other")));
    }

    /**
     * A view of a native mesh, for subclasses.
     *
     * @param handle the address of the native object
     */
    protected PbRegularMesh1D(long handle) {
        super(handle);
    }

    /**
     * numNodes nodes evenly spaced from xmin to xmax.
     *
     * @param numNodes the number of nodes
     * @param xmin the smallest x
     * @param xmax the largest x
     */
    public PbRegularMesh1D(int numNodes, float xmin, float xmax) {
        super(ctorImpl2(Checks.count(numNodes, "numNodes"), xmin, xmax));
    }

    /**
     * Replaces the geometry: numNodes nodes evenly from xmin to xmax; every cell handed out so far stops
     * working.
     *
     * @param numNodes the number of nodes
     * @param xmin the smallest x
     * @param xmax the largest x
     * @throws IllegalArgumentException when numNodes is negative or too large
     */
    public void setGeometry(int numNodes, float xmin, float xmax) {
        changeGeometry(h -> setGeometryImpl(h, Checks.count(numNodes, "numNodes"), xmin, xmax));
    }

    private static native long ctorImpl();

    private static native long ctorImpl1(long other);

    private static native long ctorImpl2(int numNodes, float xmin, float xmax);

    private native void setGeometryImpl(long handle, int numNodes, float xmin, float xmax);
}
