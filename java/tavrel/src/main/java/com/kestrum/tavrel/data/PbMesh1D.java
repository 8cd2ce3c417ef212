package com.kestrum.tavrel.data;

/**
 * Base of the one-dimensional meshes: nodes along x. They have no cells in the sense of
 * {@link PbMesh}: {@link #getCell} and {@link #findContainingCell} give null, the volume and
 * area are 0.
 */
public abstract class PbMesh1D extends PbMesh {
    protected PbMesh1D(long handle) {
        super(handle);
    }
}
