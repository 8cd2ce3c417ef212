package com.kestrum.corvel.misc;

import java.util.ArrayDeque;
import java.util.ArrayList;
import java.util.Collections;
import java.util.Deque;
import java.util.IdentityHashMap;
import java.util.List;
import java.util.Set;

/**
 * The traversals in progress on the calling thread: one scope per {@code SoAction.apply} and per
 * node operation called from Java ({@code node.GLRender(action)}, an override's {@code super}
 * call), each inside the scope in progress. A traversal's state and the elements it makes live
 * only until its apply returns, and an action disposed during a call lives until that call
 * returns, so the Java views of states, elements and actions are tied to the scope in which they
 * were made and are disposed when it ends (sooner than needed, at worst). Objects that a traversal uses
 * by address (attribute objects and meshes given to an element, nodes that a direct call
 * inside the traversal lets set an element) are held until the outermost scope of the thread
 * ends: an inner apply may end before the state that was given them.
 *
 * <p>A view made on a thread without a scope (the state of another thread's traversal, for
 * instance) is disposed at once: its methods throw {@link IllegalStateException}.
 */
public final class Traversals {
    private static final ThreadLocal<Deque<Scope>> SCOPES = ThreadLocal.withInitial(ArrayDeque::new);
    /**
     * The views tied to a scope of any thread, until their scope ends (a view may be handed to
     * another thread meanwhile).
     */
    private static final Set<NativeObject> TIED = Collections.synchronizedSet(
            Collections.newSetFromMap(new IdentityHashMap<>()));

    /** What one apply or direct node operation made and holds (each list made on first use). */
    private static final class Scope {
        List<NativeObject> views;
        List<NativeObject> held;
        /** The objects held by {@link #holdWhileTraversing}, once each. */
        Set<NativeObject> traversed;

        void view(NativeObject view) {
            if (views == null) {
                views = new ArrayList<>();
            }
            views.add(view);
        }

        void hold(NativeObject object) {
            if (held == null) {
                held = new ArrayList<>();
            }
            held.add(object);
        }

        boolean traversing(NativeObject object) {
            if (traversed == null) {
                traversed = Collections.newSetFromMap(new IdentityHashMap<>());
            }
            return !traversed.add(object);
        }
    }

    private Traversals() {}

    /**
     * Opens the scope of a traversal on the calling thread; {@link #end()} must follow in a
     * finally block.
     */
    public static void begin() {
        SCOPES.get().push(new Scope());
    }

    /**
     * Closes the innermost scope of the calling thread: disposes the views made in it and lets go
     * of the objects it held. Does nothing without a scope.
     */
    public static void end() {
        Scope scope = SCOPES.get().poll();
        if (scope == null) {
            return;
        }
        if (scope.views != null) {
            for (NativeObject view : scope.views) {
                TIED.remove(view);
                view.dispose();
            }
        }
        if (scope.held != null) {
            for (NativeObject object : scope.held) {
                object.leave();
            }
        }
        if (scope.traversed != null) {
            for (NativeObject object : scope.traversed) {
                object.leave();
            }
        }
    }

    /**
     * Whether a traversal is in progress on the calling thread.
     *
     * @return true inside an apply
     */
    public static boolean isActive() {
        return !SCOPES.get().isEmpty();
    }

    /**
     * Ties a view to the innermost scope of the calling thread: it is disposed when the scope
     * ends, or at once when there is no scope.
     *
     * @param view the view of a native object that lives no longer than the traversal
     * @param <T> the view's class
     * @return the view
     * @throws NullPointerException when view is null
     */
    public static <T extends NativeObject> T own(T view) {
        Arguments.notNull(view, "view");
        Scope scope = SCOPES.get().peek();
        if (scope == null) {
            view.dispose();
        } else {
            scope.view(view);
            TIED.add(view);
        }
        return view;
    }

    /**
     * Whether the object is a view tied to a traversal that has not ended yet ({@link #own}), on
     * any thread: it stops working when that traversal ends, so nothing that outlives the
     * traversal may keep it.
     *
     * @param object the object, or null
     * @return true for a view of a traversal in progress; false for null and for any other object
     */
    public static boolean isTiedToTraversal(NativeObject object) {
        return object != null && TIED.contains(object);
    }

    /**
     * Holds a node traversed by a direct call inside a traversal ({@code node.callback(action)}
     * from a Java node's override) until the outermost scope of the calling thread ends: the node
     * may set elements of the traversal's state by address, and the state references it only
     * while its element names it. Holds each object once per scope; does nothing without a
     * traversal in progress on the calling thread.
     *
     * @param object the object, live (held by the call that traverses it)
     * @throws IllegalStateException when the object has been disposed
     */
    public static void holdWhileTraversing(NativeObject object) {
        Scope outermost = SCOPES.get().peekLast();
        if (outermost == null || outermost.traversing(object)) {
            return;
        }
        try {
            NativeObject.enter(object, "node");
        } catch (RuntimeException e) {
            outermost.traversed.remove(object);
            throw e;
        }
    }

    /**
     * Holds an object until the outermost scope of the calling thread ends, as a native call
     * holds its arguments: its native object is not let go meanwhile, even if it is disposed.
     * Does nothing for null.
     *
     * @param object the object, or null
     * @param name the argument's name, for the exceptions
     * @throws IllegalStateException when the object has been disposed, or when no traversal is in
     *     progress on the calling thread
     */
    public static void hold(NativeObject object, String name) {
        if (object == null) {
            return;
        }
        Scope outermost = SCOPES.get().peekLast();
        if (outermost == null) {
            throw new IllegalStateException("No traversal is in progress on this thread");
        }
        NativeObject.enter(object, name);
        outermost.hold(object);
    }
}
