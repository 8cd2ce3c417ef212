package com.kestrum.corvel;

import java.util.Arrays;

/** An RGB colour (red, green, blue), each component usually in [0, 1]. */
public class SbColor {
    /** The components; native code reads them directly. */
    protected final float[] array;

    public SbColor() {
        this(0f, 0f, 0f);
    }

    public SbColor(float red, float green, float blue) {
        array = new float[] {red, green, blue};
    }

    public float getRed() {
        return array[0];
    }

    public float getGreen() {
        return array[1];
    }

    public float getBlue() {
        return array[2];
    }

    public SbColor setValue(float red, float green, float blue) {
        array[0] = red;
        array[1] = green;
        array[2] = blue;
        return this;
    }

    /** A copy of the components. */
    public float[] getValue() {
        return array.clone();
    }

    @Override
    public boolean equals(Object o) {
        return o instanceof SbColor && o.getClass() == getClass() && Arrays.equals(array, ((SbColor) o).array);
    }

    @Override
    public int hashCode() {
        return Arrays.hashCode(array);
    }

    @Override
    public String toString() {
        return "rgb(" + array[0] + ", " + array[1] + ", " + array[2] + ")";
    }
}
