package com.kestrum.tavrel.graph;

import com.kestrum.corvel.SbColor;

/**
 * Argument checks made before any native call of this package: the native methods check
 * nothing, so every array the toolkit reads must be present and long enough, and every count
 * must be one the toolkit can use.
 */
final class Checks {
    private Checks() {}

    static <T> T notNull(T value, String name) {
        if (value == null) {
            throw new NullPointerException(name + " is null");
        }
        return value;
    }

    /** A count from 0 to max. */
    static int count(int n, int max, String name) {
        if (n < 0) {
            throw new IllegalArgumentException(name + " is negative: " + n);
        }
        if (n > max) {
            throw new IllegalArgumentException(name + " is " + n + ", more than " + max);
        }
        return n;
    }

    /** A float array of at least `needed` elements. */
    static float[] length(float[] array, long needed, String name) {
        notNull(array, name);
        if (array.length < needed) {
            throw new IllegalArgumentException(name + " has " + array.length + " elements, " + needed + " needed");
        }
        return array;
    }

    /**
     * Colours the toolkit reads `needed` of: null, or at least that many, none of them null (the
     * conversion reads every element).
     */
    static SbColor[] colors(SbColor[] colors, long needed, String name) {
        if (colors == null) {
            return null;
        }
        if (colors.length < needed) {
            throw new IllegalArgumentException(name + " has " + colors.length + " elements, " + needed + " needed");
        }
        for (int i = 0; i < colors.length; i++) {
            if (colors[i] == null) {
                throw new NullPointerException(name + "[" + i + "] is null");
            }
        }
        return colors;
    }

    /** The three components of a colour, in a new array. */
    static float[] rgb(SbColor color, String name) {
        return notNull(color, name).getValue();
    }

    /** The three components of an HLS colour, in a new array. */
    static float[] hls(HlsColor color, String name) {
        return notNull(color, name).toArray();
    }
}
