package com.kestrum.tavrel.fields;

import com.kestrum.corvel.nodes.SoNode;
import com.kestrum.tavrel.internal.Checks;
import com.kestrum.tavrel.data.PbPolarGrid2D;
import com.kestrum.tavrel.internal.JarInitializer;
import com.kestrum.tavrel.nodes.PoPolarGrid2D;

/**
 * A single-value field holding a polar grid: node (i, j) at radius x[i] and angle y[j] (degrees)
 * ({@link PbPolarGrid2D}) by value. See {@link PoSFMesh} for the field's life and the view of its
 * value.
 */
public class PoSFPolarGrid2D extends PoSFMesh {
    static {
        JarInitializer.init();
    }

    /** A field holding an empty mesh, in no container. */
    public PoSFPolarGrid2D() {
        super(ctorImpl(), PbPolarGrid2D.class, PoSFPolarGrid2D::getValueImpl);
    }

    /**
     * The name of the class's toolkit type.
     *
     * @return the name of the class's toolkit type
     */
    public static String getClassTypeName() {
        return getClassTypeId();
    }

    /** The mesh inside the field, as a {@link PbPolarGrid2D} (see {@link PoSFMesh#getValue}). */
    @Override
    public PbPolarGrid2D getValue() {
        return (PbPolarGrid2D) value();
    }

    /**
     * Sets the field's value to a copy of the mesh, in place (see {@link PoSFMesh}).
     *
     * @param mesh the mesh to copy into the field
     */
    public void setValue(PbPolarGrid2D mesh) {
        setValueWith(mesh, this::setValueImpl);
    }

    /**
     * Whether both fields hold the same mesh (see {@link PoSFMesh}).
     *
     * @param other the field to compare with
     * @return whether both fields hold the same mesh (see {@link PoSFMesh})
     */
    public boolean isEqualTo(PoSFPolarGrid2D other) {
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
    public void addToContainer(SoNode container, String name, int fieldType, PbPolarGrid2D initialValue) {
        addToContainerWith(container, name, fieldType, initialValue, this::addFieldToContainerNative);
    }

    /**
     * Replaces the geometry of the field's mesh, as the same setGeometry of {@link PoPolarGrid2D}.
     *
     * @param numX the number of nodes along x
     * @param numY the number of nodes along y
     * @param x the x coordinates
     * @param y the y coordinates
     * @param z the z coordinates, or null
     */
    public void setGeometry(int numX, int numY, float[] x, float[] y, float[] z) {
        setGeometryWith(h -> {
            Checks.grid2D(numX, numY, x, y, z, true);
            setGeometryImpl(h, numX, numY, x, y, z);
        });
    }

    private static native long ctorImpl();

    private static native String getClassTypeId();

    private native long getValueImpl(long handle);

    private native void setValueImpl(long handle, long mesh);

    private native boolean equalsImpl(long handle, long other);

    private native void setGeometryImpl(long handle, int numX, int numY, float[] x, float[] y, float[] z);

    private native void addFieldToContainerNative(long handle, long container, String name, int fieldType,
            long value);
}
