package com.kestrum.corvel.misc;

import java.lang.ref.Cleaner;

/**
 * A Java object that stands for a native object, named by its native handle (the native
 * object's address).
 *
 * <p>An object made with a release action frees its native object when {@link #dispose()} is
 * called or, failing that, after the Java object has been collected. An object made without
 * one (a view of a native object owned elsewhere) only forgets its handle when disposed.
 * Every method of a disposed object that needs its native object throws
 * {@link IllegalStateException}.
 *
 * <p>Like the toolkit objects they stand for, these objects are not thread-safe: a caller that
 * shares one between threads serialises the calls, disposal included.
 */
public abstract class NativeObject implements AutoCloseable {
    private static final Cleaner CLEANER = Cleaner.create();

    private volatile long handle;
    private final Cleaner.Cleanable cleanable;
    private volatile boolean registeredPeer;

    /** A view of a native object that is owned elsewhere. */
    protected NativeObject(long handle) {
        this(handle, null);
    }

    /**
     * An object that owns its native object.
     *
     * @param release frees the native object; runs at most once and must not refer to this
     *     Java object (it runs after it has been collected)
     */
    protected NativeObject(long handle, Runnable release) {
        this.handle = handle;
        this.cleanable = release == null ? null : CLEANER.register(this, release);
    }

    /**
     * A release action that calls {@code release} with the handle (and refers to no Java
     * object), e.g. {@code releaseWith(MyClass::deleteNative, handle)}.
     */
    protected static Runnable releaseWith(java.util.function.LongConsumer release, long handle) {
        return () -> release.accept(handle);
    }

    /**
     * Makes this object the Java peer of its native object ({@link ManagedObjects}): native code
     * that hands the address to Java gets this object. With {@code keepAlive} the object stays
     * reachable until it is disposed. Disposing unregisters it.
     */
    protected final void registerAsPeer(boolean keepAlive) {
        ManagedObjects.registerPeer(handle(), this, keepAlive);
        registeredPeer = true;
    }

    /** The native handle, or 0 once disposed. */
    public final long getNativeResourceHandleInternal() {
        return handle;
    }

    /** The native handle of a live object. */
    protected final long handle() {
        long h = handle;
        if (h == 0) {
            throw new IllegalStateException(getClass().getSimpleName() + " has been disposed");
        }
        return h;
    }

    public final boolean isDisposed() {
        return handle == 0;
    }

    /** Frees the native object if this object owns it; later calls do nothing. */
    public void dispose() {
        long h = handle;
        if (h == 0) {
            return;
        }
        if (registeredPeer) {
            ManagedObjects.unregisterPeer(h, this);
        }
        handle = 0;
        if (cleanable != null) {
            cleanable.clean();
        }
    }

    @Override
    public final void close() {
        dispose();
    }

    /** The handle of an argument that must be present and live. */
    protected static long handleOf(NativeObject argument, String name) {
        if (argument == null) {
            throw new NullPointerException(name + " is null");
        }
        long h = argument.handle;
        if (h == 0) {
            throw new IllegalStateException(name + " has been disposed");
        }
        return h;
    }

    /** The handle of an optional argument: 0 for null. */
    protected static long handleOrZero(NativeObject argument, String name) {
        return argument == null ? 0 : handleOf(argument, name);
    }

    @Override
    public String toString() {
        return getClass().getSimpleName() + "@0x" + Long.toHexString(handle);
    }
}
