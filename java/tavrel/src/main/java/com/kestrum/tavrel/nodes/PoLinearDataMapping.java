package com.kestrum.tavrel.nodes;

import com.kestrum.tavrel.internal.JarInitializer;

/**
 * A data mapping between two values: value1 has colour1, value2 has colour2, and the values between
 * them have the colour interpolated linearly; outside them the colour of the nearer end.
 *
 * <p>The node keeps its values in named fields, set as text (see
 * {@link com.kestrum.tavrel.nodes the package}):
 *
 * <ul>
 *   <li>{@code "value1"}: the first value (default {@code 0});</li>
 *   <li>{@code "color1"}: its colour (default {@code 0 0 0});</li>
 *   <li>{@code "value2"}: the second value (default {@code 1});</li>
 *   <li>{@code "color2"}: its colour (default {@code 1 1 1}).</li>
 * </ul>
 *
 * <p>It becomes the current one of its kind when traversed, and is released as the package says.
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
