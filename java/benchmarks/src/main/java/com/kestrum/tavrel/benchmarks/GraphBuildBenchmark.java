package com.kestrum.tavrel.benchmarks;

import com.kestrum.corvel.SbVec2f;
import com.kestrum.tavrel.graph.PbIsovaluesList;
import com.kestrum.tavrel.graph.PoCurve;
import com.kestrum.tavrel.graph.PoHistogram;
import com.kestrum.tavrel.graph.PoMultipleHistogram;
import com.kestrum.tavrel.graph.PoValuedMarkerField;
import java.util.concurrent.TimeUnit;
import org.openjdk.jmh.annotations.Benchmark;
import org.openjdk.jmh.annotations.BenchmarkMode;
import org.openjdk.jmh.annotations.Mode;
import org.openjdk.jmh.annotations.OutputTimeUnit;
import org.openjdk.jmh.annotations.Param;
import org.openjdk.jmh.annotations.Scope;
import org.openjdk.jmh.annotations.Setup;
import org.openjdk.jmh.annotations.State;
import org.openjdk.jmh.annotations.TearDown;

/**
 * Graph nodes built from Java arrays of {@code size} elements (checks, conversions, the toolkit's
 * copy and build, the node's disposal), each against the floor of the same conversions alone: the
 * JNI calls of the vector-object conversion ({@link Floors#vectorComponents}), of each
 * {@code float[]} read in ({@link Floors#floatArray}) and of each {@code String[]} read as UTF-8
 * ({@link Floors#stringArray}), as the node's constructor converts them; and against the same
 * conversions with the toolkit's own work (the {@code ...ToolkitFloor} benchmarks: the native
 * results handed to the toolkit as the constructor hands them), which leaves the binding's own
 * work as the difference. The report divides by
 * {@code size}: time per element. The pie chart, whose slice count is a {@code short}, is
 * {@link PieChartBenchmark}.
 */
@State(Scope.Thread)
@BenchmarkMode(Mode.AverageTime)
@OutputTimeUnit(TimeUnit.NANOSECONDS)
public class GraphBuildBenchmark {
    /** The number of points, values or isovalues. */
    @Param({"1000", "100000", "10000000"})
    public int size;

    /** The histograms of the multiple histogram; each has {@code size / HISTOGRAMS} values. */
    static final int HISTOGRAMS = 10;

    SbVec2f[] points;
    float[] xy;
    float[] values1;
    float[] values2;
    String[] histogramNames;
    String[] valueNames;
    private PbIsovaluesList isovalues;

    /** Makes the arrays. */
    @Setup
    public void setUp() {
        Floors.ensureLoaded();
        points = new SbVec2f[size];
        xy = new float[2 * size];
        values1 = new float[size];
        values2 = new float[size];
        for (int i = 0; i < size; i++) {
            points[i] = new SbVec2f(i, i % 97);
            xy[2 * i] = i;
            xy[2 * i + 1] = i % 97;
            values1[i] = i % 13;
            values2[i] = (i % 101) / 100f;
        }
        histogramNames = names("h", HISTOGRAMS);
        valueNames = names("v", size / HISTOGRAMS);
        isovalues = new PbIsovaluesList();
    }

    /** Disposes of the isovalue list's Java object. */
    @TearDown
    public void tearDown() {
        isovalues.dispose();
    }

    static String[] names(String prefix, int count) {
        String[] names = new String[count];
        for (int i = 0; i < count; i++) {
            names[i] = prefix + i;
        }
        return names;
    }

    /** A curve from an array of {@code SbVec2f}. */
    @Benchmark
    public void curveFromVectors() {
        new PoCurve(size, points, PoCurve.CurveReps.CURVEPOLYLINE).dispose();
    }

    /** A curve from x, y pairs ({@code float[]}: made into vectors in Java, then converted). */
    @Benchmark
    public void curveFromFloats() {
        new PoCurve(xy, PoCurve.CurveReps.CURVEPOLYLINE).dispose();
    }

    /** The floor of both curves: the vector-object conversion's JNI calls, two components a vector. */
    @Benchmark
    public float curveFloor() {
        return Floors.vectorComponents(points, 2);
    }

    /**
     * The floor of the curve with the toolkit's work: the same conversion, the points handed to
     * the toolkit's constructor, the node referenced and released.
     */
    @Benchmark
    public long curveToolkitFloor() {
        return Floors.curveWithToolkit(points);
    }

    /**
     * The same for x, y pairs: the vectors that the native conversion needs, made in Java as the
     * wrapper makes them, then as {@link #curveToolkitFloor()}.
     */
    @Benchmark
    public long curveFromFloatsToolkitFloor() {
        SbVec2f[] vectors = new SbVec2f[xy.length / 2];
        for (int i = 0; i < vectors.length; i++) {
            vectors[i] = new SbVec2f(xy[2 * i], xy[2 * i + 1]);
        }
        return Floors.curveWithToolkit(vectors);
    }

    /** A valued marker field: points and two value lists. */
    @Benchmark
    public void markerField() {
        new PoValuedMarkerField(size, points, values1, values2).dispose();
    }

    /** Its floor: the points' conversion and both value lists read in. */
    @Benchmark
    public float markerFieldFloor() {
        return Floors.vectorComponents(points, 2) + Floors.floatArray(values1) + Floors.floatArray(values2);
    }

    /** Its floor with the toolkit's work. */
    @Benchmark
    public long markerFieldToolkitFloor() {
        return Floors.markerFieldWithToolkit(points, values1, values2);
    }

    /** A multiple histogram of {@value #HISTOGRAMS} histograms sharing {@code size} values. */
    @Benchmark
    public void multipleHistogram() {
        new PoMultipleHistogram(new SbVec2f(0, 0), 6, PoHistogram.Types.X, HISTOGRAMS, size / HISTOGRAMS, values1,
                histogramNames, valueNames).dispose();
    }

    /** Its floor: the values read in and both name lists read as UTF-8. */
    @Benchmark
    public long multipleHistogramFloor() {
        return (long) Floors.floatArray(values1) + Floors.stringArray(histogramNames)
                + Floors.stringArray(valueNames);
    }

    /** Its floor with the toolkit's work. */
    @Benchmark
    public long multipleHistogramToolkitFloor() {
        return Floors.multipleHistogramWithToolkit(HISTOGRAMS, size / HISTOGRAMS, values1, histogramNames, valueNames);
    }

    /** An irregular isovalue list of {@code size} values set on one list. */
    @Benchmark
    public PbIsovaluesList isovalueList() {
        isovalues.setIrregularIsoList(size, values1);
        return isovalues;
    }

    /** Its floor: the values read in. */
    @Benchmark
    public float isovalueListFloor() {
        return Floors.floatArray(values1);
    }

    /** Its floor with the toolkit's work: the values set on the same list. */
    @Benchmark
    public long isovalueListToolkitFloor() {
        return Floors.isovaluesWithToolkit(isovalues.getNativeResourceHandleInternal(), values1);
    }
}
