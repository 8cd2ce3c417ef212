package com.kestrum.tavrel.elements;

import com.kestrum.corvel.elements.SoReplacedElement;
import com.kestrum.corvel.misc.ManagedObjects;
import com.kestrum.corvel.misc.NativeObject;
import com.kestrum.corvel.misc.SoState;
import com.kestrum.corvel.misc.Traversals;
import com.kestrum.corvel.nodes.SoNode;
import com.kestrum.tavrel.internal.JavaViews;
import java.util.function.LongFunction;

/**
 * The shapes that the static methods of the thirteen element classes share.
 *
 * <p>Their native calls may reach Java: the state makes an element on first use (an object of a
 * Java element class whose type is enabled, whose {@code init} then runs) and pushes one at a
 * deeper depth (its {@code push} runs), and such an override may dispose anything. So each call
 * holds its object arguments (state, node, value) until it returns, and a set holds its value
 * until the traversal ends, as the state keeps only its address.
 *
 * <p>The values that live inside the node that set the element (a property node's attribute
 * object, a mesh node's mesh) come back as views tied to the traversal: disposed when it ends,
 * while that node is held until then, so that neither the node's Java object being disposed nor
 * the element being given another node frees the value under the view. A Java object already
 * registered for the value (one the caller made, a mesh node's own view of its mesh, a view
 * handed out earlier in the same traversal) is returned as it is.
 *
 * <p>This class extends the element base only to reach the holds of {@link NativeObject}; it has
 * no objects.
 */
abstract class ElementCalls extends SoReplacedElement {
    private ElementCalls() {
        super(0, null);
    }

    /** A native set, given the handles of the state, the node and the value (0 for null). */
    @FunctionalInterface
    interface SetCall {
        void call(long state, long node, long value);
    }

    /**
     * A native get of a value that lives in a node: its address, and the address of the node
     * that set it (0 for none) in element 0 of the array.
     */
    @FunctionalInterface
    interface ValueCall {
        long call(long state, long[] node);
    }

    /**
     * Sets an element: holds the state, the node and the value for the native call, and the value
     * until the traversal ends.
     *
     * @param value the value given, or null (null too for the elements whose value is not an object)
     * @param valueName the value's name, for the exceptions
     * @throws NullPointerException when state is null
     * @throws IllegalStateException when the state's traversal is over or an object given has been
     *     disposed
     */
    static void set(SoState state, SoNode node, NativeObject value, String valueName, SetCall call) {
        long s = enter(state, "state");
        try {
            long n = enterOrZero(node, "node");
            try {
                long v = enterOrZero(value, valueName);
                try {
                    Traversals.hold(value, valueName);
                    call.call(s, n, v);
                } finally {
                    leaveIfAny(value);
                }
            } finally {
                leaveIfAny(node);
            }
        } finally {
            leave(state);
        }
    }

    /**
     * A native call on the state that may make the element: holds the state for the call.
     *
     * @throws NullPointerException when state is null
     * @throws IllegalStateException when the state's traversal is over
     */
    static <R> R read(SoState state, LongFunction<R> call) {
        long s = enter(state, "state");
        try {
            return call.apply(s);
        } finally {
            leave(state);
        }
    }

    /**
     * The value of an element that lives in the node that set it, as a view tied to the
     * traversal (see the class); null for none.
     */
    static <T extends NativeObject> T valueOf(Class<T> type, SoState state, ValueCall call) {
        long[] node = new long[1];
        long address = read(state, s -> call.call(s, node));
        if (address == 0) {
            return null;
        }
        holdUntilTheTraversalEnds(node[0]);
        Object known = ManagedObjects.peerOf(address);
        if (type.isInstance(known) && !((NativeObject) known).isDisposed()) {
            return type.cast(known);
        }
        T made = JavaViews.find(type, address, null);
        return made == null ? null : Traversals.own(made);
    }

    /**
     * Keeps the native node at the address (live now: the state's element references it) until
     * the traversal ends: its registered Java object is held, or a new view of it (which takes a
     * reference) is disposed then.
     */
    private static void holdUntilTheTraversalEnds(long node) {
        if (node == 0) {
            return;
        }
        SoNode owner = SoNode.of(node);
        if (owner == ManagedObjects.peerOf(node)) {
            Traversals.hold(owner, "node");
        } else {
            Traversals.own(owner);
        }
    }

    private static long enterOrZero(NativeObject argument, String name) {
        return argument == null ? 0 : enter(argument, name);
    }

    private static void leaveIfAny(NativeObject argument) {
        if (argument != null) {
            leave(argument);
        }
    }
}
