package com.kestrum.tavrel.data;

import com.kestrum.tavrel.internal.Checks;
import com.kestrum.corvel.SbVec3f;
import com.kestrum.tavrel.internal.JarInitializer;
import com.kestrum.tavrel.internal.MeshViews;

/** A wedge cell. */
public class PbWedgeCell extends PbCell {
    static {
        JarInitializer.init();
    }

    /**
     * A cell of the mesh that is not attached to any of its cells (it has no nodes).
     *
     * @param mesh the mesh the cell is made for
     * @throws IllegalArgumentException when the mesh is a view of a traversal's state (its
     *     element's mesh, valid only during the traversal)
     */
    public PbWedgeCell(PbMesh mesh) {
        super(ctorImpl(handleOf(MeshViews.keepable(mesh), "mesh")));
        MeshViews.holdWhileReachable(this, mesh);
    }

    /**
     * A copy of another cell, nodes included.
     *
     * @param other the object to copy
     */
    public PbWedgeCell(PbWedgeCell other) {
        super(ctorImpl1(Checks.notNull(other, "other").cellHandle()));
    }

    /** Number of floats that {@link #getDerivs} writes: 3 per node of the cell type. */
    public static final int DERIVS_LENGTH = 18;

    /**
     * The derivatives of the 6 shape functions at the parametric coordinates: 6 by u, then
     * 6 by v, then 6 by w, into derivs[0..17].
     *
     * @param pcoord the parametric coordinates
     * @param derivs receives the derivatives
     */
    public void getDerivs(SbVec3f pcoord, float[] derivs) {
        getDerivsImpl(cellHandle(), coordinates(pcoord), Checks.length(derivs, DERIVS_LENGTH, "derivs"));
    }

    private native void getDerivsImpl(long handle, float[] pcoord, float[] derivs);

    private static native long ctorImpl(long mesh);

    private static native long ctorImpl1(long other);
}
