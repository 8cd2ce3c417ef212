package com.kestrum.corvel.fields;

import com.kestrum.corvel.misc.CorvelNative;
import com.kestrum.corvel.misc.ManagedObjects;
import com.kestrum.corvel.misc.NativeObject;

/**
 * A field of a node: a view of a native field, which belongs to its node. The view holds a
 * reference on that node, so the field stays valid while the view lives; it is given back when
 * the view is disposed or collected.
 */
public class SoField extends NativeObject {
    static {
        CorvelNative.ensureLoaded();
        ManagedObjects.registerWrapper("com.kestrum.corvel.fields.SoField", SoField::new);
    }

    protected SoField(long handle) {
        this(handle, refContainerNative(handle));
    }

    private SoField(long handle, long container) {
        super(handle, container == 0 ? null : releaseWith(SoField::unrefContainerNative, container));
    }

    /** The field's name. */
    public String getName() {
        return getNameNative(handle());
    }

    /** The field's value in its text form (for a vector field, "x y z"). */
    public String getValue() {
        return getValueNative(handle());
    }

    /** Sets the field's value from its text form; the node uses it when next traversed. */
    public void setValue(String value) {
        if (value == null) {
            throw new NullPointerException("value is null");
        }
        setValueNative(handle(), value);
    }

    /** Takes a reference on the field's container; its address, 0 when the field has none. */
    private static native long refContainerNative(long handle);

    private static native void unrefContainerNative(long container);

    private static native String getNameNative(long handle);

    private static native String getValueNative(long handle);

    private static native void setValueNative(long handle, String value);
}
