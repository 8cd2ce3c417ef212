package com.kestrum.tavrel.graph;

import static com.kestrum.tavrel.graph.Checks.notNull;

import com.kestrum.corvel.SbVec2f;
import com.kestrum.tavrel.internal.Enums;
import com.kestrum.tavrel.internal.JarInitializer;

/**
 * Labels at points: a string and a value each, joined as the concatenation type says. The node
 * keeps a copy of the points, strings and values it is given.
 */
public class PoLabelField extends PoQuorvex {
    static {
        JarInitializer.init();
    }

    /** The horizontal justification of the labels. */
    public enum Justifications {
        /** LEFT */
        LEFT(JarInitializer.value(Justifications::getLEFTNative)),
        /** RIGHT */
        RIGHT(JarInitializer.value(Justifications::getRIGHTNative)),
        /** CENTER */
        CENTER(JarInitializer.value(Justifications::getCENTERNative));

        private final int value;

        Justifications(int value) {
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
        public static Justifications fromValue(int value) {
            return Enums.fromValue(values(), Justifications::getValue, value);
        }

        private static native int getLEFTNative();

        private static native int getRIGHTNative();

        private static native int getCENTERNative();
    }

    /** The vertical justification of the labels. */
    public enum VerticalJustifications {
        /** TOP */
        TOP(JarInitializer.value(VerticalJustifications::getTOPNative)),
        /** CAP */
        CAP(JarInitializer.value(VerticalJustifications::getCAPNative)),
        /** HALF */
        HALF(JarInitializer.value(VerticalJustifications::getHALFNative)),
        /** BASE */
        BASE(JarInitializer.value(VerticalJustifications::getBASENative)),
        /** BOTTOM */
        BOTTOM(JarInitializer.value(VerticalJustifications::getBOTTOMNative));

        private final int value;

        VerticalJustifications(int value) {
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
        public static VerticalJustifications fromValue(int value) {
            return Enums.fromValue(values(), VerticalJustifications::getValue, value);
        }

        private static native int getTOPNative();

        private static native int getCAPNative();

        private static native int getHALFNative();

        private static native int getBASENative();

        private static native int getBOTTOMNative();
    }

    /** In which coordinates the label offset is given. */
    public enum CoordinateTypes {
        /** COORDINATEINDOMAIN */
        COORDINATEINDOMAIN(JarInitializer.value(CoordinateTypes::getCOORDINATEINDOMAINNative)),
        /** COORDINATEINCURRENTUNIT */
        COORDINATEINCURRENTUNIT(JarInitializer.value(CoordinateTypes::getCOORDINATEINCURRENTUNITNative));

        private final int value;

        CoordinateTypes(int value) {
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
        public static CoordinateTypes fromValue(int value) {
            return Enums.fromValue(values(), CoordinateTypes::getValue, value);
        }

        private static native int getCOORDINATEINDOMAINNative();

        private static native int getCOORDINATEINCURRENTUNITNative();
    }

    /** How a label's string and value are joined. */
    public enum ConcatTypes {
        /** STRINGBEFOREVALUE */
        STRINGBEFOREVALUE(JarInitializer.value(ConcatTypes::getSTRINGBEFOREVALUENative)),
        /** VALUEBEFORESTRING */
        VALUEBEFORESTRING(JarInitializer.value(ConcatTypes::getVALUEBEFORESTRINGNative)),
        /** STRINGABOVEVALUE */
        STRINGABOVEVALUE(JarInitializer.value(ConcatTypes::getSTRINGABOVEVALUENative)),
        /** VALUEABOVESTRING */
        VALUEABOVESTRING(JarInitializer.value(ConcatTypes::getVALUEABOVESTRINGNative));

        private final int value;

        ConcatTypes(int value) {
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
        public static ConcatTypes fromValue(int value) {
            return Enums.fromValue(values(), ConcatTypes::getValue, value);
        }

        private static native int getSTRINGBEFOREVALUENative();

        private static native int getVALUEBEFORESTRINGNative();

        private static native int getSTRINGABOVEVALUENative();

        private static native int getVALUEABOVESTRINGNative();
    }

    private final Kept<PbNumericDisplayFormat> format = new Kept<>(PbNumericDisplayFormat.class, "format");

    /** A node without points, with the toolkit's defaults. */
    public PoLabelField() {
        super(ctorImpl());
    }

    /**
     * Labels at the first num points with the first num strings and values.
     *
     * @param num the number of elements to use
     * @param points the points
     * @param strings the label text of each point
     * @param values the values
     * @param offset the distance between a point and its label
     * @param concatType how a point's string and value are joined
     * @param justification the horizontal justification of the labels
     * @param verticalJustification the vertical justification of the labels
     * @throws IllegalArgumentException when num is negative or more than the points, strings or values
     * @throws NullPointerException when an argument, a point or a string is null
     */
    public PoLabelField(int num, SbVec2f[] points, String[] strings, float[] values, float offset,
            ConcatTypes concatType, Justifications justification, VerticalJustifications verticalJustification) {
        super(ctorImpl1(Checks.count(num, Checks.vectors(points, "points").length, "num"), points,
                Checks.strings(strings, num, "strings"), Checks.length(values, num, "values"), offset,
                notNull(concatType, "concatType").getValue(), notNull(justification, "justification").getValue(),
                notNull(verticalJustification, "verticalJustification").getValue()));
    }

    /**
     * Sets the numeric format of the labels' values; null for none.
     *
     * <p>The node keeps the object's address, so this object keeps the Java object as long as it
     * is set.
     *
     * @param format the format, or null for none
     */
    public void setFormat(PbNumericDisplayFormat format) {
        this.format.set(handle(), format, this::setFormatImpl);
    }

    /**
     * The numeric format of the labels' values, or null for none.
     *
     * @return the numeric format of the labels' values, or null for none: the Java object set earlier while
     *     the node still holds its address, else the registered Java object of that address or a view of it
     */
    public PbNumericDisplayFormat getFormat() {
        return format.get(getFormatImpl(handle()));
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

    private static native long ctorImpl1(int num, Object[] points, Object[] strings, float[] values, float offset,
            int concatType, int justification, int verticalJustification);

    private native void setFormatImpl(long handle, long format);

    private native long getFormatImpl(long handle);
}
