package com.kestrum.tavrel.graph;

import static com.kestrum.tavrel.graph.Checks.notNull;

import com.kestrum.corvel.SbBox2f;
import com.kestrum.corvel.SbBox3f;
import com.kestrum.corvel.misc.ManagedObjects;
import com.kestrum.tavrel.internal.Enums;
import com.kestrum.tavrel.internal.JarInitializer;

/**
 * The domain of a graph: the box of user coordinates that a graph node draws in, and how that
 * box is scaled into the node's own space (the transform type). A 2D domain has z from 0 to 0.
 *
 * <p>The bounding-box type applies when the box is set: the toolkit may make the box a cube (or
 * a square), and the getters give the box it keeps. See {@link PbBase} for the ownership of
 * attribute objects.
 */
public class PbDomain extends PbBase {
    static {
        JarInitializer.init();
        ManagedObjects.registerWrapper(PbDomain.class.getName(), PbDomain::new);
    }

    /** How the domain's box is scaled into the node's space. */
    public enum TransformTypes {
        /** Each axis on its own onto [0, 1]. */
        TRANSFORM01(JarInitializer.value(TransformTypes::getTRANSFORM01Native)),
        /** x onto [0, 1], the other axes with the same scale. */
        SCALEXFIXED(JarInitializer.value(TransformTypes::getSCALEXFIXEDNative)),
        /** y onto [0, 1], the other axes with the same scale. */
        SCALEYFIXED(JarInitializer.value(TransformTypes::getSCALEYFIXEDNative)),
        /** z onto [0, 1], the other axes with the same scale. */
        SCALEZFIXED(JarInitializer.value(TransformTypes::getSCALEZFIXEDNative)),
        /** The longest side onto [0, 1], the others with the same scale. */
        SCALEMAXXYZFIXED(JarInitializer.value(TransformTypes::getSCALEMAXXYZFIXEDNative));

        private final int value;

        TransformTypes(int value) {
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
        public static TransformTypes fromValue(int value) {
            return Enums.fromValue(values(), TransformTypes::getValue, value);
        }

        private static native int getTRANSFORM01Native();

        private static native int getSCALEXFIXEDNative();

        private static native int getSCALEYFIXEDNative();

        private static native int getSCALEZFIXEDNative();

        private static native int getSCALEMAXXYZFIXEDNative();
    }

    /** What the toolkit makes of a box when it is set. */
    public enum BoundingBoxTypes {
        /** The box as given. */
        ASIS(JarInitializer.value(BoundingBoxTypes::getASISNative)),
        /** The smallest cube (square) around the box. */
        MINBOUNDINGCUBE(JarInitializer.value(BoundingBoxTypes::getMINBOUNDINGCUBENative)),
        /** The largest cube (square) inside the box. */
        MAXBOUNDEDCUBE(JarInitializer.value(BoundingBoxTypes::getMAXBOUNDEDCUBENative));

        private final int value;

        BoundingBoxTypes(int value) {
            this.value = value;
        }

        /** {@return the toolkit's value of the constant} */
        public int getValue() {
            return value;
        }

        private static native int getASISNative();

        private static native int getMINBOUNDINGCUBENative();

        private static native int getMAXBOUNDEDCUBENative();
    }

    /** A new domain: the unit box [0, 1]^3, each axis onto [0, 1]. */
    public PbDomain() {
        super(made(ctorImpl()));
    }

    /**
     * A copy of another domain, independent of it.
     *
     * @param other the object to copy
     */
    public PbDomain(PbDomain other) {
        super(made(ctorImpl1(handleOf(other, "other"))));
    }

    /**
     * A 2D domain of the box.
     *
     * @param box the box the domain covers
     * @param type how the box is fitted
     */
    public PbDomain(SbBox2f box, BoundingBoxTypes type) {
        super(made(ctorImpl2(box2(box), valueOf(type))));
    }

    /**
     * A 3D domain of the box.
     *
     * @param box the box the domain covers
     * @param type how the box is fitted
     */
    public PbDomain(SbBox3f box, BoundingBoxTypes type) {
        super(made(ctorImpl3(box3(box), valueOf(type))));
    }

    /**
     * A 2D domain from (xmin, ymin) to (xmax, ymax).
     *
     * @param xmin the smallest x
     * @param ymin the smallest y
     * @param xmax the largest x
     * @param ymax the largest y
     * @param type how the box is fitted
     */
    public PbDomain(float xmin, float ymin, float xmax, float ymax, BoundingBoxTypes type) {
        super(made(ctorImpl4(xmin, ymin, xmax, ymax, valueOf(type))));
    }

    /**
     * A 3D domain from (xmin, ymin, zmin) to (xmax, ymax, zmax).
     *
     * @param xmin the smallest x
     * @param ymin the smallest y
     * @param zmin the smallest z
     * @param xmax the largest x
     * @param ymax the largest y
     * @param zmax the largest z
     * @param type how the box is fitted
     */
    public PbDomain(float xmin, float ymin, float zmin, float xmax, float ymax, float zmax, BoundingBoxTypes type) {
        super(made(ctorImpl5(xmin, ymin, zmin, xmax, ymax, zmax, valueOf(type))));
    }

    /**
     * A view of a native domain made elsewhere (non-zero handle).
     *
     * @param handle the address of the native object
     */
    protected PbDomain(long handle) {
        super(handle);
    }

    /**
     * Makes this a 2D domain from (xmin, ymin) to (xmax, ymax).
     *
     * @param xmin the smallest x
     * @param ymin the smallest y
     * @param xmax the largest x
     * @param ymax the largest y
     * @param type how the box is fitted
     */
    public void setDomain(float xmin, float ymin, float xmax, float ymax, BoundingBoxTypes type) {
        setDomainImpl(handle(), xmin, ymin, xmax, ymax, valueOf(type));
    }

    /**
     * Makes this a 3D domain from (xmin, ymin, zmin) to (xmax, ymax, zmax).
     *
     * @param xmin the smallest x
     * @param ymin the smallest y
     * @param zmin the smallest z
     * @param xmax the largest x
     * @param ymax the largest y
     * @param zmax the largest z
     * @param type how the box is fitted
     */
    public void setDomain(float xmin, float ymin, float zmin, float xmax, float ymax, float zmax,
            BoundingBoxTypes type) {
        setDomainImpl1(handle(), xmin, ymin, zmin, xmax, ymax, zmax, valueOf(type));
    }

    /**
     * Makes this a 2D domain of the box; returns the box the domain keeps.
     *
     * @param box the box the domain covers; receives the box kept
     * @param type how the box is fitted
     * @return the box the domain keeps
     */
    public SbBox2f setDomain(SbBox2f box, BoundingBoxTypes type) {
        float[] values = box2(box);
        setDomainImpl2(handle(), values, valueOf(type));
        return SbBox2f.fromValue(values);
    }

    /**
     * Makes this a 3D domain of the box; returns the box the domain keeps.
     *
     * @param box the box the domain covers; receives the box kept
     * @param type how the box is fitted
     * @return the box the domain keeps
     */
    public SbBox3f setDomain(SbBox3f box, BoundingBoxTypes type) {
        float[] values = box3(box);
        setDomainImpl3(handle(), values, valueOf(type));
        return SbBox3f.fromValue(values);
    }

    /**
     * The x and y parts of the domain's box.
     *
     * @return the x and y parts of the domain's box
     */
    public SbBox2f get2DDomain() {
        float[] box = new float[4];
        get2DDomainImpl(handle(), box);
        return SbBox2f.fromValue(box);
    }

    /**
     * The domain's box.
     *
     * @return the domain's box
     */
    public SbBox3f get3DDomain() {
        float[] box = new float[6];
        get3DDomainImpl(handle(), box);
        return SbBox3f.fromValue(box);
    }

    /**
     * The matrix that maps the domain's box into the node's space, as 4 rows of 4 floats. Points
     * are row vectors multiplied on the left (p * M), so the translation is in the last row.
     *
     * @return the matrix that maps the domain's box into the node's space, as 4 rows of 4 floats
     */
    public float[][] getMatrix() {
        float[] values = new float[16];
        getMatrixImpl(handle(), values);
        float[][] rows = new float[4][4];
        for (int i = 0; i < 4; i++) {
            System.arraycopy(values, 4 * i, rows[i], 0, 4);
        }
        return rows;
    }

    /**
     * Sets how the domain's box is mapped into the unit space.
     *
     * @param type how the box is mapped
     * @throws NullPointerException when type is null
     */
    public void setTransformType(TransformTypes type) {
        setTransformTypeImpl(handle(), notNull(type, "type").getValue());
    }

    /**
     * The transform type, or null for a value outside the enumeration.
     *
     * @return the transform type, or null for a value outside the enumeration
     */
    public TransformTypes getTransformType() {
        return TransformTypes.fromValue(getTransformTypeImpl(handle()));
    }

    /**
     * The address of the toolkit's transform matrix of this domain (for native code); it stays
     * valid as long as the domain, which is never freed.
     *
     * @return the address of the toolkit's transform matrix of this domain (for native code); it stays valid
     *     as long as the domain, which is never freed
     */
    public long getMatrixTransformAddress() {
        return getMatrixTransformImpl(handle());
    }

    /**
     * The address of the toolkit's transform of this domain (for native code), or 0 for none.
     *
     * @return the address of the toolkit's transform of this domain (for native code), or 0 for none
     */
    public long getTransformAddress() {
        return getTransformImpl(handle());
    }

    /**
     * True when the toolkit finds both domains equal (boxes, dimension and transform type).
     *
     * @param other the field to compare with
     * @return true when the toolkit finds both domains equal (boxes, dimension and transform type)
     */
    public boolean isEqualTo(PbDomain other) {
        return equalsImpl(handle(), handleOf(other, "other"));
    }

    private static int valueOf(BoundingBoxTypes type) {
        return notNull(type, "type").getValue();
    }

    private static float[] box2(SbBox2f box) {
        return notNull(box, "box").getValue();
    }

    private static float[] box3(SbBox3f box) {
        return notNull(box, "box").getValue();
    }

    private static native long ctorImpl();

    private static native long ctorImpl1(long other);

    private static native long ctorImpl2(float[] box, int type);

    private static native long ctorImpl3(float[] box, int type);

    private static native long ctorImpl4(float xmin, float ymin, float xmax, float ymax, int type);

    private static native long ctorImpl5(float xmin, float ymin, float zmin, float xmax, float ymax, float zmax,
            int type);

    private native void setDomainImpl(long handle, float xmin, float ymin, float xmax, float ymax, int type);

    private native void setDomainImpl1(long handle, float xmin, float ymin, float zmin, float xmax, float ymax,
            float zmax, int type);

    private native void setDomainImpl2(long handle, float[] box, int type);

    private native void setDomainImpl3(long handle, float[] box, int type);

    private native void get2DDomainImpl(long handle, float[] box);

    private native void get3DDomainImpl(long handle, float[] box);

    private native void getMatrixImpl(long handle, float[] matrix);

    private native void setTransformTypeImpl(long handle, int type);

    private native int getTransformTypeImpl(long handle);

    private native long getMatrixTransformImpl(long handle);

    private native long getTransformImpl(long handle);

    private native boolean equalsImpl(long handle, long other);
}
