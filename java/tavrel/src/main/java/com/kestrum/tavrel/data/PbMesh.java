package com.kestrum.tavrel.data;

import com.kestrum.corvel.misc.NativeObject;

/** Base of every mesh: structured grids, unstructured meshes and one-dimensional meshes. */
public abstract class PbMesh extends NativeObject {
    protected PbMesh(long handle) {
        super(handle);
    }
}
