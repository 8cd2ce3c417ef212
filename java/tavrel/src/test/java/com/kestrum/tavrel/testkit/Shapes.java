package com.kestrum.tavrel.testkit;

/** Inside the shapes and pie charts of the toolkit stand-in, and picked paths. */
public final class Shapes {
    static {
        TestLibrary.ensureLoaded();
    }

    private Shapes() {}

    /** A new path through the node (none for 0) whose picked point is (x, y, 0); free with deletePath. */
    public static native long newPath(long node, float x, float y);

    public static native void deletePath(long path);

    /** A 2D circle: centre x, y, radius. */
    public static native float[] circle(long node);

    /** A 3D circle: centre x, y, z, radius, normal x, y, z. */
    public static native float[] circle3(long node);

    /** A 2D arc: centre x, y, radius, start angle, sweep, end x, y. */
    public static native float[] arc(long node);

    /** A 3D arc: centre x, y, z, radius, normal x, y, z, sweep, start x, y, z, end x, y, z. */
    public static native float[] arc3(long node);

    /** An arrow: the number of points it keeps, then the points it copied. */
    public static native float[] arrow(long node, boolean is3);

    /** A parallelogram's four corners. */
    public static native float[] corners(long node, boolean is3);

    /** A rectangle's two corners. */
    public static native float[] rectangle(long node);

    /** A pie chart: its number of slices, then per slice value, start angle, sweep, red, green, blue. */
    public static native float[] slices(long chart);

    public static native String[] sliceNames(long chart);

    /** A 3D pie chart: centre x, y, z, radius, height. */
    public static native float[] pie3(long chart);

    /** The number of filled polygons of the chart's last build. */
    public static native int numPolygons(long chart);

    /** Gives a pie-chart representation one slice per value. */
    public static native void setRepValues(long rep, float[] values);
}
