package com.kestrum.corvel.fields;

import com.kestrum.corvel.misc.Arguments;
import com.kestrum.corvel.misc.CorvelNative;
import com.kestrum.corvel.misc.ManagedObjects;
import com.kestrum.corvel.misc.NativeObject;

/**
 * A field of a node. Either a view of a native field that belongs to its node: the view holds a
 * reference on that node, so the field stays valid while the view lives, given back when the
 * view is disposed or collected. Or, for a field made in Java (a subclass's constructor), the
 * owner of its native field, which the binding core frees when the field is disposed or
 * collected.
 */
public class SoField extends NativeObject {
    static {
        CorvelNative.ensureLoaded();
        ManagedObjects.registerWrapper("com.kestrum.corvel.fields.SoField", SoField::new);
    }

    /**
     * A view of a native field owned elsewhere.
     *
     * @param handle the address of the native object
     */
    protected SoField(long handle) {
        this(handle, refContainerNative(handle));
    }

    private SoField(long handle, long container) {
        super(handle, container == 0 ? null : releaseWith(SoField::unrefContainerNative, container));
    }

    /**
     * A field that owns its native field: {@code release} frees it (see {@link #deleting}).
     *
     * @param handle the address of the native object
     * @param release what frees the native object
     */
    protected SoField(long handle, Runnable release) {
        super(handle, release);
    }

    /**
     * The release action of a field made in Java: deletes the native field at the handle.
     *
     * @param handle the address of the native object
     * @return the release action of a field made in Java: deletes the native field at the handle
     */
    protected static Runnable deleting(long handle) {
        return releaseWith(SoField::deleteNative, handle);
    }

    /**
     * The field's name.
     *
     * @return the field's name
     */
    public String getName() {
        return getNameNative(handle());
    }

    /**
     * The field's value in its text form (for a vector field, "x y z").
     *
     * @return the field's value in its text form (for a vector field, "x y z")
     */
    public String get() {
        return getValueNative(handle());
    }

    /**
     * Whether the field takes its value from another field (the toolkit connects fields): such a
     * field may bring its value up to date whenever it is read.
     *
     * @return whether the field takes its value from another field (the toolkit connects fields): such a
     *     field may bring its value up to date whenever it is read
     */
    public boolean isConnected() {
        return isConnectedNative(handle());
    }

    /**
     * Sets the field's value from its text form; the node uses it when next traversed.
     *
     * @param value the field's new value as text
     */
    public void setValue(String value) {
        Arguments.notNull(value, "value");
        setValueNative(handle(), value);
    }

    /** Takes a reference on the field's container; its address, 0 when the field has none. */
    private static native long refContainerNative(long handle);

    private static native void unrefContainerNative(long container);

    private static native String getNameNative(long handle);

    private static native String getValueNative(long handle);

    private static native void setValueNative(long handle, String value);

    private static native boolean isConnectedNative(long handle);

    private static native void deleteNative(long handle);
}
