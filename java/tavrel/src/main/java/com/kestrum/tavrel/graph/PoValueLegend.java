package com.kestrum.tavrel.graph;

import com.kestrum.tavrel.internal.JarInitializer;

/** Base of the value legends, which show how values map to colours. */
public abstract class PoValueLegend extends PoLegend {
    static {
        JarInitializer.init();
    }

    private final Kept<PbIsovaluesList> isovaluesList = new Kept<>(PbIsovaluesList.class, "isovaluesList");
    private final Kept<PbDataMapping> dataMapping = new Kept<>(PbDataMapping.class, "dataMapping");
    private final Kept<PbNumericDisplayFormat> format = new Kept<>(PbNumericDisplayFormat.class, "format");

    /**
     * A Java object for the native node at the handle (non-zero); takes a reference on it.
     *
     * @param handle the address of the native object
     */
    protected PoValueLegend(long handle) {
        super(handle);
    }

    /**
     * Sets the isovalue list whose values the legend shows; null for none.
     *
     * <p>The node keeps the object's address, so this object keeps the Java object as long as it
     * is set.
     *
     * @param isovaluesList the isovalue list, or null for none
     */
    public void setIsovaluesList(PbIsovaluesList isovaluesList) {
        this.isovaluesList.set(handle(), isovaluesList, this::setIsovaluesListImpl);
    }

    /**
     * The isovalue list whose values the legend shows, or null for none.
     *
     * @return the isovalue list whose values the legend shows, or null for none: the Java object set earlier
     *     while the node still holds its address, else the registered Java object of that address or a view
     *     of it
     */
    public PbIsovaluesList getIsovaluesList() {
        return isovaluesList.get(getIsovaluesListImpl(handle()));
    }

    /**
     * Sets the data mapping that colours the legend's boxes; null for none.
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
     * The data mapping that colours the legend's boxes, or null for none.
     *
     * @return the data mapping that colours the legend's boxes, or null for none: the Java object set earlier
     *     while the node still holds its address, else the registered Java object of that address or a view
     *     of it
     */
    public PbDataMapping getDataMapping() {
        return dataMapping.get(getDataMappingImpl(handle()));
    }

    /**
     * Sets the numeric format of the legend's values; null for none.
     *
     * <p>The node keeps the object's address, so this object keeps the Java object as long as it
     * is set.
     *
     * @param format the format, or null for none
     */
    public void setFormat(PbNumericDisplayFormat format) {
        this.format.set(handle(), format, this::setFormatImpl);
    }

    /**
     * The numeric format of the legend's values, or null for none.
     *
     * @return the numeric format of the legend's values, or null for none: the Java object set earlier while
     *     the node still holds its address, else the registered Java object of that address or a view of it
     */
    public PbNumericDisplayFormat getFormat() {
        return format.get(getFormatImpl(handle()));
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


    private native void setIsovaluesListImpl(long handle, long isovaluesList);

    private native long getIsovaluesListImpl(long handle);

    private native void setDataMappingImpl(long handle, long dataMapping);

    private native long getDataMappingImpl(long handle);

    private native void setFormatImpl(long handle, long format);

    private native long getFormatImpl(long handle);
}
