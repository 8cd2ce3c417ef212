package com.kestrum.corvel;

import com.kestrum.corvel.misc.Arguments;
import java.util.Arrays;

/**
 * An axis-aligned 3D box: its minimum corner (xmin, ymin, zmin) and maximum corner (xmax, ymax,
 * zmax). Immutable. The toolkit keeps a box as these six floats in this order ({@link
 * #getValue()}).
 */
public final class SbBox3f {
    private final float[] values;

    /**
     * A box between two corners given by their coordinates.
     *
     * @param xmin the smallest x
     * @param ymin the smallest y
     * @param zmin the smallest z
     * @param xmax the largest x
     * @param ymax the largest y
     * @param zmax the largest z
     */
    public SbBox3f(float xmin, float ymin, float zmin, float xmax, float ymax, float zmax) {
        values = new float[] {xmin, ymin, zmin, xmax, ymax, zmax};
    }

    /**
     * A box between two corners.
     *
     * @param min the corner of the smallest coordinates
     * @param max the corner of the largest coordinates
     * @throws NullPointerException when min or max is null
     */
    public SbBox3f(SbVec3f min, SbVec3f max) {
        this(Arguments.notNull(min, "min").getX(), min.getY(), min.getZ(), Arguments.notNull(max, "max").getX(),
                max.getY(), max.getZ());
    }

    /**
     * The box of the first six floats: xmin, ymin, zmin, xmax, ymax, zmax.
     *
     * @param values the values
     * @return the box of the first six floats: xmin, ymin, zmin, xmax, ymax, zmax
     * @throws NullPointerException when values is null
     * @throws IllegalArgumentException when values has fewer than six elements
     */
    public static SbBox3f fromValue(float[] values) {
        Arguments.length(values, 6, "values");
        return new SbBox3f(values[0], values[1], values[2], values[3], values[4], values[5]);
    }

    /**
     * The corner of the smallest coordinates.
     *
     * @return the corner of the smallest coordinates
     */
    public SbVec3f getMin() {
        return new SbVec3f(values[0], values[1], values[2]);
    }

    /**
     * The corner of the largest coordinates.
     *
     * @return the corner of the largest coordinates
     */
    public SbVec3f getMax() {
        return new SbVec3f(values[3], values[4], values[5]);
    }

    /**
     * A copy of the six floats: xmin, ymin, zmin, xmax, ymax, zmax.
     *
     * @return a copy of the six floats: xmin, ymin, zmin, xmax, ymax, zmax
     */
    public float[] getValue() {
        return values.clone();
    }

    @Override
    public boolean equals(Object o) {
        return o instanceof SbBox3f && Arrays.equals(values, ((SbBox3f) o).values);
    }

    @Override
    public int hashCode() {
        return Arrays.hashCode(values);
    }

    @Override
    public String toString() {
        return "(" + values[0] + ", " + values[1] + ", " + values[2] + ")..(" + values[3] + ", " + values[4] + ", "
                + values[5] + ")";
    }
}
