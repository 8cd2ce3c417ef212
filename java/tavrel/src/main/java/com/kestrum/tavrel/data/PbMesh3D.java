package com.kestrum.tavrel.data;

import com.kestrum.corvel.misc.ManagedObjects;
import com.kestrum.tavrel.internal.JarInitializer;

/** Base of the three-dimensional meshes. */
public abstract class PbMesh3D extends PbMesh {
    static {
        JarInitializer.init();
        ManagedObjects.registerWrapper(PbMesh3D.class.getName(), View::new);
    }

    /**
     * Wraps a native 3D mesh (made by a subclass's constructor, or owned elsewhere).
     *
     * @param handle the address of the native object
     */
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
