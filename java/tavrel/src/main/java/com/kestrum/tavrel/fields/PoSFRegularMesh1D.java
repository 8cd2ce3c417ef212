package com.kestrum.tavrel.fields;

import com.kestrum.corvel.nodes.SoNode;
import com.kestrum.tavrel.internal.Checks;
import com.kestrum.tavrel.data.PbRegularMesh1D;
import com.kestrum.tavrel.internal.JarInitializer;
import com.kestrum.tavrel.nodes.PoRegularMesh1D;

/**
 * A single-value field holding a 1D mesh of evenly spaced nodes ({@link PbRegularMesh1D}) by value.
 * See {@link PoSFMesh} for the field's life and the view of its value.
 */
public class PoSFRegularMesh1D extends PoSFMesh {
    static {
        JarInitializer.init();
    }

    /** A field holding an empty mesh, in no container. */
    public PoSFRegularMesh1D() {
        super(ctorImpl(), PbRegularMesh1D.class, PoSFRegularMesh1D::getValueImpl);
    }

    /**
     * The name of the class's toolkit type.
     *
     * @return the name of the class's toolkit type
     */
    public static String getClassTypeName() {
        return getClassTypeId();
    }

    /** The mesh inside the field, as a {@link PbRegularMesh1D} (see {@link PoSFMesh#getValue}). */
    @Override
    public PbRegularMesh1D getValue() {
        return (PbRegularMesh1D) value();
    }

    /**
     * Sets the field's value to a copy of the mesh, in place (see {@link PoSFMesh}).
     *
     * @param mesh the mesh to copy into the field
     */
    public void setValue(PbRegularMesh1D mesh) {
        setValueWith(mesh, this::setValueImpl);
    }

    /**
     * Whether both fields hold the same mesh (see {@link PoSFMesh}).
     *
     * @param other the field to compare with
     * @return whether both fields hold the same mesh (see {@link PoSFMesh})
     */
    public boolean isEqualTo(PoSFRegularMesh1D other) {
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
    public void addToContainer(SoNode container, String name, int fieldType, PbRegularMesh1D initialValue) {
        addToContainerWith(container, name, fieldType, initialValue, this::addFieldToContainerNative);
    }

    /**
     * Replaces the geometry of the field's mesh, as the same setGeometry of {@link PoRegularMesh1D}.
     *
     * @param numNodes the number of nodes
     * @param xmin the smallest x
     * @param xmax the largest x
     */
    public void setGeometry(int numNodes, float xmin, float xmax) {
        setGeometryWith(h -> {
            Checks.count(numNodes, "numNodes");
            setGeometryImpl(h, numNodes, xmin, xmax);
        });
    }

    private static native long ctorImpl();

    private static native String getClassTypeId();

    private native long getValueImpl(long handle);

    private native void setValueImpl(long handle, long mesh);

    private native boolean equalsImpl(long handle, long other);

    private native void setGeometryImpl(long handle, int numNodes, float xmin, float xmax);

    private native void addFieldToContainerNative(long handle, long container, String name, int fieldType,
            long value);
}
