package com.kestrum.corvel;

import com.kestrum.corvel.misc.Arguments;
import java.util.Arrays;

/** A two-component float vector (x, y). */
public class SbVec2f {
    /** The components; native code reads them directly. */
    protected final float[] array;

    /** The zero vector. */
    public SbVec2f() {
        this(0f, 0f);
    }

    /**
     * A vector of those components.
     *
     * @param x the x component
     * @param y the y component
     */
    public SbVec2f(float x, float y) {
        array = new float[] {x, y};
    }

    /**
     * A copy of another vector.
     *
     * @param other the vector to copy
     * @throws NullPointerException when other is null
     */
    public SbVec2f(SbVec2f other) {
        this(Arguments.notNull(other, "other").array[0], other.array[1]);
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
     * Sets both components.
     *
     * @param x the x component
     * @param y the y component
     * @return this vector
     */
    public SbVec2f setValue(float x, float y) {
        array[0] = x;
        array[1] = y;
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
        return o instanceof SbVec2f && o.getClass() == getClass() && Arrays.equals(array, ((SbVec2f) o).array);
    }

    @Override
    public int hashCode() {
        return Arrays.hashCode(array);
    }

    @Override
    public String toString() {
        return "(" + array[0] + ", " + array[1] + ")";
    }
}
