package com.kestrum.tavrel.graph;

import com.kestrum.corvel.SbVec2f;
import com.kestrum.corvel.SbVec3f;

/** Argument checks of the shapes and pie charts, made before any native call. */
final class ChartChecks {
    private ChartChecks() {}

    /** A count of 0 or more. */
    static int count(int n, String name) {
        return Checks.count(n, Integer.MAX_VALUE, name);
    }

    /**
     * The points of an arrow: at least numPoints of them, every one a vector the conversion can
     * read (it reads every element); null only when numPoints is 0.
     */
    static SbVec2f[] vectors(SbVec2f[] points, int numPoints, String name) {
        return points(points, numPoints, name) ? Checks.vectors(points, name) : null;
    }

    /** As {@link #vectors(SbVec2f[], int, String)} for 3D points. */
    static SbVec3f[] vectors(SbVec3f[] points, int numPoints, String name) {
        return points(points, numPoints, name) ? Checks.vectors(points, name) : null;
    }

    /** Whether there are points to check: refuses a negative count, a null array for a count above 0, a short array. */
    private static boolean points(Object[] points, int numPoints, String name) {
        count(numPoints, "numPoints");
        if (points == null) {
            if (numPoints > 0) {
                throw new NullPointerException(name + " is null");
            }
            return false;
        }
        com.kestrum.tavrel.internal.Checks.length(points, numPoints, name);
        return true;
    }

    /** The slices of a pie chart: a count the toolkit's short holds, with that many names and values. */
    static int slices(int numSlices, String[] names, float[] values) {
        Checks.count(numSlices, Short.MAX_VALUE, "numSlices");
        com.kestrum.tavrel.internal.Checks.length(names, numSlices, "names");
        Checks.length(values, numSlices, "values");
        return numSlices;
    }

    /** The address of a picked path: not 0. */
    static long path(long path) {
        if (path == 0) {
            throw new IllegalArgumentException("path is 0");
        }
        return path;
    }

    /** An output array of at least one element. */
    static int[] output(int[] out, String name) {
        Checks.notNull(out, name);
        if (out.length < 1) {
            throw new IllegalArgumentException(name + " is empty");
        }
        return out;
    }
}
