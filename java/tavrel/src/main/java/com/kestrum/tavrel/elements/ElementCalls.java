package com.kestrum.tavrel.elements;

import com.kestrum.corvel.elements.SoReplacedElement;
import com.kestrum.corvel.misc.ManagedObjects;
import com.kestrum.corvel.misc.NativeObject;
import com.kestrum.corvel.misc.SoState;
import com.kestrum.corvel.misc.Traversals;
import com.kestrum.corvel.nodes.SoNode;
import com.kestrum.tavrel.internal.JavaViews;
import java.util.function.LongFunction;
import java.util.function.LongUnaryOperator;

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
 * object, a mesh node's mesh) come back as views tied to the traversal, disposed when its apply
 * returns. The node that set the element lives at least that long: a node of the scene being
 * applied is referenced by the scene, whose root the apply holds, and a node traversed by a
 * direct call ({@code node.callback(action)} from a Java node's override) is held by that call
 * until the traversal ends. A live Java object already registered for the value (one given to a
 * set, a mesh node's own view of its mesh, a view returned earlier in the traversal) is returned
 * as it is. The tied views are refused by whatever keeps a mesh's address beyond the call (see
 * {@code MeshViews.keepable}).
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
     * The value of an element that lives in the node that set it (see the class): the live Java
     * object registered for its address, else a view disposed when the traversal ends; null for
     * none.
     *
     * @param call the native get, given the state's handle, giving the value's address
     */
    static <T extends NativeObject> T valueOf(Class<T> type, SoState state, LongUnaryOperator call) {
        long s = enter(state, "state");
        long address;
        try {
            address = call.applyAsLong(s);
        } finally {
            leave(state);
        }
        if (address == 0) {
            return null;
        }
        Object known = ManagedObjects.peerOf(address);
        if (type.isInstance(known) && !((NativeObject) known).isDisposed()) {
            return type.cast(known);
        }
        T made = JavaViews.find(type, address, null);
        return made == null ? null : Traversals.own(made);
    }

    /**
     * Whether the element being made now is the copy that {@code copyMatchInfo} has the toolkit
     * make (see {@link ElementTypes#ownership}); reads and clears the mark.
     */
    static boolean madeAsCopyOfAnElement() {
        return madeAsCopy();
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
