package com.kestrum.tavrel.data;

import com.kestrum.tavrel.internal.JarInitializer;

/** Vectors of a 3D mesh's vector data drawn as arrows with bodies. */
public class PoMesh3DVec extends PoMesh3D {
    static {
        JarInitializer.init();
    }

    /** Which vectors are left out. */
    public enum EliminationStatusType {
        /** The toolkit's {@code NONE}. */
        NONE(JarInitializer.value(EliminationStatusType::getNONENative)),
        /** The toolkit's {@code TOOSMALL}. */
        TOOSMALL(JarInitializer.value(EliminationStatusType::getTOOSMALLNative)),
        /** The toolkit's {@code TOOLONG}. */
        TOOLONG(JarInitializer.value(EliminationStatusType::getTOOLONGNative)),
        /** The toolkit's {@code TOOSMALLORLONG}. */
        TOOSMALLORLONG(JarInitializer.value(EliminationStatusType::getTOOSMALLORLONGNative));

        private final int value;

        EliminationStatusType(int value) {
            this.value = value;
        }

        /** {@return the toolkit's value of the constant} */
        public int getValue() {
            return value;
        }

        private static native int getNONENative();

        private static native int getTOOSMALLNative();

        private static native int getTOOLONGNative();

        private static native int getTOOSMALLORLONGNative();
    }

    /** The shape of the vector bodies. */
    public enum BodyShapes {
        /** The toolkit's {@code NOBODY}. */
        NOBODY(JarInitializer.value(BodyShapes::getNOBODYNative)),
        /** The toolkit's {@code LINE}. */
        LINE(JarInitializer.value(BodyShapes::getLINENative)),
        /** The toolkit's {@code CYLINDER}. */
        CYLINDER(JarInitializer.value(BodyShapes::getCYLINDERNative));

        private final int value;

        BodyShapes(int value) {
            this.value = value;
        }

        /** {@return the toolkit's value of the constant} */
        public int getValue() {
            return value;
        }

        private static native int getNOBODYNative();

        private static native int getLINENative();

        private static native int getCYLINDERNative();
    }

    /** Whether the body length is constant or follows the vector's length. */
    public enum BodyLengthTypes {
        /** The toolkit's {@code CONSTANTLENGTH}. */
        CONSTANTLENGTH(JarInitializer.value(BodyLengthTypes::getCONSTANTLENGTHNative)),
        /** The toolkit's {@code RELATIVELENGTH}. */
        RELATIVELENGTH(JarInitializer.value(BodyLengthTypes::getRELATIVELENGTHNative));

        private final int value;

        BodyLengthTypes(int value) {
            this.value = value;
        }

        /** {@return the toolkit's value of the constant} */
        public int getValue() {
            return value;
        }

        private static native int getCONSTANTLENGTHNative();

        private static native int getRELATIVELENGTHNative();
    }

    /** Whether the body radius is constant or follows the vector's length. */
    public enum BodyRadiusTypes {
        /** The toolkit's {@code CONSTANTRADIUS}. */
        CONSTANTRADIUS(JarInitializer.value(BodyRadiusTypes::getCONSTANTRADIUSNative)),
        /** The toolkit's {@code RELATIVERADIUS}. */
        RELATIVERADIUS(JarInitializer.value(BodyRadiusTypes::getRELATIVERADIUSNative));

        private final int value;

        BodyRadiusTypes(int value) {
            this.value = value;
        }

        /** {@return the toolkit's value of the constant} */
        public int getValue() {
            return value;
        }

        private static native int getCONSTANTRADIUSNative();

        private static native int getRELATIVERADIUSNative();
    }

    /** The shape of the arrow heads. */
    public enum ArrowShapes {
        /** The toolkit's {@code NOSHAPE}. */
        NOSHAPE(JarInitializer.value(ArrowShapes::getNOSHAPENative)),
        /** The toolkit's {@code POINT}. */
        POINT(JarInitializer.value(ArrowShapes::getPOINTNative)),
        /** The toolkit's {@code CHEVRON}. */
        CHEVRON(JarInitializer.value(ArrowShapes::getCHEVRONNative)),
        /** The toolkit's {@code TRIANGLE}. */
        TRIANGLE(JarInitializer.value(ArrowShapes::getTRIANGLENative)),
        /** The toolkit's {@code RECTANGLE}. */
        RECTANGLE(JarInitializer.value(ArrowShapes::getRECTANGLENative)),
        /** The toolkit's {@code CONE}. */
        CONE(JarInitializer.value(ArrowShapes::getCONENative)),
        /** The toolkit's {@code BOX}. */
        BOX(JarInitializer.value(ArrowShapes::getBOXNative)),
        /** The toolkit's {@code SPHERE}. */
        SPHERE(JarInitializer.value(ArrowShapes::getSPHERENative)),
        /** The toolkit's {@code INDIRECTCHEVRON}. */
        INDIRECTCHEVRON(JarInitializer.value(ArrowShapes::getINDIRECTCHEVRONNative)),
        /** The toolkit's {@code INDIRECTTRIANGLE}. */
        INDIRECTTRIANGLE(JarInitializer.value(ArrowShapes::getINDIRECTTRIANGLENative)),
        /** The toolkit's {@code INDIRECTCONE}. */
        INDIRECTCONE(JarInitializer.value(ArrowShapes::getINDIRECTCONENative));

        private final int value;

        ArrowShapes(int value) {
            this.value = value;
        }

        /** {@return the toolkit's value of the constant} */
        public int getValue() {
            return value;
        }

        private static native int getNOSHAPENative();

        private static native int getPOINTNative();

        private static native int getCHEVRONNative();

        private static native int getTRIANGLENative();

        private static native int getRECTANGLENative();

        private static native int getCONENative();

        private static native int getBOXNative();

        private static native int getSPHERENative();

        private static native int getINDIRECTCHEVRONNative();

        private static native int getINDIRECTTRIANGLENative();

        private static native int getINDIRECTCONENative();
    }

    /** Whether the arrow height is constant or follows the vector's length. */
    public enum ArrowHeightTypes {
        /** The toolkit's {@code CONSTANTHEIGHT}. */
        CONSTANTHEIGHT(JarInitializer.value(ArrowHeightTypes::getCONSTANTHEIGHTNative)),
        /** The toolkit's {@code RELATIVEHEIGHT}. */
        RELATIVEHEIGHT(JarInitializer.value(ArrowHeightTypes::getRELATIVEHEIGHTNative));

        private final int value;

        ArrowHeightTypes(int value) {
            this.value = value;
        }

        /** {@return the toolkit's value of the constant} */
        public int getValue() {
            return value;
        }

        private static native int getCONSTANTHEIGHTNative();

        private static native int getRELATIVEHEIGHTNative();
    }

    /** How arrows are coloured. */
    public enum ArrowColoringTypes {
        /** The toolkit's {@code CONSTANTCOLOR}. */
        CONSTANTCOLOR(JarInitializer.value(ArrowColoringTypes::getCONSTANTCOLORNative)),
        /** The toolkit's {@code MODULEMAPPINGCOLOR}. */
        MODULEMAPPINGCOLOR(JarInitializer.value(ArrowColoringTypes::getMODULEMAPPINGCOLORNative)),
        /** The toolkit's {@code SCALARMAPPINGCOLOR}. */
        SCALARMAPPINGCOLOR(JarInitializer.value(ArrowColoringTypes::getSCALARMAPPINGCOLORNative));

        private final int value;

        ArrowColoringTypes(int value) {
            this.value = value;
        }

        /** {@return the toolkit's value of the constant} */
        public int getValue() {
            return value;
        }

        private static native int getCONSTANTCOLORNative();

        private static native int getMODULEMAPPINGCOLORNative();

        private static native int getSCALARMAPPINGCOLORNative();
    }

    /** A new node that holds one reference on its native node. */
    public PoMesh3DVec() {
        this(ctorImpl());
    }

    /**
     * A Java object for the native node at the handle (non-zero); takes a reference on it.
     *
     * @param handle the address of the native object
     */
    protected PoMesh3DVec(long handle) {
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

    private static native long ctorImpl();

    private static native String getClassTypeId();

    private static native long getClassNodekitCatalogImpl();
}
