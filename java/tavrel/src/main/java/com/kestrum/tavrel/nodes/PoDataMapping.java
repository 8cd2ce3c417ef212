package com.kestrum.tavrel.nodes;

import com.kestrum.corvel.nodes.SoNode;
import com.kestrum.tavrel.internal.JarInitializer;

/**
 * Base of the data-mapping property nodes: the representations after one in the scene colour their
 * values with its mapping.
 *
 * <p>The node is released when it is disposed and nothing else in the scene references it.
 */
public abstract class PoDataMapping extends SoNode {
    static {
        JarInitializer.init();
    }

    /** Takes a reference on the new native node at the handle. */
    PoDataMapping(long handle) {
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
