package com.kestrum.tavrel.graph;

import com.kestrum.tavrel.internal.Enums;
import com.kestrum.tavrel.internal.JarInitializer;

/** A linear polar axis from a centre (x0, y0) to a point (x1, y1). */
public class PoPolarLinAxis extends PoPolarAxis {
    static {
        JarInitializer.init();
    }

    /** Whether graduations must fit. */
    public enum GradFits {
        /** The toolkit's {@code GRADFIT}. */
        GRADFIT(JarInitializer.value(GradFits::getGRADFITNative)),
        /** The toolkit's {@code GRADUNFIT}. */
        GRADUNFIT(JarInitializer.value(GradFits::getGRADUNFITNative));

        private final int value;

        GradFits(int value) {
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
        public static GradFits fromValue(int value) {
            return Enums.fromValue(values(), GradFits::getValue, value);
        }

        private static native int getGRADFITNative();

        private static native int getGRADUNFITNative();
    }

    /** A new axis with the toolkit's defaults; holds one reference on its native node. */
    public PoPolarLinAxis() {
        this(ctorImpl());
    }

    /**
     * The axis from (x0, y0) to (x1, y1), graduated every step (0 or less: automatic).
     *
     * @param x0 the x of the start point
     * @param y0 the y of the start point
     * @param x1 the x of the end point
     * @param y1 the y of the end point
     * @param step the step between two values
     */
    public PoPolarLinAxis(float x0, float y0, float x1, float y1, float step) {
        this(ctorImpl1(x0, y0, x1, y1, step));
    }

    /**
     * A Java object for the native node at the handle (non-zero); takes a reference on it.
     *
     * @param handle the address of the native object
     */
    protected PoPolarLinAxis(long handle) {
        super(handle);
    }

    private final Kept<PbNumericDisplayFormat> format = new Kept<>(PbNumericDisplayFormat.class, "format");

    /**
     * Sets the number format of the labels; null for none. A change of the node. The node keeps
     * the format's address, so this object keeps the Java object as long as it is set.
     *
     * @param format the format, or null for none
     */
    public void setFormat(PbNumericDisplayFormat format) {
        this.format.setRebuilding(this, format, this::setFormatImpl);
    }

    /**
     * The number format, or null: the Java object set earlier, else a view of the address.
     *
     * @return the number format, or null: the Java object set earlier, else a view of the address
     */
    public PbNumericDisplayFormat getFormat() {
        return format.get(getFormatImpl(handle()));
    }

    /**
     * The distance between two graduations (the automatic one when none was given).
     *
     * @return the distance between two graduations (the automatic one when none was given)
     */
    public float getStep() {
        return getStepImpl(handle());
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

    private static native String getClassTypeId();

    private static native long getClassNodekitCatalogImpl();

    private static native long ctorImpl();

    private static native long ctorImpl1(float x0, float y0, float x1, float y1, float step);

    private native void setFormatImpl(long handle, long format);

    private native long getFormatImpl(long handle);

    private native float getStepImpl(long handle);
}
