package com.kestrum.corvel.misc;

import java.lang.ref.Reference;
import java.lang.ref.ReferenceQueue;
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
 *       nodes, actions made in Java, ...). Native code that hands that address to Java gets the
 *       peer itself. The table holds a peer weakly, or strongly when it is registered to be kept
 *       alive (a Java-extended node, whose native node calls it back through a weak reference:
 *       it stays reachable until it is unregistered, when its Java object is disposed).
 *       Disposing a peer unregisters it; the entry of a weakly held peer that was collected
 *       without being disposed is dropped by the next registration, so the table holds no more
 *       entries than there are live peers (plus those collected since the last registration).
 *   <li>Wrappers: for each Java class name, a factory that makes a Java view of a native
 *       object that has no peer. Classes register their factory in their static initialiser.
 *   <li>Types: for each toolkit type name that a Java class registered, a factory for new
 *       instances, so that the toolkit can create instances of Java-extended types.
 * </ul>
 */
public final class ManagedObjects {
    private static final Map<Long, Peer> PEERS = new ConcurrentHashMap<>();
    /** The entries whose weakly held peer has been collected. */
    private static final ReferenceQueue<Object> COLLECTED = new ReferenceQueue<>();
    private static final Map<String, LongFunction<?>> WRAPPERS = new ConcurrentHashMap<>();
    private static final Map<String, Supplier<? extends NativeObject>> TYPES = new ConcurrentHashMap<>();

    private ManagedObjects() {}

    /** A registered peer, held weakly or strongly; queued in COLLECTED once collected. */
    private static final class Peer extends WeakReference<Object> {
        private final long address;
        private final Object strong;

        Peer(long address, Object peer, boolean keepAlive) {
            super(peer, COLLECTED);
            this.address = address;
            this.strong = keepAlive ? peer : null;
        }

        Object peer() {
            return strong != null ? strong : get();
        }
    }

    /**
     * Registers a peer, held weakly.
     *
     * @param address the address of the native object
     * @param peer the Java object
     */
    public static void registerPeer(long address, Object peer) {
        registerPeer(address, peer, false);
    }

    /**
     * Registers a peer for the address; with {@code keepAlive} the table keeps it reachable
     * until {@link #unregisterPeer(long, Object)}.
     *
     * @param address the address of the native object
     * @param peer the Java object
     * @param keepAlive whether the Java object is held strongly until it is disposed
     */
    public static void registerPeer(long address, Object peer, boolean keepAlive) {
        dropCollected();
        PEERS.put(address, new Peer(address, peer, keepAlive));
    }

    /**
     * Forgets the Java object registered for the address (nothing happens when there is none).
     *
     * @param address the native object's address
     */
    public static void unregisterPeer(long address) {
        PEERS.remove(address);
    }

    /**
     * Unregisters the peer of the address if it is still {@code peer}.
     *
     * @param address the native object's address
     * @param peer the Java object
     */
    public static void unregisterPeer(long address, Object peer) {
        PEERS.computeIfPresent(address, (a, p) -> p.peer() == peer || p.peer() == null ? null : p);
    }

    /** Drops the entries of collected peers (an entry that was replaced since stays). */
    private static void dropCollected() {
        for (Reference<?> r = COLLECTED.poll(); r != null; r = COLLECTED.poll()) {
            Peer p = (Peer) r;
            PEERS.remove(p.address, p);
        }
    }

    /**
     * The registered peer of the address, or null.
     *
     * @param address the address of the native object
     * @return the registered peer of the address, or null
     */
    public static Object peerOf(long address) {
        Peer p = PEERS.get(address);
        return p == null ? null : p.peer();
    }

    /**
     * The Java object for the native object at the address, as an instance of the dotted class
     * name: the registered peer when it is one, otherwise a new wrapper; null for address 0.
     */
    /**
     * The Java object for the native object at the address as an instance of the class: its
     * registered peer, else a new wrapper; null for address 0 or when the class has no wrapper.
     *
     * @param wanted the class the object must have
     * @param address the address of the native object
     * @return the Java object for the native object at the address as an instance of the class: its
     *     registered peer, else a new wrapper; null for address 0 or when the class has no wrapper
     */
    public static Object find(Class<?> wanted, long address) {
        if (address == 0) {
            return null;
        }
        Object peer = peerOf(address);
        boolean disposed = peer instanceof NativeObject
                && ((NativeObject) peer).getNativeResourceHandleInternal() != address;
        if (wanted.isInstance(peer) && !disposed) {
            return peer;
        }
        LongFunction<?> factory = WRAPPERS.get(wanted.getName());
        return factory == null ? null : factory.apply(address);
    }

    /**
     * The Java object for a native address: the registered peer, else a new view made by the class's
     * registered wrapper, else null.
     *
     * @param dottedClassName the class's name, with dots
     * @param address the native object's address
     * @return the Java object for a native address: the registered peer, else a new view made by the class's
     *     registered wrapper, else null
     */
    public static Object get(String dottedClassName, long address) {
        try {
            return getManagedObject(dottedClassName, address);
        } catch (ClassNotFoundException e) {
            throw new IllegalArgumentException("No Java class " + dottedClassName, e);
        }
    }

    /**
     * Registers how a Java view of a native object of the class is made from its address.
     *
     * @param dottedClassName the class's name, with dots
     * @param factory makes the view from the native address
     */
    public static void registerWrapper(String dottedClassName, LongFunction<?> factory) {
        WRAPPERS.put(dottedClassName, factory);
    }

    /**
     * Lets the toolkit make objects of a type defined by a Java class (copying a node, reading a file); a
     * later registration of the same name replaces the factory.
     *
     * @param typeName the name of the toolkit type
     * @param factory makes a new object of the type
     */
    public static void registerType(String typeName, Supplier<? extends NativeObject> factory) {
        TYPES.put(typeName, factory);
    }

    /**
     * Whether a Java class has registered a factory for the toolkit type of that name.
     *
     * @param typeName the name of the toolkit type
     * @return whether a Java class has registered a factory for the toolkit type of that name
     */
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

    /**
     * Called from native code: a new instance of a Java-extended type; its native address, 0 when
     * no Java class registered the type name. An exception of the factory goes back to native
     * code, pending.
     */
    static long createInstance(String typeName) {
        Supplier<? extends NativeObject> factory = TYPES.get(typeName);
        if (factory == null) {
            return 0;
        }
        return factory.get().getNativeResourceHandleInternal();
    }
}
