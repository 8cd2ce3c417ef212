package com.kestrum.tavrel.graph;

import com.kestrum.tavrel.internal.JarInitializer;

/**
 * The representation of a pie chart's slices: their translations and picking.
 */
public class PoPieChartRep extends PoChart {
    static {
        JarInitializer.init();
    }

    /** A new representation (without slices); holds one reference on its native node. */
    public PoPieChartRep() {
        this(ctorImpl());
    }

    /**
     * A Java object for the native node at the handle (non-zero); takes a reference on it.
     *
     * @param handle the address of the native object
     */
    protected PoPieChartRep(long handle) {
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

    /**
     * Moves a slice out from the centre by the distance, along the middle of its span (a slice
     * number the chart does not have is ignored). A change of the node (see {@link PoBase}).
     *
     * @param slice the index of the slice
     * @param distance the distance by which the slice moves out
     */
    public void setSliceToTranslate(int slice, float distance) {
        rebuilding(h -> setSliceToTranslateImpl(h, slice, distance));
    }

    /**
     * The distance a slice has been moved out by; 0 for a slice never moved or out of range.
     *
     * @param slice the index of the slice
     * @return the distance a slice has been moved out by; 0 for a slice never moved or out of range
     */
    public float getSliceToTranslate(int slice) {
        return getSliceToTranslateImpl(handle(), slice);
    }

    /**
     * The slice a picked path points at.
     *
     * @param path the address of a native path (an {@code SoPath}) as a pick gives it; it must be
     *     live for the call
     * @param slice at least one element: element 0 receives the slice number, or 0 when the
     *     toolkit did not write it
     * @return the toolkit's result: non-zero when the path picks a slice of this chart
     */
    public int getPickedSliceNumber(long path, int[] slice) {
        ChartChecks.path(path);
        ChartChecks.output(slice, "slice");
        return getPickedSliceNumberImpl(handle(), path, slice);
    }

    /**
     * The slice a picked path points at, or -1 when it picks none of this chart's slices.
     *
     * @param path the address of a native SoPath, as a pick gives it
     * @return the slice a picked path points at, or -1 when it picks none of this chart's slices
     */
    public int getPickedSliceNumber(long path) {
        int[] slice = new int[1];
        return getPickedSliceNumber(path, slice) != 0 ? slice[0] : -1;
    }

    private static native long ctorImpl();

    private native void setSliceToTranslateImpl(long handle, int slice, float distance);

    private native float getSliceToTranslateImpl(long handle, int slice);

    private native int getPickedSliceNumberImpl(long handle, long path, int[] slice);

    private static native String getClassTypeId();

    private static native long getClassNodekitCatalogImpl();
}
