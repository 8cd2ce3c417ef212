package com.kestrum.tavrel.graph;

import com.kestrum.corvel.SbColor;
import com.kestrum.corvel.SbVec2f;
import com.kestrum.tavrel.internal.JarInitializer;

/**
 * A legend of named items, each with a colour box, in the rectangle between two corners. The node
 * keeps a copy of the names and colours it is given.
 */
public class PoItemLegend extends PoLegend {
    static {
        JarInitializer.init();
    }

    /** A legend without items. */
    public PoItemLegend() {
        super(ctorImpl());
    }

    /**
     * A legend of the first numItems names and colours between the corners; null colours give
     * items without a colour.
     *
     * @param corner1 one corner of the legend
     * @param corner2 the opposite corner of the legend
     * @param numItems the number of items
     * @param names the names
     * @param colors the colours
     * @throws IllegalArgumentException when numItems is negative or more than the names or colours
     * @throws NullPointerException when a corner, the names, a name or a colour is null
     */
    public PoItemLegend(SbVec2f corner1, SbVec2f corner2, int numItems, String[] names, SbColor[] colors) {
        super(ctorImpl1(Checks.point(corner1, "corner1"), Checks.point(corner2, "corner2"),
                Checks.count(numItems, Integer.MAX_VALUE, "numItems"), Checks.strings(names, numItems, "names"),
                Checks.colors(colors, numItems, "colors")));
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

    private static native long ctorImpl1(float[] corner1, float[] corner2, int numItems, Object[] names,
            Object[] colors);
}
