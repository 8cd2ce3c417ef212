package com.kestrum.tavrel.data;

import com.kestrum.tavrel.internal.JarInitializer;

/** Vectors of a 3D mesh's vector data drawn as arrows with bodies. */
public class PoMesh3DVec extends PoMesh3D {
    static {
        JarInitializer.init();
    }

    /** Which vectors are left out. */
    public enum EliminationStatusType {
        NONE(JarInitializer.value(EliminationStatusType::getNONENative)),
        TOOSMALL(JarInitializer.value(EliminationStatusType::getTOOSMALLNative)),
        TOOLONG(JarInitializer.value(EliminationStatusType::getTOOLONGNative)),
        TOOSMALLORLONG(JarInitializer.value(EliminationStatusType::getTOOSMALLORLONGNative));

        private final int value;

        EliminationStatusType(int value) {
            this.value = value;
        }

        /** The toolkit's value of the constant. */
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
        NOBODY(JarInitializer.value(BodyShapes::getNOBODYNative)),
        LINE(JarInitializer.value(BodyShapes::getLINENative)),
        CYLINDER(JarInitializer.value(BodyShapes::getCYLINDERNative));

        private final int value;

        BodyShapes(int value) {
            this.value = value;
        }

        /** The toolkit's value of the constant. */
        public int getValue() {
            return value;
        }

        private static native int getNOBODYNative();

        private static native int getLINENative();

        private static native int getCYLINDERNative();
    }

    /** Whether the body length is constant or follows the vector's length. */
    public enum BodyLengthTypes {
        CONSTANTLENGTH(JarInitializer.value(BodyLengthTypes::getCONSTANTLENGTHNative)),
        RELATIVELENGTH(JarInitializer.value(BodyLengthTypes::getRELATIVELENGTHNative));

        private final int value;

        BodyLengthTypes(int value) {
            this.value = value;
        }

        /** The toolkit's value of the constant. */
        public int getValue() {
            return value;
        }

        private static native int getCONSTANTLENGTHNative();

        private static native int getRELATIVELENGTHNative();
    }

    /** Whether the body radius is constant or follows the vector's length. */
    public enum BodyRadiusTypes {
        CONSTANTRADIUS(JarInitializer.value(BodyRadiusTypes::getCONSTANTRADIUSNative)),
        RELATIVERADIUS(JarInitializer.value(BodyRadiusTypes::getRELATIVERADIUSNative));

        private final int value;

        BodyRadiusTypes(int value) {
            this.value = value;
        }

        /** The toolkit's value of the constant. */
        public int getValue() {
            return value;
        }

        private static native int getCONSTANTRADIUSNative();

        private static native int getRELATIVERADIUSNative();
    }

    /** The shape of the arrow heads. */
    public enum ArrowShapes {
        NOSHAPE(JarInitializer.value(ArrowShapes::getNOSHAPENative)),
        POINT(JarInitializer.value(ArrowShapes::getPOINTNative)),
        CHEVRON(JarInitializer.value(ArrowShapes::getCHEVRONNative)),
        TRIANGLE(JarInitializer.value(ArrowShapes::getTRIANGLENative)),
        RECTANGLE(JarInitializer.value(ArrowShapes::getRECTANGLENative)),
        CONE(JarInitializer.value(ArrowShapes::getCONENative)),
        BOX(JarInitializer.value(ArrowShapes::getBOXNative)),
        SPHERE(JarInitializer.value(ArrowShapes::getSPHERENative)),
        INDIRECTCHEVRON(JarInitializer.value(ArrowShapes::getINDIRECTCHEVRONNative)),
        INDIRECTTRIANGLE(JarInitializer.value(ArrowShapes::getINDIRECTTRIANGLENative)),
        INDIRECTCONE(JarInitializer.value(ArrowShapes::getINDIRECTCONENative));

        private final int value;

        ArrowShapes(int value) {
            this.value = value;
        }

        /** The toolkit's value of the constant. */
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
        CONSTANTHEIGHT(JarInitializer.value(ArrowHeightTypes::getCONSTANTHEIGHTNative)),
        RELATIVEHEIGHT(JarInitializer.value(ArrowHeightTypes::getRELATIVEHEIGHTNative));

        private final int value;

        ArrowHeightTypes(int value) {
            this.value = value;
        }

        /** The toolkit's value of the constant. */
        public int getValue() {
            return value;
        }

        private static native int getCONSTANTHEIGHTNative();

        private static native int getRELATIVEHEIGHTNative();
    }

    /** How arrows are coloured. */
    public enum ArrowColoringTypes {
        CONSTANTCOLOR(JarInitializer.value(ArrowColoringTypes::getCONSTANTCOLORNative)),
        MODULEMAPPINGCOLOR(JarInitializer.value(ArrowColoringTypes::getMODULEMAPPINGCOLORNative)),
        SCALARMAPPINGCOLOR(JarInitializer.value(ArrowColoringTypes::getSCALARMAPPINGCOLORNative));

        private final int value;

        ArrowColoringTypes(int value) {
            this.value = value;
        }

        /** The toolkit's value of the constant. */
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

    /** A Java object for the native node at the handle (non-zero); takes a reference on it. */
    protected PoMesh3DVec(long handle) {
        super(handle);
    }

    /** The name of the class's toolkit type. */
    public static String getClassTypeName() {
        return getClassTypeId();
    }

    /** The address of the class's node-kit catalog, which belongs to the toolkit. */
    public static long getClassNodekitCatalog() {
        return getClassNodekitCatalogImpl();
    }

    private static native long ctorImpl();

    private static native String getClassTypeId();

    private static native long getClassNodekitCatalogImpl();
}
