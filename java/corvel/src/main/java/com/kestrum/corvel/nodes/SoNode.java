package com.kestrum.corvel.nodes;

import com.kestrum.corvel.SoInput;
import com.kestrum.corvel.actions.SoAction;
import com.kestrum.corvel.actions.SoCallbackAction;
import com.kestrum.corvel.actions.SoDistributeAction;
import com.kestrum.corvel.actions.SoGLRenderAction;
import com.kestrum.corvel.actions.SoGetBoundingBoxAction;
import com.kestrum.corvel.actions.SoGetMatrixAction;
import com.kestrum.corvel.actions.SoGetPrimitiveCountAction;
import com.kestrum.corvel.actions.SoHandleEventAction;
import com.kestrum.corvel.actions.SoPickAction;
import com.kestrum.corvel.actions.SoRayPickAction;
import com.kestrum.corvel.actions.SoSearchAction;
import com.kestrum.corvel.actions.SoWriteAction;
import com.kestrum.corvel.fields.SoField;
import com.kestrum.corvel.misc.Arguments;
import com.kestrum.corvel.misc.CorvelNative;
import com.kestrum.corvel.misc.ManagedObjects;
import com.kestrum.corvel.misc.NativeObject;
import com.kestrum.corvel.misc.Traversals;

/**
 * A scene-graph node. The Java object holds one reference on its native node, taken when the
 * Java object is made and given back when it is disposed or collected; the native node lives
 * while the toolkit or any Java object still references it.
 *
 * <p>The operations that traverse (those taking an action), {@link #copy} and {@link
 * #readInstance} may call back into Java; while they run, disposing the node or the action only
 * marks the Java object disposed, and the native object is let go when the call returns (see
 * {@link NativeObject}).
 *
 * <p>The node's operations below run the toolkit's own implementation. A Java class that
 * extends a toolkit node (see com.kestrum.tavrel.nodes.PoNode) overrides them: the toolkit then
 * calls the Java override, and the override's {@code super} call reaches the toolkit's
 * implementation, never the Java override again.
 *
 * <p>A node traversed by a direct call while a traversal is in progress on the calling thread
 * ({@code node.callback(action)} from a Java node's override, say) is held until that traversal
 * ends (its outermost {@code apply} returns): it may have set elements of the traversal's state,
 * which keep its address and values that live in it, so disposing its Java object meanwhile lets
 * its native object go only then.
 */
public class SoNode extends NativeObject {
    static {
        CorvelNative.ensureLoaded();
        ManagedObjects.registerWrapper("com.kestrum.corvel.nodes.SoNode", SoNode::new);
    }

    /** The rendering modes a node can ask for. */
    public enum RenderModes {
        /** The toolkit's {@code UNKNOWN_RENDERING}. */
        UNKNOWN_RENDERING(0),
        /** The toolkit's {@code COMPATIBILITY_RENDERING}. */
        COMPATIBILITY_RENDERING(1),
        /** The toolkit's {@code CORE_RENDERING}. */
        CORE_RENDERING(2),
        /** The toolkit's {@code ANY_RENDERING}. */
        ANY_RENDERING(3);

        private final int value;

        RenderModes(int value) {
            this.value = value;
        }

        /**
         * The toolkit's value of the mode.
         *
         * @return the toolkit's value of the mode
         */
        public int getValue() {
            return value;
        }

        /**
         * The mode of a toolkit value.
         *
         * @param value the toolkit's value
         * @return the mode of a toolkit value
         */
        public static RenderModes fromValue(int value) {
            for (RenderModes m : values()) {
                if (m.value == value) {
                    return m;
                }
            }
            throw new IllegalArgumentException("No render mode " + value);
        }
    }

    /**
     * Takes a reference on the native node at the handle (non-zero).
     *
     * @param handle the address of the native object
     */
    protected SoNode(long handle) {
        super(handle, new Unref(refNative(handle)));
    }

    /**
     * The Java object for a native node: its Java peer, or a new view; null for 0.
     *
     * @param handle the address of the native object
     * @return the Java object for a native node: its Java peer, or a new view; null for 0
     */
    public static SoNode of(long handle) {
        return handle == 0 ? null : (SoNode) ManagedObjects.get("com.kestrum.corvel.nodes.SoNode", handle);
    }

    /**
     * A new node of the toolkit type of that name, made by the toolkit as it makes nodes it reads
     * from a file: the Java object registered for it (a node of a Java class) or a new view. Null
     * when no type has that name, or the type is not a node type, or it makes no instances (an
     * abstract class).
     *
     * @param typeName the name of the toolkit type
     * @return a new node of the toolkit type of that name, made by the toolkit as it makes nodes it reads
     *     from a file: the Java object registered for it (a node of a Java class) or a new view
     */
    public static SoNode createInstance(String typeName) {
        return of(createInstanceNative(Arguments.notNull(typeName, "typeName")));
    }

    /**
     * The name of the node's toolkit type.
     *
     * @return the name of the node's toolkit type
     */
    public String getTypeName() {
        return getTypeNameNative(handle());
    }

    /**
     * True when the node's toolkit type is the type of that name or derives from it; false for a
     * name that no type has.
     *
     * @param typeName the name of the toolkit type
     * @return true when the node's toolkit type is the type of that name or derives from it; false for a name
     *     that no type has
     */
    public boolean isOfType(String typeName) {
        return isOfTypeNative(handle(), Arguments.notNull(typeName, "typeName"));
    }

    /**
     * The native node's reference count (for inspection).
     *
     * @return the native node's reference count (for inspection)
     */
    public int getRefCount() {
        return getRefCountNative(handle());
    }

    // --- the node's overridable operations --------------------------------------------------

    /** Marks the node as changed. */
    public void touch() {
        touchNative(handle());
    }

    /**
     * The node's name ("" when it has none).
     *
     * @return the node's name ("" when it has none)
     */
    public String getName() {
        return getNameNative(handle());
    }

    /**
     * Names the node.
     *
     * @param name the new name
     * @throws NullPointerException when name is null
     */
    public void setName(String name) {
        Arguments.notNull(name, "name");
        setNameNative(handle(), name);
    }

    /**
     * The name under which the node is written to files (its type name by default).
     *
     * @return the name under which the node is written to files (its type name by default)
     */
    public String getFileFormatName() {
        return getFileFormatNameNative(handle());
    }

    /**
     * Reads the node's fields from the input; true on success.
     *
     * @param in the input to read
     * @param flags the toolkit's reading flags
     * @return true on success
     */
    public boolean readInstance(SoInput in, short flags) {
        // Reading may make nodes of Java classes.
        return callHolding(in, "in", false, (h, input) -> readInstanceNative(h, input, flags));
    }

    /**
     * The node's field of that name, or null.
     *
     * @param name the field's name
     * @return the node's field of that name, or null
     */
    public SoField getField(String name) {
        return field(getFieldNative(handle(), Arguments.notNull(name, "name")));
    }

    /**
     * The node's event-in field of that name, or null.
     *
     * @param name the field's name
     * @return the node's event-in field of that name, or null
     * @throws NullPointerException when name is null
     */
    public SoField getEventIn(String name) {
        return field(getEventInNative(handle(), Arguments.notNull(name, "name")));
    }

    /**
     * The node's event-out field of that name, or null.
     *
     * @param name the field's name
     * @return the node's event-out field of that name, or null
     * @throws NullPointerException when name is null
     */
    public SoField getEventOut(String name) {
        return field(getEventOutNative(handle(), Arguments.notNull(name, "name")));
    }

    /**
     * Sets whether the node's values override those of the nodes after it.
     *
     * @param state true to override
     */
    public void setOverride(boolean state) {
        setOverrideNative(handle(), state);
    }

    /**
     * Whether the node's values override those of the nodes after it.
     *
     * @return whether the node's values override those of the nodes after it
     */
    public boolean isOverride() {
        return isOverrideNative(handle());
    }

    /**
     * A new node of the same type.
     *
     * @param copyConnections whether connections of fields are copied too
     * @return a new node of the same type
     */
    public SoNode copy(boolean copyConnections) {
        // The copy of a Java node's type is made by its Java class.
        return callHeld(h -> of(copyNative(h, copyConnections)));
    }

    /**
     * Whether traversing the node changes the traversal's state.
     *
     * @return whether traversing the node changes the traversal's state
     */
    public boolean affectsState() {
        return affectsStateNative(handle());
    }

    /**
     * Adds a child to a node that keeps children (the toolkit calls it when reading files).
     *
     * @param child the node to add
     */
    protected void internalAddChild(SoNode child) {
        internalAddChildNative(handle(), handleOf(child, "child"));
    }

    /**
     * The node that stands for this one for the action, or null.
     *
     * @param action the action that traverses the node
     * @return the node that stands for this one for the action, or null
     * @throws NullPointerException when the action is null
     */
    public SoNode getAlternateRep(SoAction action) {
        return of(getAlternateRepNative(handle(), handleOf(action, "action")));
    }

    /**
     * Whether bounding-box traversals ignore the node.
     *
     * @return whether bounding-box traversals ignore the node
     */
    public boolean isBoundingBoxIgnoring() {
        return isBoundingBoxIgnoringNative(handle());
    }

    /**
     * Runs one of the node's traversal operations (those taking an action): holds the node and
     * the action until it returns and, while a traversal is in progress on the calling thread,
     * the node until that traversal ends (see the class). The call is a traversal scope of its
     * own: the views of actions, states and elements that it hands to Java stop working when it
     * returns, as the action may be freed then (when its Java object was disposed meanwhile). Subclasses that override an operation
     * with a native call of their own go through here too.
     *
     * @param action the action that traverses the node
     * @param call the native call, given the node's handle and the action's
     * @throws NullPointerException when the action is null
     * @throws IllegalStateException when the node or the action has been disposed
     */
    protected final void traverse(SoAction action, HandleCall call) {
        callWith(action, "action", (node, a) -> {
            Traversals.begin();
            try {
                Traversals.holdWhileTraversing(this);
                call.call(node, a);
            } finally {
                Traversals.end();
            }
        });
    }

    /**
     * The node's part of a traversal by any action.
     *
     * @param action the action that traverses the node
     * @throws NullPointerException when the action is null
     * @throws IllegalStateException when the node or the action has been disposed
     */
    public void doAction(SoAction action) {
        traverse(action, SoNode::doActionNative);
    }

    /**
     * Renders the node.
     *
     * @param action the action that traverses the node
     * @throws NullPointerException when the action is null
     * @throws IllegalStateException when the node or the action has been disposed
     */
    public void GLRender(SoGLRenderAction action) {
        traverse(action, SoNode::GLRenderNative);
    }

    /**
     * The node's part of a callback traversal.
     *
     * @param action the action that traverses the node
     * @throws NullPointerException when the action is null
     * @throws IllegalStateException when the node or the action has been disposed
     */
    public void callback(SoCallbackAction action) {
        traverse(action, SoNode::callbackNative);
    }

    /**
     * Adds the node's bounding box to the action's.
     *
     * @param action the action that traverses the node
     * @throws NullPointerException when the action is null
     * @throws IllegalStateException when the node or the action has been disposed
     */
    public void getBoundingBox(SoGetBoundingBoxAction action) {
        traverse(action, SoNode::getBoundingBoxNative);
    }

    /**
     * Adds the node's transformation to the action's matrix.
     *
     * @param action the action that traverses the node
     * @throws NullPointerException when the action is null
     * @throws IllegalStateException when the node or the action has been disposed
     */
    public void getMatrix(SoGetMatrixAction action) {
        traverse(action, SoNode::getMatrixNative);
    }

    /**
     * Lets the node handle the action's event.
     *
     * @param action the action that traverses the node
     * @throws NullPointerException when the action is null
     * @throws IllegalStateException when the node or the action has been disposed
     */
    public void handleEvent(SoHandleEventAction action) {
        traverse(action, SoNode::handleEventNative);
    }

    /**
     * The node's part of a pick traversal.
     *
     * @param action the action that traverses the node
     * @throws NullPointerException when the action is null
     * @throws IllegalStateException when the node or the action has been disposed
     */
    public void pick(SoPickAction action) {
        traverse(action, SoNode::pickNative);
    }

    /**
     * The node's part of a ray pick.
     *
     * @param action the action that traverses the node
     * @throws NullPointerException when the action is null
     * @throws IllegalStateException when the node or the action has been disposed
     */
    public void rayPick(SoRayPickAction action) {
        traverse(action, SoNode::rayPickNative);
    }

    /**
     * The node's part of a search traversal.
     *
     * @param action the action that traverses the node
     * @throws NullPointerException when the action is null
     * @throws IllegalStateException when the node or the action has been disposed
     */
    public void search(SoSearchAction action) {
        traverse(action, SoNode::searchNative);
    }

    /**
     * Writes the node into the action's output.
     *
     * @param action the action that traverses the node
     * @throws NullPointerException when the action is null
     * @throws IllegalStateException when the node or the action has been disposed
     */
    public void write(SoWriteAction action) {
        traverse(action, SoNode::writeNative);
    }

    /**
     * Counts the node's primitives into the action.
     *
     * @param action the action that traverses the node
     * @throws NullPointerException when the action is null
     * @throws IllegalStateException when the node or the action has been disposed
     */
    public void getPrimitiveCount(SoGetPrimitiveCountAction action) {
        traverse(action, SoNode::getPrimitiveCountNative);
    }

    /**
     * The node's part of a distribute traversal.
     *
     * @param action the action that traverses the node
     * @throws NullPointerException when the action is null
     * @throws IllegalStateException when the node or the action has been disposed
     */
    public void distribute(SoDistributeAction action) {
        traverse(action, SoNode::distributeNative);
    }

    /**
     * Renders the node when it lies below the action's path.
     *
     * @param action the action that traverses the node
     * @throws NullPointerException when the action is null
     * @throws IllegalStateException when the node or the action has been disposed
     */
    public void GLRenderBelowPath(SoGLRenderAction action) {
        traverse(action, SoNode::GLRenderBelowPathNative);
    }

    /**
     * Renders the node when it lies on the action's path.
     *
     * @param action the action that traverses the node
     * @throws NullPointerException when the action is null
     * @throws IllegalStateException when the node or the action has been disposed
     */
    public void GLRenderInPath(SoGLRenderAction action) {
        traverse(action, SoNode::GLRenderInPathNative);
    }

    /**
     * Renders the node when it is off the action's path.
     *
     * @param action the action that traverses the node
     * @throws NullPointerException when the action is null
     * @throws IllegalStateException when the node or the action has been disposed
     */
    public void GLRenderOffPath(SoGLRenderAction action) {
        traverse(action, SoNode::GLRenderOffPathNative);
    }

    /** Called by the toolkit when the node starts grabbing events. */
    public void grabEventsSetup() {
        grabEventsSetupNative(handle());
    }

    /** Called by the toolkit when the node stops grabbing events. */
    public void grabEventsCleanup() {
        grabEventsCleanupNative(handle());
    }

    /**
     * The identifier of the render unit the node belongs to.
     *
     * @return the identifier of the render unit the node belongs to
     */
    public int getRenderUnitID() {
        return getRenderUnitIDNative(handle());
    }

    /**
     * The rendering mode the node asks for.
     *
     * @return the rendering mode the node asks for
     */
    public RenderModes getRenderEngineMode() {
        return RenderModes.fromValue(getRenderEngineModeNative(handle()));
    }

    private static SoField field(long handle) {
        return handle == 0 ? null : (SoField) ManagedObjects.get("com.kestrum.corvel.fields.SoField", handle);
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

    private static native long createInstanceNative(String typeName);

    private static native boolean isOfTypeNative(long handle, String typeName);

    private static native void touchNative(long handle);

    private static native String getNameNative(long handle);

    private static native void setNameNative(long handle, String name);

    private static native String getFileFormatNameNative(long handle);

    private static native boolean readInstanceNative(long handle, long input, short flags);

    private static native long getFieldNative(long handle, String name);

    private static native long getEventInNative(long handle, String name);

    private static native long getEventOutNative(long handle, String name);

    private static native void setOverrideNative(long handle, boolean state);

    private static native boolean isOverrideNative(long handle);

    private static native long copyNative(long handle, boolean copyConnections);

    private static native boolean affectsStateNative(long handle);

    private static native void internalAddChildNative(long handle, long child);

    private static native long getAlternateRepNative(long handle, long action);

    private static native boolean isBoundingBoxIgnoringNative(long handle);

    private static native void doActionNative(long handle, long action);

    private static native void GLRenderNative(long handle, long action);

    private static native void callbackNative(long handle, long action);

    private static native void getBoundingBoxNative(long handle, long action);

    private static native void getMatrixNative(long handle, long action);

    private static native void handleEventNative(long handle, long action);

    private static native void pickNative(long handle, long action);

    private static native void rayPickNative(long handle, long action);

    private static native void searchNative(long handle, long action);

    private static native void writeNative(long handle, long action);

    private static native void getPrimitiveCountNative(long handle, long action);

    private static native void distributeNative(long handle, long action);

    private static native void GLRenderBelowPathNative(long handle, long action);

    private static native void GLRenderInPathNative(long handle, long action);

    private static native void GLRenderOffPathNative(long handle, long action);

    private static native void grabEventsSetupNative(long handle);

    private static native void grabEventsCleanupNative(long handle);

    private static native int getRenderUnitIDNative(long handle);

    private static native int getRenderEngineModeNative(long handle);
}
