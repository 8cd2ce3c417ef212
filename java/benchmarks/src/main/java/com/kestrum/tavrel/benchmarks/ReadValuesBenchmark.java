package com.kestrum.tavrel.benchmarks;

import com.kestrum.tavrel.data.PbIrregularMesh1D;
import com.kestrum.tavrel.data.PbMesh;
import java.nio.FloatBuffer;
import java.util.concurrent.TimeUnit;
import org.openjdk.jmh.annotations.Benchmark;
import org.openjdk.jmh.annotations.BenchmarkMode;
import org.openjdk.jmh.annotations.Mode;
import org.openjdk.jmh.annotations.OutputTimeUnit;
import org.openjdk.jmh.annotations.Scope;
import org.openjdk.jmh.annotations.Setup;
import org.openjdk.jmh.annotations.State;

/**
 * (c) Reading the 1,000,000 values of a values set: through a direct buffer over the mesh's own
 * array ({@code getDirectValuesSet}) against a copied array ({@code getValuesSet}). Each
 * operation fetches the set and sums every value.
 */
@State(Scope.Thread)
@BenchmarkMode(Mode.AverageTime)
@OutputTimeUnit(TimeUnit.MICROSECONDS)
public class ReadValuesBenchmark {
    static final int N = 1_000_000;

    private PbMesh mesh;

    @Setup
    public void setUp() {
        mesh = new PbIrregularMesh1D(N, new float[N]);
        float[] values = new float[N];
        for (int i = 0; i < N; i++) {
            values[i] = i % 101;
        }
        mesh.addValuesSet(0, values, "pressure");
    }

    @Benchmark
    public float copyBaseline() {
        float[] values = mesh.getValuesSet(0);
        float sum = 0;
        for (int i = 0; i < values.length; i++) {
            sum += values[i];
        }
        return sum;
    }

    @Benchmark
    public float direct() {
        FloatBuffer values = mesh.getDirectValuesSet(0);
        float sum = 0;
        for (int i = 0, n = values.capacity(); i < n; i++) {
            sum += values.get(i);
        }
        return sum;
    }
}
