package com.kestrum.tavrel.graph;

import com.kestrum.tavrel.internal.Enums;
import com.kestrum.tavrel.internal.JarInitializer;

/** Base of the legends: the text attributes of their texts. */
public abstract class PoLegend extends PoBase {
    static {
        JarInitializer.init();
    }

    /** Whether a part of the legend is shown. */
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
        PATHDOWN(JarInitializer.value(TextPaths::getPATHDOWNNative));

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
    }

    /** Where the legend's title goes. */
    public enum Positions {
        /** POSBOTTOM */
        POSBOTTOM(JarInitializer.value(Positions::getPOSBOTTOMNative)),
        /** POSTOP */
        POSTOP(JarInitializer.value(Positions::getPOSTOPNative)),
        /** POSRIGHT */
        POSRIGHT(JarInitializer.value(Positions::getPOSRIGHTNative)),
        /** POSLEFT */
        POSLEFT(JarInitializer.value(Positions::getPOSLEFTNative));

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

        private static native int getPOSBOTTOMNative();

        private static native int getPOSTOPNative();

        private static native int getPOSRIGHTNative();

        private static native int getPOSLEFTNative();
    }

    /** Whether the margins are relative or fixed. */
    public enum MarginTypes {
        /** RELMARGIN */
        RELMARGIN(JarInitializer.value(MarginTypes::getRELMARGINNative)),
        /** FIXEDMARGIN */
        FIXEDMARGIN(JarInitializer.value(MarginTypes::getFIXEDMARGINNative));

        private final int value;

        MarginTypes(int value) {
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
        public static MarginTypes fromValue(int value) {
            return Enums.fromValue(values(), MarginTypes::getValue, value);
        }

        private static native int getRELMARGINNative();

        private static native int getFIXEDMARGINNative();
    }

    /** The direction in which the items follow each other. */
    public enum IncrementTypes {
        /** VERTICALINCREMENT */
        VERTICALINCREMENT(JarInitializer.value(IncrementTypes::getVERTICALINCREMENTNative)),
        /** HORIZONTALINCREMENT */
        HORIZONTALINCREMENT(JarInitializer.value(IncrementTypes::getHORIZONTALINCREMENTNative));

        private final int value;

        IncrementTypes(int value) {
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
        public static IncrementTypes fromValue(int value) {
            return Enums.fromValue(values(), IncrementTypes::getValue, value);
        }

        private static native int getVERTICALINCREMENTNative();

        private static native int getHORIZONTALINCREMENTNative();
    }

    private final Kept<PbMiscTextAttr> miscTextAttr = new Kept<>(PbMiscTextAttr.class, "miscTextAttr");

    /**
     * A Java object for the native node at the handle (non-zero); takes a reference on it.
     *
     * @param handle the address of the native object
     */
    protected PoLegend(long handle) {
        super(handle);
    }

    /**
     * Sets the text attributes of the legend's texts; null for none.
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
     * The text attributes of the legend's texts, or null for none.
     *
     * @return the text attributes of the legend's texts, or null for none: the Java object set earlier while
     *     the node still holds its address, else the registered Java object of that address or a view of it
     */
    public PbMiscTextAttr getMiscTextAttr() {
        return miscTextAttr.get(getMiscTextAttrImpl(handle()));
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
}
