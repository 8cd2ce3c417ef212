package com.kestrum.corvel.nodes;

import com.kestrum.corvel.misc.CorvelNative;
import com.kestrum.corvel.misc.ManagedObjects;
import com.kestrum.corvel.misc.NativeObject;

/**
 * A scene-graph node. The Java object holds one reference on its native node, taken when the
 * Java object is made and given back when it is disposed or collected; the native node lives
 * while the toolkit or any Java object still references it.
 */
public class SoNode extends NativeObject {
    static {
        CorvelNative.ensureLoaded();
        ManagedObjects.registerWrapper("com.kestrum.corvel.nodes.SoNode", SoNode::new);
    }

    /** The rendering modes a node can ask for. */
    public enum RenderModes {
        UNKNOWN_RENDERING(0),
        COMPATIBILITY_RENDERING(1),
        CORE_RENDERING(2),
        ANY_RENDERING(3);

        private final int value;

        RenderModes(int value) {
            this.value = value;
        }

        /** The toolkit's value of the mode. */
        public int getValue() {
            return value;
        }
    }

    /** Takes a reference on the native node at the handle (non-zero). */
    protected SoNode(long handle) {
        super(handle, new Unref(refNative(handle)));
    }

    /** The name of the node's toolkit type. */
    public String getTypeName() {
        return getTypeNameNative(handle());
    }

    /** The native node's reference count (for inspection). */
    public int getRefCount() {
        return getRefCountNative(handle());
    }

    /** Gives back the reference of a Java object that is gone or disposed. */
    private static final class Unref implements Runnable {
        private final long handle;

        Unref(long handle) {
            this.handle = handle;
        }

        @Override
        public void run() {
            unrefNative(handle);
        }
    }

    private static native long refNative(long handle);

    private static native void unrefNative(long handle);

    private static native int getRefCountNative(long handle);

    private static native String getTypeNameNative(long handle);
}
