package com.kestrum.corvel.actions;

import com.kestrum.corvel.misc.Arguments;
import com.kestrum.corvel.misc.CorvelNative;
import com.kestrum.corvel.misc.ManagedObjects;
import com.kestrum.corvel.misc.NativeObject;
import com.kestrum.corvel.misc.SoState;
import com.kestrum.corvel.misc.Traversals;
import com.kestrum.corvel.nodes.SoNode;
import java.util.function.LongFunction;

/**
 * A traversal of a scene graph. Applying an action to a node calls the node's operation of the
 * action's kind ({@code GLRender} for an {@link SoGLRenderAction}, ...), which traverses further
 * as the node decides.
 *
 * <p>An action made in Java is owned by its Java object and freed when it is disposed; while it
 * lives, nodes that the action traverses receive this very Java object. Actions made by the
 * toolkit, and an action whose Java object has been disposed during its own traversal, reach
 * Java as views that do not own them; a view handed out during a traversal stops working
 * ({@link IllegalStateException}) when that traversal's apply returns.
 */
public class SoAction extends NativeObject {
    static {
        CorvelNative.ensureLoaded();
        registerViews("com.kestrum.corvel.actions.SoAction", SoAction::new);
    }

    /**
     * Registers the views of an action class: the Java objects of native actions that the
     * toolkit hands to Java without a live Java object registered for them (the action of a
     * traversal whose own Java object an override has disposed, an action the toolkit made). A
     * view made during a traversal stops working when the traversal's apply returns
     * ({@link Traversals#own}), since the action may be freed then; one made outside a traversal
     * stays usable.
     *
     * @param dottedClassName the class's name
     * @param make makes a view of the action at an address
     */
    static void registerViews(String dottedClassName, LongFunction<? extends SoAction> make) {
        ManagedObjects.registerWrapper(dottedClassName, address -> {
            SoAction view = make.apply(address);
            return Traversals.isActive() ? Traversals.own(view) : view;
        });
    }

    /**
     * A view of a native action owned elsewhere.
     *
     * @param handle the address of the native object
     */
    protected SoAction(long handle) {
        super(handle);
    }

    /**
     * A new native action of the toolkit class named like the Java class, owned by this object.
     *
     * @param javaClassName the name of the Java class that makes the object
     */
    protected SoAction(String javaClassName) {
        this(newAction(javaClassName));
    }

    private SoAction(long[] owned) {
        super(owned[0], releaseWith(SoAction::deleteNative, owned[0]));
        registerAsPeer(false);
    }

    private static long[] newAction(String javaClassName) {
        long handle = newActionNative(Arguments.notNull(javaClassName, "javaClassName"));
        if (handle == 0) {
            throw new IllegalArgumentException("No toolkit action named " + javaClassName);
        }
        return new long[] {handle};
    }

    /**
     * Applies the action to the scene graph under {@code node}. Disposing the action or the node
     * during the traversal (from a Java node or a listener) lets go of them once it is over.
     *
     * @param node the node to traverse
     */
    public void apply(SoNode node) {
        Traversals.begin();
        try {
            callWith(node, "node", SoAction::applyNative);
        } finally {
            Traversals.end();
        }
    }

    /**
     * The state of the traversal in progress, for the Java code that the traversal calls (a Java
     * node's override, for instance). It is disposed when that traversal's apply returns.
     *
     * @return the state, or null outside apply and on a thread other than the applying one
     * @throws IllegalStateException when the action has been disposed
     */
    public SoState getState() {
        long state = getStateNative(handle());
        if (state == 0 || !Traversals.isActive()) {
            return null;
        }
        return (SoState) ManagedObjects.get("com.kestrum.corvel.misc.SoState", state);
    }

    /**
     * Makes the states of every action from now on make the elements of a stack index with the
     * toolkit type of that name (a Java element class's type, for instance), instead of the type
     * that created the index.
     *
     * @param typeName the element type's name
     * @param stackIndex the stack index
     * @return false, changing nothing, when no element type of that name derives from the type
     *     that created the index (or the index is unknown)
     * @throws NullPointerException when typeName is null
     */
    public static boolean enableElement(String typeName, int stackIndex) {
        return enableElementNative(Arguments.notNull(typeName, "typeName"), stackIndex);
    }

    /**
     * The number of nodes this action has traversed since it was made.
     *
     * @return the number of nodes this action has traversed since it was made
     */
    public int getNodesTraversed() {
        return getNodesTraversedNative(handle());
    }

    private static native long newActionNative(String javaClassName);

    private static native void deleteNative(long handle);

    private static native void applyNative(long handle, long node);

    private static native int getNodesTraversedNative(long handle);

    private static native long getStateNative(long handle);

    private static native boolean enableElementNative(String typeName, int stackIndex);
}
