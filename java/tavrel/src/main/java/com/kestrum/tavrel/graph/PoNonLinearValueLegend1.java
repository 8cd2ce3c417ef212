package com.kestrum.tavrel.graph;

import com.kestrum.corvel.SbVec2f;
import com.kestrum.tavrel.internal.JarInitializer;

/** A value legend of values distributed non-linearly (the toolkit's style 1), between two corners. */
public class PoNonLinearValueLegend1 extends PoValueLegend {
    static {
        JarInitializer.init();
    }

    /** A legend with the toolkit's default corners. */
    public PoNonLinearValueLegend1() {
        super(ctorImpl());
    }

    /**
     * A legend between the corners.
     *
     * @param corner1 one corner of the legend
     * @param corner2 the opposite corner of the legend
     * @throws NullPointerException when a corner is null
     */
    public PoNonLinearValueLegend1(SbVec2f corner1, SbVec2f corner2) {
        super(ctorImpl1(Checks.point(corner1, "corner1"), Checks.point(corner2, "corner2")));
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

    private static native long ctorImpl1(float[] corner1, float[] corner2);
}
