package com.kestrum.tavrel.data;

import com.kestrum.tavrel.internal.Checks;
import com.kestrum.tavrel.internal.JarInitializer;

/**
 * A one-dimensional mesh of nodes at given abscissas. It keeps its x array ({@link
 * #getCoordinates} gives x and null for y and z).
 */
public class PbIrregularMesh1D extends PbMesh1D {
    static {
        JarInitializer.init();
    }

    /** An empty mesh. */
    public PbIrregularMesh1D() {
        super(ctorImpl());
    }

    /**
     * A copy of another mesh.
     *
     * @param other the object to copy
     */
    public PbIrregularMesh1D(PbIrregularMesh1D other) {
        super(ctorImpl1(handleOf(other, "other")));
    }

    /**
     * A view of a native mesh, for subclasses.
     *
     * @param handle the address of the native object
     */
    protected PbIrregularMesh1D(long handle) {
        super(handle);
    }

    /**
     * numNodes nodes at the abscissas x.
     *
     * @param numNodes the number of nodes
     * @param x the x coordinates
     */
    public PbIrregularMesh1D(int numNodes, float[] x) {
        super(ctorImpl2(check(numNodes, x), x));
    }

    /**
     * Replaces the geometry: numNodes nodes at the values of x; every cell handed out so far stops working.
     *
     * @param numNodes the number of nodes
     * @param x the coordinate of each node
     * @throws IllegalArgumentException when numNodes is negative or too large, or x is shorter
     * @throws NullPointerException when x is null
     */
    public void setGeometry(int numNodes, float[] x) {
        changeGeometry(h -> setGeometryImpl(h, check(numNodes, x), x));
    }

    private static int check(int numNodes, float[] x) {
        Checks.length(x, Checks.count(numNodes, "numNodes"), "x");
        return numNodes;
    }

    private static native long ctorImpl();

    private static native long ctorImpl1(long other);

    private static native long ctorImpl2(int numNodes, float[] x);

    private native void setGeometryImpl(long handle, int numNodes, float[] x);
}
