package com.kestrum.tavrel.nodes;

import com.kestrum.corvel.nodes.SoNode;
import com.kestrum.tavrel.internal.JarInitializer;

/**
 * Base of the filters of 1D meshes: property nodes that choose which points of a 1D mesh the graphs
 * after them in the scene draw. Point i of a 1D mesh has x its node's coordinate and y its value in
 * the mesh's values set 0.
 *
 * <p>The node is released when it is disposed and nothing else in the scene references it.
 */
public abstract class PoMesh1DFilter extends SoNode {
    static {
        JarInitializer.init();
    }

    /** Takes a reference on the new native node at the handle. */
    PoMesh1DFilter(long handle) {
        super(handle);
    }

    /**
     * The name of the class's toolkit type.
     *
     * @return the type name
     */
    public static String getClassTypeName() {
        return getClassTypeId();
    }

    private static native String getClassTypeId();
}
