package com.kestrum.tavrel.graph;

import com.kestrum.corvel.SbColor;
import com.kestrum.corvel.SbVec2f;
import com.kestrum.corvel.SbVec3f;

/**
 * Argument checks made before any native call of this package: the native methods check
 * nothing, so every array the toolkit reads must be present and long enough, and every count
 * must be one the toolkit can use. The checks shared with the meshes are those of
 * {@link com.kestrum.tavrel.internal.Checks}; these are the ones of the graph classes.
 */
final class Checks {
    private Checks() {}

    static <T> T notNull(T value, String name) {
        return com.kestrum.tavrel.internal.Checks.notNull(value, name);
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
        return com.kestrum.tavrel.internal.Checks.length(array, needed, name);
    }

    /**
     * Colours the toolkit reads `needed` of: null, or at least that many, every one of them a
     * colour the conversion can read (it reads every element).
     */
    static SbColor[] colors(SbColor[] colors, long needed, String name) {
        return colors == null ? null
                : com.kestrum.tavrel.internal.Checks.vectors(com.kestrum.tavrel.internal.Checks.length(colors, needed, name),
                        name);
    }

    /** The three components of a colour, in a new array. */
    static float[] rgb(SbColor color, String name) {
        return notNull(color, name).getValue();
    }

    /** The three components of an HLS colour, in a new array. */
    static float[] hls(HlsColor color, String name) {
        return notNull(color, name).toArray();
    }

    /** 2D points that are all read: the array, and every element a vector the conversion can read. */
    static SbVec2f[] vectors(SbVec2f[] vectors, String name) {
        return com.kestrum.tavrel.internal.Checks.vectors(notNull(vectors, name), name);
    }

    /** 3D points that are all read: the array, and every element a vector the conversion can read. */
    static SbVec3f[] vectors(SbVec3f[] vectors, String name) {
        return com.kestrum.tavrel.internal.Checks.vectors(notNull(vectors, name), name);
    }

    /** Strings of which `needed` are read: at least that many, none of those null. */
    static String[] strings(String[] strings, long needed, String name) {
        com.kestrum.tavrel.internal.Checks.length(strings, needed, name);
        for (int i = 0; i < needed; i++) {
            if (strings[i] == null) {
                throw new NullPointerException(name + "[" + i + "] is null");
            }
        }
        return strings;
    }

    /** The two components of a 2D point, in a new array. */
    static float[] point(SbVec2f point, String name) {
        return notNull(point, name).getValue();
    }

    /** The three components of a 3D point, in a new array. */
    static float[] point(SbVec3f point, String name) {
        return notNull(point, name).getValue();
    }

    /** The points of an array of x, y pairs. */
    static SbVec2f[] pairs(float[] xy, String name) {
        notNull(xy, name);
        if (xy.length % 2 != 0) {
            throw new IllegalArgumentException(name + " has an odd length: " + xy.length);
        }
        SbVec2f[] points = new SbVec2f[xy.length / 2];
        for (int i = 0; i < points.length; i++) {
            points[i] = new SbVec2f(xy[2 * i], xy[2 * i + 1]);
        }
        return points;
    }

    /** The points of an array of x, y, z triples. */
    static SbVec3f[] triples(float[] xyz, String name) {
        notNull(xyz, name);
        if (xyz.length % 3 != 0) {
            throw new IllegalArgumentException(name + " has a length that is no multiple of 3: " + xyz.length);
        }
        SbVec3f[] points = new SbVec3f[xyz.length / 3];
        for (int i = 0; i < points.length; i++) {
            points[i] = new SbVec3f(xyz[3 * i], xyz[3 * i + 1], xyz[3 * i + 2]);
        }
        return points;
    }
}
