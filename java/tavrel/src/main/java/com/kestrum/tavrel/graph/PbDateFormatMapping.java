package com.kestrum.tavrel.graph;

import static com.kestrum.tavrel.graph.Checks.notNull;

import com.kestrum.corvel.misc.ManagedObjects;
import com.kestrum.tavrel.internal.JarInitializer;

/**
 * Dates on a graph axis: two reference dates with their coordinates fix a linear mapping between
 * dates and coordinates, and a format says how dates are written. Which dates and formats the
 * toolkit reads is its rule (docs/graph.md in the repository tells the stand-in's). See
 * {@link PbBase} for the ownership of attribute objects.
 */
public class PbDateFormatMapping extends PbBase {
    static {
        JarInitializer.init();
        ManagedObjects.registerWrapper(PbDateFormatMapping.class.getName(), PbDateFormatMapping::new);
    }

    /** A date mapping with the toolkit's defaults: 2000-01-01 at 0, 2000-01-02 at 1, written as %Y-%m-%d. */
    public PbDateFormatMapping() {
        super(made(ctorImpl()));
    }

    /**
     * A copy of another mapping, independent of it.
     *
     * @param other the object to copy
     */
    public PbDateFormatMapping(PbDateFormatMapping other) {
        super(made(ctorImpl1(handleOf(other, "other"))));
    }

    /**
     * A mapping of date1 to coord1 and date2 to coord2, writing dates with the format. A part the
     * toolkit cannot take (dates it cannot read, a format it does not know) stays as in a new
     * mapping.
     *
     * @param date1 the first reference date, as YYYY-MM-DD[ hh:mm[:ss]]
     * @param date2 the second reference date, as YYYY-MM-DD[ hh:mm[:ss]]
     * @param coord1 the coordinate of the first reference date
     * @param coord2 the coordinate of the second reference date
     * @param format the output format (%Y %m %d %H %M %S %%)
     */
    public PbDateFormatMapping(String date1, String date2, float coord1, float coord2, String format) {
        super(made(ctorImpl2(notNull(date1, "date1"), notNull(date2, "date2"), coord1, coord2,
                notNull(format, "format"))));
    }

    /**
     * A view of a native mapping made elsewhere (non-zero handle).
     *
     * @param handle the address of the native object
     */
    protected PbDateFormatMapping(long handle) {
        super(handle);
    }

    /**
     * Maps date1 to coord1 and date2 to coord2; false (and nothing changed) when the toolkit does
     * not take them.
     *
     * @param date1 the first reference date, as YYYY-MM-DD[ hh:mm[:ss]]
     * @param date2 the second reference date, as YYYY-MM-DD[ hh:mm[:ss]]
     * @param coord1 the coordinate of the first reference date
     * @param coord2 the coordinate of the second reference date
     * @return false (and nothing changed) when the toolkit does not take the dates
     */
    public boolean setDateMapping(String date1, String date2, float coord1, float coord2) {
        return setDateMappingImpl(handle(), notNull(date1, "date1"), notNull(date2, "date2"), coord1, coord2) != 0;
    }

    /**
     * Sets the format in which dates are written; false (and nothing changed) when the toolkit does not take
     * it.
     *
     * @param format the format, or null for none
     * @return false (and nothing changed) when the toolkit does not take the format
     */
    public boolean setFormat(String format) {
        return setFormatImpl1(handle(), notNull(format, "format")) != 0;
    }

    /**
     * The format in which dates are written.
     *
     * @return the format in which dates are written
     */
    public String getFormat() {
        return getFormatImpl(handle());
    }

    /**
     * The coordinate of the date.
     *
     * @param date the date, as YYYY-MM-DD[ hh:mm[:ss]]
     * @return the coordinate of the date
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
