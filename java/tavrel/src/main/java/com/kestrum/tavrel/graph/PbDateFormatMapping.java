package com.kestrum.tavrel.graph;

import static com.kestrum.tavrel.graph.Checks.notNull;

import com.kestrum.corvel.misc.ManagedObjects;
import com.kestrum.tavrel.internal.JarInitializer;

/**
 * Dates on a graph axis: two reference dates with their coordinates fix a linear mapping between
 * dates and coordinates, and a format says how dates are written. Which dates and formats the
 * toolkit reads is its rule (the README tells the stand-in's). See {@link PbBase} for the
 * ownership of attribute objects.
 */
public class PbDateFormatMapping extends PbBase {
    static {
        JarInitializer.init();
        ManagedObjects.registerWrapper(PbDateFormatMapping.class.getName(), PbDateFormatMapping::new);
    }

    public PbDateFormatMapping() {
        super(made(ctorImpl()));
    }

    /** A copy of another mapping, independent of it. */
    public PbDateFormatMapping(PbDateFormatMapping other) {
        super(made(ctorImpl1(handleOf(other, "other"))));
    }

    /**
     * A mapping of date1 to coord1 and date2 to coord2, writing dates with the format. A part the
     * toolkit cannot take (dates it cannot read, a format it does not know) stays as in a new
     * mapping.
     */
    public PbDateFormatMapping(String date1, String date2, float coord1, float coord2, String format) {
        super(made(ctorImpl2(notNull(date1, "date1"), notNull(date2, "date2"), coord1, coord2,
                notNull(format, "format"))));
    }

    /** A view of a native mapping made elsewhere (non-zero handle). */
    protected PbDateFormatMapping(long handle) {
        super(handle);
    }

    /**
     * Maps date1 to coord1 and date2 to coord2; false (and nothing changed) when the toolkit does
     * not take them.
     */
    public boolean setDateMapping(String date1, String date2, float coord1, float coord2) {
        return setDateMappingImpl(handle(), notNull(date1, "date1"), notNull(date2, "date2"), coord1, coord2) != 0;
    }

    /** Sets the format in which dates are written; false (and nothing changed) when the toolkit does not take it. */
    public boolean setFormat(String format) {
        return setFormatImpl1(handle(), notNull(format, "format")) != 0;
    }

    public String getFormat() {
        return getFormatImpl(handle());
    }

    /**
     * The coordinate of the date.
     *
     * @throws IllegalArgumentException when the toolkit cannot read the date
     */
    public float getCoordinate(String date) {
        float[] coord = new float[1];
        if (getCoordinateImpl1(handle(), notNull(date, "date"), coord) == 0) {
            throw new IllegalArgumentException("the date mapping cannot read the date \"" + date + "\"");
        }
        return coord[0];
    }

    private static native long ctorImpl();

    private static native long ctorImpl1(long other);

    private static native long ctorImpl2(String date1, String date2, float coord1, float coord2, String format);

    private native int setDateMappingImpl(long handle, String date1, String date2, float coord1, float coord2);

    private native int setFormatImpl1(long handle, String format);

    private native String getFormatImpl(long handle);

    private native int getCoordinateImpl1(long handle, String date, float[] coord);
}
