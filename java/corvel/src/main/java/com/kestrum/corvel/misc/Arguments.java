package com.kestrum.corvel.misc;

/**
 * The argument checks of the binding core's Java classes, made before an argument is used: a
 * missing argument gives a {@link NullPointerException} "name is null", an array too short an
 * {@link IllegalArgumentException} naming it and the length needed.
 */
public final class Arguments {
    private Arguments() {}

    /**
     * The argument, which must not be null.
     *
     * @param value the argument
     * @param name the argument's name, for the exception's message
     * @param <T> the argument's type
     * @return value
     * @throws NullPointerException when value is null
     */
    public static <T> T notNull(T value, String name) {
        if (value == null) {
            throw new NullPointerException(name + " is null");
        }
        return value;
    }

    /**
     * A float array of at least {@code needed} elements.
     *
     * @param array the argument
     * @param needed the number of elements read from it
     * @param name the argument's name, for the exception's message
     * @return array
     * @throws NullPointerException when array is null
     * @throws IllegalArgumentException when array has fewer elements than needed
     */
    public static float[] length(float[] array, int needed, String name) {
        notNull(array, name);
        if (array.length < needed) {
            throw new IllegalArgumentException(name + " has " + array.length + " elements, " + needed + " needed");
        }
        return array;
    }
}
