package com.kestrum.tavrel.data;

import com.kestrum.corvel.fields.SoField;
import com.kestrum.corvel.misc.ManagedObjects;
import com.kestrum.tavrel.internal.JarInitializer;
import com.kestrum.tavrel.internal.JavaViews;
import com.kestrum.tavrel.misc.callbacks.PoProbeCB;

/**
 * A probe point in a mesh. It reports through four callbacks when it moves, when it passes into
 * another cell, when it enters the mesh and when it leaves it.
 *
 * <p>Each event has at most one callback object ({@link PoProbeCB}); setting one replaces the
 * earlier one of that event, and null detaches the event. The user data given with a callback
 * object is stored in it and handed to its listener with every event.
 *
 * <p>The native probe keeps only the address of the callback object's native bridge, which is
 * never freed, and the bridge sees its Java callback object only weakly: this object keeps the
 * callback objects it registered, so that events reach them while it is alive. A native probe
 * that outlives its Java object (held by a scene graph) may find its callback objects collected;
 * its events are then dropped.
 *
 * <p>The Java object registers itself as the peer of its native probe, so that callbacks receive
 * it as their probe. A listener may dispose the probe during an event: the native probe lives
 * until the Java call that made it probe (an {@code apply}, or {@code GLRender} called directly)
 * returns, and the later events of that call hand the listener a new view of it.
 */
public class PoMeshProbePoint extends PoMesh {
    static {
        JarInitializer.init();
        ManagedObjects.registerWrapper(PoMeshProbePoint.class.getName(), PoMeshProbePoint::new);
    }

    private static final int MOTION = 0;
    private static final int CHANGE_CELL = 1;
    private static final int ENTER_MESH = 2;
    private static final int LEAVE_MESH = 3;

    private final PoProbeCB[] callbacks = new PoProbeCB[4];

    /** A new probe that holds one reference on its native node. */
    public PoMeshProbePoint() {
        this(ctorImpl());
    }

    /**
     * A Java object for the native probe at the handle (non-zero); takes a reference on it.
     *
     * @param handle the address of the native object
     */
    protected PoMeshProbePoint(long handle) {
        super(handle);
        // Events of this probe reach Java as this object (it holds a reference on the node, so
        // its address cannot be reused while it lives).
        registerAsPeer(false);
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

    /** Sets the callback object of the motion event and its user data; null detaches the event. */
    /**
     * Moves the probe: sets its field "position". The probe probes its mesh there when an action
     * next traverses it, raising its events then.
     *
     * @param x the x coordinates
     * @param y the y coordinates
     * @param z the z coordinates, or null
     */
    public void setPosition(float x, float y, float z) {
        SoField position = getField("position");
        try {
            position.setValue(x + " " + y + " " + z);
        } finally {
            position.dispose();  // gives back the view's reference on this node at once
        }
    }

    /**
     * Calls the callback object whenever the probe moves within the mesh; null removes it.
     *
     * @param callback the callback object, or null for none
     * @param userData the user data handed to the callback object with each event
     */
    public void setMotionCallback(PoProbeCB callback, Object userData) {
        register(MOTION, this::setMotionCallbackImpl, callback, userData);
    }

    /**
     * Sets the callback object of the change-cell event and its user data; null detaches it.
     *
     * @param callback the callback object, or null for none
     * @param userData the user data handed to the callback object with each event
     */
    public void setChangeCellCallback(PoProbeCB callback, Object userData) {
        register(CHANGE_CELL, this::setChangeCellCallbackImpl, callback, userData);
    }

    /**
     * Sets the callback object of the enter-mesh event and its user data; null detaches it.
     *
     * @param callback the callback object, or null for none
     * @param userData the user data handed to the callback object with each event
     */
    public void setEnterMeshCallback(PoProbeCB callback, Object userData) {
        register(ENTER_MESH, this::setEnterMeshCallbackImpl, callback, userData);
    }

    /**
     * Sets the callback object of the leave-mesh event and its user data; null detaches it.
     *
     * @param callback the callback object, or null for none
     * @param userData the user data handed to the callback object with each event
     */
    public void setLeaveMeshCallback(PoProbeCB callback, Object userData) {
        register(LEAVE_MESH, this::setLeaveMeshCallbackImpl, callback, userData);
    }

    /**
     * The callback object of the motion event, or null.
     *
     * @return the callback object of the motion event, or null
     */
    public PoProbeCB getMotionCallback() {
        return callbacks[MOTION];
    }

    /**
     * The callback object of the change-cell event, or null.
     *
     * @return the callback object of the change-cell event, or null
     */
    public PoProbeCB getChangeCellCallback() {
        return callbacks[CHANGE_CELL];
    }

    /**
     * The callback object of the enter-mesh event, or null.
     *
     * @return the callback object of the enter-mesh event, or null
     */
    public PoProbeCB getEnterMeshCallback() {
        return callbacks[ENTER_MESH];
    }

    /**
     * The callback object of the leave-mesh event, or null.
     *
     * @return the callback object of the leave-mesh event, or null
     */
    public PoProbeCB getLeaveMeshCallback() {
        return callbacks[LEAVE_MESH];
    }

    /** One of the native setters. */
    @FunctionalInterface
    private interface NativeSetter {
        void set(long handle, PoProbeCB callback, Object userData, long bridge);
    }

    /** Installs (or, for null, detaches) the callback object of an event, and keeps it. */
    private void register(int event, NativeSetter setter, PoProbeCB callback, Object userData) {
        setter.set(handle(), callback, userData, handleOrZero(callback, "callback"));
        callbacks[event] = callback;
    }

    private static native long ctorImpl();

    private static native String getClassTypeId();

    private static native long getClassNodekitCatalogImpl();

    private native void setMotionCallbackImpl(long handle, PoProbeCB callback, Object userData, long bridge);

    private native void setChangeCellCallbackImpl(long handle, PoProbeCB callback, Object userData, long bridge);

    private native void setEnterMeshCallbackImpl(long handle, PoProbeCB callback, Object userData, long bridge);

    private native void setLeaveMeshCallbackImpl(long handle, PoProbeCB callback, Object userData, long bridge);
}
