package com.kestrum.tavrel.fields;

import com.kestrum.corvel.SbVec3f;
import com.kestrum.corvel.fields.SoField;
import com.kestrum.corvel.misc.ManagedObjects;
import com.kestrum.corvel.nodes.SoNode;
import com.kestrum.tavrel.internal.Checks;
import com.kestrum.tavrel.data.PbMesh;
import com.kestrum.tavrel.internal.JarInitializer;
import com.kestrum.tavrel.internal.MeshViews;
import com.kestrum.tavrel.nodes.PoMeshProperty;
import java.lang.ref.WeakReference;
import java.util.concurrent.atomic.AtomicBoolean;
import java.util.function.LongConsumer;

/**
 * Base of the single-value mesh fields: fields whose value is a whole mesh, held by value
 * inside the field.
 *
 * <p>A field made in Java owns its native field, which is freed when the field is disposed or
 * collected (but not while a view of its value is reachable, see below). It starts in no
 * container; {@code addToContainer} adds it to a node under a name.
 *
 * <p>{@link #getValue()} gives a view of the mesh inside the field: a mesh object of the field's
 * mesh class, never freed on its own, that shows every later change of the value ({@code
 * setValue} copies the given mesh into it, {@code setGeometry} changes it in place). It stays
 * valid for as long as it is reachable: it keeps the field's native object alive, even after the
 * field has been disposed. Cells obtained from it stop working ({@link IllegalStateException})
 * once the field's geometry or value changes (for a field connected to another one, whenever its
 * value is read, since reading may bring it up to date).
 *
 * <p>Every mesh field class has, for its own mesh class:
 * <ul>
 * <li>{@code setValue(mesh)}: sets the field's value to a copy of the mesh (geometry, data sets
 * and data-duplication flag), in place: the view of the value stays the same object and shows
 * the copy.
 * <li>{@code isEqualTo(other)}: whether both fields hold the same mesh (each brought up to date
 * first): same class, node coordinates, cells and data sets (the data-duplication flag is not
 * compared).
 * <li>{@code addToContainer(container, name, fieldType, initialValue)}: adds the field to a node
 * under a name: the field takes the initial value (a copy; never null), belongs to the node from then on and
 * is found by {@code container.getField(name)}; only the low three bits of the field type are
 * kept. A field belongs to one node at a time: adding it to another one takes it out of the
 * first. The node does not own the field, and neither keeps the other alive: a disposed field
 * leaves its node, and a field whose node is gone belongs to none. As the node may hand the
 * field out by name, the field stays reachable from then on until it is disposed: dispose it
 * when done.
 * <li>{@code setGeometry(...)}: replaces the geometry of the field's mesh, in place.
 * </ul>
 */
public abstract class PoSFMesh extends SoField {
    static {
        JarInitializer.init();
    }

    private final Class<? extends PbMesh> meshClass;
    /** The address of the mesh inside the field: fixed for the field's life. */
    private final long meshAddress;
    /** The last view of the value handed out (held weakly: a view holds the field). */
    private WeakReference<PbMesh> view = new WeakReference<>(null);

    /** Set once the native field has been freed (shared with the release action). */
    private final AtomicBoolean freed;

    /** The native read of the address of the mesh inside the field (evaluated first when it must be). */
    private final AddressCall<PoSFMesh> valueAddress;

    /** A field class's own native read of the address of the mesh inside a field of the class. */
    @FunctionalInterface
    interface AddressCall<F extends PoSFMesh> {
        long address(F field, long handle);
    }

    /**
     * Owns the new native field at the handle, whose value is a mesh of meshClass, read through
     * the class's own native call.
     */
    @SuppressWarnings("unchecked")
    <F extends PoSFMesh> PoSFMesh(long handle, Class<? extends PbMesh> meshClass, AddressCall<F> valueAddress) {
        this(handle, meshClass, (AddressCall<PoSFMesh>) valueAddress, new AtomicBoolean());
    }

    private PoSFMesh(long handle, Class<? extends PbMesh> meshClass, AddressCall<PoSFMesh> valueAddress,
            AtomicBoolean freed) {
        super(handle, release(handle, freed));
        registerAsPeer(false);
        this.freed = freed;
        this.meshClass = meshClass;
        this.valueAddress = valueAddress;
        this.meshAddress = valueAddress.address(this, handle);
        MeshViews.releaseUnreachable();
    }

    /** Frees the native field; its address has no Java object any more. */
    private static Runnable release(long handle, AtomicBoolean freed) {
        Runnable delete = deleting(handle);
        return () -> {
            ManagedObjects.unregisterPeer(handle);
            freed.set(true);
            delete.run();
        };
    }

    /**
     * Disposes the field. While a view of its value holds it, the native field lives on, in its
     * node too; a node that hands it out meanwhile gives this disposed object, whose methods
     * throw {@link IllegalStateException}.
     */
    @Override
    public void dispose() {
        long h = getNativeResourceHandleInternal();
        super.dispose();
        if (h != 0 && !freed.get()) {
            ManagedObjects.registerPeer(h, this, true);
            if (freed.get()) {
                ManagedObjects.unregisterPeer(h, this);
            }
        }
    }

    /**
     * The name of the toolkit type of PoSFMesh.
     *
     * @return the name of the toolkit type of PoSFMesh
     */
    public static String getClassTypeName() {
        return getClassTypeId();
    }

    /**
     * The mesh inside the field, as a view (see the class): the same object as long as it is
     * reachable and not disposed. Reading the value first brings it up to date when the field
     * says it must.
     *
     * @return the mesh inside the field, as a view (see the class): the same object as long as it is
     *     reachable and not disposed
     */
    public abstract PbMesh getValue();

    /** The view of the value (see {@link #getValue()}). */
    final PbMesh value() {
        long h = handle();
        long address = evaluated(h);
        PbMesh last = view.get();
        if (last != null && !last.isDisposed()) {
            return last;
        }
        PbMesh made = MeshViews.view(meshClass, address, this);
        view = new WeakReference<>(made);
        return made;
    }

    /**
     * The address of the value, brought up to date when the field says it must. A connected
     * field may then have taken another mesh, whose cells the earlier ones are not.
     */
    final long evaluated(long handle) {
        boolean connected = isConnected();
        long address = valueAddress.address(this, handle);
        if (connected) {
            geometryChanged();
        }
        return address;
    }

    /**
     * Adds a values set with one value per node of the field's mesh.
     *
     * @param set the index of the data set
     * @param values one value per node (or per cell)
     * @param name the name of the set
     */
    public void addValuesSet(int set, float[] values, String name) {
        long h = handle();
        Checks.length(values, value().getNumNodes(), "values");
        Checks.notNull(name, "name");
        addValuesSetImpl(h, set, values, name);
    }

    /**
     * Adds a values set with one value per cell or per node of the field's mesh.
     *
     * @param set the index of the data set
     * @param values one value per node (or per cell)
     * @param binding whether the set holds a value per node or per cell
     * @param name the name of the set
     */
    public void addValuesSet(int set, float[] values, PoMeshProperty.DataBindings binding, String name) {
        long h = handle();
        Checks.notNull(binding, "binding");
        PbMesh mesh = value();
        Checks.length(values, binding == PoMeshProperty.DataBindings.PER_CELL ? mesh.getNumCells()
                : mesh.getNumNodes(), "values");
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
        Checks.length(strings, value().getNumNodes(), "strings");
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
            Checks.vectors(Checks.length(vectors, value().getNumNodes(), "vectors"), "vectors");
        }
        Checks.notNull(name, "name");
        addVecsSetImpl(h, set, vectors, name);
    }

    /** A field class's own native call taking the field's handle and a mesh's handle. */
    @FunctionalInterface
    protected interface ValueCall {
        /**
         * Copies the mesh of that address into the field.
         *
         * @param handle the address of the field
         * @param mesh the address of the mesh to copy
         */
        void call(long handle, long mesh);
    }

    /** A field class's own native comparison of two fields by handle. */
    @FunctionalInterface
    protected interface EqualsCall {
        /**
         * Compares the field with the other one.
         *
         * @param handle the address of this field
         * @param other the address of the other field
         * @return whether both fields hold the same mesh
         */
        boolean call(long handle, long other);
    }

    /** A field class's own native call adding the field to a node. */
    @FunctionalInterface
    protected interface ContainerCall {
        /**
         * Adds the field to the node under the name, with the initial value's address.
         *
         * @param handle the address of the field
         * @param container the address of the node that the field joins
         * @param name the field's name in the node
         * @param fieldType the kind of field, as the toolkit numbers it
         * @param value the address of the initial value (never 0)
         */
        void call(long handle, long container, String name, int fieldType, long value);
    }

    /**
     * {@code setValue} of the field classes (see the class), through their native call.
     *
     * @param mesh the mesh to copy into the field
     * @param setValueImpl the native call that sets the value
     */
    protected final void setValueWith(PbMesh mesh, ValueCall setValueImpl) {
        long h = handle();
        setValueImpl.call(h, handleOf(mesh, "mesh"));
        geometryChanged();
    }

    /**
     * {@code isEqualTo} of the field classes (see the class), through their native call.
     *
     * @param other the object to copy
     * @param equalsImpl the native call that compares the fields
     * @return {@code isEqualTo} of the field classes (see the class), through their native call
     */
    protected final boolean isEqualToWith(PoSFMesh other, EqualsCall equalsImpl) {
        long h = handle();
        long o = handleOf(other, "other");
        boolean result = equalsImpl.call(h, o);
        evaluated(h);
        other.evaluated(o);
        return result;
    }

    /**
     * {@code addToContainer} of the field classes (see the class), through their native call.
     *
     * @param container the node that the field joins
     * @param name the field's name in the node
     * @param fieldType the kind of field, as the toolkit numbers it
     * @param initialValue the mesh the field starts with (a copy)
     * @param addFieldToContainerNative the native call that adds the field to the node
     * @throws NullPointerException when container, name or initialValue is null: the field always takes a value
     */
    protected final void addToContainerWith(SoNode container, String name, int fieldType, PbMesh initialValue,
            ContainerCall addFieldToContainerNative) {
        long h = handle();
        long node = handleOf(container, "container");
        Checks.notNull(name, "name");
        long value = handleOf(initialValue, "initialValue");
        addFieldToContainerNative.call(h, node, name, fieldType, value);
        geometryChanged();
        registerAsPeer(true);
    }

    /**
     * {@code setGeometry} of the field classes: checks that the field is not disposed, gives its
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

    /** Records a change of the geometry of the field's mesh, after the native call that made it. */
    final void geometryChanged() {
        MeshViews.geometryChanged(meshAddress);
    }

    private static native String getClassTypeId();

    private native void addValuesSetImpl(long handle, int set, float[] values, String name);

    private native void addValuesSetImpl1(long handle, int set, float[] values, int binding, String name);

    private native void addStringsSetImpl(long handle, int set, String[] strings, String name);

    private native void addVecsSetImpl(long handle, int set, Object[] vectors, String name);
}
