package com.kestrum.tavrel.graph;

import static com.kestrum.tavrel.graph.Checks.notNull;

import com.kestrum.corvel.SbVec2f;
import com.kestrum.tavrel.internal.JarInitializer;

/**
 * A histogram of one list of values, one bar a value with its name. The node keeps a copy of the
 * values and names it is given.
 */
public class PoSingleHistogram extends PoHistogram {
    static {
        JarInitializer.init();
    }

    /** A histogram without values. */
    public PoSingleHistogram() {
        super(ctorImpl());
    }

    /**
     * A histogram of the first numValues values and names, its bars sharing histogSize from the
     * origin along the axis of type.
     *
     * @param origin the origin
     * @param histogSize the size of the histogram along its axis
     * @param type the direction of the bars
     * @param numValues the number of values
     * @param values the values
     * @param names the names
     * @throws IllegalArgumentException when numValues is negative or more than the values or names
     * @throws NullPointerException when an argument or a name is null
     */
    public PoSingleHistogram(SbVec2f origin, float histogSize, Types type, int numValues, float[] values,
            String[] names) {
        super(ctorImpl1(Checks.point(origin, "origin"), histogSize, notNull(type, "type").getValue(),
                Checks.count(numValues, Integer.MAX_VALUE, "numValues"), Checks.length(values, numValues, "values"),
                Checks.strings(names, numValues, "names")));
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

    private static native String getClassTypeId();

    private static native long getClassNodekitCatalogImpl();

    private static native long ctorImpl();

    private static native long ctorImpl1(float[] origin, float histogSize, int type, int numValues, float[] values,
            Object[] names);
}
