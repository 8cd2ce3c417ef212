package com.kestrum.tavrel.internal;

import com.kestrum.corvel.misc.ManagedObjects;
import com.kestrum.corvel.misc.NativeObject;
import java.util.Map;
import java.util.concurrent.ConcurrentHashMap;
import java.util.function.LongFunction;

/**
 * Finds the Java object for a native address that a native method or a callback hands to Java:
 * the Java object the caller remembers for it, the Java peer registered for it
 * ({@link ManagedObjects}), or a new view made by the factory registered for the wanted class.
 */
public final class JavaViews {
    private static final Map<Class<?>, LongFunction<?>> FACTORIES = new ConcurrentHashMap<>();

    private JavaViews() {}

    /**
     * Registers the factory that makes a Java view of a native object of the class (a view of a
     * node takes its own reference on the node). A later registration replaces the earlier one.
     */
    public static <T extends NativeObject> void register(Class<T> type, LongFunction<? extends T> factory) {
        FACTORIES.put(type, factory);
    }

    /**
     * The Java object of the class for the native object at the address, or null for address 0.
     *
     * <p>In this order: {@code remembered} when it is live and has that address; the registered
     * peer of that address when it is a live object of the class; a new view from the factory
     * registered for exactly that class, which then becomes the address's peer; else null.
     */
    public static <T extends NativeObject> T find(Class<T> type, long address, T remembered) {
        if (address == 0) {
            return null;
        }
        if (remembered != null && remembered.getNativeResourceHandleInternal() == address) {
            return remembered;
        }
        Object peer = ManagedObjects.peerOf(address);
        if (type.isInstance(peer) && type.cast(peer).getNativeResourceHandleInternal() == address) {
            return type.cast(peer);
        }
        LongFunction<?> factory = FACTORIES.get(type);
        if (factory == null) {
            return null;
        }
        T view = type.cast(factory.apply(address));
        ManagedObjects.registerPeer(address, view);
        return view;
    }
}
