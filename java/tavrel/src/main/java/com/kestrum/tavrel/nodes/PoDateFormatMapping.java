package com.kestrum.tavrel.nodes;

import com.kestrum.corvel.nodes.SoNode;
import com.kestrum.tavrel.internal.Checks;
import com.kestrum.tavrel.internal.JarInitializer;

/**
 * A property node that maps dates onto coordinates for the graphs after it in the scene: two
 * reference dates with their coordinates fix a linear mapping (see
 * {@link com.kestrum.tavrel.graph.PbDateFormatMapping} for the dates it reads).
 *
 * <p>The node keeps its values in named fields, read each time they are used; set them with
 * {@code getField(name).setValue(text)}: {@code "date1"} ({@code 2000-01-01}), {@code "date2"}
 * ({@code 2000-01-02}), {@code "coord1"} ({@code 0}), {@code "coord2"} ({@code 1}) and
 * {@code "format"} ({@code %Y-%m-%d}). Dates or a format the mapping cannot take leave those of
 * the defaults.
 *
 * <p>When an action traverses the node it becomes the current date mapping for the rest of the
 * traversal. The node is released when it is disposed and nothing else in the scene references
 * it.
 */
public class PoDateFormatMapping extends SoNode {
    static {
        JarInitializer.init();
    }

    /** A node mapping 2000-01-01 to 0 and 2000-01-02 to 1. */
    public PoDateFormatMapping() {
        super(ctorImpl());
    }

    /**
     * The name of the class's toolkit type.
     *
     * @return the type name
     */
    public static String getClassTypeName() {
        return getClassTypeId();
    }

    /**
     * The coordinate of a date.
     *
     * @param date a date such as {@code "2024-03-01"} or {@code "2024-03-01 12:30"}
     * @return its coordinate
     * @throws IllegalArgumentException when the toolkit cannot read the date
     * @throws NullPointerException when date is null
     * @throws IllegalStateException when the node has been disposed
     */
    public float getCoordinate(String date) {
        float[] coord = new float[1];
        if (!coordinate(date, coord)) {
            throw new IllegalArgumentException("the date mapping cannot read the date \"" + date + "\"");
        }
        return coord[0];
    }

    /** The toolkit's answer for the date, with the coordinate it gives (0 when none) in coord[0]. */
    boolean coordinate(String date, float[] coord) {
        long h = handle();
        return getCoordinateImpl(h, Checks.notNull(date, "date"), coord);
    }

    private static native long ctorImpl();

    private static native String getClassTypeId();

    private native boolean getCoordinateImpl(long handle, String date, float[] coord);
}
