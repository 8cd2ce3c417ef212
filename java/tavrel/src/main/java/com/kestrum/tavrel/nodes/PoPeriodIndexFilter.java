package com.kestrum.tavrel.nodes;

import com.kestrum.tavrel.internal.JarInitializer;

/**
 * A 1D-mesh filter that keeps every period-th point: start, start + period, start + 2 period, ...
 *
 * <p>The node keeps its values in named fields, set as text (see
 * {@link com.kestrum.tavrel.nodes the package}):
 *
 * <ul>
 *   <li>{@code "start"}: the first point kept (default {@code 0});</li>
 *   <li>{@code "period"}: the step between points kept (at least 1) (default {@code 1}).</li>
 * </ul>
 *
 * <p>It becomes the current one of its kind when traversed, and is released as the package says.
 */
public class PoPeriodIndexFilter extends PoMesh1DFilter {
    static {
        JarInitializer.init();
    }

    /** A node with the default values of its fields. */
    public PoPeriodIndexFilter() {
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
