package com.kestrum.tavrel.data;

/** Base of the three-dimensional meshes. */
public abstract class PbMesh3D extends PbMesh {
    protected PbMesh3D(long handle) {
        super(handle);
    }

    /** A view of a 3D mesh owned elsewhere. */
    static final class View extends PbMesh3D {
        View(long handle) {
            super(handle);
        }
    }
}
