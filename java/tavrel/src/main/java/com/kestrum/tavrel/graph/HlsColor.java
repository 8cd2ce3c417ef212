package com.kestrum.tavrel.graph;

/**
 * A colour as hue, lightness and saturation, as the data mappings take and give it: the hue in
 * degrees (0 to 360), lightness and saturation from 0 to 1. The toolkit keeps colours as RGB, so
 * an HLS colour read back may differ from the one given in the last bits.
 */
public record HlsColor(float hue, float lightness, float saturation) {
    /** The colour of three floats: hue, lightness, saturation. */
    static HlsColor of(float[] hls) {
        return new HlsColor(hls[0], hls[1], hls[2]);
    }

    /**
     * The three floats: hue, lightness, saturation.
     *
     * @return the three floats: hue, lightness, saturation
     */
    public float[] toArray() {
        return new float[] {hue, lightness, saturation};
    }
}
