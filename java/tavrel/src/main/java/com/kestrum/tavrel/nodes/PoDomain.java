package com.kestrum.tavrel.nodes;

import com.kestrum.corvel.SbVec2f;
import com.kestrum.corvel.SbVec3f;
import com.kestrum.corvel.nodes.SoNode;
import com.kestrum.tavrel.internal.Checks;
import com.kestrum.tavrel.internal.JarInitializer;

/**
 * A property node that gives the graphs after it in the scene their domain: the box of user
 * coordinates they draw in, and how that box is scaled into the node's space (see
 * {@link com.kestrum.tavrel.graph.PbDomain} for the bounding-box and transform types).
 *
 * <p>The node keeps its values in named fields, read each time they are used: {@code "min"} and
 * {@code "max"} (the box as given, {@code "0 0 0"} and {@code "1 1 1"} at first), {@code "is2D"}
 * ({@code FALSE}), {@code "bndBoxType"} (a {@link BoundingBoxTypes} value, {@code ASIS}) and
 * {@code "transformType"} (a {@link TransformTypes} value, {@code TRANSFORM01}). The
 * {@code setValues} methods write the first four; the transform type is set with
 * {@code getField("transformType").setValue(text)}.
 *
 * <p>When an action traverses the node it becomes the current domain for the rest of the
 * traversal. The node is released when it is disposed and nothing else in the scene references
 * it.
 */
public class PoDomain extends SoNode {
    static {
        JarInitializer.init();
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

        /**
         * The toolkit's value of the constant.
         *
         * @return the value
         */
        public int getValue() {
            return value;
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

        /**
         * The toolkit's value of the constant.
         *
         * @return the value
         */
        public int getValue() {
            return value;
        }

        private static native int getASISNative();

        private static native int getMINBOUNDINGCUBENative();

        private static native int getMAXBOUNDEDCUBENative();
    }

    /** A domain node: the unit box, each axis onto [0, 1]. */
    public PoDomain() {
        super(ctorImpl());
    }

    /**
     * The name of the class's toolkit type.
     *
     * @return the type name
     */
    public static String getClassTypeName() {
        return getClassTypeId();
    }

    /**
     * Makes this a 2D domain from min to max (z from 0 to 0).
     *
     * @param min the lower corner
     * @param max the upper corner
     * @param type what the toolkit makes of the box
     * @throws NullPointerException when an argument is null
     * @throws IllegalStateException when the node has been disposed
     */
    public void setValues(SbVec2f min, SbVec2f max, BoundingBoxTypes type) {
        long h = handle();
        float[] lo = Checks.notNull(min, "min").getValue().clone();
        float[] hi = Checks.notNull(max, "max").getValue().clone();
        setValuesImpl(h, lo, hi, Checks.notNull(type, "type").getValue());
    }

    /**
     * Makes this a 3D domain from min to max.
     *
     * @param min the lower corner
     * @param max the upper corner
     * @param type what the toolkit makes of the box
     * @throws NullPointerException when an argument is null
     * @throws IllegalStateException when the node has been disposed
     */
    public void setValues(SbVec3f min, SbVec3f max, BoundingBoxTypes type) {
        long h = handle();
        float[] lo = Checks.notNull(min, "min").getValue().clone();
        float[] hi = Checks.notNull(max, "max").getValue().clone();
        setValuesImpl1(h, lo, hi, Checks.notNull(type, "type").getValue());
    }

    /**
     * The address of the toolkit's transform node of the domain, for native code.
     *
     * @return the address, 0 when the toolkit has none
     * @throws IllegalStateException when the node has been disposed
     */
    public long getTransformAddress() {
        return getTransformImpl(handle());
    }

    /**
     * The address of the matrix that maps the domain's box into the node's space (16 floats, row
     * vectors), for native code. The toolkit brings it up to date with each call; it stays at the
     * same address as long as the node lives.
     *
     * @return the address
     * @throws IllegalStateException when the node has been disposed
     */
    public long getMatrixTransformAddress() {
        return getMatrixTransformImpl(handle());
    }

    private static native long ctorImpl();

    private static native String getClassTypeId();

    private native void setValuesImpl(long handle, float[] min, float[] max, int type);

    private native void setValuesImpl1(long handle, float[] min, float[] max, int type);

    private native long getTransformImpl(long handle);

    private native long getMatrixTransformImpl(long handle);
}
