package com.kestrum.tavrel.graph;

import com.kestrum.tavrel.internal.Enums;
import com.kestrum.tavrel.internal.JarInitializer;

/**
 * Base of the pie charts: slices with names, values and colours around a centre.
 *
 * <p>The slices go counter-clockwise from the x axis, in order, each spanning a share of the turn
 * proportional to its value (a value that is not positive spans nothing).
 */
public abstract class PoPieChart extends PoChart {
    static {
        JarInitializer.init();
    }

    /** Where the annotations inside the slices go. */
    public enum IntAnnotPositions {
        /** The toolkit's {@code RADIALINTPOS}. */
        RADIALINTPOS(JarInitializer.value(IntAnnotPositions::getRADIALINTPOSNative)),
        /** The toolkit's {@code HORINTPOS}. */
        HORINTPOS(JarInitializer.value(IntAnnotPositions::getHORINTPOSNative));

        private final int value;

        IntAnnotPositions(int value) {
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
        public static IntAnnotPositions fromValue(int value) {
            return Enums.fromValue(values(), IntAnnotPositions::getValue, value);
        }

        private static native int getRADIALINTPOSNative();

        private static native int getHORINTPOSNative();
    }

    /** Where the annotations outside the slices go. */
    public enum ExtAnnotPositions {
        /** The toolkit's {@code RADIALEXTPOS}. */
        RADIALEXTPOS(JarInitializer.value(ExtAnnotPositions::getRADIALEXTPOSNative)),
        /** The toolkit's {@code HOREXTPOS}. */
        HOREXTPOS(JarInitializer.value(ExtAnnotPositions::getHOREXTPOSNative)),
        /** The toolkit's {@code HORALIGNEDEXTPOS}. */
        HORALIGNEDEXTPOS(JarInitializer.value(ExtAnnotPositions::getHORALIGNEDEXTPOSNative)),
        /** The toolkit's {@code VERTALIGNEDEXTPOS}. */
        VERTALIGNEDEXTPOS(JarInitializer.value(ExtAnnotPositions::getVERTALIGNEDEXTPOSNative)),
        /** The toolkit's {@code SQUAREALIGNEDEXTPOS}. */
        SQUAREALIGNEDEXTPOS(JarInitializer.value(ExtAnnotPositions::getSQUAREALIGNEDEXTPOSNative));

        private final int value;

        ExtAnnotPositions(int value) {
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
        public static ExtAnnotPositions fromValue(int value) {
            return Enums.fromValue(values(), ExtAnnotPositions::getValue, value);
        }

        private static native int getRADIALEXTPOSNative();

        private static native int getHOREXTPOSNative();

        private static native int getHORALIGNEDEXTPOSNative();

        private static native int getVERTALIGNEDEXTPOSNative();

        private static native int getSQUAREALIGNEDEXTPOSNative();
    }

    /** How the annotation texts are aligned. */
    public enum Alignments {
        /** The toolkit's {@code LEFTALIGN}. */
        LEFTALIGN(JarInitializer.value(Alignments::getLEFTALIGNNative)),
        /** The toolkit's {@code CENTERALIGN}. */
        CENTERALIGN(JarInitializer.value(Alignments::getCENTERALIGNNative)),
        /** The toolkit's {@code RIGHTALIGN}. */
        RIGHTALIGN(JarInitializer.value(Alignments::getRIGHTALIGNNative)),
        /** The toolkit's {@code INWARDSALIGN}. */
        INWARDSALIGN(JarInitializer.value(Alignments::getINWARDSALIGNNative)),
        /** The toolkit's {@code OUTWARDSALIGN}. */
        OUTWARDSALIGN(JarInitializer.value(Alignments::getOUTWARDSALIGNNative));

        private final int value;

        Alignments(int value) {
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
        public static Alignments fromValue(int value) {
            return Enums.fromValue(values(), Alignments::getValue, value);
        }

        private static native int getLEFTALIGNNative();

        private static native int getCENTERALIGNNative();

        private static native int getRIGHTALIGNNative();

        private static native int getINWARDSALIGNNative();

        private static native int getOUTWARDSALIGNNative();
    }

    /** Whether the values are shown as given or as percentages. */
    public enum PercentStatus {
        /** The toolkit's {@code ABSOLUTE}. */
        ABSOLUTE(JarInitializer.value(PercentStatus::getABSOLUTENative)),
        /** The toolkit's {@code PERCENTAGE}. */
        PERCENTAGE(JarInitializer.value(PercentStatus::getPERCENTAGENative));

        private final int value;

        PercentStatus(int value) {
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
        public static PercentStatus fromValue(int value) {
            return Enums.fromValue(values(), PercentStatus::getValue, value);
        }

        private static native int getABSOLUTENative();

        private static native int getPERCENTAGENative();
    }

    private final Kept<PbMiscTextAttr> textAttr = new Kept<>(PbMiscTextAttr.class, "attr");
    private final Kept<PbNumericDisplayFormat> format = new Kept<>(PbNumericDisplayFormat.class, "format");

    /**
     * A Java object for the native node at the handle (non-zero); takes a reference on it.
     *
     * @param handle the address of the native object
     */
    protected PoPieChart(long handle) {
        super(handle);
    }

    /**
     * The name of the class's toolkit type.
     *
     * @return the name of the class's toolkit type
     */
    public static String getClassTypeName() {
        return getClassTypeId();
    }

    /**
     * The address of the class's node-kit catalog, which belongs to the toolkit.
     *
     * @return the address of the class's node-kit catalog, which belongs to the toolkit
     */
    public static long getClassNodekitCatalog() {
        return getClassNodekitCatalogImpl();
    }

    /**
     * Sets the text attributes of the annotations; null for none. The chart keeps the object's
     * address: later changes of it reach the chart; this object keeps the Java object as long as
     * it is set. A change of the node (see {@link PoBase}).
     *
     * @param attr the text attributes, or null for none
     */
    public void setMiscTextAttr(PbMiscTextAttr attr) {
        textAttr.setRebuilding(this, attr, this::setMiscTextAttrImpl);
    }

    /**
     * The text attributes, or null: the Java object set while the chart holds its address, else a view.
     *
     * @return the text attributes, or null: the Java object set while the chart holds its address, else a
     *     view
     */
    public PbMiscTextAttr getMiscTextAttr() {
        return textAttr.get(getMiscTextAttrImpl(handle()));
    }

    /**
     * Sets the number format of the annotations; null for none. As {@link #setMiscTextAttr}.
     *
     * @param format the format, or null for none
     */
    public void setFormat(PbNumericDisplayFormat format) {
        this.format.setRebuilding(this, format, this::setFormatImpl);
    }

    /**
     * The number format, or null: the Java object set while the chart holds its address, else a view.
     *
     * @return the number format, or null: the Java object set while the chart holds its address, else a view
     */
    public PbNumericDisplayFormat getFormat() {
        return format.get(getFormatImpl(handle()));
    }

    /**
     * Moves a slice out from the centre by the distance, along the middle of its span (a slice
     * number the chart does not have is ignored). A change of the node (see {@link PoBase}).
     *
     * @param slice the index of the slice
     * @param distance the distance by which the slice moves out
     */
    public void setSliceToTranslate(int slice, float distance) {
        rebuilding(h -> setSliceToTranslateImpl(h, slice, distance));
    }

    /**
     * The distance a slice has been moved out by; 0 for a slice never moved or out of range.
     *
     * @param slice the index of the slice
     * @return the distance a slice has been moved out by; 0 for a slice never moved or out of range
     */
    public float getSliceToTranslate(int slice) {
        return getSliceToTranslateImpl(handle(), slice);
    }

    /**
     * The slice a picked path points at.
     *
     * @param path the address of a native path (an {@code SoPath}) as a pick gives it; it must be
     *     live for the call
     * @param slice at least one element: element 0 receives the slice number, or 0 when the
     *     toolkit did not write it
     * @return the toolkit's result: non-zero when the path picks a slice of this chart
     */
    public int getPickedSliceNumber(long path, int[] slice) {
        ChartChecks.path(path);
        ChartChecks.output(slice, "slice");
        return getPickedSliceNumberImpl(handle(), path, slice);
    }

    /**
     * The slice a picked path points at, or -1 when it picks none of this chart's slices.
     *
     * @param path the address of a native SoPath, as a pick gives it
     * @return the slice a picked path points at, or -1 when it picks none of this chart's slices
     */
    public int getPickedSliceNumber(long path) {
        int[] slice = new int[1];
        return getPickedSliceNumber(path, slice) != 0 ? slice[0] : -1;
    }

    private native void setMiscTextAttrImpl(long handle, long attr);

    private native long getMiscTextAttrImpl(long handle);

    private native void setFormatImpl(long handle, long format);

    private native long getFormatImpl(long handle);

    private native void setSliceToTranslateImpl(long handle, int slice, float distance);

    private native float getSliceToTranslateImpl(long handle, int slice);

    private native int getPickedSliceNumberImpl(long handle, long path, int[] slice);

    private static native String getClassTypeId();

    private static native long getClassNodekitCatalogImpl();
}
