package com.kestrum.tavrel.benchmarks;

import com.kestrum.corvel.SbVec2f;
import com.kestrum.corvel.actions.SoGLRenderAction;
import com.kestrum.tavrel.graph.PoHistogram;
import com.kestrum.tavrel.graph.PoMultipleHistogram;
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
 * The multiple histogram of {@link GraphBuildBenchmark}, built once from {@code size} values,
 * rendered into the picture of a render action; the report divides by {@code size}. The sizes stop
 * at 10^6: the stand-in draws a bar, a name and a value a value, so that the picture of 10^7 values
 * holds 3 x 10^7 primitives (gigabytes of native memory, kept once by the node and once by the
 * picture), and a single render then takes tens of seconds of the kernel's page clearing.
 */
@State(Scope.Thread)
@BenchmarkMode(Mode.AverageTime)
@OutputTimeUnit(TimeUnit.NANOSECONDS)
public class HistogramRenderBenchmark {
    /** The number of values. */
    @Param({"1000", "100000", "1000000"})
    public int size;

    private SoGLRenderAction render;
    private PoMultipleHistogram histogram;

    /** Builds the histogram and the action. */
    @Setup
    public void setUp() {
        GraphBuildBenchmark arrays = new GraphBuildBenchmark();
        arrays.size = size;
        arrays.setUp();
        histogram = new PoMultipleHistogram(new SbVec2f(0, 0), 6, PoHistogram.Types.X,
                GraphBuildBenchmark.HISTOGRAMS, size / GraphBuildBenchmark.HISTOGRAMS, arrays.values1,
                arrays.histogramNames, arrays.valueNames);
        arrays.tearDown();
        render = new SoGLRenderAction();
    }

    /** Disposes of the histogram and the action. */
    @TearDown
    public void tearDown() {
        render.dispose();
        histogram.dispose();
    }

    /** The histogram, a bar with its name and value a value. */
    @Benchmark
    public SoGLRenderAction renderMultipleHistogram() {
        render.apply(histogram);
        return render;
    }
}
