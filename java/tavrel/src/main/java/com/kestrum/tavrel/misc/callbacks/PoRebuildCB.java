package com.kestrum.tavrel.misc.callbacks;

import com.kestrum.corvel.nodekits.SoBaseKit;
import com.kestrum.tavrel.internal.JarInitializer;
import com.kestrum.tavrel.internal.JavaViews;

/**
 * The Java callback object of the pre- and post-rebuild events of the graph nodes: it hands each
 * event to its listener, with the user data given when it was registered.
 *
 * <p>As for {@link PoProbeCB}, the native bridge sees this object only weakly and is never freed;
 * keep the callback object reachable for as long as it is registered.
 */
public class PoRebuildCB extends CallbackObject<PoRebuildCB.Listener> {
    static {
        JarInitializer.init();
    }

    /** Receives the rebuild events of graph nodes. */
    @FunctionalInterface
    public interface Listener {
        /**
         * One rebuild event.
         *
         * @param node the registered Java object of the node being rebuilt, or null when it has none
         * @param nodeHandle the native handle of that node
         * @param userData the user data given with the registration
         */
        void invoke(SoBaseKit node, long nodeHandle, Object userData);
    }

    /**
     * A callback object that hands each rebuild event to the listener.
     *
     * @param listener the listener
     * @throws NullPointerException when listener is null
     */
    public PoRebuildCB(Listener listener) {
        super(listener, PoRebuildCB::constructor);
    }

    /** Called by the native bridge with the address of the node being rebuilt. */
    private void invokeNativ(long node) {
        getListener().invoke(JavaViews.find(SoBaseKit.class, node, null), node, getUserData());
    }

    private static native long constructor();
}
