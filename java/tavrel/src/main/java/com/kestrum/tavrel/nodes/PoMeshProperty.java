package com.kestrum.tavrel.nodes;

import com.kestrum.corvel.SbVec3f;
import com.kestrum.corvel.nodes.SoNode;
import com.kestrum.tavrel.internal.Checks;
import com.kestrum.tavrel.data.PbMesh;
import com.kestrum.tavrel.internal.JarInitializer;
import com.kestrum.tavrel.internal.MeshViews;
import java.lang.ref.WeakReference;
import java.util.function.LongConsumer;

/**
 * Base of the mesh nodes: scene-graph nodes that hold a mesh and attach data sets to it.
 *
 * <p>When an action traverses a mesh node, the node's mesh becomes the current mesh of that
 * traversal: the representations that come after it in the scene and have no mesh of their own
 * draw it (a {@code PoMeshFilled} after a {@code PoRegularCartesianGrid2D} in a group, for
 * instance), and a cell filter between them is asked about its cells. The current mesh lasts to
 * the end of the traversal or to the next mesh node.
 *
 * <p>The mesh lives inside the node. {@link #getMesh()} gives a view of it: a mesh object of
 * the node's mesh class that shows every later change of the node's geometry and data sets, and
 * that is never freed on its own. The view keeps the node's native object alive while the view
 * is reachable, so it stays valid even after the node has been disposed; a representation or a
 * cell given the view keeps the node's native object alive as well; cells obtained from it
 * stop working ({@link IllegalStateException}) once the node's geometry changes. A disposed
 * node is let go once no view of its mesh is reachable, by the next mesh node or field call.
 */
public abstract class PoMeshProperty extends SoNode {
    static {
        JarInitializer.init();
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

        private static native int getPERCELLNative();

        private static native int getPERNODENative();
    }

    private final Class<? extends PbMesh> meshClass;
    /** The last view of the mesh handed out (held weakly: a view holds the node). */
    private WeakReference<PbMesh> view = new WeakReference<>(null);
    /** The address of the mesh inside the node, 0 until first asked for; fixed for the node's life. */
    private long meshAddress;

    /** Takes a reference on the new native node at the handle, whose mesh is of meshClass. */
    PoMeshProperty(long handle, Class<? extends PbMesh> meshClass) {
        super(handle);
        this.meshClass = meshClass;
        MeshViews.releaseUnreachable();
    }

    /**
     * The name of the class's toolkit type.
     *
     * @return the name of the class's toolkit type
     */
    public static String getClassTypeName() {
        return getClassTypeId();
    }

    /**
     * The node's mesh, as a view (see the class): the same object as long as it is reachable and
     * not disposed.
     *
     * @return the node's mesh, as a view (see the class): the same object as long as it is reachable and not
     *     disposed
     */
    public PbMesh getMesh() {
        long h = handle();
        PbMesh last = view.get();
        if (last != null && !last.isDisposed()) {
            return last;
        }
        PbMesh made = MeshViews.view(meshClass, meshAddress(h), this);
        view = new WeakReference<>(made);
        return made;
    }

    /**
     * Adds a values set with one value per node of the node's mesh.
     *
     * @param set the index of the data set
     * @param values one value per node (or per cell)
     * @param name the name of the set
     */
    public void addValuesSet(int set, float[] values, String name) {
        long h = handle();
        Checks.length(values, getMesh().getNumNodes(), "values");
        Checks.notNull(name, "name");
        addValuesSetImpl(h, set, values, name);
    }

    /**
     * Adds a values set with one value per cell or per node of the node's mesh.
     *
     * @param set the index of the data set
     * @param values one value per node (or per cell)
     * @param binding whether the set holds a value per node or per cell
     * @param name the name of the set
     */
    public void addValuesSet(int set, float[] values, DataBindings binding, String name) {
        long h = handle();
        Checks.notNull(binding, "binding");
        PbMesh mesh = getMesh();
        Checks.length(values, binding == DataBindings.PER_CELL ? mesh.getNumCells() : mesh.getNumNodes(), "values");
        Checks.notNull(name, "name");
        addValuesSetImpl1(h, set, values, binding.getValue(), name);
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
        Checks.length(strings, getMesh().getNumNodes(), "strings");
        Checks.notNull(name, "name");
        addStringsSetImpl(h, set, strings, name);
    }

    /**
     * Adds a vecs set with one vector per node. A null or empty array adds a set without data
     * (its getters return null).
     *
     * @param set the index of the data set
     * @param vectors the vectors, one per node or per cell
     * @param name the name of the set
     */
    public void addVecsSet(int set, SbVec3f[] vectors, String name) {
        long h = handle();
        if (vectors != null && vectors.length > 0) {
            Checks.vectors(Checks.length(vectors, getMesh().getNumNodes(), "vectors"), "vectors");
        }
        Checks.notNull(name, "name");
        addVecsSetImpl(h, set, vectors, name);
    }

    /**
     * {@code setGeometry} of the mesh node classes: checks that the node is not disposed, gives its
     * handle to the call (which checks the arguments, then makes the class's native call) and
     * records the change.
     *
     * @param checkedSetGeometryImpl the native call that sets the geometry, given the mesh's handle
     */
    protected final void setGeometryWith(LongConsumer checkedSetGeometryImpl) {
        long h = handle();
        checkedSetGeometryImpl.accept(h);
        geometryChanged();
    }

    /** Records a change of the geometry of the node's mesh, after the native call that made it. */
    final void geometryChanged() {
        MeshViews.geometryChanged(meshAddress(handle()));
    }

    private long meshAddress(long handle) {
        if (meshAddress == 0) {
            meshAddress = getMeshImpl(handle);
        }
        return meshAddress;
    }

    private static native String getClassTypeId();

    private native long getMeshImpl(long handle);

    private native void addValuesSetImpl(long handle, int set, float[] values, String name);

    private native void addValuesSetImpl1(long handle, int set, float[] values, int binding, String name);

    private native void addStringsSetImpl(long handle, int set, String[] strings, String name);

    private native void addVecsSetImpl(long handle, int set, Object[] vectors, String name);
}
