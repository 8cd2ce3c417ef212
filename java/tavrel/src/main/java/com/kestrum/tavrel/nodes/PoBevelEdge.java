package com.kestrum.tavrel.nodes;

import com.kestrum.corvel.nodes.SoNode;
import com.kestrum.tavrel.internal.Enums;
import com.kestrum.tavrel.internal.JarInitializer;

/**
 * A property node that bevels the edges of the shapes after it in the scene.
 *
 * <p>The node keeps its values in named fields, set as text (see
 * {@link com.kestrum.tavrel.nodes the package}):
 *
 * <ul>
 *   <li>{@code "on"}: whether edges are bevelled (default {@code TRUE});</li>
 *   <li>{@code "angle"}: edges between faces at a larger angle (radians) are bevelled (default
 * {@code 0.5});</li>
 *   <li>{@code "radius"}: the radius of the bevel (default {@code 0.05});</li>
 *   <li>{@code "radiusFlag"}: how the radius is given, a {@link RadiusFlags} value (default
 * {@code ABSOLUTERADIUS}).</li>
 * </ul>
 *
 * <p>It becomes the current one of its kind when traversed, and is released as the package says.
 */
public class PoBevelEdge extends SoNode {
    static {
        JarInitializer.init();
    }

    /** How the bevel's radius is given. */
    public enum RadiusFlags {
        /** The radius is a length. */
        ABSOLUTERADIUS(JarInitializer.value(RadiusFlags::getABSOLUTERADIUSNative)),
        /** The radius is a fraction of the shape's size. */
        PERCENTAGERADIUS(JarInitializer.value(RadiusFlags::getPERCENTAGERADIUSNative));

        private final int value;

        RadiusFlags(int value) {
            this.value = value;
        }

        /**
         * The toolkit's value of the constant.
         *
         * @return the value
         */
        public int getValue() {
            return value;
        }

        /**
         * The constant with the toolkit's value.
         *
         * @param value a toolkit value
         * @return the constant, or null for a value outside the enumeration
         */
        public static RadiusFlags fromValue(int value) {
            return Enums.fromValue(values(), RadiusFlags::getValue, value);
        }

        private static native int getABSOLUTERADIUSNative();

        private static native int getPERCENTAGERADIUSNative();
    }

    /** A node with the default values of its fields. */
    public PoBevelEdge() {
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
