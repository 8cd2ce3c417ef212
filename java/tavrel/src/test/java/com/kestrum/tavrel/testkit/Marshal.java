package com.kestrum.tavrel.testkit;

/**
 * Runs the binding's vector-object array conversion and shows the native array it made, as
 * its floats (null when the conversion gave a null pointer).
 */
public final class Marshal {
    static {
        TestLibrary.ensureLoaded();
    }

    private Marshal() {}

    public static native float[] vec2fArray(Object[] vectors);

    public static native float[] vec3fArray(Object[] vectors);

    public static native float[] colorArray(Object[] vectors);

    /** Sum of all components of the converted array (0 for none). */
    public static native double vec3fSum(Object[] vectors);
}
