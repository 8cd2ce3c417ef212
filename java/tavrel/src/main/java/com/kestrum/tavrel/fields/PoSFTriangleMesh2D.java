package com.kestrum.tavrel.fields;

import com.kestrum.corvel.nodes.SoNode;
import com.kestrum.tavrel.internal.Checks;
import com.kestrum.tavrel.data.PbTriangleMesh2D;
import com.kestrum.tavrel.internal.JarInitializer;
import com.kestrum.tavrel.nodes.PoTriangleMesh2D;

/**
 * A single-value field holding a 2D mesh of triangles ({@link PbTriangleMesh2D}) by value. See
 * {@link PoSFMesh} for the field's life and the view of its value.
 */
public class PoSFTriangleMesh2D extends PoSFMesh {
    static {
        JarInitializer.init();
    }

    /** A field holding an empty mesh, in no container. */
    public PoSFTriangleMesh2D() {
        super(ctorImpl(), PbTriangleMesh2D.class, PoSFTriangleMesh2D::getValueImpl);
    }

    /**
     * The name of the class's toolkit type.
     *
     * @return the name of the class's toolkit type
     */
    public static String getClassTypeName() {
        return getClassTypeId();
    }

    /** The mesh inside the field, as a {@link PbTriangleMesh2D} (see {@link PoSFMesh#getValue}). */
    @Override
    public PbTriangleMesh2D getValue() {
        return (PbTriangleMesh2D) value();
    }

    /**
     * Sets the field's value to a copy of the mesh, in place (see {@link PoSFMesh}).
     *
     * @param mesh the mesh to copy into the field
     */
    public void setValue(PbTriangleMesh2D mesh) {
        setValueWith(mesh, this::setValueImpl);
    }

    /**
     * Whether both fields hold the same mesh (see {@link PoSFMesh}).
     *
     * @param other the field to compare with
     * @return whether both fields hold the same mesh (see {@link PoSFMesh})
     */
    public boolean isEqualTo(PoSFTriangleMesh2D other) {
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
    public void addToContainer(SoNode container, String name, int fieldType, PbTriangleMesh2D initialValue) {
        addToContainerWith(container, name, fieldType, initialValue, this::addFieldToContainerNative);
    }

    /**
     * Replaces the geometry of the field's mesh, as the same setGeometry of {@link PoTriangleMesh2D}.
     *
     * @param numNodes the number of nodes
     * @param x the x coordinates
     * @param y the y coordinates
     * @param numTriangles the number of triangles
     * @param triangleNodes the three nodes of every triangle, one after the other
     */
    public void setGeometry(int numNodes, float[] x, float[] y, int numTriangles, int[] triangleNodes) {
        setGeometryWith(h -> {
            Checks.fixedCells2D(numNodes, x, y, null, numTriangles, 3, triangleNodes, "triangleNodes");
            setGeometryImpl(h, numNodes, x, y, numTriangles, triangleNodes);
        });
    }

    /**
     * Replaces the geometry of the field's mesh, as the same setGeometry of {@link PoTriangleMesh2D}.
     *
     * @param numNodes the number of nodes
     * @param x the x coordinates
     * @param y the y coordinates
     * @param z the z coordinates, or null
     * @param numTriangles the number of triangles
     * @param triangleNodes the three nodes of every triangle, one after the other
     */
    public void setGeometry(int numNodes, float[] x, float[] y, float[] z, int numTriangles, int[] triangleNodes) {
        setGeometryWith(h -> {
            Checks.fixedCells2D(numNodes, x, y, Checks.notNull(z, "z"), numTriangles, 3, triangleNodes,
                    "triangleNodes");
            setGeometryImpl1(h, numNodes, x, y, z, numTriangles, triangleNodes);
        });
    }

    /**
     * Replaces the geometry of the field's mesh, as the same setGeometry of {@link PoTriangleMesh2D}.
     *
     * @param numNodes the number of nodes
     * @param x the x coordinates
     * @param y the y coordinates
     */
    public void setGeometry(int numNodes, float[] x, float[] y) {
        setGeometryWith(h -> {
            Checks.nodes2D(numNodes, x, y, null);
            setGeometryImpl2(h, numNodes, x, y);
        });
    }

    private static native long ctorImpl();

    private static native String getClassTypeId();

    private native long getValueImpl(long handle);

    private native void setValueImpl(long handle, long mesh);

    private native boolean equalsImpl(long handle, long other);

    private native void setGeometryImpl(long handle, int numNodes, float[] x, float[] y, int numTriangles,
            int[] triangleNodes);

    private native void setGeometryImpl1(long handle, int numNodes, float[] x, float[] y, float[] z, int numTriangles,
            int[] triangleNodes);

    private native void setGeometryImpl2(long handle, int numNodes, float[] x, float[] y);

    private native void addFieldToContainerNative(long handle, long container, String name, int fieldType,
            long value);
}
