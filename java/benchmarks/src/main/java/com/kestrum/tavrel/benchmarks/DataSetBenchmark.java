package com.kestrum.tavrel.benchmarks;

import com.kestrum.tavrel.data.PbIrregularMesh1D;
import com.kestrum.tavrel.data.PbMesh;
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

/**
 * A values set of {@code size} values leaving the mesh: the time to obtain it through
 * {@code getDirectValuesSet} (a direct buffer over the mesh's own array: constant in the size)
 * and through {@code getValuesSet} (a copied array: linear), and the time to obtain it and read
 * every value through each.
 */
@State(Scope.Thread)
@BenchmarkMode(Mode.AverageTime)
@OutputTimeUnit(TimeUnit.NANOSECONDS)
public class DataSetBenchmark {
    /** The number of values. */
    @Param({"1000", "1000000", "16000000"})
    public int size;

    private PbMesh mesh;

    /** Makes a mesh of {@code size} nodes with one values set. */
    @Setup
    public void setUp() {
        Floors.ensureLoaded();
        mesh = new PbIrregularMesh1D(size, new float[size]);
        float[] values = new float[size];
        for (int i = 0; i < size; i++) {
            values[i] = i % 101;
        }
        mesh.addValuesSet(0, values, "pressure");
    }

    /** Obtains the direct buffer only. */
    @Benchmark
    public FloatBuffer getDirectValuesSet() {
        return mesh.getDirectValuesSet(0);
    }

    /** Obtains the copy only. */
    @Benchmark
    public float[] getValuesSet() {
        return mesh.getValuesSet(0);
    }

    /** Obtains the direct buffer and sums every value. */
    @Benchmark
    public float readDirect() {
        FloatBuffer values = mesh.getDirectValuesSet(0);
        float sum = 0;
        for (int i = 0, n = values.capacity(); i < n; i++) {
            sum += values.get(i);
        }
        return sum;
    }

    /** Obtains the copy and sums every value. */
    @Benchmark
    public float readCopy() {
        float[] values = mesh.getValuesSet(0);
        float sum = 0;
        for (int i = 0; i < values.length; i++) {
            sum += values[i];
        }
        return sum;
    }
}
