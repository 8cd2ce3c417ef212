package com.kestrum.tavrel.graph;

import static com.kestrum.tavrel.graph.Checks.notNull;

import com.kestrum.corvel.misc.ManagedObjects;
import com.kestrum.corvel.misc.NativeObject;
import com.kestrum.corvel.nodekits.SoBaseKit;
import com.kestrum.corvel.nodes.SoNode;
import com.kestrum.tavrel.internal.Enums;
import com.kestrum.tavrel.internal.JarInitializer;
import com.kestrum.tavrel.internal.JavaViews;
import com.kestrum.tavrel.misc.callbacks.PoRebuildCB;
import java.util.ArrayList;
import java.util.List;
import java.util.function.LongConsumer;

/**
 * Base of the graph nodes: node kits (axes, curves, legends, charts, shapes) that build their
 * own parts when they are rebuilt.
 *
 * <p>A change of the node ({@link #touchKit}, {@link #setDomain}) marks it modified; with the
 * update method {@link UpdateMethodTypes#UPDATEMETHODIMMEDIATE} the toolkit rebuilds it at once,
 * with {@link UpdateMethodTypes#UPDATEMETHODONACTION} when a traversal next reaches it. A rebuild
 * calls the pre-rebuild callbacks, builds, then calls the post-rebuild callbacks, on the thread
 * that rebuilds the node.
 *
 * <p>Rebuild events reach Java through callback objects ({@link PoRebuildCB}, with user data) or
 * through listeners ({@link #addPreRebuildListener}), which receive the node. Each listener added
 * makes a callback object, whose native bridge (a few bytes) is never freed: add listeners once,
 * or register one callback object on many nodes, rather than adding listeners over and over. This object keeps
 * the callback objects it registered, so that events reach them while it is alive; a native node
 * that outlives its Java object (held by a scene graph) may find them collected, and its events
 * are then dropped. An exception thrown by a listener surfaces from the Java call that made the
 * node rebuild (later events of that call are dropped).
 *
 * <p>A listener may dispose of the node it receives: the Java object is disposed at once, and the
 * native node is let go when the Java call that rebuilt it returns, never while the toolkit is
 * rebuilding it. Later events of that call hand listeners a new view of the node.
 *
 * <p>The Java object is the registered Java object of its native node, so callbacks receive it.
 */
public abstract class PoBase extends SoBaseKit {
    static {
        JarInitializer.init();
        ManagedObjects.registerWrapper(PoBase.class.getName(), View::new);
    }

    /** When the toolkit rebuilds a changed node. */
    public enum UpdateMethodTypes {
        /** At once, when the node changes. */
        UPDATEMETHODIMMEDIATE(JarInitializer.value(UpdateMethodTypes::getUPDATEMETHODIMMEDIATENative)),
        /** When a traversal next reaches the node. */
        UPDATEMETHODONACTION(JarInitializer.value(UpdateMethodTypes::getUPDATEMETHODONACTIONNative));

        private final int value;

        UpdateMethodTypes(int value) {
            this.value = value;
        }

        /** {@return the toolkit's value of the constant} */
        public int getValue() {
            return value;
        }

        /**
         * {@return the constant with the toolkit's value, or null}
         *
         * @param value the toolkit's value
         */
        public static UpdateMethodTypes fromValue(int value) {
            return Enums.fromValue(values(), UpdateMethodTypes::getValue, value);
        }

        private static native int getUPDATEMETHODIMMEDIATENative();

        private static native int getUPDATEMETHODONACTIONNative();
    }

    /** How graph nodes are written to files. */
    public enum NodeWriteFormats {
        /** The toolkit's {@code FOLDNODEWRITEFORMAT}. */
        FOLDNODEWRITEFORMAT(JarInitializer.value(NodeWriteFormats::getFOLDNODEWRITEFORMATNative)),
        /** The toolkit's {@code UNFOLDNODEWRITEFORMAT}. */
        UNFOLDNODEWRITEFORMAT(JarInitializer.value(NodeWriteFormats::getUNFOLDNODEWRITEFORMATNative));

        private final int value;

        NodeWriteFormats(int value) {
            this.value = value;
        }

        /** {@return the toolkit's value of the constant} */
        public int getValue() {
            return value;
        }

        /**
         * {@return the constant with the toolkit's value, or null}
         *
         * @param value the toolkit's value
         */
        public static NodeWriteFormats fromValue(int value) {
            return Enums.fromValue(values(), NodeWriteFormats::getValue, value);
        }

        private static native int getFOLDNODEWRITEFORMATNative();

        private static native int getUNFOLDNODEWRITEFORMATNative();
    }

    /** The kind of text node the graph nodes build. */
    public enum TextTypes {
        /** The toolkit's {@code SOTEXT3}. */
        SOTEXT3(JarInitializer.value(TextTypes::getSOTEXT3Native)),
        /** The toolkit's {@code SOANNOTEXT3}. */
        SOANNOTEXT3(JarInitializer.value(TextTypes::getSOANNOTEXT3Native));

        private final int value;

        TextTypes(int value) {
            this.value = value;
        }

        /** {@return the toolkit's value of the constant} */
        public int getValue() {
            return value;
        }

        /**
         * {@return the constant with the toolkit's value, or null}
         *
         * @param value the toolkit's value
         */
        public static TextTypes fromValue(int value) {
            return Enums.fromValue(values(), TextTypes::getValue, value);
        }

        private static native int getSOTEXT3Native();

        private static native int getSOANNOTEXT3Native();
    }

    /** Receives a rebuild event of a node. */
    @FunctionalInterface
    public interface RebuildListener {
        /**
         * @param node the node being rebuilt: the object the listener was added to while it is not
         *     disposed, else the registered Java object of the node, or a new view of it
         */
        void onRebuild(PoBase node);
    }

    private final Kept<PbDomain> domain = new Kept<>(PbDomain.class, "domain");
    private final List<PoRebuildCB> preCallbacks = new ArrayList<>();
    private final List<PoRebuildCB> postCallbacks = new ArrayList<>();

    /**
     * A Java object for the native graph node at the handle (non-zero); takes a reference on it.
     *
     * @param handle the address of the native object
     */
    protected PoBase(long handle) {
        super(handle);
        registerAsPeer(false);
    }

    /**
     * The graph node that a node object stands for: the node itself when it is a {@code PoBase},
     * else the registered Java object of its native node or a new view of it; null for null.
     *
     * @param node any node object
     * @return the graph node that a node object stands for: the node itself when it is a {@code PoBase}, else
     *     the registered Java object of its native node or a new view of it; null for null
     * @throws IllegalArgumentException when the node is not a graph node
     */
    public static PoBase of(SoNode node) {
        if (node == null || node instanceof PoBase) {
            return (PoBase) node;
        }
        long handle = handleOf(node, "node");
        if (!node.isOfType(getClassTypeName())) {
            throw new IllegalArgumentException("not a graph node: " + node.getTypeName());
        }
        return JavaViews.find(PoBase.class, handle, null);
    }

    /**
     * A new graph node of the toolkit type of that name (a class with a constructor without
     * arguments), made by the toolkit as it makes nodes it reads from a file; the Java object
     * returned holds the only reference on it. Null when the toolkit makes no node of that name.
     *
     * @param typeName the name of the toolkit type
     * @return a new graph node of the toolkit type of that name (a class with a constructor without
     *     arguments), made by the toolkit as it makes nodes it reads from a file; the Java object returned
     *     holds the only reference on it
     * @throws IllegalArgumentException when the type is not a graph node type
     */
    public static PoBase createInstance(String typeName) {
        SoNode made = SoNode.createInstance(notNull(typeName, "typeName"));
        if (made == null || made instanceof PoBase) {
            return (PoBase) made;
        }
        try {
            return of(made);
        } finally {
            made.dispose();
        }
    }

    /**
     * The name of the class's toolkit type.
     *
     * @return the name of the class's toolkit type
     */
    public static String getClassTypeName() {
        return getClassTypeId();
    }

    /**
     * The address of the class's node-kit catalog, which belongs to the toolkit.
     *
     * @return the address of the class's node-kit catalog, which belongs to the toolkit
     */
    public static long getClassNodekitCatalog() {
        return getClassNodekitCatalogImpl();
    }

    // --- process-wide values -------------------------------------------------------------

    /**
     * Sets how every graph node is written to files.
     *
     * @param format how graph nodes are written
     */
    public static void setNodeWriteFormat(NodeWriteFormats format) {
        setNodeWriteFormatImpl(notNull(format, "format").getValue());
    }

    /**
     * How graph nodes are written to files, or null for a value outside the enumeration.
     *
     * @return how graph nodes are written to files, or null for a value outside the enumeration
     */
    public static NodeWriteFormats getNodeWriteFormat() {
        return NodeWriteFormats.fromValue(getNodeWriteFormatImpl());
    }

    /**
     * Sets the kind of text node that every graph node builds.
     *
     * @param type the text type
     */
    public static void setTextType(TextTypes type) {
        setTextTypeImpl(notNull(type, "type").getValue());
    }

    /**
     * The kind of text node graph nodes build, or null for a value outside the enumeration.
     *
     * @return the kind of text node graph nodes build, or null for a value outside the enumeration
     */
    public static TextTypes getTextType() {
        return TextTypes.fromValue(getTextTypeImpl());
    }

    /**
     * Sets whether graph nodes are written in VRML2 mode (a process-wide value).
     *
     * @param flag true for VRML2 mode
     */
    public static void setVRML2Mode(boolean flag) {
        setVRML2ModeImpl(flag);
    }

    /**
     * Whether graph nodes are written in VRML2 mode (a process-wide value).
     *
     * @return whether graph nodes are written in VRML2 mode (a process-wide value)
     */
    public static boolean isVRML2Mode() {
        return isVRML2ModeImpl();
    }

    // --- the node ------------------------------------------------------------------------

    /**
     * Sets when a change rebuilds the node: at once, or at its next traversal.
     *
     * @param method when a change rebuilds the node
     * @throws NullPointerException when method is null
     */
    public void setUpdateMethod(UpdateMethodTypes method) {
        setUpdateMethodImpl(handle(), notNull(method, "method").getValue());
    }

    /**
     * The update method, or null for a value outside the enumeration.
     *
     * @return the update method, or null for a value outside the enumeration
     */
    public UpdateMethodTypes getUpdateMethod() {
        return UpdateMethodTypes.fromValue(getUpdateMethodImpl(handle()));
    }

    /**
     * True when the node has changed since it was last built.
     *
     * @return true when the node has changed since it was last built
     */
    public boolean isModified() {
        return isModifiedImpl(handle());
    }

    /**
     * True once the node has been built.
     *
     * @return true once the node has been built
     */
    public boolean isBuilt() {
        return isBuiltImpl(handle());
    }

    /**
     * Sets the domain the node draws in; null for none. A change of the node (see the class).
     *
     * <p>The node keeps the domain's address, not a copy: later changes of the domain reach it.
     * This object keeps the Java object as long as it is set.
     *
     * @param domain the domain, or null for none
     */
    public void setDomain(PbDomain domain) {
        this.domain.setRebuilding(this, domain, this::setDomainImpl);
    }

    /**
     * The node's domain, or null for none: the Java object set earlier while the node still holds
     * its address, else the registered Java object of that address, else a new view of it.
     *
     * @return the node's domain, or null for none: the Java object set earlier while the node still holds its
     *     address, else the registered Java object of that address, else a new view of it
     */
    public PbDomain getDomain() {
        return domain.get(getDomainImpl(handle()));
    }

    /** Marks the node as changed (see the class). */
    public void touchKit() {
        rebuilding(this::touchKitImpl);
    }

    /** Rebuilds the node now (a node whose class builds nothing stays as it is). */
    public void rebuild() {
        rebuilding(this::rebuildImpl);
    }

    // --- rebuild events ---------------------------------------------------------------------

    /**
     * Registers a callback object for the events before each rebuild, with user data that its
     * listener receives. Null gives the toolkit a null function and null data, which remove the
     * node's pre-rebuild callbacks; this object then stops keeping its pre-rebuild callback
     * objects.
     *
     * @param callback the callback object, or null for none
     * @param userData the user data handed to the callback object with each event
     */
    public void addPreRebuildCallback(PoRebuildCB callback, Object userData) {
        long bridge = handleOrZero(callback, "callback");
        addPreRebuildCallbackImpl(handle(), callback, userData, bridge);
        keep(preCallbacks, callback);
    }

    /**
     * As {@link #addPreRebuildCallback}, for the events after each rebuild.
     *
     * @param callback the callback object, or null for none
     * @param userData the user data handed to the callback object with each event
     */
    public void addPostRebuildCallback(PoRebuildCB callback, Object userData) {
        long bridge = handleOrZero(callback, "callback");
        addPostRebuildCallbackImpl(handle(), callback, userData, bridge);
        keep(postCallbacks, callback);
    }

    /**
     * Calls the listener before each rebuild of the node; returns the callback object made for it
     * (registered and kept like those of {@link #addPreRebuildCallback}).
     *
     * @param listener the listener
     * @return the callback object made for the listener
     */
    public PoRebuildCB addPreRebuildListener(RebuildListener listener) {
        PoRebuildCB callback = callbackFor(listener);
        addPreRebuildCallback(callback, null);
        return callback;
    }

    /**
     * Calls the listener after each rebuild of the node; see {@link #addPreRebuildListener}.
     *
     * @param listener the listener
     * @return the callback object made for the listener
     */
    public PoRebuildCB addPostRebuildListener(RebuildListener listener) {
        PoRebuildCB callback = callbackFor(listener);
        addPostRebuildCallback(callback, null);
        return callback;
    }

    private PoRebuildCB callbackFor(RebuildListener listener) {
        notNull(listener, "listener");
        return new PoRebuildCB((kit, nodeHandle, data) -> listener.onRebuild(JavaViews.find(PoBase.class, nodeHandle,
                this)));
    }

    private void keep(List<PoRebuildCB> kept, PoRebuildCB callback) {
        synchronized (kept) {
            if (callback == null) {
                kept.clear();
            } else {
                kept.add(callback);
            }
        }
    }

    /**
     * Runs a native call with the node's handle during which the node may be rebuilt, and so call
     * Java, holding the node: disposing it from a listener frees the native node only when the
     * call returns. (The traversals of {@link SoNode} hold their node the same way.)
     *
     * @param call the native call, given the receiver's handle
     */
    protected final void rebuilding(LongConsumer call) {
        callHeld(h -> {
            call.accept(h);
            return null;
        });
    }

    /**
     * As {@link #rebuilding(LongConsumer)}, for a call that also takes an optional object (an
     * attribute object, say), held as well for the duration of the call.
     *
     * @param argument the object argument, or null for none
     * @param name the argument's name, for the exception's message
     * @param call the native call, given the receiver's handle and the argument's (0 for null)
     * @throws IllegalStateException when the node or the argument has been disposed
     */
    protected final void rebuilding(NativeObject argument, String name, HandleCall call) {
        callHolding(JavaViews.keepable(argument, name), name, true, (h, a) -> {
            call.call(h, a);
            return null;
        });
    }

    /**
     * The address of an attribute object that a node will keep by address, 0 for null.
     *
     * @throws IllegalStateException when the object has been disposed
     * @throws IllegalArgumentException when it is a view of a traversal's state
     */
    static long keptAddress(NativeObject attribute, String name) {
        return handleOrZero(JavaViews.keepable(attribute, name), name);
    }

    /**
     * As {@link #rebuilding(NativeObject, String, HandleCall)} for a setter of an attribute object
     * kept by address, which runs {@code keep} first.
     */
    final void rebuilding(NativeObject attribute, String name, Runnable keep, Kept.Setter setter) {
        rebuilding(attribute, name, (h, address) -> {
            keep.run();
            setter.set(h, address);
        });
    }

    /** A view of a graph node of a class this package does not know. */
    private static final class View extends PoBase {
        View(long handle) {
            super(handle);
        }
    }

    private static native String getClassTypeId();

    private static native long getClassNodekitCatalogImpl();

    private static native void setNodeWriteFormatImpl(int format);

    private static native int getNodeWriteFormatImpl();

    private static native void setTextTypeImpl(int type);

    private static native int getTextTypeImpl();

    private static native void setVRML2ModeImpl(boolean flag);

    private static native boolean isVRML2ModeImpl();

    private native void setUpdateMethodImpl(long handle, int method);

    private native int getUpdateMethodImpl(long handle);

    private native void setDomainImpl(long handle, long domain);

    private native long getDomainImpl(long handle);

    private native void touchKitImpl(long handle);

    private native boolean isModifiedImpl(long handle);

    private native boolean isBuiltImpl(long handle);

    private native void rebuildImpl(long handle);

    private native void addPreRebuildCallbackImpl(long handle, PoRebuildCB callback, Object userData, long bridge);

    private native void addPostRebuildCallbackImpl(long handle, PoRebuildCB callback, Object userData, long bridge);
}
