package com.kestrum.tavrel.graph;

import com.kestrum.tavrel.internal.Enums;
import com.kestrum.tavrel.internal.JarInitializer;

/** Base of the histograms: the attribute objects that colour and label their bars. */
public abstract class PoHistogram extends PoChart {
    static {
        JarInitializer.init();
    }

    /** The axis along which the bars of a histogram are laid out. */
    public enum Types {
        /** X */
        X(JarInitializer.value(Types::getXNative)),
        /** Y */
        Y(JarInitializer.value(Types::getYNative));

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

        private static native int getXNative();

        private static native int getYNative();
    }

    /** Where a bar's text goes. */
    public enum Positions {
        /** POSTOPOUT */
        POSTOPOUT(JarInitializer.value(Positions::getPOSTOPOUTNative)),
        /** POSTOPIN */
        POSTOPIN(JarInitializer.value(Positions::getPOSTOPINNative)),
        /** POSBOTTOMOUT */
        POSBOTTOMOUT(JarInitializer.value(Positions::getPOSBOTTOMOUTNative)),
        /** POSBOTTOMIN */
        POSBOTTOMIN(JarInitializer.value(Positions::getPOSBOTTOMINNative)),
        /** POSRIGHTOUT */
        POSRIGHTOUT(JarInitializer.value(Positions::getPOSRIGHTOUTNative)),
        /** POSRIGHTIN */
        POSRIGHTIN(JarInitializer.value(Positions::getPOSRIGHTINNative)),
        /** POSLEFTOUT */
        POSLEFTOUT(JarInitializer.value(Positions::getPOSLEFTOUTNative)),
        /** POSLEFTIN */
        POSLEFTIN(JarInitializer.value(Positions::getPOSLEFTINNative)),
        /** POSCENTER */
        POSCENTER(JarInitializer.value(Positions::getPOSCENTERNative)),
        /** POSDEPEND */
        POSDEPEND(JarInitializer.value(Positions::getPOSDEPENDNative));

        private final int value;

        Positions(int value) {
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
        public static Positions fromValue(int value) {
            return Enums.fromValue(values(), Positions::getValue, value);
        }

        private static native int getPOSTOPOUTNative();

        private static native int getPOSTOPINNative();

        private static native int getPOSBOTTOMOUTNative();

        private static native int getPOSBOTTOMINNative();

        private static native int getPOSRIGHTOUTNative();

        private static native int getPOSRIGHTINNative();

        private static native int getPOSLEFTOUTNative();

        private static native int getPOSLEFTINNative();

        private static native int getPOSCENTERNative();

        private static native int getPOSDEPENDNative();
    }

    /** Whether a text is shown. */
    public enum Visibilities {
        /** VISIBILITYOFF */
        VISIBILITYOFF(JarInitializer.value(Visibilities::getVISIBILITYOFFNative)),
        /** VISIBILITYON */
        VISIBILITYON(JarInitializer.value(Visibilities::getVISIBILITYONNative));

        private final int value;

        Visibilities(int value) {
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
        public static Visibilities fromValue(int value) {
            return Enums.fromValue(values(), Visibilities::getValue, value);
        }

        private static native int getVISIBILITYOFFNative();

        private static native int getVISIBILITYONNative();
    }

    /** The direction in which a text is written. */
    public enum TextPaths {
        /** PATHRIGHT */
        PATHRIGHT(JarInitializer.value(TextPaths::getPATHRIGHTNative)),
        /** PATHLEFT */
        PATHLEFT(JarInitializer.value(TextPaths::getPATHLEFTNative)),
        /** PATHUP */
        PATHUP(JarInitializer.value(TextPaths::getPATHUPNative)),
        /** PATHDOWN */
        PATHDOWN(JarInitializer.value(TextPaths::getPATHDOWNNative)),
        /** PATHDEPEND */
        PATHDEPEND(JarInitializer.value(TextPaths::getPATHDEPENDNative));

        private final int value;

        TextPaths(int value) {
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
        public static TextPaths fromValue(int value) {
            return Enums.fromValue(values(), TextPaths::getValue, value);
        }

        private static native int getPATHRIGHTNative();

        private static native int getPATHLEFTNative();

        private static native int getPATHUPNative();

        private static native int getPATHDOWNNative();

        private static native int getPATHDEPENDNative();
    }

    /** Whether the space between bars is relative or fixed. */
    public enum BarSpaceTypes {
        /** RELSPACE */
        RELSPACE(JarInitializer.value(BarSpaceTypes::getRELSPACENative)),
        /** FIXEDSPACE */
        FIXEDSPACE(JarInitializer.value(BarSpaceTypes::getFIXEDSPACENative));

        private final int value;

        BarSpaceTypes(int value) {
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
        public static BarSpaceTypes fromValue(int value) {
            return Enums.fromValue(values(), BarSpaceTypes::getValue, value);
        }

        private static native int getRELSPACENative();

        private static native int getFIXEDSPACENative();
    }

    /** Where the colours of the bars come from. */
    public enum Colorings {
        /** COLORLIST */
        COLORLIST(JarInitializer.value(Colorings::getCOLORLISTNative)),
        /** DATAMAPPING */
        DATAMAPPING(JarInitializer.value(Colorings::getDATAMAPPINGNative));

        private final int value;

        Colorings(int value) {
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
        public static Colorings fromValue(int value) {
            return Enums.fromValue(values(), Colorings::getValue, value);
        }

        private static native int getCOLORLISTNative();

        private static native int getDATAMAPPINGNative();
    }

    private final Kept<PbMiscTextAttr> miscTextAttr = new Kept<>(PbMiscTextAttr.class, "miscTextAttr");
    private final Kept<PbDataMapping> dataMapping = new Kept<>(PbDataMapping.class, "dataMapping");
    private final Kept<PbNumericDisplayFormat> format = new Kept<>(PbNumericDisplayFormat.class, "format");

    /**
     * A Java object for the native node at the handle (non-zero); takes a reference on it.
     *
     * @param handle the address of the native object
     */
    protected PoHistogram(long handle) {
        super(handle);
    }

    /**
     * Sets the text attributes of the bars' texts; null for none.
     *
     * <p>The node keeps the object's address, so this object keeps the Java object as long as it
     * is set.
     *
     * @param miscTextAttr the text attributes, or null for none
     */
    public void setMiscTextAttr(PbMiscTextAttr miscTextAttr) {
        this.miscTextAttr.set(handle(), miscTextAttr, this::setMiscTextAttrImpl);
    }

    /**
     * The text attributes of the bars' texts, or null for none.
     *
     * @return the text attributes of the bars' texts, or null for none: the Java object set earlier while the
     *     node still holds its address, else the registered Java object of that address or a view of it
     */
    public PbMiscTextAttr getMiscTextAttr() {
        return miscTextAttr.get(getMiscTextAttrImpl(handle()));
    }

    /**
     * Sets the data mapping that colours the bars; null for none.
     *
     * <p>The node keeps the object's address, so this object keeps the Java object as long as it
     * is set.
     *
     * @param dataMapping the data mapping, or null for none
     */
    public void setDataMapping(PbDataMapping dataMapping) {
        this.dataMapping.set(handle(), dataMapping, this::setDataMappingImpl);
    }

    /**
     * The data mapping that colours the bars, or null for none.
     *
     * @return the data mapping that colours the bars, or null for none: the Java object set earlier while the
     *     node still holds its address, else the registered Java object of that address or a view of it
     */
    public PbDataMapping getDataMapping() {
        return dataMapping.get(getDataMappingImpl(handle()));
    }

    /**
     * Sets the numeric format of the bars' values; null for none.
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
     * The numeric format of the bars' values, or null for none.
     *
     * @return the numeric format of the bars' values, or null for none: the Java object set earlier while the
     *     node still holds its address, else the registered Java object of that address or a view of it
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


    private native void setMiscTextAttrImpl(long handle, long miscTextAttr);

    private native long getMiscTextAttrImpl(long handle);

    private native void setDataMappingImpl(long handle, long dataMapping);

    private native long getDataMappingImpl(long handle);

    private native void setFormatImpl(long handle, long format);

    private native long getFormatImpl(long handle);
}
