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
 *
 * <p>Native code finds a registered peer without calling Java: the binding core keeps, in step
 * with this table, a weak reference to each peer by address (every change of an entry is made
 * there too, inside the same atomic update of the entry). Only objects without a peer (new
 * wrappers) need a call into Java.
 */
public final class ManagedObjects {
    private static final Map<Long, Peer> PEERS = new ConcurrentHashMap<>();
    /** The entries whose weakly held peer has been collected. */
    private static final ReferenceQueue<Object> COLLECTED = new ReferenceQueue<>();
    private static final Map<String, LongFunction<?>> WRAPPERS = new ConcurrentHashMap<>();
    private static final Map<String, Supplier<? extends NativeObject>> TYPES = new ConcurrentHashMap<>();

    static {
        CorvelNative.ensureLoaded();
    }

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
        Arguments.notNull(peer, "peer");
        dropCollected();
        PEERS.compute(address, (a, old) -> {
            rememberPeerNative(address, peer);
            return new Peer(address, peer, keepAlive);
        });
    }

    /**
     * Forgets the Java object registered for the address (nothing happens when there is none).
     *
     * @param address the native object's address
     */
    public static void unregisterPeer(long address) {
        PEERS.computeIfPresent(address, (a, p) -> forget(address));
    }

    /**
     * Unregisters the peer of the address if it is still {@code peer}.
     *
     * @param address the native object's address
     * @param peer the Java object
     */
    public static void unregisterPeer(long address, Object peer) {
        PEERS.computeIfPresent(address, (a, p) -> p.peer() == peer || p.peer() == null ? forget(address) : p);
    }

    /** Drops the entries of collected peers (an entry that was replaced since stays). */
    private static void dropCollected() {
        for (Reference<?> r = COLLECTED.poll(); r != null; r = COLLECTED.poll()) {
            Peer p = (Peer) r;
            PEERS.computeIfPresent(p.address, (a, current) -> current == p ? forget(p.address) : current);
        }
    }

    /**
     * Forgets the native side's reference of the address.
     *
     * @param address the native object's address
     * @return null, the entry's new value
     */
    private static Peer forget(long address) {
        forgetPeerNative(address);
        return null;
    }

    private static native void rememberPeerNative(long address, Object peer);

    private static native void forgetPeerNative(long address);

    /**
     * Deletes at once the native references of forgotten peers that no lookup still uses; they
     * otherwise go in batches. Tests that record a block's JNI calls call it before the block, so
     * that no earlier batch falls into it.
     */
    static native void collectForgottenNative();

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
        Arguments.notNull(wanted, "wanted");
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
        Arguments.notNull(dottedClassName, "dottedClassName");
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
        WRAPPERS.put(Arguments.notNull(dottedClassName, "dottedClassName"), Arguments.notNull(factory, "factory"));
    }

    /**
     * Lets the toolkit make objects of a type defined by a Java class (copying a node, reading a file); a
     * later registration of the same name replaces the factory.
     *
     * @param typeName the name of the toolkit type
     * @param factory makes a new object of the type
     */
    public static void registerType(String typeName, Supplier<? extends NativeObject> factory) {
        TYPES.put(Arguments.notNull(typeName, "typeName"), Arguments.notNull(factory, "factory"));
    }

    /**
     * Whether a Java class has registered a factory for the toolkit type of that name.
     *
     * @param typeName the name of the toolkit type
     * @return whether a Java class has registered a factory for the toolkit type of that name
     */
    public static boolean isTypeRegistered(String typeName) {
        return TYPES.containsKey(Arguments.notNull(typeName, "typeName"));
    }

    /**
     * The Java object for the native object at the address, as an instance of the dotted class
     * name (the class is looked up by name: native code calls the form taking the class).
     */
    static Object getManagedObject(String dottedClassName, long address) throws ClassNotFoundException {
        if (address == 0) {
            return null;
        }
        return getManagedObject(classNamed(dottedClassName), address);
    }

    /**
     * Called from native code, once per class name that native code hands objects as: the class,
     * initialised (so that it has registered its wrapper).
     */
    static Class<?> classNamed(String dottedClassName) throws ClassNotFoundException {
        return Class.forName(dottedClassName);
    }

    /**
     * Called from native code: the Java object for the native object at the address, as an
     * instance of the class: its registered peer when it is one, otherwise a new wrapper.
     */
    static Object getManagedObject(Class<?> wanted, long address) {
        if (address == 0) {
            return null;
        }
        Object peer = peerOf(address);
        if (peer != null && wanted.isInstance(peer)) {
            return peer;
        }
        LongFunction<?> factory = WRAPPERS.get(wanted.getName());
        if (factory == null) {
            throw new IllegalStateException("No Java wrapper registered for " + wanted.getName());
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
