package com.kestrum.tavrel.nodes;

import com.kestrum.corvel.nodes.SoNode;
import com.kestrum.tavrel.internal.JarInitializer;

/**
 * Base of the profiles: property nodes that give the tubes and extruded shapes after them in the
 * scene their cross section, a closed polygon.
 *
 * <p>The node is released when it is disposed and nothing else in the scene references it.
 */
public abstract class PoProfile extends SoNode {
    static {
        JarInitializer.init();
    }

    /** Takes a reference on the new native node at the handle. */
    PoProfile(long handle) {
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
