package com.kestrum.corvel;

import com.kestrum.corvel.misc.Arguments;
import java.util.Arrays;

/** A three-component float vector (x, y, z). */
public class SbVec3f {
    /** The components; native code reads them directly. */
    protected final float[] array;

    /** The zero vector. */
    public SbVec3f() {
        this(0f, 0f, 0f);
    }

    /**
     * A vector of those components.
     *
     * @param x the x component
     * @param y the y component
     * @param z the z component
     */
    public SbVec3f(float x, float y, float z) {
        array = new float[] {x, y, z};
    }

    /**
     * A vector of the first three elements of the array.
     *
     * @param xyz x, y and z in its first three elements
     * @throws NullPointerException when xyz is null
     * @throws IllegalArgumentException when xyz has fewer than three elements
     */
    public SbVec3f(float[] xyz) {
        this(Arguments.length(xyz, 3, "xyz")[0], xyz[1], xyz[2]);
    }

    /**
     * A copy of another vector.
     *
     * @param other the vector to copy
     * @throws NullPointerException when other is null
     */
    public SbVec3f(SbVec3f other) {
        this(Arguments.notNull(other, "other").array[0], other.array[1], other.array[2]);
    }

    /**
     * The x component.
     *
     * @return the x component
     */
    public float getX() {
        return array[0];
    }

    /**
     * The y component.
     *
     * @return the y component
     */
    public float getY() {
        return array[1];
    }

    /**
     * The z component.
     *
     * @return the z component
     */
    public float getZ() {
        return array[2];
    }

    /**
     * Sets the three components.
     *
     * @param x the x component
     * @param y the y component
     * @param z the z component
     * @return this vector
     */
    public SbVec3f setValue(float x, float y, float z) {
        array[0] = x;
        array[1] = y;
        array[2] = z;
        return this;
    }

    /**
     * A copy of the components.
     *
     * @return a copy of the components
     */
    public float[] getValue() {
        return array.clone();
    }

    @Override
    public boolean equals(Object o) {
        return o instanceof SbVec3f && o.getClass() == getClass() && Arrays.equals(array, ((SbVec3f) o).array);
    }

    @Override
    public int hashCode() {
        return Arrays.hashCode(array);
    }

    @Override
    public String toString() {
        return "(" + array[0] + ", " + array[1] + ", " + array[2] + ")";
    }
}
