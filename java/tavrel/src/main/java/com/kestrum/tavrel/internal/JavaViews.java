package com.kestrum.tavrel.internal;

import com.kestrum.corvel.misc.ManagedObjects;
import com.kestrum.corvel.misc.NativeObject;

/**
 * Internal to the product: finds the Java object for a native address that a native method or
 * a callback hands to Java. In this order: the Java object the caller remembers for it, the
 * Java peer registered for it, a new view made by the wrapper that the class registered with
 * {@link ManagedObjects#registerWrapper} (classes register theirs when they are initialised),
 * else null. Views are not remembered: a view of a cell, for instance, is only valid until its
 * mesh changes, and the next event makes a new one.
 */
public final class JavaViews {
    private JavaViews() {}

    /** The Java object of the class for the native object at the address, or null for 0. */
    public static <T extends NativeObject> T find(Class<T> type, long address, T remembered) {
        if (address == 0) {
            return null;
        }
        if (remembered != null && remembered.getNativeResourceHandleInternal() == address) {
            return remembered;
        }
        ensureInitialized(type);
        Object found = ManagedObjects.find(type, address);
        return type.isInstance(found) ? type.cast(found) : null;
    }

    private static void ensureInitialized(Class<?> type) {
        try {
            Class.forName(type.getName(), true, type.getClassLoader());
        } catch (ClassNotFoundException e) {
            throw new IllegalStateException(e);
        }
    }
}
