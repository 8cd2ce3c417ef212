package com.kestrum.tavrel.elements;

import com.kestrum.corvel.actions.SoCallbackAction;
import com.kestrum.corvel.misc.SoState;
import com.kestrum.corvel.nodes.SoGroup;
import com.kestrum.corvel.nodes.SoNode;
import com.kestrum.tavrel.nodes.PoNode;
import java.util.function.BiConsumer;
import java.util.function.Consumer;

/** Java code run inside real traversals, given their state. */
final class Traversal {
    private Traversal() {}

    /**
     * A node that runs its body with the traversal's state when a callback traversal reaches it;
     * an error of the body is kept for the test to throw after the traversal.
     */
    static final class StateNode extends PoNode {
        private final BiConsumer<SoState, SoNode> body;
        Throwable failure;
        /** The action traversing the node, while the body runs. */
        SoCallbackAction action;

        StateNode(BiConsumer<SoState, SoNode> body) {
            super("ElementsTestStateNode");
            this.body = body;
        }

        @Override
        public void callback(SoCallbackAction action) {
            this.action = action;
            try {
                body.accept(action.getState(), this);
            } catch (Throwable t) {
                if (failure == null) {
                    failure = t;
                }
            } finally {
                this.action = null;
            }
        }

        void rethrow() {
            if (failure instanceof RuntimeException) {
                throw (RuntimeException) failure;
            }
            if (failure instanceof Error) {
                throw (Error) failure;
            }
            if (failure != null) {
                throw new AssertionError(failure);
            }
        }
    }

    /** Applies a callback action to the root; the nodes' errors are thrown afterwards. */
    static void apply(SoNode root, StateNode... nodes) {
        try (SoCallbackAction action = new SoCallbackAction()) {
            action.apply(root);
        }
        for (StateNode n : nodes) {
            n.rethrow();
        }
    }

    /** Runs the body inside a callback traversal of a group holding one node. */
    static void run(Consumer<SoState> body) {
        StateNode node = new StateNode((state, self) -> body.accept(state));
        try (SoGroup root = new SoGroup()) {
            root.addChild(node);
            apply(root, node);
        } finally {
            node.dispose();
        }
    }
}
