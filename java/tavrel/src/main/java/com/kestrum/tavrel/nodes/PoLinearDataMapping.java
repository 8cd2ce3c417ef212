package com.kestrum.tavrel.nodes;

import com.kestrum.tavrel.internal.JarInitializer;

/**
 * A data mapping between two values: value1 has colour1, value2 has colour2, and the values between
 * them have the colour interpolated linearly; outside them the colour of the nearer end.
 *
 * <p>The node keeps its values in named fields, read each time they are used: set them with
 * {@code getField(name).setValue(text)} (numbers as decimal text, flags {@code TRUE} or
 * {@code FALSE}, enumerations as their {@code getValue()}, vectors and colours as their numbers
 * separated by spaces, lists likewise). A text that cannot be read counts as the field's default.
 *
 * <ul>
 *   <li>{@code "value1"}: the first value (default {@code 0});</li>
 *   <li>{@code "color1"}: its colour (default {@code 0 0 0});</li>
 *   <li>{@code "value2"}: the second value (default {@code 1});</li>
 *   <li>{@code "color2"}: its colour (default {@code 1 1 1}).</li>
 * </ul>
 *
 * <p>When an action traverses the node it becomes the current one of its kind for the rest of the
 * traversal. The node is released when it is disposed and nothing else in the scene references it.
 */
public class PoLinearDataMapping extends PoDataMapping {
    static {
        JarInitializer.init();
    }

    /** A node with the default values of its fields. */
    public PoLinearDataMapping() {
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
