package com.kestrum.tavrel.data;

import com.kestrum.tavrel.internal.Checks;
import com.kestrum.corvel.SbVec3f;
import com.kestrum.corvel.misc.ManagedObjects;
import com.kestrum.corvel.misc.NativeObject;
import com.kestrum.tavrel.internal.Enums;
import com.kestrum.tavrel.internal.JarInitializer;
import java.nio.ByteBuffer;
import java.nio.FloatBuffer;
import java.util.function.LongConsumer;

/**
 * Base of every mesh: structured grids, unstructured meshes and one-dimensional meshes.
 *
 * <p>A mesh holds numbered data sets: values sets (one float per node or per cell), vecs sets
 * (one vector per node) and strings sets (one string per node). The set index is the caller's
 * choice; adding a set under an index in use replaces that set.
 *
 * <p>Views into the mesh: the direct buffers ({@link #getDirectValuesSet}, {@link
 * #getDirectVecsSet}, {@link #getCoordinates}) alias the mesh's own memory, and the cells it
 * returns belong to it. A buffer must not be used once its set has been removed or replaced or
 * the geometry has changed; a cell refuses to work ({@link IllegalStateException}) once the
 * geometry has been changed (through any Java object of the same native mesh), since the mesh
 * then frees its cells. Native meshes are never freed: disposing of the Java object only
 * forgets the handle.
 */
public abstract class PbMesh extends NativeObject {
    static {
        JarInitializer.init();
        ManagedObjects.registerWrapper(PbMesh.class.getName(), View::new);
    }

    /** How a values set is bound to the mesh. */
    public enum DataBindings {
        /** One value per cell. */
        PER_CELL(JarInitializer.value(DataBindings::getPERCELLNative)),
        /** One value per node. */
        PER_NODE(JarInitializer.value(DataBindings::getPERNODENative));

        private final int value;

        DataBindings(int value) {
            this.value = value;
        }

        /**
         * The toolkit's value.
         *
         * @return the toolkit's value
         */
        public int getValue() {
            return value;
        }

        /**
         * {@return the constant with the toolkit's value, or null}
         *
         * @param value the toolkit's value
         */
        public static DataBindings fromValue(int value) {
            return Enums.fromValue(values(), DataBindings::getValue, value);
        }

        private static native int getPERCELLNative();

        private static native int getPERNODENative();
    }

    /** The changes of the native mesh's geometry, shared with every Java object of that mesh. */
    final GeometryChanges geometry;

    /**
     * Wraps a native mesh (made by a subclass's constructor, or owned elsewhere).
     *
     * @param handle the address of the native object
     */
    protected PbMesh(long handle) {
        super(handle);
        registerAsPeer(false);
        geometry = GeometryChanges.of(handle);
    }

    /**
     * Records a change of geometry, after any native call that may have freed the mesh's cells:
     * the cells handed out so far stop working.
     */
    final void geometryChanged() {
        geometry.changed();
    }

    /**
     * A native change of the geometry: gives the mesh's handle to the call (which checks the
     * arguments, then makes the class's native call), then records the change.
     */
    final void changeGeometry(LongConsumer call) {
        call.accept(handle());
        geometryChanged();
    }

    /**
     * Records a change of geometry of the native mesh at the address, for the classes that change
     * meshes held inside other objects (mesh nodes, mesh fields): every cell of it handed out so
     * far stops working.
     *
     * @param meshAddress the address of the native mesh
     */
    protected static void geometryChangedAt(long meshAddress) {
        GeometryChanges.of(meshAddress).changed();
    }

    // --- counts -------------------------------------------------------------------------

    /**
     * The number of nodes.
     *
     * @return the number of nodes
     */
    public int getNumNodes() {
        return getNumNodesImpl(handle());
    }

    /**
     * The number of cells.
     *
     * @return the number of cells
     */
    public int getNumCells() {
        return getNumCellsImpl(handle());
    }

    /**
     * The flag given to the constructor: whether the mesh was asked to copy its arrays (the mesh copies them
     * whatever it says).
     *
     * @return the flag given to the constructor: whether the mesh was asked to copy its arrays (the mesh
     *     copies them whatever it says)
     */
    public boolean isDataDuplicated() {
        return isDataDuplicatedImpl(handle());
    }

    /**
     * The binding of a values set (PER_NODE for a missing set).
     *
     * @param set the index of the data set
     * @return the binding of a values set (PER_NODE for a missing set)
     */
    public DataBindings getValuesBinding(int set) {
        return DataBindings.fromValue(getValuesBindingImpl(handle(), set));
    }

    /**
     * The volume of the mesh (0 for a surface mesh).
     *
     * @return the volume of the mesh (0 for a surface mesh)
     */
    public float getVolume() {
        return getVolumeImpl(handle());
    }

    /**
     * The area of the mesh (0 for a mesh of volume cells).
     *
     * @return the area of the mesh (0 for a mesh of volume cells)
     */
    public float getArea() {
        return getAreaImpl(handle());
    }

    /**
     * The cell of that index, owned by the mesh, or null when the mesh has no such cell.
     *
     * @param cellIndex the index of the cell
     * @return the cell of that index, owned by the mesh, or null when the mesh has no such cell
     */
    public PbCell getCell(int cellIndex) {
        long h = handle();
        Checks.index(cellIndex, getNumCellsImpl(h), "cellIndex");
        return cellView(getCellImpl(h, cellIndex));
    }

    /**
     * The number of values sets.
     *
     * @return the number of values sets
     */
    public int getNumValuesSet() {
        return getNumValuesSetImpl(handle());
    }

    /**
     * The number of strings sets.
     *
     * @return the number of strings sets
     */
    public int getNumStringsSet() {
        return getNumStringsSetImpl(handle());
    }

    /**
     * The number of vecs sets.
     *
     * @return the number of vecs sets
     */
    public int getNumVecsSet() {
        return getNumVecsSetImpl(handle());
    }

    // --- data sets ------------------------------------------------------------------------

    /**
     * Adds a values set with one value per node.
     *
     * @param set the index of the data set
     * @param values one value per node (or per cell)
     * @param name the name of the set
     */
    public void addValuesSet(int set, float[] values, String name) {
        long h = handle();
        Checks.length(values, getNumNodesImpl(h), "values");
        Checks.notNull(name, "name");
        addValuesSetImpl(h, set, values, name);
    }

    /**
     * Adds a values set with one value per cell or per node.
     *
     * @param set the index of the data set
     * @param values one value per node (or per cell)
     * @param binding whether the set holds a value per node or per cell
     * @param name the name of the set
     */
    public void addValuesSet(int set, float[] values, DataBindings binding, String name) {
        long h = handle();
        Checks.notNull(binding, "binding");
        Checks.length(values, binding == DataBindings.PER_CELL ? getNumCellsImpl(h) : getNumNodesImpl(h), "values");
        Checks.notNull(name, "name");
        addValuesSetImpl1(h, set, values, binding.getValue(), name);
    }

    /**
     * Adds a vecs set with one vector per node. A null array adds a set without data (its
     * getters return null).
     *
     * @param set the index of the data set
     * @param vectors the vectors, one per node or per cell
     * @param name the name of the set
     */
    public void addVecsSet(int set, SbVec3f[] vectors, String name) {
        long h = handle();
        if (vectors != null) {
            Checks.vectors(Checks.length(vectors, getNumNodesImpl(h), "vectors"), "vectors");
        }
        Checks.notNull(name, "name");
        addVecsSetImpl(h, set, vectors, name);
    }

    /**
     * Adds a strings set with one string per node (null elements become empty strings).
     *
     * @param set the index of the data set
     * @param strings the strings of the set
     * @param name the name of the set
     */
    public void addStringsSet(int set, String[] strings, String name) {
        long h = handle();
        Checks.length(strings, getNumNodesImpl(h), "strings");
        Checks.notNull(name, "name");
        addStringsSetImpl(h, set, strings, name);
    }

    /**
     * The name of a values set, or null when there is no such set.
     *
     * @param set the index of the data set
     * @return the name of a values set, or null when there is no such set
     */
    public String getValuesSetName(int set) {
        return getValuesSetNameImpl(handle(), set);
    }

    /**
     * The name of a strings set, or null when there is no such set.
     *
     * @param set the index of the data set
     * @return the name of a strings set, or null when there is no such set
     */
    public String getStringsSetName(int set) {
        return getStringsSetNameImpl(handle(), set);
    }

    /**
     * The name of a vecs set, or null when there is no such set.
     *
     * @param set the index of the data set
     * @return the name of a vecs set, or null when there is no such set
     */
    public String getVecsSetName(int set) {
        return getVecsSetNameImpl(handle(), set);
    }

    /**
     * A copy of a values set (one value per cell or per node), or null when it has no data.
     *
     * @param set the index of the data set
     * @return a copy of a values set (one value per cell or per node), or null when it has no data
     */
    public float[] getValuesSet(int set) {
        return getValuesSetImpl(handle(), set);
    }

    /**
     * The mesh's own values set, without a copy, or null when it has no data. Writes through the
     * buffer change the mesh's data.
     *
     * @param set the index of the data set
     * @return the mesh's own values set, without a copy, or null when it has no data
     */
    public FloatBuffer getDirectValuesSet(int set) {
        return Checks.floats((ByteBuffer) getDirectValuesSetImpl(handle(), set));
    }

    /**
     * A copy of a vecs set, or null when it has no data.
     *
     * @param set the index of the data set
     * @return a copy of a vecs set, or null when it has no data
     */
    public SbVec3f[] getVecsSet(int set) {
        long h = handle();
        if (getVecsSetImpl(h, set) == 0) {
            return null;
        }
        FloatBuffer floats = Checks.floats((ByteBuffer) getDirectVecsSetImpl(h, set));
        SbVec3f[] vectors = new SbVec3f[floats.capacity() / 3];
        for (int i = 0; i < vectors.length; i++) {
            vectors[i] = new SbVec3f(floats.get(3 * i), floats.get(3 * i + 1), floats.get(3 * i + 2));
        }
        return vectors;
    }

    /**
     * The mesh's own vecs set (x, y, z per node), without a copy, or null when it has no data.
     *
     * @param set the index of the data set
     * @return the mesh's own vecs set (x, y, z per node), without a copy, or null when it has no data
     */
    public FloatBuffer getDirectVecsSet(int set) {
        return Checks.floats((ByteBuffer) getDirectVecsSetImpl(handle(), set));
    }

    /**
     * Removes a values set; true when it existed.
     *
     * @param set the index of the data set
     * @return true when the set existed
     */
    public boolean removeValuesSet(int set) {
        return removeValuesSetImpl(handle(), set);
    }

    /**
     * Removes a strings set; true when it existed.
     *
     * @param set the index of the data set
     * @return true when the set existed
     */
    public boolean removeStringsSet(int set) {
        return removeStringsSetImpl(handle(), set);
    }

    /**
     * Removes a vecs set; true when it existed.
     *
     * @param set the index of the data set
     * @return true when the set existed
     */
    public boolean removeVecsSet(int set) {
        return removeVecsSetImpl(handle(), set);
    }

    /** Removes every values set. */
    public void removeAllValuesSet() {
        removeAllValuesSetImpl(handle());
    }

    /** Removes every strings set. */
    public void removeAllStringsSet() {
        removeAllStringsSetImpl(handle());
    }

    /** Removes every vecs set. */
    public void removeAllVecsSet() {
        removeAllVecsSetImpl(handle());
    }

    /**
     * The smallest value of a set into min[0]; false when the set has none (min[0] is then 0).
     *
     * @param set the index of the data set
     * @param min receives the minimum in element 0
     * @return the smallest value of a set into min[0]; false when the set has none (min[0] is then 0)
     */
    public boolean getMinValuesSet(int set, float[] min) {
        return getMinValuesSetImpl(handle(), set, Checks.length(min, 1, "min"));
    }

    /**
     * The largest value of a set into max[0]; false when the set has none.
     *
     * @param set the index of the data set
     * @param max receives the maximum in element 0
     * @return false when the set has no values
     * @throws NullPointerException when max is null
     * @throws IllegalArgumentException when max is empty
     */
    public boolean getMaxValuesSet(int set, float[] max) {
        return getMaxValuesSetImpl(handle(), set, Checks.length(max, 1, "max"));
    }

    /**
     * The smallest vector length of a set into min[0]; false when the set has none.
     *
     * @param set the index of the data set
     * @param min receives the smallest vector's length in element 0
     * @return the smallest vector length of a set into min[0]; false when the set has none
     */
    public boolean getMinVecsSet(int set, float[] min) {
        return getMinVecsSetImpl(handle(), set, Checks.length(min, 1, "min"));
    }

    /**
     * The largest vector length of a set into max[0]; false when the set has none.
     *
     * @param set the index of the data set
     * @param max receives the largest vector's length in element 0
     * @return false when the set has no vectors
     * @throws NullPointerException when max is null
     * @throws IllegalArgumentException when max is empty
     */
    public boolean getMaxVecsSet(int set, float[] max) {
        return getMaxVecsSetImpl(handle(), set, Checks.length(max, 1, "max"));
    }

    // --- geometry -------------------------------------------------------------------------

    /**
     * Replaces the node coordinates of a mesh that keeps coordinate arrays (a null array keeps
     * that coordinate); other meshes ignore the call. Each array must have as many values as
     * {@link #getCoordinates} reports for it, or the node count when it reports none.
     *
     * @param x the x coordinates
     * @param y the y coordinates
     * @param z the z coordinates, or null
     */
    public void setCoordinates(float[] x, float[] y, float[] z) {
        changeGeometry(h -> {
            long[] lengths = coordinatesLengths(h);
            Checks.optional(x, lengths[0], "x");
            Checks.optional(y, lengths[1], "y");
            Checks.optional(z, lengths[2], "z");
            setCoordinatesImpl(h, x, y, z);
        });
    }

    /**
     * Number of values of each coordinate array (x, y, z) that setCoordinates reads: the length
     * of the mesh's own array, or the node count where it has none (an elevation array, for
     * instance, is made of one value per node). Asked of the native mesh, so that a view of a
     * mesh made elsewhere reads as many as the mesh's own class does.
     */
    private long[] coordinatesLengths(long handle) {
        Object[][] arrays = {new Object[1], new Object[1], new Object[1]};
        getCoordinatesImpl(handle, arrays[0], arrays[1], arrays[2]);
        long[] lengths = new long[3];
        for (int axis = 0; axis < 3; axis++) {
            ByteBuffer array = (ByteBuffer) arrays[axis][0];
            lengths[axis] = array == null ? getNumNodesImpl(handle) : array.capacity() / Float.BYTES;
        }
        return lengths;
    }

    /**
     * The mesh's coordinate arrays x, y, z without a copy; an element is null when the mesh
     * keeps no such array.
     *
     * @return the mesh's coordinate arrays x, y, z without a copy; an element is null when the mesh keeps no
     *     such array
     */
    public FloatBuffer[] getCoordinates() {
        Object[] x = new Object[1];
        Object[] y = new Object[1];
        Object[] z = new Object[1];
        getCoordinatesImpl(handle(), x, y, z);
        return new FloatBuffer[] {Checks.floats(x), Checks.floats(y), Checks.floats(z)};
    }

    /**
     * The coordinates of a node.
     *
     * @param nodeIndex the index of the node
     * @return the coordinates of a node
     * @throws IndexOutOfBoundsException when the node index is not that of a node of the mesh
     */
    public SbVec3f getNodeCoord(int nodeIndex) {
        long h = handle();
        Checks.index(nodeIndex, getNumNodesImpl(h), "nodeIndex");
        float[] out = new float[3];
        getNodeCoordImpl(h, nodeIndex, out);
        return new SbVec3f(out);
    }

    /**
     * The bounding box: xmin, ymin, zmin, xmax, ymax, zmax.
     *
     * @return the bounding box: xmin, ymin, zmin, xmax, ymax, zmax
     */
    public float[] getBoundingBox() {
        float[] box = new float[6];
        getBoundingBoxImpl(handle(), box);
        return box;
    }

    /**
     * The box of the smallest cell into box[0..5]; returns that cell's index (0 without cells).
     *
     * @param box receives the box's size
     * @return the box of the smallest cell into box[0..5]; returns that cell's index (0 without cells)
     */
    public int getSmallestCellBox(float[] box) {
        int[] cell = new int[1];
        getSmallestCellBoxImpl(handle(), cell, Checks.length(box, 6, "box"));
        return cell[0];
    }

    /**
     * The box of the biggest cell into box[0..5]; returns that cell's index (0 without cells).
     *
     * @param box receives the box's size
     * @return the box of the biggest cell into box[0..5]; returns that cell's index (0 without cells)
     */
    public int getBiggestCellBox(float[] box) {
        int[] cell = new int[1];
        getBiggestCellBoxImpl(handle(), cell, Checks.length(box, 6, "box"));
        return cell[0];
    }

    /**
     * The cell that contains the point, trying the adjacent cell (which may be null) first; its
     * parametric coordinates go into pcoord[0..2]. Null when no cell contains the point.
     *
     * @param point the point
     * @param tolerance the distance within which a point counts as inside
     * @param pcoord the parametric coordinates
     * @param adjacentCell a cell near the point where the search starts, or null
     * @return the cell that contains the point, or null
     */
    public PbCell findContainingCell(SbVec3f point, float tolerance, float[] pcoord, PbCell adjacentCell) {
        long h = handle();
        float[] p = Checks.notNull(point, "point").getValue();
        Checks.length(pcoord, 3, "pcoord");
        long adjacent = adjacentCell == null ? 0 : adjacentCell.cellHandle();
        return cellView(findContainingCellImpl(h, p, tolerance, pcoord, adjacent));
    }

    /**
     * The cell that contains the point, or null; its parametric coordinates go into pcoord[0..2].
     *
     * @param point the point
     * @param tolerance the distance within which a point counts as inside
     * @param pcoord the parametric coordinates
     * @return the cell that contains the point, or null
     * @throws NullPointerException when point or pcoord is null
     * @throws IllegalArgumentException when pcoord has fewer than 3 elements
     */
    public PbCell findContainingCell(SbVec3f point, float tolerance, float[] pcoord) {
        long h = handle();
        float[] p = Checks.notNull(point, "point").getValue();
        Checks.length(pcoord, 3, "pcoord");
        return cellView(findContainingCellImpl1(h, p, tolerance, pcoord));
    }

    /** A view of a cell of this mesh, or null for address 0. */
    final PbCell cellView(long address) {
        return address == 0 ? null : new PbCell(address, this);
    }

    // --- views of meshes and cells owned elsewhere ---------------------------------------------

    private static final class View extends PbMesh {
        View(long handle) {
            super(handle);
        }
    }

    private native int getNumNodesImpl(long handle);

    private native int getNumCellsImpl(long handle);

    private native boolean isDataDuplicatedImpl(long handle);

    private native int getValuesBindingImpl(long handle, int set);

    private native float getVolumeImpl(long handle);

    private native float getAreaImpl(long handle);

    private native long getCellImpl(long handle, int cellIndex);

    private native int getNumValuesSetImpl(long handle);

    private native int getNumStringsSetImpl(long handle);

    private native int getNumVecsSetImpl(long handle);

    private native void addValuesSetImpl(long handle, int set, float[] values, String name);

    private native void addValuesSetImpl1(long handle, int set, float[] values, int binding, String name);

    private native void addVecsSetImpl(long handle, int set, Object[] vectors, String name);

    private native void addStringsSetImpl(long handle, int set, String[] strings, String name);

    private native String getValuesSetNameImpl(long handle, int set);

    private native String getStringsSetNameImpl(long handle, int set);

    private native String getVecsSetNameImpl(long handle, int set);

    private native float[] getValuesSetImpl(long handle, int set);

    private native Object getDirectValuesSetImpl(long handle, int set);

    private native long getVecsSetImpl(long handle, int set);

    private native Object getDirectVecsSetImpl(long handle, int set);

    private native boolean removeValuesSetImpl(long handle, int set);

    private native boolean removeStringsSetImpl(long handle, int set);

    private native boolean removeVecsSetImpl(long handle, int set);

    private native void removeAllValuesSetImpl(long handle);

    private native void removeAllStringsSetImpl(long handle);

    private native void removeAllVecsSetImpl(long handle);

    private native boolean getMinValuesSetImpl(long handle, int set, float[] out);

    private native boolean getMaxValuesSetImpl(long handle, int set, float[] out);

    private native boolean getMinVecsSetImpl(long handle, int set, float[] out);

    private native boolean getMaxVecsSetImpl(long handle, int set, float[] out);

    private native void setCoordinatesImpl(long handle, float[] x, float[] y, float[] z);

    private native void getCoordinatesImpl(long handle, Object[] xOut, Object[] yOut, Object[] zOut);

    private native void getNodeCoordImpl(long handle, int nodeIndex, float[] out);

    private native void getBoundingBoxImpl(long handle, float[] out);

    private native void getSmallestCellBoxImpl(long handle, int[] cellOut, float[] boxOut);

    private native void getBiggestCellBoxImpl(long handle, int[] cellOut, float[] boxOut);

    private native long findContainingCellImpl(long handle, float[] point, float tolerance, float[] pcoordOut,
            long adjacentCell);

    private native long findContainingCellImpl1(long handle, float[] point, float tolerance, float[] pcoordOut);
}
