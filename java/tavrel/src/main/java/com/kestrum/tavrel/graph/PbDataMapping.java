package com.kestrum.tavrel.graph;

import static com.kestrum.tavrel.graph.Checks.hls;
import static com.kestrum.tavrel.graph.Checks.rgb;

import com.kestrum.corvel.SbColor;
import com.kestrum.corvel.misc.ManagedObjects;
import com.kestrum.tavrel.internal.JarInitializer;

/**
 * Base of the data mappings, which give each value a colour: what every mapping offers. Values
 * below an enabled minimum threshold take the minimum threshold's colour, values above an enabled
 * maximum threshold the maximum's. See {@link PbBase} for the ownership of attribute objects.
 */
public abstract class PbDataMapping extends PbBase {
    static {
        JarInitializer.init();
        ManagedObjects.registerWrapper(PbDataMapping.class.getName(), View::new);
    }

    /**
     * A view of a native data mapping made elsewhere (non-zero handle).
     *
     * @param handle the address of the native object
     */
    protected PbDataMapping(long handle) {
        super(handle);
    }

    /** A mapping that a constructor function of this package has just made. */
    PbDataMapping(NativeResourceHandle made) {
        super(made);
    }

    /**
     * The colour of the value, thresholds included.
     *
     * @param value the value to map
     * @return the colour of the value, thresholds included
     */
    public HlsColor getHLSColor(float value) {
        return HlsColor.of(getHLSColorImpl(handle(), value));
    }

    /**
     * Sets the minimum threshold's value (its colour and transparency stay).
     *
     * @param threshold the threshold value
     */
    public void setMinThreshold(float threshold) {
        setMinThresholdImpl(handle(), threshold);
    }

    /**
     * Sets the maximum threshold's value (its colour and transparency stay).
     *
     * @param threshold the threshold value
     */
    public void setMaxThreshold(float threshold) {
        setMaxThresholdImpl(handle(), threshold);
    }

    /**
     * Sets the minimum threshold with the colour and transparency of the values below it.
     *
     * @param threshold the threshold value
     * @param color the colour
     * @param transparency the transparency, from 0 (opaque) to 1
     */
    public void setMinThreshold(float threshold, SbColor color, float transparency) {
        setMinThresholdImpl1(handle(), threshold, rgb(color, "color"), transparency);
    }

    /**
     * As {@link #setMinThreshold(float, SbColor, float)}, the colour given as HLS.
     *
     * @param threshold the threshold value
     * @param color the colour
     * @param transparency the transparency, from 0 (opaque) to 1
     */
    public void setMinThreshold(float threshold, HlsColor color, float transparency) {
        setMinThresholdImpl2(handle(), threshold, hls(color, "color"), transparency);
    }

    /**
     * Sets the maximum threshold with the colour and transparency of the values above it.
     *
     * @param threshold the threshold value
     * @param color the colour
     * @param transparency the transparency, from 0 (opaque) to 1
     */
    public void setMaxThreshold(float threshold, SbColor color, float transparency) {
        setMaxThresholdImpl1(handle(), threshold, rgb(color, "color"), transparency);
    }

    /**
     * As {@link #setMaxThreshold(float, SbColor, float)}, the colour given as HLS.
     *
     * @param threshold the threshold value
     * @param color the colour
     * @param transparency the transparency, from 0 (opaque) to 1
     */
    public void setMaxThreshold(float threshold, HlsColor color, float transparency) {
        setMaxThresholdImpl2(handle(), threshold, hls(color, "color"), transparency);
    }

    /**
     * Enables or disables the two thresholds.
     *
     * @param min whether the minimum threshold is used
     * @param max whether the maximum threshold is used
     */
    public void enableThresholds(boolean min, boolean max) {
        enableThresholdsImpl(handle(), min, max);
    }

    /**
     * Whether values below the minimum threshold take its colour.
     *
     * @return whether values below the minimum threshold take its colour
     */
    public boolean isMinThresholdEnabled() {
        return thresholdsEnabled()[0];
    }

    /**
     * Whether values above the maximum threshold take its colour.
     *
     * @return whether values above the maximum threshold take its colour
     */
    public boolean isMaxThresholdEnabled() {
        return thresholdsEnabled()[1];
    }

    /**
     * Switches the use of the mapping's transparencies on or off.
     *
     * @param flag true to switch it on, false to switch it off
     */
    public void enableTransparency(boolean flag) {
        enableTransparencyImpl(handle(), flag);
    }

    /**
     * Whether the mapping's transparencies are used.
     *
     * @return whether the mapping's transparencies are used
     */
    public boolean isTransparencyEnabled() {
        return isTransparencyEnabledImpl(handle());
    }

    /**
     * Sets the transparency of the parts of a drawing that the thresholds delete.
     *
     * @param value the transparency, from 0 to 1
     */
    public void setTransparencyValueDeletedParts(float value) {
        setTransparencyValueDeletedPartsImpl(handle(), value);
    }

    /**
     * The transparency above which parts are not drawn.
     *
     * @return the transparency above which parts are not drawn
     */
    public float getTransparencyValueDeletedParts() {
        return getTransparencyValueDeletedPartsImpl(handle());
    }

    /** The two threshold flags: minimum, maximum. */
    private boolean[] thresholdsEnabled() {
        boolean[] min = new boolean[1];
        boolean[] max = new boolean[1];
        thresholdsEnabledImpl(handle(), min, max);
        return new boolean[] {min[0], max[0]};
    }

    /** A view of a mapping of a class this package does not know. */
    private static final class View extends PbDataMapping {
        View(long handle) {
            super(handle);
        }
    }

    private native float[] getHLSColorImpl(long handle, float value);

    private native void setMinThresholdImpl(long handle, float threshold);

    private native void setMaxThresholdImpl(long handle, float threshold);

    private native void setMinThresholdImpl1(long handle, float threshold, float[] color, float transparency);

    private native void setMinThresholdImpl2(long handle, float threshold, float[] hls, float transparency);

    private native void setMaxThresholdImpl1(long handle, float threshold, float[] color, float transparency);

    private native void setMaxThresholdImpl2(long handle, float threshold, float[] hls, float transparency);

    private native void enableThresholdsImpl(long handle, boolean min, boolean max);

    private native void thresholdsEnabledImpl(long handle, boolean[] min, boolean[] max);

    private native void enableTransparencyImpl(long handle, boolean flag);

    private native boolean isTransparencyEnabledImpl(long handle);

    private native void setTransparencyValueDeletedPartsImpl(long handle, float value);

    private native float getTransparencyValueDeletedPartsImpl(long handle);
}
