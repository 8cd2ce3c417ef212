package com.kestrum.tavrel.graph;

import static com.kestrum.tavrel.graph.Checks.count;
import static com.kestrum.tavrel.graph.Checks.notNull;

import com.kestrum.corvel.SbVec3f;
import com.kestrum.tavrel.internal.JarInitializer;

/** A generalised axis: graduations given as strings, placed evenly from its start to its end. */
public class PoGenAxis extends PoCartesianAxis {
    static {
        JarInitializer.init();
    }

    /** A new axis with the toolkit's defaults; holds one reference on its native node. */
    public PoGenAxis() {
        this(ctorImpl());
    }

    /**
     * An axis from start along the direction of its type to the coordinate end, with those
     * graduations (at most 32,767, none null).
     *
     * @param start the start point
     * @param end the coordinate of the axis's end along its direction
     * @param type the axis's plane and direction
     * @param grads the graduations' texts
     */
    public PoGenAxis(SbVec3f start, float end, PoCartesianAxis.Types type, String[] grads) {
        this(ctorImpl1(Checks.point(start, "start"), end, PoLinearAxis.value(type), labels(grads),
                grads.length));
    }

    /**
     * A Java object for the native node at the handle (non-zero); takes a reference on it.
     *
     * @param handle the address of the native object
     */
    protected PoGenAxis(long handle) {
        super(handle);
    }

    private static String[] labels(String[] grads) {
        notNull(grads, "grads");
        count(grads.length, Short.MAX_VALUE, "number of graduations");
        for (int i = 0; i < grads.length; i++) {
            notNull(grads[i], "grads[" + i + "]");
        }
        return grads;
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

    private static native long ctorImpl1(float[] start, float end, int type, String[] grads, int count);
}
