package com.kestrum.tavrel.data;

/** Base of the two-dimensional meshes. */
public abstract class PbMesh2D extends PbMesh {
    protected PbMesh2D(long handle) {
        super(handle);
    }
}
