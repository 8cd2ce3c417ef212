package com.kestrum.tavrel.data;

import com.kestrum.tavrel.internal.Checks;
import com.kestrum.corvel.SbVec2f;
import com.kestrum.corvel.SbVec3f;
import com.kestrum.tavrel.internal.JarInitializer;
import com.kestrum.corvel.misc.ManagedObjects;
import com.kestrum.tavrel.internal.JavaViews;

/** Base of the two-dimensional meshes: nodes in the xy plane, with an optional elevation. */
public abstract class PbMesh2D extends PbMesh {
    static {
        JarInitializer.init();
        ManagedObjects.registerWrapper(PbMesh2D.class.getName(), View::new);
    }

    /** How the fault-mesh computation extrapolates values. */
    public enum ExtrapolationMethods {
        /** The toolkit's {@code USE_ADJACENT_DERIVS}. */
        USE_ADJACENT_DERIVS(JarInitializer.value(ExtrapolationMethods::getUSEADJACENTDERIVSNative)),
        /** The toolkit's {@code USE_ADJACENT_VALUES}. */
        USE_ADJACENT_VALUES(JarInitializer.value(ExtrapolationMethods::getUSEADJACENTVALUESNative));

        private final int value;

        ExtrapolationMethods(int value) {
            this.value = value;
        }

        /** {@return the toolkit's value of the constant} */
        public int getValue() {
            return value;
        }

        private static native int getUSEADJACENTDERIVSNative();

        private static native int getUSEADJACENTVALUESNative();
    }

    /**
     * Wraps a native 2D mesh (made by a subclass's constructor, or owned elsewhere).
     *
     * @param handle the address of the native object
     */
    protected PbMesh2D(long handle) {
        super(handle);
    }

    /**
     * Adds a vecs set of two-dimensional vectors, one per node (kept with z = 0). A null array
     * adds a set without data.
     *
     * @param set the index of the data set
     * @param vectors the vectors, one per node or per cell
     * @param name the name of the set
     */
    public void addVecsSet(int set, SbVec2f[] vectors, String name) {
        long h = handle();
        if (vectors != null) {
            Checks.vectors(Checks.length(vectors, getNumNodes(), "vectors"), "vectors");
        }
        Checks.notNull(name, "name");
        addVecsSetImpl(h, set, vectors, name);
    }

    /**
     * The box of the nodes' x and y: xmin, ymin, xmax, ymax.
     *
     * @return the box of the nodes' x and y: xmin, ymin, xmax, ymax
     */
    public float[] get2DBoundingBox() {
        float[] box = new float[4];
        get2DBoundingBoxImpl(handle(), box);
        return box;
    }

    /**
     * The mesh cut along a fault line of count nodes (indices of this mesh's nodes), with an
     * optional vector per fault node (vectors may be null). The new mesh belongs to the caller.
     *
     * @param count the number of nodes
     * @param nodes the nodes
     * @param vectors the vectors, one per node or per cell
     * @return the mesh cut along a fault line of count nodes (indices of this mesh's nodes), with an optional
     *     vector per fault node (vectors may be null)
     */
    public PbMesh2D getFaultMesh(int count, int[] nodes, SbVec3f[] vectors) {
        long h = handle();
        Checks.count(count, "count");
        Checks.length(nodes, count, "nodes");
        int numNodes = getNumNodes();
        for (int i = 0; i < count; i++) {
            Checks.index(nodes[i], numNodes, "nodes[" + i + "]");
        }
        if (vectors != null && vectors.length > 0) {
            Checks.vectors(Checks.length(vectors, count, "vectors"), "vectors");
        }
        return JavaViews.find(PbMesh2D.class, getFaultMeshImpl1(h, count, nodes, vectors), null);
    }

    /** A view of a 2D mesh owned elsewhere. */
    static final class View extends PbMesh2D {
        View(long handle) {
            super(handle);
        }
    }

    private native void addVecsSetImpl(long handle, int set, Object[] vectors, String name);

    private native void get2DBoundingBoxImpl(long handle, float[] out);

    private native long getFaultMeshImpl1(long handle, int count, int[] nodes, Object[] vectors);
}
