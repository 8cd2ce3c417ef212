package com.kestrum.tavrel.data;

import com.kestrum.corvel.misc.NativeObject;
import com.kestrum.tavrel.internal.JarInitializer;

/**
 * Tells the fault-mesh computation which values of a mesh are defined: this one says that every
 * value is defined, and gives 0 as the value that stands for an undefined one. The native
 * object is freed when this object is disposed or collected.
 */
public class PbDefinedValue extends NativeObject {
    static {
        JarInitializer.init();
    }

    /** An empty list of defined values. */
    public PbDefinedValue() {
        this(ctorImpl());
    }

    private PbDefinedValue(long handle) {
        super(handle, new NativeResourceHandle(handle));
    }

    /**
     * The value that stands for an undefined value of set i.
     *
     * @param i the index
     * @return the value that stands for an undefined value of set i
     */
    public float getUndef(int i) {
        return getUndefImpl(handle(), i);
    }

    private static native long ctorImpl();

    private native float getUndefImpl(long handle, int i);

    /** Frees a native {@code PbDefinedValue}. */
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
