package com.kestrum.corvel.misc;

import java.lang.ref.WeakReference;
import java.util.Map;
import java.util.concurrent.ConcurrentHashMap;
import java.util.function.LongFunction;
import java.util.function.Supplier;

/**
 * The binding core's table of Java objects for native objects.
 *
 * <ul>
 *   <li>Peers: Java objects registered for the address of their native object (Java-extended
 *       nodes, for instance). Native code that hands that address to Java gets the peer itself.
 *       The table holds peers weakly.
 *   <li>Wrappers: for each Java class name, a factory that makes a Java view of a native
 *       object that has no peer. Classes register their factory in their static initialiser.
 *   <li>Types: for each toolkit type name that a Java class registered, a factory for new
 *       instances, so that the toolkit can create instances of Java-extended types.
 * </ul>
 */
public final class ManagedObjects {
    private static final Map<Long, WeakReference<Object>> PEERS = new ConcurrentHashMap<>();
    private static final Map<String, LongFunction<?>> WRAPPERS = new ConcurrentHashMap<>();
    private static final Map<String, Supplier<? extends NativeObject>> TYPES = new ConcurrentHashMap<>();

    private ManagedObjects() {}

    public static void registerPeer(long address, Object peer) {
        PEERS.put(address, new WeakReference<>(peer));
    }

    public static void unregisterPeer(long address) {
        PEERS.remove(address);
    }

    /** The registered peer of the address, or null. */
    public static Object peerOf(long address) {
        WeakReference<Object> ref = PEERS.get(address);
        return ref == null ? null : ref.get();
    }

    public static void registerWrapper(String dottedClassName, LongFunction<?> factory) {
        WRAPPERS.put(dottedClassName, factory);
    }

    public static void registerType(String typeName, Supplier<? extends NativeObject> factory) {
        TYPES.put(typeName, factory);
    }

    public static boolean isTypeRegistered(String typeName) {
        return TYPES.containsKey(typeName);
    }

    /** Called from native code: the Java object for the native object at the address. */
    static Object getManagedObject(String dottedClassName, long address) throws ClassNotFoundException {
        if (address == 0) {
            return null;
        }
        Class<?> wanted = Class.forName(dottedClassName);
        Object peer = peerOf(address);
        if (peer != null && wanted.isInstance(peer)) {
            return peer;
        }
        LongFunction<?> factory = WRAPPERS.get(dottedClassName);
        if (factory == null) {
            throw new IllegalStateException("No Java wrapper registered for " + dottedClassName);
        }
        return factory.apply(address);
    }

    /** Called from native code: a new instance of a Java-extended type; its native address. */
    static long createInstance(String typeName) {
        Supplier<? extends NativeObject> factory = TYPES.get(typeName);
        if (factory == null) {
            return 0;
        }
        return factory.get().getNativeResourceHandleInternal();
    }
}
