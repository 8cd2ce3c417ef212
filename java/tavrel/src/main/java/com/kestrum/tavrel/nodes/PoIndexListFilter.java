package com.kestrum.tavrel.nodes;

import com.kestrum.tavrel.internal.JarInitializer;

/**
 * A 1D-mesh filter that keeps the points whose indices it lists (in increasing order, whatever the
 * order of the list).
 *
 * <p>The node keeps its values in named fields, read each time they are used: set them with
 * {@code getField(name).setValue(text)} (numbers as decimal text, flags {@code TRUE} or
 * {@code FALSE}, enumerations as their {@code getValue()}, vectors and colours as their numbers
 * separated by spaces, lists likewise). A text that cannot be read counts as the field's default.
 *
 * <ul>
 *   <li>{@code "index"}: the point indices; indices outside the mesh are ignored (default
 * none).</li>
 * </ul>
 *
 * <p>When an action traverses the node it becomes the current one of its kind for the rest of the
 * traversal. The node is released when it is disposed and nothing else in the scene references it.
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
