package com.kestrum.tavrel.fields;

import com.kestrum.corvel.nodes.SoNode;
import com.kestrum.tavrel.data.Checks;
import com.kestrum.tavrel.data.PbQuadrangleMesh2D;
import com.kestrum.tavrel.internal.JarInitializer;

/**
 * A single-value field holding a 2D mesh of quadrangles ({@link PbQuadrangleMesh2D}) by value. See
 * {@link PoSFMesh} for the field's life and the view of its value.
 */
public class PoSFQuadrangleMesh2D extends PoSFMesh {
    static {
        JarInitializer.init();
    }

    /** A field holding an empty mesh, in no container. */
    public PoSFQuadrangleMesh2D() {
        super(ctorImpl(), PbQuadrangleMesh2D.class);
    }

    /** The name of the class's toolkit type. */
    public static String getClassTypeName() {
        return getClassTypeId();
    }

    /** The mesh inside the field, as a {@link PbQuadrangleMesh2D} (see {@link PoSFMesh#getValue}). */
    @Override
    public PbQuadrangleMesh2D getValue() {
        return (PbQuadrangleMesh2D) value();
    }

    /**
     * Sets the field's value to a copy of the mesh (geometry, data sets and data-duplication
     * flag), in place: the view of the value stays the same object and shows the copy.
     */
    public void setValue(PbQuadrangleMesh2D mesh) {
        long h = handle();
        setValueImpl(h, handleOf(mesh, "mesh"));
        geometryChanged();
    }

    /**
     * Whether both fields hold the same mesh (each brought up to date first): same class, node
     * coordinates, cells and data sets (the data-duplication flag is not compared).
     */
    public boolean isEqualTo(PoSFQuadrangleMesh2D other) {
        long h = handle();
        long o = handleOf(other, "other");
        boolean result = equalsImpl(h, o);
        evaluated(h);
        other.evaluated(o);
        return result;
    }

    /**
     * Adds the field to a node under a name: the field takes the initial value (a copy), belongs
     * to the node from then on and is found by {@code container.getField(name)}; only the low
     * three bits of the field type are kept. A field belongs to one node at a time: adding it to
     * another one takes it out of the first. The node does not own the field, and neither keeps
     * the other alive: a disposed field leaves its node, and a field whose node is gone belongs
     * to none. As the node may hand the field out by name, the field stays reachable from then on
     * until it is disposed: dispose it when done.
     */
    public void addToContainer(SoNode container, String name, int fieldType, PbQuadrangleMesh2D initialValue) {
        long h = handle();
        long node = handleOf(container, "container");
        Checks.notNull(name, "name");
        long value = handleOf(initialValue, "initialValue");
        addFieldToContainerNative(h, node, name, fieldType, value);
        geometryChanged();
        registerAsPeer(true);
    }

    /**
     * Replaces the geometry of the field's mesh. A mesh of numNodes nodes and quadrangles given by
     * 4 node indices each.
     */
    public void setGeometry(int numNodes, float[] x, float[] y, int numQuadrangles, int[] quadrangleNodes) {
        long h = handle();
        Checks.fixedCells2D(numNodes, x, y, null, numQuadrangles, 4, quadrangleNodes, "quadrangleNodes");
        setGeometryImpl(h, numNodes, x, y, numQuadrangles, quadrangleNodes);
        geometryChanged();
    }

    /** Replaces the geometry of the field's mesh. As above, with one elevation per node in z. */
    public void setGeometry(int numNodes, float[] x, float[] y, float[] z, int numQuadrangles, int[] quadrangleNodes) {
        long h = handle();
        Checks.fixedCells2D(numNodes, x, y, Checks.notNull(z, "z"), numQuadrangles, 4, quadrangleNodes,
                "quadrangleNodes");
        setGeometryImpl1(h, numNodes, x, y, z, numQuadrangles, quadrangleNodes);
        geometryChanged();
    }

    @Override
    long valueAddress(long handle) {
        return getValueImpl(handle);
    }

    private static native long ctorImpl();

    private static native String getClassTypeId();

    private native long getValueImpl(long handle);

    private native void setValueImpl(long handle, long mesh);

    private native boolean equalsImpl(long handle, long other);

    private native void setGeometryImpl(long handle, int numNodes, float[] x, float[] y, int numQuadrangles,
            int[] quadrangleNodes);

    private native void setGeometryImpl1(long handle, int numNodes, float[] x, float[] y, float[] z,
            int numQuadrangles, int[] quadrangleNodes);

    private native void addFieldToContainerNative(long handle, long container, String name, int fieldType,
            long value);
}
