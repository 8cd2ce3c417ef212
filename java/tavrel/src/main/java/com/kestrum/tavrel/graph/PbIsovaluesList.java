package com.kestrum.tavrel.graph;

import static com.kestrum.tavrel.graph.Checks.count;
import static com.kestrum.tavrel.graph.Checks.length;

import com.kestrum.corvel.misc.ManagedObjects;
import com.kestrum.tavrel.internal.JarInitializer;
import java.nio.ByteBuffer;
import java.nio.ByteOrder;
import java.nio.FloatBuffer;

/**
 * A list of isovalues, the values at which contour lines and level surfaces are drawn: regular
 * (evenly spaced from a minimum to a maximum) or irregular (the values given).
 *
 * <p>The toolkit makes the values of a regular list itself, so the count of a regular list is at
 * most {@link #MAX_REGULAR_COUNT}. The direct buffer aliases the list's own memory and must not
 * be used once the list has changed. See {@link PbBase} for the ownership of attribute objects.
 */
public class PbIsovaluesList extends PbBase {
    static {
        JarInitializer.init();
        ManagedObjects.registerWrapper(PbIsovaluesList.class.getName(), PbIsovaluesList::new);
    }

    /** The largest count of a regular list that this class passes to the toolkit. */
    public static final int MAX_REGULAR_COUNT = 1 << 20;

    /**
     * What {@link #getIsoList} reports: the values, the bounds, the step between values (0 for an
     * irregular list) and whether the list is regular.
     */
    public record IsoList(float[] values, float min, float max, float step, boolean regular) {}

    /** A new list: regular and empty, from 0 to 0. */
    public PbIsovaluesList() {
        super(made(ctorImpl()));
    }

    /**
     * A copy of another list, independent of it.
     *
     * @param other the object to copy
     */
    public PbIsovaluesList(PbIsovaluesList other) {
        super(made(ctorImpl1(handleOf(other, "other"))));
    }

    /**
     * A regular list of num values from min to max.
     *
     * @param min the first isovalue
     * @param max the last isovalue
     * @param num the number of elements to use
     */
    public PbIsovaluesList(float min, float max, int num) {
        super(made(ctorImpl2(min, max, regularCount(num))));
    }

    /**
     * A view of a native list made elsewhere (non-zero handle).
     *
     * @param handle the address of the native object
     */
    protected PbIsovaluesList(long handle) {
        super(handle);
    }

    /**
     * True when the toolkit finds both lists equal (values, bounds, step and regularity).
     *
     * @param other the field to compare with
     * @return true when the toolkit finds both lists equal (values, bounds, step and regularity)
     */
    public boolean isEqualTo(PbIsovaluesList other) {
        return equalsImpl(handle(), handleOf(other, "other"));
    }

    /**
     * A regular list of num values over the range of the first numValues values.
     *
     * @param numValues the number of values
     * @param values the isovalues
     * @param num the number of elements to use
     */
    public void setRegularIsoList(int numValues, float[] values, int num) {
        int n = count(numValues, Integer.MAX_VALUE, "numValues");
        setRegularIsoListImpl(handle(), n, length(values, n, "values"), regularCount(num));
    }

    /**
     * A regular list over the range of the first numValues values, with the current count.
     *
     * @param numValues the number of values
     * @param values the isovalues
     */
    public void setRegularIsoList(int numValues, float[] values) {
        int n = count(numValues, Integer.MAX_VALUE, "numValues");
        setRegularIsoListImpl1(handle(), n, length(values, n, "values"));
    }

    /**
     * A regular list of num values from origin, step apart.
     *
     * @param num the number of elements to use
     * @param origin the origin
     * @param step the step between two values
     */
    public void setRegularIsoList(int num, float origin, float step) {
        setRegularIsoListImpl2(handle(), regularCount(num), origin, step);
    }

    /**
     * A regular list of num values from min to max.
     *
     * @param min the first isovalue
     * @param max the last isovalue
     * @param num the number of elements to use
     */
    public void setRegularIsoList(float min, float max, int num) {
        setRegularIsoListImpl3(handle(), min, max, regularCount(num));
    }

    /**
     * A regular list from min to max with the current count.
     *
     * @param min the first isovalue
     * @param max the last isovalue
     */
    public void setRegularIsoList(float min, float max) {
        setRegularIsoListImpl4(handle(), min, max);
    }

    /**
     * A regular list of num values between the current bounds.
     *
     * @param num the number of elements to use
     */
    public void setRegularIsoList(int num) {
        setRegularIsoListImpl5(handle(), regularCount(num));
    }

    /**
     * An irregular list of the first num values.
     *
     * @param num the number of elements to use
     * @param values the isovalues
     */
    public void setIrregularIsoList(int num, float[] values) {
        int n = count(num, Integer.MAX_VALUE, "num");
        setIrregularIsoListImpl(handle(), n, length(values, n, "values"));
    }

    /**
     * The list with its description; the values are a copy.
     *
     * @return the list with its description; the values are a copy
     */
    public IsoList getIsoList() {
        int[] num = new int[1];
        float[] min = new float[1], max = new float[1], step = new float[1];
        boolean[] regular = new boolean[1];
        float[] values = getIsoListImpl(handle(), num, min, max, step, regular);
        return new IsoList(values, min[0], max[0], step[0], regular[0]);
    }

    /**
     * The list's values, without a copy.
     *
     * @return the list's values, without a copy
     */
    public FloatBuffer getDirectIsoList() {
        Object buffer = getDirectIsoListImpl(handle(), new int[1], new float[1], new float[1], new float[1],
                new boolean[1]);
        return buffer == null ? null : ((ByteBuffer) buffer).order(ByteOrder.nativeOrder()).asFloatBuffer();
    }

    private static int regularCount(int num) {
        return count(num, MAX_REGULAR_COUNT, "num");
    }

    private static native long ctorImpl();

    private static native long ctorImpl1(long other);

    private static native long ctorImpl2(float min, float max, int num);

    private native boolean equalsImpl(long handle, long other);

    private native void setRegularIsoListImpl(long handle, int numValues, float[] values, int num);

    private native void setRegularIsoListImpl1(long handle, int numValues, float[] values);

    private native void setRegularIsoListImpl2(long handle, int num, float origin, float step);

    private native void setRegularIsoListImpl3(long handle, float min, float max, int num);

    private native void setRegularIsoListImpl4(long handle, float min, float max);

    private native void setRegularIsoListImpl5(long handle, int num);

    private native void setIrregularIsoListImpl(long handle, int num, float[] values);

    private native float[] getIsoListImpl(long handle, int[] num, float[] min, float[] max, float[] step,
            boolean[] regular);

    private native Object getDirectIsoListImpl(long handle, int[] num, float[] min, float[] max, float[] step,
            boolean[] regular);
}
