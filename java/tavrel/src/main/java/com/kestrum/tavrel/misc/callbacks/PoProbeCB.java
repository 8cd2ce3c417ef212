package com.kestrum.tavrel.misc.callbacks;

import com.kestrum.tavrel.data.PbCell;
import com.kestrum.tavrel.data.PoMeshProbePoint;
import com.kestrum.tavrel.internal.JarInitializer;
import com.kestrum.tavrel.internal.JavaViews;

/**
 * The Java callback object of the probe point's events ({@link PoMeshProbePoint}): it hands each
 * event to its listener, with the user data given when it was registered.
 *
 * <p>Each callback object has a native bridge, whose address is its handle: the probe calls the
 * bridge, and the bridge calls this object on the thread that raised the event. The bridge sees
 * this object only weakly and is never freed (it is a few bytes, and a native probe may hold its
 * address for as long as the probe lives): once this object has been collected, events that
 * still reach the bridge are dropped. Keep a callback object reachable for as long as it is
 * registered; {@link PoMeshProbePoint} does so for the objects set on it.
 *
 * <p>One callback object may serve several events and several probes at once. An exception
 * thrown by the listener is not caught: it reaches the Java code whose native call made the
 * probe raise the event, and further events of that native call are dropped.
 */
public class PoProbeCB extends CallbackObject<PoProbeCB.Listener> {
    static {
        JarInitializer.init();
    }

    /** Receives the events of a probe. */
    @FunctionalInterface
    public interface Listener {
        /**
         * One probe event.
         *
         * @param probe the probe that raised the event (its registered Java object, or a new view)
         * @param cell the Java view of the cell that contains the probe, or null when the probe is
         *     outside the mesh; it stops working once the mesh's geometry changes
         * @param cellHandle the native handle of that cell, 0 when the probe is outside the mesh
         * @param userData the user data given with the registration
         */
        void invoke(PoMeshProbePoint probe, PbCell cell, long cellHandle, Object userData);
    }

    /**
     * A callback object that hands each probe event to the listener.
     *
     * @param listener the listener
     * @throws NullPointerException when listener is null
     */
    public PoProbeCB(Listener listener) {
        super(listener, PoProbeCB::constructor);
    }

    /**
     * The probe of the last event: a callback object usually serves one probe, found again by its
     * address while it lives (a disposed probe has address 0 and is looked up anew).
     */
    private PoMeshProbePoint lastProbe;

    /** Called by the native bridge with the addresses of the probe and of the cell (or 0). */
    private void invokeNativ(long probe, long cell) {
        PoMeshProbePoint probeObject = JavaViews.find(PoMeshProbePoint.class, probe, lastProbe);
        lastProbe = probeObject;
        // A view of the cell that knows the probe's mesh, so that it stops working once the mesh
        // frees its cells.
        PbCell cellView = JavaViews.viewIn(PbCell.class, cell, probeObject);
        getListener().invoke(probeObject, cellView, cell, getUserData());
    }

    private static native long constructor();
}
