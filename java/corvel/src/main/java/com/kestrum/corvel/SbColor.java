package com.kestrum.corvel;

import java.util.Arrays;

/** An RGB colour (red, green, blue), each component usually in [0, 1]. */
public class SbColor {
    /** The components; native code reads them directly. */
    protected final float[] array;

    /** Black. */
    public SbColor() {
        this(0f, 0f, 0f);
    }

    /**
     * A colour of those components.
     *
     * @param red the red component, from 0 to 1
     * @param green the green component, from 0 to 1
     * @param blue the blue component, from 0 to 1
     */
    public SbColor(float red, float green, float blue) {
        array = new float[] {red, green, blue};
    }

    /**
     * The red component.
     *
     * @return the red component
     */
    public float getRed() {
        return array[0];
    }

    /**
     * The green component.
     *
     * @return the green component
     */
    public float getGreen() {
        return array[1];
    }

    /**
     * The blue component.
     *
     * @return the blue component
     */
    public float getBlue() {
        return array[2];
    }

    /**
     * Sets the three components.
     *
     * @param red the red component, from 0 to 1
     * @param green the green component, from 0 to 1
     * @param blue the blue component, from 0 to 1
     * @return this colour
     */
    public SbColor setValue(float red, float green, float blue) {
        array[0] = red;
        array[1] = green;
        array[2] = blue;
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
