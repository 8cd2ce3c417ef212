package com.kestrum.tavrel.fields;

import com.kestrum.corvel.nodes.SoNode;
import com.kestrum.tavrel.internal.Checks;
import com.kestrum.tavrel.data.PbCartesianGrid3D;
import com.kestrum.tavrel.internal.JarInitializer;
import com.kestrum.tavrel.nodes.PoCartesianGrid3D;

/**
 * A single-value field holding a curvilinear 3D grid: x, y and z given per node ({@link
 * PbCartesianGrid3D}) by value. See {@link PoSFMesh} for the field's life and the view of its
 * value.
 */
public class PoSFCartesianGrid3D extends PoSFMesh {
    static {
        JarInitializer.init();
    }

    /** A field holding an empty mesh, in no container. */
    public PoSFCartesianGrid3D() {
        super(ctorImpl(), PbCartesianGrid3D.class, PoSFCartesianGrid3D::getValueImpl);
    }

    /**
     * The name of the class's toolkit type.
     *
     * @return the name of the class's toolkit type
     */
    public static String getClassTypeName() {
        return getClassTypeId();
    }

    /** The mesh inside the field, as a {@link PbCartesianGrid3D} (see {@link PoSFMesh#getValue}). */
    @Override
    public PbCartesianGrid3D getValue() {
        return (PbCartesianGrid3D) value();
    }

    /**
     * Sets the field's value to a copy of the mesh, in place (see {@link PoSFMesh}).
     *
     * @param mesh the mesh to copy into the field
     */
    public void setValue(PbCartesianGrid3D mesh) {
        setValueWith(mesh, this::setValueImpl);
    }

    /**
     * Whether both fields hold the same mesh (see {@link PoSFMesh}).
     *
     * @param other the field to compare with
     * @return whether both fields hold the same mesh (see {@link PoSFMesh})
     */
    public boolean isEqualTo(PoSFCartesianGrid3D other) {
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
    public void addToContainer(SoNode container, String name, int fieldType, PbCartesianGrid3D initialValue) {
        addToContainerWith(container, name, fieldType, initialValue, this::addFieldToContainerNative);
    }

    /**
     * Replaces the geometry of the field's mesh, as the same setGeometry of {@link PoCartesianGrid3D}.
     *
     * @param numX the number of nodes along x
     * @param numY the number of nodes along y
     * @param numZ the number of nodes along z
     * @param x the x coordinates
     * @param y the y coordinates
     * @param z the z coordinates, or null
     */
    public void setGeometry(int numX, int numY, int numZ, float[] x, float[] y, float[] z) {
        setGeometryWith(h -> {
            Checks.grid3D(numX, numY, numZ, x, y, z, false);
            setGeometryImpl(h, numX, numY, numZ, x, y, z);
        });
    }

    private static native long ctorImpl();

    private static native String getClassTypeId();

    private native long getValueImpl(long handle);

    private native void setValueImpl(long handle, long mesh);

    private native boolean equalsImpl(long handle, long other);

    private native void setGeometryImpl(long handle, int numX, int numY, int numZ, float[] x, float[] y, float[] z);

    private native void addFieldToContainerNative(long handle, long container, String name, int fieldType,
            long value);
}
