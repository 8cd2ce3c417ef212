package com.kestrum.corvel.misc;

import java.lang.invoke.MethodHandles;
import java.lang.invoke.VarHandle;
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
 * <p>A native call that may call back into Java (a traversal, an applied action, anything that
 * raises events) holds its receiver and its object arguments while it runs ({@link #enter()},
 * {@link #callWith}). Disposing a held object, from a callback of that very call for instance,
 * disposes the Java object at once (its methods throw {@link IllegalStateException} from then
 * on) but frees the native object only when the last call holding it returns, on that call's
 * thread; a native object is never freed under a native call that is using it.
 *
 * <p>Like the toolkit objects they stand for, these objects are not thread-safe: a caller that
 * shares one between threads serialises the calls, disposal included.
 */
public abstract class NativeObject implements AutoCloseable {
    private static final Cleaner CLEANER = Cleaner.create();
    private static final VarHandle HANDLE;
    private static final VarHandle HOLDS;

    static {
        try {
            MethodHandles.Lookup lookup = MethodHandles.lookup();
            HANDLE = lookup.findVarHandle(NativeObject.class, "handle", long.class);
            HOLDS = lookup.findVarHandle(NativeObject.class, "holds", int.class);
        } catch (ReflectiveOperationException e) {
            throw new ExceptionInInitializerError(e);
        }
    }

    private volatile long handle;
    private final Cleaner.Cleanable cleanable;
    private volatile boolean registeredPeer;
    /**
     * Two for each native call in progress that holds this object, plus one once it has been
     * disposed: the native object is released when the count comes to exactly one.
     */
    private volatile int holds;

    /**
     * A view of a native object that is owned elsewhere.
     *
     * @param handle the address of the native object
     */
    protected NativeObject(long handle) {
        this(handle, null);
    }

    /**
     * An object that owns its native object.
     *
     * @param release frees the native object; runs at most once and must not refer to this
     *     Java object (it runs after it has been collected)
     * @param handle the address of the native object
     */
    protected NativeObject(long handle, Runnable release) {
        this.handle = handle;
        this.cleanable = release == null ? null : CLEANER.register(this, release);
    }

    /**
     * A release action that calls {@code release} with the handle (and refers to no Java
     * object), e.g. {@code releaseWith(MyClass::deleteNative, handle)}.
     *
     * @param release what frees the native object
     * @param handle the address of the native object
     * @return a release action that calls {@code release} with the handle (and refers to no Java object), e.g
     */
    protected static Runnable releaseWith(java.util.function.LongConsumer release, long handle) {
        Arguments.notNull(release, "release");
        return () -> release.accept(handle);
    }

    /**
     * Makes this object the Java peer of its native object ({@link ManagedObjects}): native code
     * that hands the address to Java gets this object. With {@code keepAlive} the object stays
     * reachable until it is disposed. Disposing unregisters it.
     *
     * @param keepAlive whether the Java object is held strongly until it is disposed
     */
    protected final void registerAsPeer(boolean keepAlive) {
        ManagedObjects.registerPeer(handle(), this, keepAlive);
        registeredPeer = true;
    }

    /**
     * The native handle, or 0 once disposed.
     *
     * @return the native handle, or 0 once disposed
     */
    public final long getNativeResourceHandleInternal() {
        return handle;
    }

    /**
     * The native handle of a live object.
     *
     * @return the native handle of a live object
     */
    protected final long handle() {
        long h = handle;
        if (h == 0) {
            throw new IllegalStateException(getClass().getSimpleName() + " has been disposed");
        }
        return h;
    }

    /**
     * Whether the object has been disposed (its methods then throw {@link IllegalStateException}).
     *
     * @return whether the object has been disposed (its methods then throw {@link IllegalStateException})
     */
    public final boolean isDisposed() {
        return handle == 0;
    }

    /**
     * Frees the native object if this object owns it, at once or, while native calls hold this
     * object, when the last of them returns; later calls do nothing. The Java object is disposed
     * at once either way.
     */
    public void dispose() {
        long h = handle;
        if (h == 0 || !HANDLE.compareAndSet(this, h, 0L)) {
            return;
        }
        if (registeredPeer) {
            ManagedObjects.unregisterPeer(h, this);
        }
        if ((int) HOLDS.getAndAdd(this, 1) == 0) {
            release();
        }
    }

    /**
     * Holds this object for a native call that may call back into Java and returns its handle;
     * the caller must {@link #leave()} when the call returns (in a finally block).
     *
     * @return the object's handle (the argument's, for the static form)
     * @throws IllegalStateException when the object has been disposed
     */
    protected final long enter() {
        HOLDS.getAndAdd(this, 2);
        long h = handle;
        if (h == 0) {
            leave();
            throw new IllegalStateException(getClass().getSimpleName() + " has been disposed");
        }
        return h;
    }

    /** Ends a hold of {@link #enter()}; releases the native object if it was disposed meanwhile. */
    protected final void leave() {
        if ((int) HOLDS.getAndAdd(this, -2) == 3) {
            release();
        }
    }

    /**
     * As {@link #enter()}, for an argument that must be present and live.
     *
     * @param argument the object argument, or null
     * @param name the argument's name, for the exception's message
     * @return the object's handle (the argument's, for the static form)
     */
    protected static long enter(NativeObject argument, String name) {
        if (argument == null) {
            throw new NullPointerException(name + " is null");
        }
        HOLDS.getAndAdd(argument, 2);
        long h = argument.handle;
        if (h == 0) {
            argument.leave();
            throw new IllegalStateException(name + " has been disposed");
        }
        return h;
    }

    /**
     * One more hold on an object that a hold already keeps (its native object is still there,
     * even when the Java object has been disposed since); ended by {@link #leave(NativeObject)}.
     *
     * @param held the object, held already
     */
    protected static void holdAgain(NativeObject held) {
        Arguments.notNull(held, "held");
        HOLDS.getAndAdd(held, 2);
    }

    /**
     * Whether a native call or another holder holds this object now.
     *
     * @return true while held
     */
    protected final boolean isHeld() {
        return (holds & ~1) != 0;
    }

    /**
     * Ends a hold of {@link #enter(NativeObject, String)}.
     *
     * @param argument the object argument, or null
     */
    protected static void leave(NativeObject argument) {
        Arguments.notNull(argument, "argument").leave();
    }

    /** A native call on the handles of its receiver and of one argument. */
    @FunctionalInterface
    protected interface HandleCall {
        /**
         * Calls the native method with the receiver's handle and the argument's.
         *
         * @param handle the receiver's handle
         * @param argument the argument's handle
         */
        void call(long handle, long argument);
    }

    /**
     * A native call with a result, on the handles of its receiver and of one argument (0 when
     * there is none).
     *
     * @param <R> the result's type
     */
    @FunctionalInterface
    protected interface HandleFunction<R> {
        /**
         * Calls the native method with the receiver's handle and the argument's.
         *
         * @param handle the receiver's handle
         * @param argument the argument's handle, 0 for none
         * @return the call's result
         */
        R call(long handle, long argument);
    }

    /**
     * Makes a native call that may call back into Java, on this object and an argument that must
     * be present and live, holding both until it returns.
     *
     * @param argument the object argument, or null
     * @param name the argument's name, for the exception's message
     * @param call the native call, given the receiver's handle
     */
    protected final void callWith(NativeObject argument, String name, HandleCall call) {
        Arguments.notNull(call, "call");
        callHolding(argument, name, false, (h, a) -> {
            call.call(h, a);
            return null;
        });
    }

    /**
     * Makes a native call that may call back into Java (a traversal, a rebuild, the making of a
     * Java object by the toolkit), holding this object and its object argument until the call
     * returns: disposing either from a callback of that call disposes the Java object at once and
     * lets its native object go only when the call has returned. Every held call goes through
     * here.
     *
     * @param argument the object argument, or null (no argument, or an optional one left out)
     * @param name the argument's name, for the exceptions' messages
     * @param optional whether a null argument is allowed (its handle is then 0)
     * @param call the native call, given the receiver's handle and the argument's
     * @param <R> the call's result type
     * @return what the call returns
     * @throws NullPointerException when a required argument is null
     * @throws IllegalStateException when this object or the argument has been disposed
     */
    protected final <R> R callHolding(NativeObject argument, String name, boolean optional,
            HandleFunction<R> call) {
        long h = enter();
        try {
            if (argument == null && optional) {
                return call.call(h, 0);
            }
            long a = enter(argument, name);
            try {
                return call.call(h, a);
            } finally {
                argument.leave();
            }
        } finally {
            leave();
        }
    }

    /**
     * As {@link #callHolding}, for a call without an object argument: holds this object alone.
     *
     * @param call the native call, given the receiver's handle
     * @param <R> the call's result type
     * @return what the call returns
     * @throws IllegalStateException when this object has been disposed
     */
    protected final <R> R callHeld(java.util.function.LongFunction<R> call) {
        return callHolding(null, null, true, (h, a) -> call.apply(h));
    }

    /** Runs the release action (at most once, whoever calls it). */
    private void release() {
        if (cleanable != null) {
            cleanable.clean();
        }
    }

    @Override
    public final void close() {
        dispose();
    }

    /**
     * The handle of an argument that must be present and live.
     *
     * @param argument the object argument, or null
     * @param name the argument's name, for the exception's message
     * @return the handle of an argument that must be present and live
     */
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

    /**
     * The handle of an optional argument: 0 for null.
     *
     * @param argument the object argument, or null
     * @param name the argument's name, for the exception's message
     * @return the handle of an optional argument: 0 for null
     */
    protected static long handleOrZero(NativeObject argument, String name) {
        return argument == null ? 0 : handleOf(argument, name);
    }

    @Override
    public String toString() {
        return getClass().getSimpleName() + "@0x" + Long.toHexString(handle);
    }
}
