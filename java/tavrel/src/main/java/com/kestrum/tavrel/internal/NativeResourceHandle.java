package com.kestrum.tavrel.internal;

import java.util.concurrent.atomic.AtomicBoolean;

/**
 * Frees one native object that has no reference count: the release action of its Java peer,
 * run at most once, either when the peer is disposed or after it has been collected. It holds
 * the handle only, never the peer.
 */
public abstract class NativeResourceHandle implements Runnable {
    private final long handle;
    private final AtomicBoolean released = new AtomicBoolean();

    protected NativeResourceHandle(long handle) {
        this.handle = handle;
    }

    public final long getHandle() {
        return handle;
    }

    @Override
    public final void run() {
        if (released.compareAndSet(false, true)) {
            deleteNativeHandle(handle);
        }
    }

    /** Frees the native object (called once; a handle of 0 is passed on and does nothing). */
    protected abstract void deleteNativeHandle(long handle);
}
