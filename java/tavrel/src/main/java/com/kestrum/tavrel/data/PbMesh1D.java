package com.kestrum.tavrel.data;

/**
 * Base of the one-dimensional meshes: nodes along x. They have no cells in the sense of
 * {@link PbMesh}: {@link #getCell} and {@link #findContainingCell} give null, the volume and
 * area are 0.
 */
public abstract class PbMesh1D extends PbMesh {
    /**
     * Wraps a native one-dimensional mesh (made by a subclass's constructor, or owned elsewhere).
     *
     * @param handle the address of the native object
     */
    protected PbMesh1D(long handle) {
        super(handle);
    }
}
