package com.kestrum.corvel.fields;

import com.kestrum.corvel.misc.CorvelNative;
import com.kestrum.corvel.misc.ManagedObjects;
import com.kestrum.corvel.misc.NativeObject;

/** A field of a node: a view of a native field, which belongs to its node. */
public class SoField extends NativeObject {
    static {
        CorvelNative.ensureLoaded();
        ManagedObjects.registerWrapper("com.kestrum.corvel.fields.SoField", SoField::new);
    }

    protected SoField(long handle) {
        super(handle);
    }

    /** The field's name. */
    public String getName() {
        return getNameNative(handle());
    }

    private static native String getNameNative(long handle);
}
