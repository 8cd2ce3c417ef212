package com.kestrum.tavrel.nodes;

import com.kestrum.tavrel.internal.JarInitializer;

/**
 * A profile that is a regular polygon on a circle around the origin.
 *
 * <p>The node keeps its values in named fields, set as text (see
 * {@link com.kestrum.tavrel.nodes the package}):
 *
 * <ul>
 *   <li>{@code "radius"}: the circle's radius (default {@code 1});</li>
 *   <li>{@code "numPoints"}: the polygon's points (at least 3) (default {@code 16}).</li>
 * </ul>
 *
 * <p>It becomes the current one of its kind when traversed, and is released as the package says.
 */
public class PoCircularProfile extends PoProfile {
    static {
        JarInitializer.init();
    }

    /** A node with the default values of its fields. */
    public PoCircularProfile() {
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
