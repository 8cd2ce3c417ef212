package com.kestrum.tavrel.graph;

import com.kestrum.corvel.misc.NativeObject;
import com.kestrum.tavrel.internal.JarInitializer;

/**
 * Base of the graph attribute objects: domains, data mappings, isovalue lists, text attributes,
 * numeric and date formats. Graph nodes and mesh representations take them by address and keep
 * that address; they neither copy nor free them.
 *
 * <p>Ownership: a native attribute object is never freed. Disposing of its Java object (or
 * letting it be collected) only releases the Java handle, so a node that still uses the object
 * goes on working with it, and a getter of such a node hands back a new Java view of it. The
 * price is a small native object per attribute object made, kept for the rest of the process:
 * reuse attribute objects rather than making one per change.
 *
 * <p>An attribute object made by a constructor of this package is the registered Java object of
 * its native object (until it is disposed), so node getters give back that same object.
 *
 * <p>Like the toolkit objects they stand for, these objects are not thread-safe.
 */
public abstract class PbBase extends NativeObject {
    static {
        JarInitializer.init();
    }

    /**
     * A view of a native attribute object made elsewhere (non-zero handle).
     *
     * @param handle the address of the native object
     */
    protected PbBase(long handle) {
        super(handle);
    }

    /**
     * The Java object of an attribute object that a constructor function of this package has
     * just made: disposing of it releases the handle through {@link NativeResourceHandle}, which
     * frees nothing.
     */
    PbBase(NativeResourceHandle made) {
        super(made.getHandle(), made);
        registerAsPeer(false);
    }

    /** The release of a new native object's handle. */
    static NativeResourceHandle made(long handle) {
        return new NativeResourceHandle(handle);
    }

    /**
     * Sets the connection flag: with it (the default) the nodes that use this object follow its
     * changes when a traversal next reaches them.
     *
     * @param flag true to switch it on, false to switch it off
     */
    public void enableConnection(boolean flag) {
        enableConnectionImpl(handle(), flag);
    }

    /**
     * Whether nodes that use this object are rebuilt when it changes.
     *
     * @return whether nodes that use this object are rebuilt when it changes
     */
    public boolean isConnectionEnabled() {
        return isConnectionEnabledImpl(handle());
    }

    /** Tells the toolkit that the object has changed. */
    public void touch() {
        touchImpl(handle());
    }

    private native void enableConnectionImpl(long handle, boolean flag);

    private native boolean isConnectionEnabledImpl(long handle);

    private native void touchImpl(long handle);

    /**
     * The release of an attribute object's Java handle: it frees nothing, since nodes may still
     * use the native object.
     */
    static final class NativeResourceHandle extends com.kestrum.tavrel.internal.NativeResourceHandle {
        static {
            JarInitializer.init();
        }

        NativeResourceHandle(long handle) {
            super(handle);
        }

        @Override
        protected void deleteNativeHandle(long handle) {
            deleteNativeHandleImpl(handle);
        }

        private static native void deleteNativeHandleImpl(long handle);
    }
}
