package com.kestrum.tavrel.nodes;

import com.kestrum.tavrel.internal.JarInitializer;

/**
 * A 1D-mesh filter that keeps the points whose indices it lists (in increasing order, whatever the
 * order of the list).
 *
 * <p>The node keeps its values in named fields, set as text (see
 * {@link com.kestrum.tavrel.nodes the package}):
 *
 * <ul>
 *   <li>{@code "index"}: the point indices; indices outside the mesh are ignored (default
 * none).</li>
 * </ul>
 *
 * <p>It becomes the current one of its kind when traversed, and is released as the package says.
 */
public class PoIndexListFilter extends PoMesh1DFilter {
    static {
        JarInitializer.init();
    }

    /** A node with the default values of its fields. */
    public PoIndexListFilter() {
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
