package com.kestrum.tavrel.graph;

import com.kestrum.tavrel.internal.Enums;
import com.kestrum.tavrel.internal.JarInitializer;

/** An angular axis: a circle graduated in degrees. */
public class PoAngularAxis extends PoAxis {
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
    public PoAngularAxis() {
        this(ctorImpl());
    }

    /**
     * The circle of that radius around (centreX, centreY), graduated from firstAngle every angleStep degrees.
     *
     * @param centreX the x of the centre
     * @param centreY the y of the centre
     * @param radius the radius
     * @param firstAngle the angle of the first graduation, in degrees
     * @param angleStep the angle between two graduations, in degrees
     */
    public PoAngularAxis(float centreX, float centreY, float radius, float firstAngle, float angleStep) {
        this(ctorImpl1(centreX, centreY, radius, firstAngle, angleStep));
    }

    /**
     * A Java object for the native node at the handle (non-zero); takes a reference on it.
     *
     * @param handle the address of the native object
     */
    protected PoAngularAxis(long handle) {
        super(handle);
    }

    /**
     * The angle between two graduations, in degrees.
     *
     * @return the angle between two graduations, in degrees
     */
    public float getAngleStep() {
        return getAngleStepImpl(handle());
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

    private static native long ctorImpl1(float centreX, float centreY, float radius, float firstAngle,
            float angleStep);

    private native float getAngleStepImpl(long handle);
}
