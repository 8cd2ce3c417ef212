package com.kestrum.tavrel.graph;

import static com.kestrum.tavrel.graph.Checks.notNull;

import com.kestrum.corvel.SbVec2f;
import com.kestrum.tavrel.internal.Enums;
import com.kestrum.tavrel.internal.JarInitializer;

/** A 2D group of four axes, two x and two y axes around a rectangle between two corners. */
public class PoGroup4Axis extends PoBaseAxis {
    static {
        JarInitializer.init();
    }

    /** The kind of each axis. */
    public enum AxisTypes {
        /** The toolkit's {@code LINEAR}. */
        LINEAR(JarInitializer.value(AxisTypes::getLINEARNative)),
        /** The toolkit's {@code LOGARITHMIC}. */
        LOGARITHMIC(JarInitializer.value(AxisTypes::getLOGARITHMICNative));

        private final int value;

        AxisTypes(int value) {
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
        public static AxisTypes fromValue(int value) {
            return Enums.fromValue(values(), AxisTypes::getValue, value);
        }

        private static native int getLINEARNative();

        private static native int getLOGARITHMICNative();
    }

    /** A new group with the toolkit's defaults; holds one reference on its native node. */
    public PoGroup4Axis() {
        this(ctorImpl());
    }

    /**
     * The group from the corner start to the corner end, with the kinds and titles of its axes.
     *
     * @param start the start point
     * @param end the end point
     * @param xType the type of the x axis
     * @param yType the type of the y axis
     * @param xTitle the title of the x axis
     * @param yTitle the title of the y axis
     */
    public PoGroup4Axis(SbVec2f start, SbVec2f end, AxisTypes xType, AxisTypes yType, String xTitle, String yTitle) {
        this(ctorImpl1(Checks.point(start, "start"), Checks.point(end, "end"), notNull(xType, "xType").getValue(),
                notNull(yType, "yType").getValue(), notNull(xTitle, "xTitle"), notNull(yTitle, "yTitle")));
    }

    /**
     * A Java object for the native node at the handle (non-zero); takes a reference on it.
     *
     * @param handle the address of the native object
     */
    protected PoGroup4Axis(long handle) {
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

    private static native String getClassTypeId();

    private static native long getClassNodekitCatalogImpl();

    private static native long ctorImpl();

    private static native long ctorImpl1(float[] start, float[] end, int xType, int yType, String xTitle, String yTitle);
}
