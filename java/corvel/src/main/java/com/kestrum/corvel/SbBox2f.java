package com.kestrum.corvel;

import com.kestrum.corvel.misc.Arguments;
import java.util.Arrays;

/**
 * An axis-aligned 2D box: its minimum corner (xmin, ymin) and maximum corner (xmax, ymax).
 * Immutable. The toolkit keeps a box as these four floats in this order ({@link #getValue()}).
 */
public final class SbBox2f {
    private final float[] values;

    /**
     * A box between two corners given by their coordinates.
     *
     * @param xmin the smallest x
     * @param ymin the smallest y
     * @param xmax the largest x
     * @param ymax the largest y
     */
    public SbBox2f(float xmin, float ymin, float xmax, float ymax) {
        values = new float[] {xmin, ymin, xmax, ymax};
    }

    /**
     * A box between two corners.
     *
     * @param min the corner of the smallest coordinates
     * @param max the corner of the largest coordinates
     * @throws NullPointerException when min or max is null
     */
    public SbBox2f(SbVec2f min, SbVec2f max) {
        this(Arguments.notNull(min, "min").getX(), min.getY(), Arguments.notNull(max, "max").getX(), max.getY());
    }

    /**
     * The box of the first four floats: xmin, ymin, xmax, ymax.
     *
     * @param values the values
     * @return the box of the first four floats: xmin, ymin, xmax, ymax
     * @throws NullPointerException when values is null
     * @throws IllegalArgumentException when values has fewer than four elements
     */
    public static SbBox2f fromValue(float[] values) {
        Arguments.length(values, 4, "values");
        return new SbBox2f(values[0], values[1], values[2], values[3]);
    }

    /**
     * The corner of the smallest coordinates.
     *
     * @return the corner of the smallest coordinates
     */
    public SbVec2f getMin() {
        return new SbVec2f(values[0], values[1]);
    }

    /**
     * The corner of the largest coordinates.
     *
     * @return the corner of the largest coordinates
     */
    public SbVec2f getMax() {
        return new SbVec2f(values[2], values[3]);
    }

    /**
     * A copy of the four floats: xmin, ymin, xmax, ymax.
     *
     * @return a copy of the four floats: xmin, ymin, xmax, ymax
     */
    public float[] getValue() {
        return values.clone();
    }

    @Override
    public boolean equals(Object o) {
        return o instanceof SbBox2f && Arrays.equals(values, ((SbBox2f) o).values);
    }

    @Override
    public int hashCode() {
        return Arrays.hashCode(values);
    }

    @Override
    public String toString() {
        return "(" + values[0] + ", " + values[1] + ")..(" + values[2] + ", " + values[3] + ")";
    }
}
