package com.kestrum.tavrel.benchmarks;

import com.kestrum.corvel.actions.SoGLRenderAction;
import com.kestrum.corvel.nodes.SoNode;
import com.kestrum.tavrel.graph.PoCurve;
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
 * The curve and the marker field of {@link GraphBuildBenchmark}, built once from {@code size} elements, rendered into
 * the picture of a render action (each {@code apply} starts a new picture). The report divides by
 * {@code size}: time per element drawn, which should not grow with the size. The pie chart's
 * render is in {@link PieChartBenchmark}, the multiple histogram's in
 * {@link HistogramRenderBenchmark}.
 */
@State(Scope.Thread)
@BenchmarkMode(Mode.AverageTime)
@OutputTimeUnit(TimeUnit.NANOSECONDS)
public class GraphRenderBenchmark {
    /** The number of points or values. */
    @Param({"1000", "100000", "10000000"})
    public int size;

    private SoGLRenderAction render;
    private SoNode curve;
    private SoNode markers;

    /** Builds the nodes and the action. */
    @Setup
    public void setUp() {
        GraphBuildBenchmark arrays = new GraphBuildBenchmark();
        arrays.size = size;
        arrays.setUp();
        curve = new PoCurve(size, arrays.points, PoCurve.CurveReps.CURVEPOLYLINE);
        markers = new PoValuedMarkerField(size, arrays.points, arrays.values1, arrays.values2);
        arrays.tearDown();
        render = new SoGLRenderAction();
    }

    /** Disposes of the nodes and the action. */
    @TearDown
    public void tearDown() {
        render.dispose();
        curve.dispose();
        markers.dispose();
    }

    /** The curve, a polyline through every point. */
    @Benchmark
    public SoGLRenderAction renderCurve() {
        render.apply(curve);
        return render;
    }

    /** The marker field, a marker a point. */
    @Benchmark
    public SoGLRenderAction renderMarkerField() {
        render.apply(markers);
        return render;
    }
}
