package com.kestrum.tavrel.data;

import com.kestrum.tavrel.graph.PbMiscTextAttr;
import com.kestrum.tavrel.graph.PbNumericDisplayFormat;
import com.kestrum.tavrel.internal.JarInitializer;
import com.kestrum.tavrel.internal.JavaViews;

/** Contour lines of a 2D mesh's values, with annotations. */
public class PoMeshContouring extends PoMesh2D {
    static {
        JarInitializer.init();
    }

    /** The direction in which annotation text runs. */
    public enum AnnotPaths {
        /** The toolkit's {@code TANGENTIALPATH}. */
        TANGENTIALPATH(JarInitializer.value(AnnotPaths::getTANGENTIALPATHNative)),
        /** The toolkit's {@code HORIZONTALPATH}. */
        HORIZONTALPATH(JarInitializer.value(AnnotPaths::getHORIZONTALPATHNative)),
        /** The toolkit's {@code VERTICALPATH}. */
        VERTICALPATH(JarInitializer.value(AnnotPaths::getVERTICALPATHNative));

        private final int value;

        AnnotPaths(int value) {
            this.value = value;
        }

        /** {@return the toolkit's value of the constant} */
        public int getValue() {
            return value;
        }

        private static native int getTANGENTIALPATHNative();

        private static native int getHORIZONTALPATHNative();

        private static native int getVERTICALPATHNative();
    }

    /** Whether annotations may cross contour lines. */
    public enum AnnotCrossStatusType {
        /** The toolkit's {@code CROSSCONTOUR}. */
        CROSSCONTOUR(JarInitializer.value(AnnotCrossStatusType::getCROSSCONTOURNative)),
        /** The toolkit's {@code CROSSMINORCONTOUR}. */
        CROSSMINORCONTOUR(JarInitializer.value(AnnotCrossStatusType::getCROSSMINORCONTOURNative)),
        /** The toolkit's {@code DONTCROSSCONTOUR}. */
        DONTCROSSCONTOUR(JarInitializer.value(AnnotCrossStatusType::getDONTCROSSCONTOURNative));

        private final int value;

        AnnotCrossStatusType(int value) {
            this.value = value;
        }

        /** {@return the toolkit's value of the constant} */
        public int getValue() {
            return value;
        }

        private static native int getCROSSCONTOURNative();

        private static native int getCROSSMINORCONTOURNative();

        private static native int getDONTCROSSCONTOURNative();
    }

    private PbNumericDisplayFormat format;
    private PbMiscTextAttr miscTextAttr;

    /** A new node that holds one reference on its native node. */
    public PoMeshContouring() {
        this(ctorImpl());
    }

    /**
     * A Java object for the native node at the handle (non-zero); takes a reference on it.
     *
     * @param handle the address of the native object
     */
    protected PoMeshContouring(long handle) {
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
     * Sets the numeric format of the contour annotations; null for none.
     *
     * <p>The node keeps the object's address, so this object keeps the Java object as long as it
     * is set.
     *
     * @param format the format, or null for none
     */
    public void setFormat(PbNumericDisplayFormat format) {
        setFormatImpl(handle(), handleOrZero(JavaViews.keepable(format, "format"), "format"));
        this.format = format;
    }

    /**
     * The numeric format of the contour annotations, or null for none.
     *
     * <p>The Java object set earlier while the node still holds its address, else the registered
     * Java object of that address, else null.
     *
     * @return the numeric format of the contour annotations, or null for none
     */
    public PbNumericDisplayFormat getFormat() {
        return JavaViews.find(PbNumericDisplayFormat.class, getFormatImpl(handle()), format);
    }

    /**
     * Sets the text attributes of the contour annotations; null for none.
     *
     * <p>The node keeps the object's address, so this object keeps the Java object as long as it
     * is set.
     *
     * @param miscTextAttr the text attributes, or null for none
     */
    public void setMiscTextAttr(PbMiscTextAttr miscTextAttr) {
        setMiscTextAttrImpl(handle(), handleOrZero(JavaViews.keepable(miscTextAttr, "miscTextAttr"), "miscTextAttr"));
        this.miscTextAttr = miscTextAttr;
    }

    /**
     * The text attributes of the contour annotations, or null for none.
     *
     * <p>The Java object set earlier while the node still holds its address, else the registered
     * Java object of that address, else null.
     *
     * @return the text attributes of the contour annotations, or null for none
     */
    public PbMiscTextAttr getMiscTextAttr() {
        return JavaViews.find(PbMiscTextAttr.class, getMiscTextAttrImpl(handle()), miscTextAttr);
    }

    private static native long ctorImpl();

    private static native String getClassTypeId();

    private static native long getClassNodekitCatalogImpl();

    private native void setFormatImpl(long handle, long object);

    private native long getFormatImpl(long handle);

    private native void setMiscTextAttrImpl(long handle, long object);

    private native long getMiscTextAttrImpl(long handle);
}
