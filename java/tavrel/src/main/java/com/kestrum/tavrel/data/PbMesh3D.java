package com.kestrum.tavrel.data;

/** Base of the three-dimensional meshes. */
public abstract class PbMesh3D extends PbMesh {
    protected PbMesh3D(long handle) {
        super(handle);
    }
}
