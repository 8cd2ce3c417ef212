package com.kestrum.tavrel.nodes;

import com.kestrum.tavrel.internal.JarInitializer;

/**
 * A profile that is a polygon on an ellipse around the origin, its axes along x and y.
 *
 * <p>The node keeps its values in named fields, set as text (see
 * {@link com.kestrum.tavrel.nodes the package}):
 *
 * <ul>
 *   <li>{@code "radiusX"}: the radius along x (default {@code 1});</li>
 *   <li>{@code "radiusY"}: the radius along y (default {@code 0.5});</li>
 *   <li>{@code "numPoints"}: the polygon's points (at least 3) (default {@code 16}).</li>
 * </ul>
 *
 * <p>It becomes the current one of its kind when traversed, and is released as the package says.
 */
public class PoEllipticProfile extends PoProfile {
    static {
        JarInitializer.init();
    }

    /** A node with the default values of its fields. */
    public PoEllipticProfile() {
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
