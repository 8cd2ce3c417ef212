package com.kestrum.tavrel.graph;

import com.kestrum.corvel.SbVec2f;
import com.kestrum.tavrel.internal.JarInitializer;

/**
 * Markers at points, each with two values, coloured through a data mapping. The node keeps a copy
 * of the points and values it is given.
 */
public class PoValuedMarkerField extends PoQuorvex {
    static {
        JarInitializer.init();
    }

    private final Kept<PbDataMapping> dataMapping = new Kept<>(PbDataMapping.class, "dataMapping");

    /** A node without points, with the toolkit's defaults. */
    public PoValuedMarkerField() {
        super(ctorImpl());
    }

    /**
     * Markers at the first num points with the first num values of each list.
     *
     * @param num the number of elements to use
     * @param points the points
     * @param values1 the first value of each point
     * @param values2 the second value of each point
     * @throws IllegalArgumentException when num is negative or more than the points or a list
     * @throws NullPointerException when an array or a point is null
     */
    public PoValuedMarkerField(int num, SbVec2f[] points, float[] values1, float[] values2) {
        super(ctorImpl1(Checks.count(num, Checks.vectors(points, "points").length, "num"), points,
                Checks.length(values1, num, "values1"), Checks.length(values2, num, "values2")));
    }

    /**
     * Sets the data mapping that colours the markers; null for none.
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
     * The data mapping that colours the markers, or null for none.
     *
     * @return the data mapping that colours the markers, or null for none: the Java object set earlier while
     *     the node still holds its address, else the registered Java object of that address or a view of it
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

    private static native long ctorImpl1(int num, Object[] points, float[] values1, float[] values2);

    private native void setDataMappingImpl(long handle, long dataMapping);

    private native long getDataMappingImpl(long handle);
}
