package com.kestrum.tavrel.benchmarks;

import com.kestrum.tavrel.internal.JarInitializer;
import java.io.File;

/**
 * The floors of the binding's hot paths: natives of the test-only library
 * ({@code libtavrel_testkit.so}, never shipped) that make exactly the JNI calls a path cannot do
 * without, and nothing else. Each benchmark reports its path as a ratio to its floor measured in
 * the same run.
 *
 * <p>The library is found through the system property {@code tavrel.testkit.library}, else in the
 * folder of {@code kestrum.native.dir} (which {@code make bench} sets to the build tree, so that
 * the product and the test library come from one folder).
 */
public final class Floors {
    private static final String LIBRARY = "libtavrel_testkit.so";

    /** The path of the test library, as {@link #ensureLoaded()} finds it. */
    static final String LIBRARY_PATH = libraryPath();

    static {
        JarInitializer.init();
        System.load(LIBRARY_PATH);
        init(ObjectSink.class, BooleanSink.class);
    }

    /** An object to call the instance floor on. */
    Floors() {}

    /** Loads the product, then the test library (once). */
    static void ensureLoaded() {
        // The static initialiser does the work.
    }

    private static String libraryPath() {
        String path = System.getProperty("tavrel.testkit.library");
        if (path == null) {
            String folder = System.getProperty("kestrum.native.dir");
            if (folder == null) {
                throw new IllegalStateException("The benchmarks need the test library: set kestrum.native.dir to "
                        + "native/build/lib (make bench does) or tavrel.testkit.library to " + LIBRARY);
            }
            path = new File(folder, LIBRARY).getAbsolutePath();
        }
        return path;
    }

    /** The target of the object upcalls: counts them. */
    public static final class ObjectSink {
        int calls;

        /** Called from native code. */
        public void accept(Object argument) {
            calls++;
        }

        /**
         * Called from native code, as a callback bridge calls its Java callback object.
         *
         * @param probe a native handle
         * @param cell a native handle
         */
        public void invokeNativ(long probe, long cell) {
            calls++;
        }

        /**
         * Called from native code: the shape of an element's pop.
         *
         * @param state the first argument
         * @param element the second argument
         */
        public void accept(Object state, Object element) {
            calls++;
        }

        /**
         * Called from native code, as a rebuild bridge calls its Java callback object.
         *
         * @param node a native handle
         */
        public void invokeNativ(long node) {
            calls++;
        }
    }

    /** The target of the boolean upcalls: counts them and accepts values in [0, 1). */
    public static final class BooleanSink {
        int asked;

        /** Called from native code. */
        public boolean accept(int index, float value) {
            asked++;
            return value >= 0 && value < 1;
        }
    }

    private static native void init(Class<?> objectSink, Class<?> booleanSink);

    /** An empty instance native taking a handle: the shape of every thin getter. */
    native int emptyGetter(long handle);

    /** The same shape calling the toolkit's node count of the mesh at the handle. */
    native int toolkitGetter(long handle);

    /** The per-vector JNI calls of the vector-object conversion; the sum of the components. */
    static native float vectorLoop(Object[] vectors);

    /** {@code times} bare upcalls of {@code sink.accept(argument)} through a cached identifier. */
    static native void objectUpcalls(ObjectSink sink, Object argument, int times);

    /** {@code times} bare upcalls of {@code sink.accept(i, 0.5f)}; the number of true answers. */
    static native int booleanUpcalls(BooleanSink sink, int times);

    /**
     * {@code times} upcalls of {@code sink.accept(argument)} with the JNI calls a forwarded call of a
     * Java node makes around its upcall (peer and argument held weakly, the argument's class checked).
     */
    static native void forwardedSequences(ObjectSink sink, Object argument, Class<?> argumentClass, int times);

    /**
     * {@code times} upcalls of {@code sink.accept(i, 0.5f)} with the JNI calls a forwarded call of a
     * Java cell filter makes around its upcall; the number of true answers.
     */
    static native int filterSequences(BooleanSink sink, int times);

    /**
     * {@code times} upcalls of {@code sink.invokeNativ(probe, cell)} with the JNI calls of a callback
     * bridge's event (the method looked up by name each time).
     */
    static native void bridgeSequences(ObjectSink sink, long probe, long cell, int times);

    /** Raises {@code times} motion events of the probe, with the cell (0 for none). */
    static native void raiseMotions(long probe, long cell, int times);

    /**
     * {@code times} pairs of upcalls, {@code sink.accept(state)} and {@code sink.accept(state, element)},
     * with the JNI calls of a Java element's forwarded push and pop around them (peer held globally,
     * state and element weakly, their classes checked).
     */
    static native void elementSequences(ObjectSink sink, Object state, Class<?> stateClass, Object element,
            Class<?> elementClass, int times);

    /**
     * {@code times} upcalls of {@code sink.invokeNativ(node)} with the JNI calls of a rebuild bridge's
     * event (the method looked up by name each time).
     */
    static native void rebuildBridgeSequences(ObjectSink sink, long node, int times);

    /** Raises {@code times} times the pre-rebuild callbacks of the graph node, without rebuilding it. */
    static native void raiseRebuilds(long node, int times);

    /** The per-vector JNI calls of the vector-object conversion, k components a vector; their sum. */
    static native float vectorComponents(Object[] vectors, int k);

    /** A {@code float[]} read in: its elements and their release without copy back; element 0. */
    static native float floatArray(float[] values);

    /** A {@code String[]} read in as UTF-8, string by string; the bytes read. */
    static native long stringArray(String[] strings);

    // The same conversions, their results handed to the toolkit as each node's constructor hands
    // them (the node then referenced and released): what a build costs without the binding's own
    // work.

    /** A curve of the points (the vector conversion with 2 components a vector). */
    static native long curveWithToolkit(Object[] points);

    /** A valued marker field of the points and two value lists. */
    static native long markerFieldWithToolkit(Object[] points, float[] values1, float[] values2);

    /** A multiple histogram at (0, 0), bars 6 wide along x. */
    static native long multipleHistogramWithToolkit(int numHistog, int numValues, float[] values,
            String[] histogNames, String[] valueNames);

    /** The values set as the irregular list of the isovalue list at the handle. */
    static native long isovaluesWithToolkit(long list, float[] values);

    /** A pie chart at (0, 0) of radius 1, a slice a value. */
    static native long pieChartWithToolkit(String[] names, float[] values, Object[] colors);
}
