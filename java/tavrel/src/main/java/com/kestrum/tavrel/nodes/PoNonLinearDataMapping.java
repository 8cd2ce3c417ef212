package com.kestrum.tavrel.nodes;

import com.kestrum.tavrel.internal.JarInitializer;

/**
 * A data mapping of levels that the toolkit gives itself; made by the binding with no levels, it
 * colours every value black.
 *
 * <p>It becomes the current one of its kind when traversed, and is released as the package says.
 */
public class PoNonLinearDataMapping extends PoDataMapping {
    static {
        JarInitializer.init();
    }

    /** A node with the default values of its fields. */
    public PoNonLinearDataMapping() {
        super(ctorImpl());
    }

    /**
     * The name of the class's toolkit type.
     *
     * @return the type name
     */
    public static String getClassTypeName() {
        return getClassTypeId();
    }

    private static native long ctorImpl();

    private static native String getClassTypeId();
}
