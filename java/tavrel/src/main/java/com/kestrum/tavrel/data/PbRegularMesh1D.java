package com.kestrum.tavrel.data;

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

    /** A copy of another mesh. */
    public PbRegularMesh1D(PbRegularMesh1D other) {
        super(ctorImpl1(handleOf(other, "other")));
    }

    /** A view of a native mesh, for subclasses. */
    protected PbRegularMesh1D(long handle) {
        super(handle);
    }

    /** numNodes nodes evenly spaced from xmin to xmax. */
    public PbRegularMesh1D(int numNodes, float xmin, float xmax) {
        super(ctorImpl2(Checks.count(numNodes, "numNodes"), xmin, xmax));
    }

    public void setGeometry(int numNodes, float xmin, float xmax) {
        long h = handle();
        setGeometryImpl(h, Checks.count(numNodes, "numNodes"), xmin, xmax);
        geometryChanged();
    }

    private static native long ctorImpl();

    private static native long ctorImpl1(long other);

    private static native long ctorImpl2(int numNodes, float xmin, float xmax);

    private native void setGeometryImpl(long handle, int numNodes, float xmin, float xmax);
}
