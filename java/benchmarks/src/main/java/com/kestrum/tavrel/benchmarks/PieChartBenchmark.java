package com.kestrum.tavrel.benchmarks;

import com.kestrum.corvel.SbColor;
import com.kestrum.corvel.SbVec2f;
import com.kestrum.corvel.actions.SoGLRenderAction;
import com.kestrum.tavrel.graph.PoPieChart2D;
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
 * A pie chart of {@code size} slices (names, values, colours) built from Java arrays, against the
 * floor of its conversions alone: the names read as UTF-8, the values read in, the colours'
 * vector-object conversion. The slice count is the toolkit's {@code short}, so the sizes stop at
 * 32,000. Also the chart rendered into the picture of a render action. The report divides by
 * {@code size}.
 */
@State(Scope.Thread)
@BenchmarkMode(Mode.AverageTime)
@OutputTimeUnit(TimeUnit.NANOSECONDS)
public class PieChartBenchmark {
    /** The number of slices. */
    @Param({"1000", "32000"})
    public int size;

    String[] names;
    float[] values;
    SbColor[] colors;
    private PoPieChart2D chart;
    private SoGLRenderAction render;

    /** Makes the arrays. */
    @Setup
    public void setUp() {
        Floors.ensureLoaded();
        names = GraphBuildBenchmark.names("s", size);
        values = new float[size];
        colors = new SbColor[size];
        for (int i = 0; i < size; i++) {
            values[i] = 1 + i % 7;
            colors[i] = new SbColor((i % 3) / 2f, (i % 5) / 4f, (i % 7) / 6f);
        }
        chart = PoPieChart2D.of(new SbVec2f(0, 0), 1, names, values, colors);
        render = new SoGLRenderAction();
    }

    /** Disposes of the chart and the action. */
    @TearDown
    public void tearDown() {
        render.dispose();
        chart.dispose();
    }

    /** The chart. */
    @Benchmark
    public void pieChart() {
        PoPieChart2D.of(new SbVec2f(0, 0), 1, names, values, colors).dispose();
    }

    /** Its floor. */
    @Benchmark
    public float pieChartFloor() {
        return Floors.stringArray(names) + Floors.floatArray(values) + Floors.vectorComponents(colors, 3);
    }

    /** Its floor with the toolkit's work. */
    @Benchmark
    public long pieChartToolkitFloor() {
        return Floors.pieChartWithToolkit(names, values, colors);
    }

    /** The chart built in the set-up, rendered into the picture of a render action. */
    @Benchmark
    public SoGLRenderAction renderPieChart() {
        render.apply(chart);
        return render;
    }
}
