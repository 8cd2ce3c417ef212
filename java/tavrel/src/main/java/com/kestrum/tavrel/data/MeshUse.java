package com.kestrum.tavrel.data;

import com.kestrum.tavrel.internal.JavaViews;
import com.kestrum.tavrel.internal.MeshViews;

/**
 * The mesh that a node keeps the address of (a representation's mesh): the Java object it was
 * given and, when that object is a view of the mesh of a mesh node or field, a hold on that
 * node or field. The hold keeps the mesh alive while the node may draw it, even after the view
 * and the node or field that holds the mesh have been disposed; it ends when another mesh is
 * set, or when the representation is disposed and its native object goes with it. When the
 * representation's Java object is disposed while the scene still references its native object,
 * or is collected, the hold is kept for good: nothing tells when the native object dies.
 */
final class MeshUse<M extends PbMesh> {
    private final Class<M> type;
    private M mesh;
    private volatile MeshViews.OwnerHold hold;

    MeshUse(Class<M> type) {
        this.type = type;
    }

    /**
     * Sets the mesh (or null) with the native setter, which gets the mesh's address.
     *
     * @throws IllegalArgumentException for a view tied to a traversal, before the native setter
     *     runs ({@link MeshViews#keepable})
     */
    void set(M mesh, Runnable setNative) {
        MeshViews.OwnerHold taken = MeshViews.holdOwnerOf(mesh);
        try {
            setNative.run();
        } catch (RuntimeException | Error e) {
            if (taken != null) {
                taken.release();
            }
            throw e;
        }
        MeshViews.OwnerHold old = hold;
        hold = taken;
        this.mesh = mesh;
        if (old != null) {
            old.release();
        }
    }

    /**
     * The Java object of the mesh at the address that the node reports: the one set while it is
     * usable, else a new view of a held mesh, else what {@link JavaViews#find} finds.
     */
    M get(long address) {
        if (address != 0 && hold != null && hold.address() == address
                && (mesh == null || mesh.isDisposed() || mesh.getNativeResourceHandleInternal() != address)) {
            mesh = type.cast(hold.view());
            return mesh;
        }
        return JavaViews.find(type, address, mesh);
    }

    /** The Java object set last, or null. */
    M remembered() {
        return mesh;
    }

    /**
     * After the node's Java object was disposed: ends the hold when the node's native object has
     * gone with it; otherwise (the scene still references the node) the mesh stays held.
     */
    void nodeDisposed(boolean nativeGone) {
        MeshViews.OwnerHold h = hold;
        hold = null;
        if (h != null) {
            if (nativeGone) {
                h.release();
            } else {
                h.keepForGood();
            }
        }
    }

    /** After the node's Java object was collected (on the cleaning thread): see the class. */
    void nodeCollected() {
        MeshViews.OwnerHold h = hold;
        if (h != null) {
            h.keepForGood();
        }
    }
}
