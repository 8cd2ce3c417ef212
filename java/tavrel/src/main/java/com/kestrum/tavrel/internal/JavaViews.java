package com.kestrum.tavrel.internal;

import com.kestrum.corvel.misc.ManagedObjects;
import com.kestrum.corvel.misc.NativeObject;
import com.kestrum.corvel.misc.Traversals;
import java.util.Map;
import java.util.concurrent.ConcurrentHashMap;

/**
 * Internal to the product: finds the Java object for a native address that a native method or
 * a callback hands to Java. In this order: the Java object the caller remembers for it, the
 * Java peer registered for it, a new view made by the wrapper that the class registered with
 * {@link ManagedObjects#registerWrapper} (classes register theirs when they are initialised),
 * else null. Views are not remembered: a view of a cell, for instance, is only valid until its
 * mesh changes, and the next event makes a new one.
 */
public final class JavaViews {
    private static final Map<Class<?>, ViewFactory<?>> VIEWS_IN = new ConcurrentHashMap<>();

    private JavaViews() {}

    /** Makes the view of a native object found by or for another object (its context). */
    @FunctionalInterface
    public interface ViewFactory<T> {
        /** A view of the native object at the address (non-zero); the context may be null. */
        T make(long address, NativeObject context);
    }

    /**
     * Registers the factory of the views of a class that depend on the Java object they were
     * found for, e.g. a cell handed to a probe's listener, which belongs to the probe's mesh.
     */
    public static <T extends NativeObject> void registerViewIn(Class<T> type, ViewFactory<? extends T> factory) {
        VIEWS_IN.put(type, factory);
    }

    /**
     * As {@link #find} without a remembered object, except that a new view is made by the factory
     * the class registered with {@link #registerViewIn}, if any, which is given the context.
     */
    public static <T extends NativeObject> T viewIn(Class<T> type, long address, NativeObject context) {
        if (address == 0) {
            return null;
        }
        ensureInitialized(type);
        Object peer = ManagedObjects.peerOf(address);
        if (type.isInstance(peer) && !((NativeObject) peer).isDisposed()) {
            return type.cast(peer);
        }
        ViewFactory<?> factory = VIEWS_IN.get(type);
        return factory == null ? find(type, address, null) : type.cast(factory.make(address, context));
    }

    /**
     * An object given to a node that keeps its address beyond the call (an attribute object set
     * on a representation or a graph node): refuses a view tied to a traversal (the value of an
     * element of a traversal's state, {@code PoDataMappingElement.get}, ...), which lives only as
     * long as the traversal, while the property node that owns it may go as soon as it ends.
     * Null and disposed objects pass, for the caller's own checks.
     *
     * @param object the object, or null
     * @param name the argument's name, for the exception's message
     * @param <T> the object's class
     * @return the object
     * @throws IllegalArgumentException when the object is a view tied to a traversal
     */
    public static <T extends NativeObject> T keepable(T object, String name) {
        return keepable(object, name, "a node cannot keep it");
    }

    /** As {@link #keepable(NativeObject, String)}, with the advice that ends the message. */
    static <T extends NativeObject> T keepable(T object, String name, String advice) {
        if (object != null && !object.isDisposed() && Traversals.isTiedToTraversal(object)) {
            throw new IllegalArgumentException(name + " is a view of a traversal's state, valid only during the"
                    + " traversal: " + advice);
        }
        return object;
    }

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

    /**
     * Initialises the class (so that it has registered its wrapper), once per class: events call
     * this for every object they hand to Java, and a lookup by name each time would cost more
     * than the event itself.
     */
    private static void ensureInitialized(Class<?> type) {
        INITIALIZED.get(type);
    }

    private static final ClassValue<Boolean> INITIALIZED = new ClassValue<>() {
        @Override
        protected Boolean computeValue(Class<?> type) {
            try {
                Class.forName(type.getName(), true, type.getClassLoader());
            } catch (ClassNotFoundException e) {
                throw new IllegalStateException(e);
            }
            return Boolean.TRUE;
        }
    };
}
