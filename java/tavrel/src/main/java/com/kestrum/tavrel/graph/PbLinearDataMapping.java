package com.kestrum.tavrel.graph;

import static com.kestrum.tavrel.graph.Checks.hls;
import static com.kestrum.tavrel.graph.Checks.rgb;

import com.kestrum.corvel.SbColor;
import com.kestrum.corvel.misc.ManagedObjects;
import com.kestrum.tavrel.internal.JarInitializer;
import java.util.List;

/**
 * A data mapping between two values: value1 has colour1, value2 has colour2, and the values
 * between have the colour interpolated linearly (each end may have a transparency too). A new
 * mapping goes from 0, black, to 1, white. See {@link PbBase} for the ownership of attribute
 * objects.
 */
public class PbLinearDataMapping extends PbDataMapping {
    static {
        JarInitializer.init();
        ManagedObjects.registerWrapper(PbLinearDataMapping.class.getName(), PbLinearDataMapping::new);
    }

    /** One end of the mapping: a value and its colour (SbColor or HlsColor). */
    public record Stop<C>(float value, C color) {}

    /** One end of the mapping with its transparency. */
    public record TransparentStop<C>(float value, C color, float transparency) {}

    /** A linear mapping with the toolkit's defaults (0 black to 1 white). */
    public PbLinearDataMapping() {
        super(made(ctorImpl()));
    }

    /**
     * A copy of another mapping, independent of it.
     *
     * @param other the object to copy
     */
    public PbLinearDataMapping(PbLinearDataMapping other) {
        super(made(ctorImpl1(handleOf(other, "other"))));
    }

    /**
     * A view of a native mapping made elsewhere (non-zero handle).
     *
     * @param handle the address of the native object
     */
    protected PbLinearDataMapping(long handle) {
        super(handle);
    }

    /**
     * Sets both ends, opaque.
     *
     * @param value1 the first value
     * @param color1 the colour of the first value
     * @param value2 the second value
     * @param color2 the colour of the second value
     */
    public void setValues(float value1, SbColor color1, float value2, SbColor color2) {
        setValuesImpl(handle(), value1, rgb(color1, "color1"), value2, rgb(color2, "color2"));
    }

    /**
     * Sets both ends with their transparencies.
     *
     * @param value1 the first value
     * @param color1 the colour of the first value
     * @param transparency1 the transparency of the first value, from 0 (opaque) to 1
     * @param value2 the second value
     * @param color2 the colour of the second value
     * @param transparency2 the transparency of the second value, from 0 (opaque) to 1
     */
    public void setValues(float value1, SbColor color1, float transparency1, float value2, SbColor color2,
            float transparency2) {
        setValuesImpl1(handle(), value1, rgb(color1, "color1"), transparency1, value2, rgb(color2, "color2"),
                transparency2);
    }

    /**
     * Sets both ends, opaque, the colours given as HLS.
     *
     * @param value1 the first value
     * @param color1 the colour of the first value
     * @param value2 the second value
     * @param color2 the colour of the second value
     */
    public void setValues(float value1, HlsColor color1, float value2, HlsColor color2) {
        setValuesImpl2(handle(), value1, hls(color1, "color1"), value2, hls(color2, "color2"));
    }

    /**
     * Sets both ends with their transparencies, the colours given as HLS.
     *
     * @param value1 the first value
     * @param color1 the colour of the first value
     * @param transparency1 the transparency of the first value, from 0 (opaque) to 1
     * @param value2 the second value
     * @param color2 the colour of the second value
     * @param transparency2 the transparency of the second value, from 0 (opaque) to 1
     */
    public void setValues(float value1, HlsColor color1, float transparency1, float value2, HlsColor color2,
            float transparency2) {
        setValuesImpl3(handle(), value1, hls(color1, "color1"), transparency1, value2, hls(color2, "color2"),
                transparency2);
    }

    /**
     * The two ends, in RGB.
     *
     * @return the two ends, in RGB
     */
    public List<Stop<SbColor>> getRGBValues() {
        float[] v1 = new float[1], c1 = new float[3], v2 = new float[1], c2 = new float[3];
        getRGBValuesImpl(handle(), v1, c1, v2, c2);
        return List.of(new Stop<>(v1[0], rgbOf(c1)), new Stop<>(v2[0], rgbOf(c2)));
    }

    /**
     * The two ends with their transparencies, in RGB.
     *
     * @return the two ends with their transparencies, in RGB
     */
    public List<TransparentStop<SbColor>> getRGBAValues() {
        float[] v1 = new float[1], c1 = new float[3], t1 = new float[1];
        float[] v2 = new float[1], c2 = new float[3], t2 = new float[1];
        getRGBAValuesImpl(handle(), v1, c1, t1, v2, c2, t2);
        return List.of(new TransparentStop<>(v1[0], rgbOf(c1), t1[0]), new TransparentStop<>(v2[0], rgbOf(c2), t2[0]));
    }

    /**
     * The two ends, in HLS.
     *
     * @return the two ends, in HLS
     */
    public List<Stop<HlsColor>> getHLSValues() {
        float[] v1 = new float[1], c1 = new float[3], v2 = new float[1], c2 = new float[3];
        getHLSValuesImpl(handle(), v1, c1, v2, c2);
        return List.of(new Stop<>(v1[0], HlsColor.of(c1)), new Stop<>(v2[0], HlsColor.of(c2)));
    }

    /**
     * The two ends with their transparencies, in HLS.
     *
     * @return the two ends with their transparencies, in HLS
     */
    public List<TransparentStop<HlsColor>> getHLSAValues() {
        float[] v1 = new float[1], c1 = new float[3], t1 = new float[1];
        float[] v2 = new float[1], c2 = new float[3], t2 = new float[1];
        getHLSAValuesImpl(handle(), v1, c1, t1, v2, c2, t2);
        return List.of(new TransparentStop<>(v1[0], HlsColor.of(c1), t1[0]),
                new TransparentStop<>(v2[0], HlsColor.of(c2), t2[0]));
    }

    private static SbColor rgbOf(float[] c) {
        return new SbColor(c[0], c[1], c[2]);
    }

    private static native long ctorImpl();

    private static native long ctorImpl1(long other);

    private native void setValuesImpl(long handle, float value1, float[] color1, float value2, float[] color2);

    private native void setValuesImpl1(long handle, float value1, float[] color1, float transparency1, float value2,
            float[] color2, float transparency2);

    private native void setValuesImpl2(long handle, float value1, float[] color1, float value2, float[] color2);

    private native void setValuesImpl3(long handle, float value1, float[] color1, float transparency1, float value2,
            float[] color2, float transparency2);

    private native void getRGBValuesImpl(long handle, float[] value1, float[] color1, float[] value2,
            float[] color2);

    private native void getRGBAValuesImpl(long handle, float[] value1, float[] color1, float[] transparency1,
            float[] value2, float[] color2, float[] transparency2);

    private native void getHLSValuesImpl(long handle, float[] value1, float[] color1, float[] value2,
            float[] color2);

    private native void getHLSAValuesImpl(long handle, float[] value1, float[] color1, float[] transparency1,
            float[] value2, float[] color2, float[] transparency2);
}
