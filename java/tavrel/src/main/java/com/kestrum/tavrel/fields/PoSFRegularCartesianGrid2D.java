package com.kestrum.tavrel.fields;

import com.kestrum.corvel.nodes.SoNode;
import com.kestrum.tavrel.data.Checks;
import com.kestrum.tavrel.data.PbRegularCartesianGrid2D;
import com.kestrum.tavrel.internal.JarInitializer;

/**
 * A single-value field holding a regular grid: nodes evenly spread over a rectangle ({@link
 * PbRegularCartesianGrid2D}) by value. See {@link PoSFMesh} for the field's life and the view of
 * its value.
 */
public class PoSFRegularCartesianGrid2D extends PoSFMesh {
    static {
        JarInitializer.init();
    }

    /** A field holding an empty mesh, in no container. */
    public PoSFRegularCartesianGrid2D() {
        super(ctorImpl(), PbRegularCartesianGrid2D.class);
    }

    /** The name of the class's toolkit type. */
    public static String getClassTypeName() {
        return getClassTypeId();
    }

    /** The mesh inside the field, as a {@link PbRegularCartesianGrid2D} (see {@link PoSFMesh#getValue}). */
    @Override
    public PbRegularCartesianGrid2D getValue() {
        return (PbRegularCartesianGrid2D) value();
    }

    /**
     * Sets the field's value to a copy of the mesh (geometry, data sets and data-duplication
     * flag), in place: the view of the value stays the same object and shows the copy.
     */
    public void setValue(PbRegularCartesianGrid2D mesh) {
        long h = handle();
        setValueImpl(h, handleOf(mesh, "mesh"));
        geometryChanged();
    }

    /**
     * Whether both fields hold the same mesh (each brought up to date first): same class, node
     * coordinates, cells and data sets (the data-duplication flag is not compared).
     */
    public boolean isEqualTo(PoSFRegularCartesianGrid2D other) {
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
    public void addToContainer(SoNode container, String name, int fieldType, PbRegularCartesianGrid2D initialValue) {
        long h = handle();
        long node = handleOf(container, "container");
        Checks.notNull(name, "name");
        long value = handleOf(initialValue, "initialValue");
        addFieldToContainerNative(h, node, name, fieldType, value);
        geometryChanged();
        registerAsPeer(true);
    }

    /**
     * Replaces the geometry of the field's mesh. A grid of numX x numY nodes evenly spread over
     * [xmin, xmax] x [ymin, ymax]; z one elevation per node, or null for none.
     */
    public void setGeometry(int numX, int numY, float xmin, float ymin, float xmax, float ymax, float[] z) {
        long h = handle();
        Checks.regularGrid(z, numX, numY);
        setGeometryImpl(h, numX, numY, xmin, ymin, xmax, ymax, z);
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

    private native void setGeometryImpl(long handle, int numX, int numY, float xmin, float ymin, float xmax,
            float ymax, float[] z);

    private native void addFieldToContainerNative(long handle, long container, String name, int fieldType,
            long value);
}
