package com.kestrum.tavrel.graph;

import static com.kestrum.tavrel.graph.Checks.colors;
import static com.kestrum.tavrel.graph.Checks.length;
import static com.kestrum.tavrel.graph.Checks.notNull;

import com.kestrum.corvel.SbColor;
import com.kestrum.corvel.misc.ManagedObjects;
import com.kestrum.tavrel.internal.Enums;
import com.kestrum.tavrel.internal.JarInitializer;
import java.nio.ByteBuffer;
import java.nio.ByteOrder;
import java.nio.FloatBuffer;

/**
 * A data mapping given by a list of values and a list of colours, with an optional list of
 * transparencies. With {@link Types#NONLINEARPERLEVEL} the num values bound num + 1 levels, one
 * colour each; with {@link Types#LINEARPERLEVEL} each of the num values has a colour and the
 * colours between are interpolated. The colour list and the transparency list share one count,
 * the colour count ({@link #getColorCount}).
 *
 * <p>Views into the mapping: the direct buffers alias the mapping's own lists and must not be
 * used once {@code setValues} has replaced them. See {@link PbBase} for the ownership of
 * attribute objects.
 */
public class PbNonLinearDataMapping2 extends PbDataMapping {
    static {
        JarInitializer.init();
        ManagedObjects.registerWrapper(PbNonLinearDataMapping2.class.getName(), PbNonLinearDataMapping2::new);
    }

    /** How the colours go with the values. */
    public enum Types {
        /** num values, num + 1 colours: one colour per level between values. */
        NONLINEARPERLEVEL(JarInitializer.value(Types::getNONLINEARPERLEVELNative)),
        /** num values, num colours: one colour at each value, interpolated between. */
        LINEARPERLEVEL(JarInitializer.value(Types::getLINEARPERLEVELNative));

        private final int value;

        Types(int value) {
            this.value = value;
        }

        /** {@return the toolkit's value of the constant} */
        public int getValue() {
            return value;
        }

        /**
         * {@return the constant with the toolkit's value, or null}
         *
         * @param value the toolkit's value
         */
        public static Types fromValue(int value) {
            return Enums.fromValue(values(), Types::getValue, value);
        }

        /**
         * The number of colours (and transparencies) the type needs for num values.
         *
         * @param num the number of elements to use
         * @return the number of colours (and transparencies) the type needs for num values
         */
        public long colorCount(int num) {
            return this == NONLINEARPERLEVEL ? num + 1L : num;
        }

        private static native int getNONLINEARPERLEVELNative();

        private static native int getLINEARPERLEVELNative();
    }

    /** A list mapping with the toolkit's defaults (no lists). */
    public PbNonLinearDataMapping2() {
        super(made(ctorImpl()));
    }

    /**
     * A copy of another mapping, independent of it.
     *
     * @param other the object to copy
     */
    public PbNonLinearDataMapping2(PbNonLinearDataMapping2 other) {
        super(made(ctorImpl1(handleOf(other, "other"))));
    }

    /**
     * A view of a native mapping made elsewhere (non-zero handle).
     *
     * @param handle the address of the native object
     */
    protected PbNonLinearDataMapping2(long handle) {
        super(handle);
    }

    /**
     * The type, or null for a value outside the enumeration.
     *
     * @return the type, or null for a value outside the enumeration
     */
    public Types getType() {
        return Types.fromValue(getTypeImpl(handle()));
    }

    /**
     * Sets the type, the first num values and the colours the type needs ({@link
     * Types#colorCount}); null colours leave the mapping without colours (every value black).
     * The mapping copies what it reads; it is opaque afterwards.
     *
     * @param type how colours are given per level
     * @param num the number of elements to use
     * @param values the values
     * @param colors the colours
     */
    public void setValues(Types type, int num, float[] values, SbColor[] colors) {
        long needed = checkValues(type, num, values);
        setValuesImpl(handle(), type.getValue(), num, values, colors(colors, needed, "colors"));
    }

    /**
     * As {@link #setValues(Types, int, float[], SbColor[])}, with a transparency per colour.
     *
     * @param type the type
     * @param num the number of elements to use
     * @param values the values
     * @param colors the colours
     * @param transparency the transparency, from 0 (opaque) to 1
     */
    public void setValues(Types type, int num, float[] values, SbColor[] colors, float[] transparency) {
        long needed = checkValues(type, num, values);
        setValuesImpl1(handle(), type.getValue(), num, values, colors(colors, needed, "colors"),
                length(transparency, needed, "transparency"));
    }

    /**
     * A copy of the values list, or null when there is none.
     *
     * @return a copy of the values list, or null when there is none
     */
    public float[] getValuesList() {
        return getValuesListImpl(handle(), new int[1]);
    }

    /**
     * A copy of the transparency list (colour count elements), or null when there is none.
     *
     * @return a copy of the transparency list (colour count elements), or null when there is none
     */
    public float[] getTransparencyList() {
        return getTransparencyListImpl(handle(), new int[1]);
    }

    /**
     * A copy of the colour list, or null when there is none.
     *
     * @return a copy of the colour list, or null when there is none
     */
    public SbColor[] getRGBColorsList() {
        FloatBuffer floats = getDirectRGBColorsList();
        if (floats == null) {
            return null;
        }
        SbColor[] colors = new SbColor[floats.capacity() / 3];
        for (int i = 0; i < colors.length; i++) {
            colors[i] = new SbColor(floats.get(3 * i), floats.get(3 * i + 1), floats.get(3 * i + 2));
        }
        return colors;
    }

    /**
     * The number of colours (and transparencies) of the mapping.
     *
     * @return the number of colours (and transparencies) of the mapping
     */
    public int getColorCount() {
        int[] num = new int[1];
        getRGBColorsListImpl(handle(), num);
        return num[0];
    }

    /**
     * The address of the mapping's own colour list (colour count times three floats), for native
     * code; 0 when there is none. Valid until the next {@code setValues}.
     *
     * @return the address of the mapping's own colour list (colour count times three floats), for native
     *     code; 0 when there is none
     */
    public long getRGBColorsListAddress() {
        return getRGBColorsListImpl(handle(), new int[1]);
    }

    /**
     * The mapping's values list, without a copy, or null when there is none.
     *
     * @return the mapping's values list, without a copy, or null when there is none
     */
    public FloatBuffer getDirectValuesList() {
        return floats(getDirectValuesListImpl(handle(), new int[1]));
    }

    /**
     * The mapping's colour list, three floats a colour, without a copy, or null.
     *
     * @return the mapping's colour list, three floats a colour, without a copy, or null
     */
    public FloatBuffer getDirectRGBColorsList() {
        return floats(getDirectRGBColorsListImpl(handle(), new int[1]));
    }

    /**
     * The mapping's transparency list, without a copy, or null when there is none.
     *
     * @return the mapping's transparency list, without a copy, or null when there is none
     */
    public FloatBuffer getDirectTransparencyList() {
        return floats(getDirectTransparencyListImpl(handle(), new int[1]));
    }

    private static long checkValues(Types type, int num, float[] values) {
        notNull(type, "type");
        Checks.count(num, Integer.MAX_VALUE - 1, "num");
        length(values, num, "values");
        return type.colorCount(num);
    }

    private static FloatBuffer floats(Object buffer) {
        return buffer == null ? null : ((ByteBuffer) buffer).order(ByteOrder.nativeOrder()).asFloatBuffer();
    }

    private static native long ctorImpl();

    private static native long ctorImpl1(long other);

    private native int getTypeImpl(long handle);

    private native void setValuesImpl(long handle, int type, int num, float[] values, Object[] colors);

    private native void setValuesImpl1(long handle, int type, int num, float[] values, Object[] colors,
            float[] transparency);

    private native float[] getValuesListImpl(long handle, int[] num);

    private native float[] getTransparencyListImpl(long handle, int[] num);

    private native long getRGBColorsListImpl(long handle, int[] num);

    private native Object getDirectValuesListImpl(long handle, int[] num);

    private native Object getDirectRGBColorsListImpl(long handle, int[] num);

    private native Object getDirectTransparencyListImpl(long handle, int[] num);
}
