package com.kestrum.tavrel.fields;

import com.kestrum.corvel.nodes.SoNode;
import com.kestrum.tavrel.internal.Checks;
import com.kestrum.tavrel.data.PbHexahedronMesh3D;
import com.kestrum.tavrel.internal.JarInitializer;
import com.kestrum.tavrel.nodes.PoHexahedronMesh3D;

/**
 * A single-value field holding a 3D mesh of hexahedra ({@link PbHexahedronMesh3D}) by value. See
 * {@link PoSFMesh} for the field's life and the view of its value.
 */
public class PoSFHexahedronMesh3D extends PoSFMesh {
    static {
        JarInitializer.init();
    }

    /** A field holding an empty mesh, in no container. */
    public PoSFHexahedronMesh3D() {
        super(ctorImpl(), PbHexahedronMesh3D.class, PoSFHexahedronMesh3D::getValueImpl);
    }

    /**
     * The name of the class's toolkit type.
     *
     * @return the name of the class's toolkit type
     */
    public static String getClassTypeName() {
        return getClassTypeId();
    }

    /** The mesh inside the field, as a {@link PbHexahedronMesh3D} (see {@link PoSFMesh#getValue}). */
    @Override
    public PbHexahedronMesh3D getValue() {
        return (PbHexahedronMesh3D) value();
    }

    /**
     * Sets the field's value to a copy of the mesh, in place (see {@link PoSFMesh}).
     *
     * @param mesh the mesh to copy into the field
     */
    public void setValue(PbHexahedronMesh3D mesh) {
        setValueWith(mesh, this::setValueImpl);
    }

    /**
     * Whether both fields hold the same mesh (see {@link PoSFMesh}).
     *
     * @param other the field to compare with
     * @return whether both fields hold the same mesh (see {@link PoSFMesh})
     */
    public boolean isEqualTo(PoSFHexahedronMesh3D other) {
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
    public void addToContainer(SoNode container, String name, int fieldType, PbHexahedronMesh3D initialValue) {
        addToContainerWith(container, name, fieldType, initialValue, this::addFieldToContainerNative);
    }

    /**
     * Replaces the geometry of the field's mesh, as the same setGeometry of {@link PoHexahedronMesh3D}.
     *
     * @param numNodes the number of nodes
     * @param x the x coordinates
     * @param y the y coordinates
     * @param z the z coordinates, or null
     * @param numHexahedra the number of hexahedra
     * @param hexahedronNodes the eight nodes of every hexahedron, one after the other
     */
    public void setGeometry(int numNodes, float[] x, float[] y, float[] z, int numHexahedra, int[] hexahedronNodes) {
        setGeometryWith(h -> {
            Checks.fixedCells3D(numNodes, x, y, z, numHexahedra, 8, hexahedronNodes, "hexahedronNodes");
            setGeometryImpl(h, numNodes, x, y, z, numHexahedra, hexahedronNodes);
        });
    }

    private static native long ctorImpl();

    private static native String getClassTypeId();

    private native long getValueImpl(long handle);

    private native void setValueImpl(long handle, long mesh);

    private native boolean equalsImpl(long handle, long other);

    private native void setGeometryImpl(long handle, int numNodes, float[] x, float[] y, float[] z, int numHexahedra,
            int[] hexahedronNodes);

    private native void addFieldToContainerNative(long handle, long container, String name, int fieldType,
            long value);
}
