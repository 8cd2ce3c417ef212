package com.kestrum.tavrel.nodes;

import com.kestrum.corvel.actions.SoAction;
import com.kestrum.corvel.actions.SoCallbackAction;
import com.kestrum.corvel.actions.SoGLRenderAction;
import com.kestrum.corvel.actions.SoGetBoundingBoxAction;
import com.kestrum.corvel.actions.SoGetMatrixAction;
import com.kestrum.corvel.actions.SoGetPrimitiveCountAction;
import com.kestrum.corvel.actions.SoHandleEventAction;
import com.kestrum.corvel.actions.SoPickAction;
import com.kestrum.corvel.actions.SoSearchAction;
import com.kestrum.corvel.actions.SoWriteAction;
import com.kestrum.corvel.nodes.SoNode;
import com.kestrum.tavrel.internal.JarInitializer;

/**
 * A scene-graph node written in Java. Subclass it and override the operations of
 * {@link SoNode} you need (most often {@link #doAction}, {@link #GLRender}, {@link #callback},
 * {@link #getBoundingBox}...): when the toolkit traverses the node, it calls the override. An
 * override that calls {@code super} gets the toolkit's own behaviour of the node (traversing
 * its children, writing it, ...).
 *
 * <p>{@code doAction} has no toolkit behaviour: called on a class that does not override it, it
 * throws an {@link UnsupportedOperationException} (caused by the toolkit's
 * {@link IllegalAccessException}), and every generic action that reaches such a node fails with
 * an {@link IllegalArgumentException} caused by that exception.
 *
 * <p>Each Java class gets a toolkit type of its own, named by the constructor's
 * {@code typeName} or, by default, after the class's simple name; the first object of the
 * class creates it. The toolkit can make further objects of a class that has a constructor
 * without arguments from the type alone (copying a node, reading a file).
 *
 * <p>An exception thrown by an override that the toolkit called reaches the Java caller of the
 * action as an {@link IllegalArgumentException} "Exception raised during execution of
 * CustomPoNode.&lt;operation&gt;." with the exception as its cause; the rest of that traversal
 * no longer calls Java.
 *
 * <p>An override may dispose its node, or the action, while the toolkit is using them: the Java
 * object is disposed at once, and the native one is let go when the Java call that started the
 * traversal ({@code apply}, or a node operation called directly) returns.
 *
 * <p>The toolkit may call a node as long as it references it, so a node stays reachable (it is
 * not collected) until it is disposed: dispose nodes you no longer need, e.g. with
 * try-with-resources. {@link #getRenderEngineMode()} is asked once, while the object is being
 * made, so an override must not rely on the subclass's fields.
 */
public abstract class PoNode extends SoNode {
    static {
        JarInitializer.init();
        nativeDerivedClassInit();
    }

    private static final CustomTypes.Natives NATIVES = new CustomTypes.Natives() {
        @Override
        public void initCustomClass(PoNode node, long handle, boolean create, String typeName) {
            node.initCustomClass(handle, node, create, typeName);
        }

        @Override
        public void initCustomRenderEngineMode(PoNode node, long handle) {
            node.initCustomRenderEngineMode(handle);
        }
    };

    /** A node whose toolkit type is named after the class's simple name. */
    protected PoNode() {
        this(null);
    }

    /**
     * A node whose class has the toolkit type {@code typeName}.
     *
     * @param typeName the name of the toolkit type
     * @throws IllegalArgumentException when another class has that type name, when the class
     *     already has another one, or when an anonymous class gives none
     */
    protected PoNode(String typeName) {
        this(ctorImpl(), typeName, NATIVES);
    }

    PoNode(long handle, String typeName, CustomTypes.Natives natives) {
        super(handle);
        registerAsPeer(true);  // the native node calls this object until it is disposed
        CustomTypes.bind(this, handle, typeName, natives);
    }

    /**
     * Makes a native call that may call this node's Java overrides, holding the node meanwhile:
     * an override that disposes the node (even while it is being made) lets go of the native
     * node only when the call has returned.
     */
    final void whileHeld(Runnable call) {
        callHeld(h -> {
            call.run();
            return null;
        });
    }

    /**
     * The name of the toolkit type of PoNode (the base of every Java node's type).
     *
     * @return the name of the toolkit type of PoNode (the base of every Java node's type)
     */
    public static String getClassTypeName() {
        return getClassTypeId();
    }

    /**
     * The node's part of a traversal by any action. The toolkit's {@code PoNode} has none: a Java
     * class that does not override this method cannot be traversed by a generic action.
     *
     * @param action the action that traverses the node
     * @throws UnsupportedOperationException when the class does not override it (the toolkit's
     *     refusal, an {@link IllegalAccessException}, is the cause)
     * @throws NullPointerException when the action is null
     * @throws IllegalStateException when the node or the action has been disposed
     */
    @Override
    public void doAction(SoAction action) {
        traverse(action, (h, a) -> ToolkitRefusals.unlessRefused("PoNode.doAction", () -> {
            doActionImpl(h, a);
            return null;
        }));
    }

    @Override
    public void GLRender(SoGLRenderAction action) {
        traverse(action, this::GLRenderImpl);
    }

    @Override
    public void callback(SoCallbackAction action) {
        traverse(action, this::callbackImpl);
    }

    @Override
    public void getBoundingBox(SoGetBoundingBoxAction action) {
        traverse(action, this::getBoundingBoxImpl);
    }

    @Override
    public void getMatrix(SoGetMatrixAction action) {
        traverse(action, this::getMatrixImpl);
    }

    @Override
    public void handleEvent(SoHandleEventAction action) {
        traverse(action, this::handleEventImpl);
    }

    @Override
    public void pick(SoPickAction action) {
        traverse(action, this::pickImpl);
    }

    @Override
    public void search(SoSearchAction action) {
        traverse(action, this::searchImpl);
    }

    @Override
    public void write(SoWriteAction action) {
        traverse(action, this::writeImpl);
    }

    @Override
    public void getPrimitiveCount(SoGetPrimitiveCountAction action) {
        traverse(action, this::getPrimitiveCountImpl);
    }

    private static native long ctorImpl();

    private static native String getClassTypeId();

    private static native void nativeDerivedClassInit();

    private native void initCustomClass(long handle, Object peer, boolean create, String typeName);

    private native void initCustomRenderEngineMode(long handle);

    private native void doActionImpl(long handle, long action) throws IllegalAccessException;

    private native void callbackImpl(long handle, long action);

    private native void GLRenderImpl(long handle, long action);

    private native void getBoundingBoxImpl(long handle, long action);

    private native void getMatrixImpl(long handle, long action);

    private native void handleEventImpl(long handle, long action);

    private native void pickImpl(long handle, long action);

    private native void searchImpl(long handle, long action);

    private native void writeImpl(long handle, long action);

    private native void getPrimitiveCountImpl(long handle, long action);
}
