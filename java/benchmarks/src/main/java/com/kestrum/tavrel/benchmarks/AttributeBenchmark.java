package com.kestrum.tavrel.benchmarks;

import com.kestrum.corvel.SbColor;
import com.kestrum.tavrel.graph.PbIsovaluesList;
import com.kestrum.tavrel.graph.PbNonLinearDataMapping2;
import java.nio.FloatBuffer;
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
 * The lists of an isovalue list ({@code size} values) and of a data mapping ({@code size}
 * colours) read through their direct buffers against their copies: obtaining the list and summing
 * every value. The report divides by {@code size}.
 */
@State(Scope.Thread)
@BenchmarkMode(Mode.AverageTime)
@OutputTimeUnit(TimeUnit.NANOSECONDS)
public class AttributeBenchmark {
    /** The number of isovalues and of colours. */
    @Param({"1000000"})
    public int size;

    private PbNonLinearDataMapping2 mapping;
    private PbIsovaluesList isovalues;

    /** Makes the objects and their lists. */
    @Setup
    public void setUp() {
        Floors.ensureLoaded();
        isovalues = new PbIsovaluesList();
        float[] values = new float[size];
        SbColor[] colors = new SbColor[size];
        for (int i = 0; i < size; i++) {
            values[i] = i;
            colors[i] = new SbColor((i % 3) / 2f, (i % 5) / 4f, (i % 7) / 6f);
        }
        isovalues.setIrregularIsoList(size, values);
        mapping = new PbNonLinearDataMapping2();
        mapping.setValues(PbNonLinearDataMapping2.Types.LINEARPERLEVEL, size, values, colors);
    }

    /** Disposes of the Java objects. */
    @TearDown
    public void tearDown() {
        isovalues.dispose();
        mapping.dispose();
    }

    /** The isovalues through the direct buffer. */
    @Benchmark
    public float isovaluesDirect() {
        FloatBuffer values = isovalues.getDirectIsoList();
        float sum = 0;
        for (int i = 0, n = values.capacity(); i < n; i++) {
            sum += values.get(i);
        }
        return sum;
    }

    /** The isovalues through the copy. */
    @Benchmark
    public float isovaluesCopy() {
        float[] values = isovalues.getIsoList().values();
        float sum = 0;
        for (float v : values) {
            sum += v;
        }
        return sum;
    }

    /** The mapping's colours through the direct buffer. */
    @Benchmark
    public float colorsDirect() {
        FloatBuffer floats = mapping.getDirectRGBColorsList();
        float sum = 0;
        for (int i = 0, n = floats.capacity(); i < n; i++) {
            sum += floats.get(i);
        }
        return sum;
    }

    /** The mapping's colours through the copy ({@code SbColor} objects). */
    @Benchmark
    public float colorsCopy() {
        SbColor[] colors = mapping.getRGBColorsList();
        float sum = 0;
        for (SbColor c : colors) {
            float[] rgb = c.getValue();
            sum += rgb[0] + rgb[1] + rgb[2];
        }
        return sum;
    }
}
