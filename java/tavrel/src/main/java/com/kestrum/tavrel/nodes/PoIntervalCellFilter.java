package com.kestrum.tavrel.nodes;

import com.kestrum.corvel.nodes.SoNode;
import com.kestrum.tavrel.internal.JarInitializer;

/**
 * A cell filter of the toolkit that keeps the cells whose value lies in an interval: placed before
 * a representation in a group, it makes the representation draw only those cells (see
 * {@link PoCellFilter} for how a representation asks a filter).
 *
 * <p>The node keeps its values in named fields, set as text (see
 * {@link com.kestrum.tavrel.nodes the package}):
 *
 * <ul>
 *   <li>{@code "min"}: the interval's lower bound (included) (default {@code 0});</li>
 *   <li>{@code "max"}: its upper bound (included) (default {@code 1});</li>
 *   <li>{@code "in"}: TRUE keeps the cells inside the interval, FALSE those outside it (default
 * {@code TRUE}).</li>
 * </ul>
 *
 * <p>It becomes the current one of its kind when traversed, and is released as the package says.
 */
public class PoIntervalCellFilter extends SoNode {
    static {
        JarInitializer.init();
    }

    /** A node with the default values of its fields. */
    public PoIntervalCellFilter() {
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
