package com.kestrum.tavrel.graph;

import static com.kestrum.tavrel.graph.Checks.colors;
import static com.kestrum.tavrel.graph.Checks.notNull;

import com.kestrum.corvel.SbColor;
import com.kestrum.corvel.SbVec2f;
import com.kestrum.tavrel.internal.JarInitializer;

/**
 * A pie chart in the plane z = 0 (see {@link PoPieChart}).
 */
public class PoPieChart2D extends PoPieChart {
    static {
        JarInitializer.init();
    }

    /** A new chart without slices; holds one reference on its native node. */
    public PoPieChart2D() {
        this(ctorImpl());
    }

    /**
     * A new chart; holds one reference on its native node.
     *
     * @param center the centre
     * @param radius the radius
     * @param numSlices the number of slices, 0 to {@link Short#MAX_VALUE}
     * @param names at least numSlices names (an element may be null: no name)
     * @param values at least numSlices values
     * @param numColors the number of colours the chart takes (0 or more); slice i gets colour i
     *     modulo numColors
     * @param colors null (no colours), or at least numColors colours, none of them null
     */
    public PoPieChart2D(SbVec2f center, float radius, int numSlices, String[] names, float[] values, int numColors,
            SbColor[] colors) {
        this(ctorImpl1(Checks.point(center, "center"), radius, ChartChecks.slices(numSlices, names, values),
                names, values, ChartChecks.count(numColors, "numColors"), colors(colors, numColors, "colors")));
    }

    /**
     * A chart of one slice per value, each with its name and colour (colors may be null).
     *
     * @param center the centre
     * @param radius the radius
     * @param names the names
     * @param values the values
     * @param colors the colours
     * @return a chart of one slice per value, each with its name and colour (colors may be null)
     */
    public static PoPieChart2D of(SbVec2f center, float radius, String[] names, float[] values, SbColor[] colors) {
        int n = notNull(values, "values").length;
        return new PoPieChart2D(center, radius, n, names, values, colors == null ? 0 : colors.length, colors);
    }

    /**
     * A Java object for the native node at the handle (non-zero); takes a reference on it.
     *
     * @param handle the address of the native object
     */
    protected PoPieChart2D(long handle) {
        super(handle);
    }

    /**
     * The name of the class's toolkit type.
     *
     * @return the name of the class's toolkit type
     */
    public static String getClassTypeName() {
        return getClassTypeId();
    }

    /**
     * The address of the class's node-kit catalog, which belongs to the toolkit.
     *
     * @return the address of the class's node-kit catalog, which belongs to the toolkit
     */
    public static long getClassNodekitCatalog() {
        return getClassNodekitCatalogImpl();
    }

    private static native long ctorImpl();

    private static native long ctorImpl1(float[] center, float radius, int numSlices, Object[] names,
            float[] values, int numColors, Object[] colors);

    private static native String getClassTypeId();

    private static native long getClassNodekitCatalogImpl();
}
