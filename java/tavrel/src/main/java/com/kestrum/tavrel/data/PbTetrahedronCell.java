package com.kestrum.tavrel.data;

import com.kestrum.tavrel.internal.Checks;
import com.kestrum.tavrel.internal.JarInitializer;
import com.kestrum.tavrel.internal.MeshViews;

/** A tetrahedron cell. */
public class PbTetrahedronCell extends PbCell {
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
    public PbTetrahedronCell(PbMesh mesh) {
        super(ctorImpl(handleOf(MeshViews.keepable(mesh), "mesh")));
        MeshViews.holdWhileReachable(this, mesh);
    }

    /**
     * A copy of another cell, nodes included.
     *
     * @param other the object to copy
     */
    public PbTetrahedronCell(PbTetrahedronCell other) {
        super(ctorImpl1(Checks.notNull(other, "other").cellHandle()));
    }

    private static native long ctorImpl(long mesh);

    private static native long ctorImpl1(long other);
}
