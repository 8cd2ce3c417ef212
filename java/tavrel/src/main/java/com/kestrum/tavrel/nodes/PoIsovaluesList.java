package com.kestrum.tavrel.nodes;

import com.kestrum.corvel.nodes.SoNode;
import com.kestrum.tavrel.internal.Checks;
import com.kestrum.tavrel.graph.PbIsovaluesList;
import com.kestrum.tavrel.graph.PbIsovaluesList.IsoList;
import com.kestrum.tavrel.internal.JarInitializer;
import java.nio.ByteBuffer;
import java.nio.ByteOrder;
import java.nio.FloatBuffer;

/**
 * A property node that gives the representations after it in the scene their isovalues, the
 * values at which contour lines and level surfaces are drawn: a regular list (evenly spaced
 * values) that the node makes itself (see {@link PbIsovaluesList} for the lists each setter
 * makes). A new node's list is regular and empty, from 0 to 0.
 *
 * <p>When an action traverses the node its list becomes the current isovalues for the rest of
 * the traversal. The node is released when it is disposed and nothing else in the scene
 * references it; the buffer of {@link #getDirectIsoList()} shows the node's own memory and must
 * be read before the list changes or the node is released.
 */
public class PoIsovaluesList extends SoNode {
    static {
        JarInitializer.init();
    }

    /** A node with an empty regular list. */
    public PoIsovaluesList() {
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
     * A regular list of num values over the range (smallest to largest) of the first numValues
     * values.
     *
     * @param numValues how many of the values count
     * @param values the values
     * @param num the count of the list
     * @throws IllegalArgumentException when a count is negative, values is shorter than
     *     numValues, or num is more than {@link PbIsovaluesList#MAX_REGULAR_COUNT}
     * @throws NullPointerException when values is null
     * @throws IllegalStateException when the node has been disposed
     */
    public void setRegularIsoList(int numValues, float[] values, int num) {
        long h = handle();
        int n = Checks.count(numValues, "numValues");
        setRegularIsoListImpl(h, n, Checks.length(values, n, "values"), regularCount(num));
    }

    /**
     * A regular list of num values from origin, step apart.
     *
     * @param num the count of the list
     * @param origin the first value
     * @param step the step between values
     * @throws IllegalArgumentException when num is negative or more than
     *     {@link PbIsovaluesList#MAX_REGULAR_COUNT}
     * @throws IllegalStateException when the node has been disposed
     */
    public void setRegularIsoList(int num, float origin, float step) {
        setRegularIsoListImpl1(handle(), regularCount(num), origin, step);
    }

    /**
     * A regular list of num values from min to max.
     *
     * @param min the first value
     * @param max the last value
     * @param num the count of the list
     * @throws IllegalArgumentException when num is negative or more than
     *     {@link PbIsovaluesList#MAX_REGULAR_COUNT}
     * @throws IllegalStateException when the node has been disposed
     */
    public void setRegularIsoList(float min, float max, int num) {
        setRegularIsoListImpl2(handle(), min, max, regularCount(num));
    }

    /**
     * The list with its description.
     *
     * @return the values (a copy), the bounds, the step and whether the list is regular
     * @throws IllegalStateException when the node has been disposed
     */
    public IsoList getIsoList() {
        long h = handle();
        int[] num = new int[1];
        float[] min = new float[1];
        float[] max = new float[1];
        float[] step = new float[1];
        boolean[] regular = new boolean[1];
        float[] values = getIsoListImpl(h, num, min, max, step, regular);
        return new IsoList(values, min[0], max[0], step[0], regular[0]);
    }

    /**
     * The list's values without a copy: a view of the node's own memory, valid until the list
     * changes or the node is released.
     *
     * @return the values, or null when the toolkit has no list
     * @throws IllegalStateException when the node has been disposed
     */
    public FloatBuffer getDirectIsoList() {
        Object buffer = getDirectIsoListImpl(handle(), new int[1], new float[1], new float[1], new float[1],
                new boolean[1]);
        return buffer == null ? null : ((ByteBuffer) buffer).order(ByteOrder.nativeOrder()).asFloatBuffer();
    }

    private static int regularCount(int num) {
        if (num > PbIsovaluesList.MAX_REGULAR_COUNT) {
            throw new IllegalArgumentException("num is " + num + ", more than "
                    + PbIsovaluesList.MAX_REGULAR_COUNT + ", the longest regular list");
        }
        return Checks.count(num, "num");
    }

    private static native long ctorImpl();

    private static native String getClassTypeId();

    private native void setRegularIsoListImpl(long handle, int numValues, float[] values, int num);

    private native void setRegularIsoListImpl1(long handle, int num, float origin, float step);

    private native void setRegularIsoListImpl2(long handle, float min, float max, int num);

    native float[] getIsoListImpl(long handle, int[] num, float[] min, float[] max, float[] step,
            boolean[] regular);

    native Object getDirectIsoListImpl(long handle, int[] num, float[] min, float[] max, float[] step,
            boolean[] regular);
}
