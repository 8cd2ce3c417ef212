package com.kestrum.tavrel.fields;

import com.kestrum.corvel.nodes.SoNode;
import com.kestrum.tavrel.internal.Checks;
import com.kestrum.tavrel.data.PbIndexedMesh2D;
import com.kestrum.tavrel.internal.JarInitializer;
import com.kestrum.tavrel.nodes.PoIndexedMesh2D;

/**
 * A single-value field holding an unstructured 2D mesh of triangles and quadrangles ({@link
 * PbIndexedMesh2D}) by value. See {@link PoSFMesh} for the field's life and the view of its value.
 */
public class PoSFIndexedMesh2D extends PoSFMesh {
    static {
        JarInitializer.init();
    }

    /** A field holding an empty mesh, in no container. */
    public PoSFIndexedMesh2D() {
        super(ctorImpl(), PbIndexedMesh2D.class, PoSFIndexedMesh2D::getValueImpl);
    }

    /**
     * The name of the class's toolkit type.
     *
     * @return the name of the class's toolkit type
     */
    public static String getClassTypeName() {
        return getClassTypeId();
    }

    /** The mesh inside the field, as a {@link PbIndexedMesh2D} (see {@link PoSFMesh#getValue}). */
    @Override
    public PbIndexedMesh2D getValue() {
        return (PbIndexedMesh2D) value();
    }

    /**
     * Sets the field's value to a copy of the mesh, in place (see {@link PoSFMesh}).
     *
     * @param mesh the mesh to copy into the field
     */
    public void setValue(PbIndexedMesh2D mesh) {
        setValueWith(mesh, this::setValueImpl);
    }

    /**
     * Whether both fields hold the same mesh (see {@link PoSFMesh}).
     *
     * @param other the field to compare with
     * @return whether both fields hold the same mesh (see {@link PoSFMesh})
     */
    public boolean isEqualTo(PoSFIndexedMesh2D other) {
        return isEqualToWith(other, this::equalsImpl);
    }

    /**
     * Adds the field to a node under a name, with a copy of the initial value (see {@link PoSFMesh}).
     *
     * @param container the node that the field joins
     * @param name the field's name in the node
     * @param fieldType the kind of field, as the toolkit numbers it
     * @param initialValue the mesh the field starts with (a copy)
     * @throws NullPointerException when container, name or initialValue is null: the field always takes a value
     */
    public void addToContainer(SoNode container, String name, int fieldType, PbIndexedMesh2D initialValue) {
        addToContainerWith(container, name, fieldType, initialValue, this::addFieldToContainerNative);
    }

    /**
     * Replaces the geometry of the field's mesh, as the same setGeometry of {@link PoIndexedMesh2D}.
     *
     * @param numNodes the number of nodes
     * @param x the x coordinates
     * @param y the y coordinates
     * @param numCells the number of cells
     * @param cellTypes the number of nodes of each cell
     * @param cellIndex the nodes of every cell, one after the other
     */
    public void setGeometry(int numNodes, float[] x, float[] y, int numCells, int[] cellTypes, int[] cellIndex) {
        setGeometryWith(h -> {
            Checks.indexedMesh2D(numNodes, x, y, null, numCells, cellTypes, cellIndex);
            setGeometryImpl(h, numNodes, x, y, numCells, cellTypes, cellIndex);
        });
    }

    /**
     * Replaces the geometry of the field's mesh, as the same setGeometry of {@link PoIndexedMesh2D}.
     *
     * @param numNodes the number of nodes
     * @param x the x coordinates
     * @param y the y coordinates
     * @param z the z coordinates, or null
     * @param numCells the number of cells
     * @param cellTypes the number of nodes of each cell
     * @param cellIndex the nodes of every cell, one after the other
     */
    public void setGeometry(int numNodes, float[] x, float[] y, float[] z, int numCells, int[] cellTypes,
            int[] cellIndex) {
        setGeometryWith(h -> {
            Checks.indexedMesh2D(numNodes, x, y, Checks.notNull(z, "z"), numCells, cellTypes, cellIndex);
            setGeometryImpl1(h, numNodes, x, y, z, numCells, cellTypes, cellIndex);
        });
    }

    private static native long ctorImpl();

    private static native String getClassTypeId();

    private native long getValueImpl(long handle);

    private native void setValueImpl(long handle, long mesh);

    private native boolean equalsImpl(long handle, long other);

    private native void setGeometryImpl(long handle, int numNodes, float[] x, float[] y, int numCells, int[] cellTypes,
            int[] cellIndex);

    private native void setGeometryImpl1(long handle, int numNodes, float[] x, float[] y, float[] z, int numCells,
            int[] cellTypes, int[] cellIndex);

    private native void addFieldToContainerNative(long handle, long container, String name, int fieldType,
            long value);
}
