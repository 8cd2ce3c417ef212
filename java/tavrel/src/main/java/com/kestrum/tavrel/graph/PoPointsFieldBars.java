package com.kestrum.tavrel.graph;

import com.kestrum.corvel.SbVec3f;
import com.kestrum.tavrel.internal.JarInitializer;

/**
 * Bars standing at 3D points, their heights given by values, coloured through a data mapping. The
 * node keeps a copy of the points and heights it is given.
 */
public class PoPointsFieldBars extends PoQuorvex {
    static {
        JarInitializer.init();
    }

    private final Kept<PbDataMapping> dataMapping = new Kept<>(PbDataMapping.class, "dataMapping");

    /** A node without points, with the toolkit's defaults. */
    public PoPointsFieldBars() {
        super(ctorImpl());
    }

    /**
     * Bars at the first num points with the first num heights, of the two sizes given.
     *
     * @param num the number of elements to use
     * @param points the points
     * @param heights the height of each bar
     * @param width1 the width of the bars along x
     * @param width2 the width of the bars along y
     * @throws IllegalArgumentException when num is negative or more than the points or heights
     * @throws NullPointerException when an array or a point is null
     */
    public PoPointsFieldBars(int num, SbVec3f[] points, float[] heights, float width1, float width2) {
        super(ctorImpl1(Checks.count(num, Checks.vectors(points, "points").length, "num"), points,
                Checks.length(heights, num, "heights"), width1, width2));
    }

    /**
     * Sets the data mapping that colours the bars; null for none.
     *
     * <p>The node keeps the object's address, so this object keeps the Java object as long as it
     * is set.
     *
     * @param dataMapping the data mapping, or null for none
     */
    public void setDataMapping(PbDataMapping dataMapping) {
        this.dataMapping.set(handle(), dataMapping, this::setDataMappingImpl);
    }

    /**
     * The data mapping that colours the bars, or null for none.
     *
     * @return the data mapping that colours the bars, or null for none: the Java object set earlier while the
     *     node still holds its address, else the registered Java object of that address or a view of it
     */
    public PbDataMapping getDataMapping() {
        return dataMapping.get(getDataMappingImpl(handle()));
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

    private static native long ctorImpl1(int num, Object[] points, float[] heights, float width1, float width2);

    private native void setDataMappingImpl(long handle, long dataMapping);

    private native long getDataMappingImpl(long handle);
}
