package com.kestrum.tavrel.benchmarks;

import com.kestrum.corvel.SbVec3f;
import com.kestrum.tavrel.data.PbIrregularMesh1D;
import com.kestrum.tavrel.data.PbMesh;
import java.util.concurrent.TimeUnit;
import org.openjdk.jmh.annotations.Benchmark;
import org.openjdk.jmh.annotations.BenchmarkMode;
import org.openjdk.jmh.annotations.Mode;
import org.openjdk.jmh.annotations.OperationsPerInvocation;
import org.openjdk.jmh.annotations.OutputTimeUnit;
import org.openjdk.jmh.annotations.Scope;
import org.openjdk.jmh.annotations.Setup;
import org.openjdk.jmh.annotations.State;

/**
 * (b) {@code addVecsSet} with 1,000,000 {@code SbVec3f} objects (argument checks, one JNI
 * element read per vector, the toolkit's copy of the set), per vector, against a pure-Java loop
 * that copies the same floats into a {@code float[]}.
 */
@State(Scope.Thread)
@BenchmarkMode(Mode.AverageTime)
@OutputTimeUnit(TimeUnit.NANOSECONDS)
public class AddVecsSetBenchmark {
    static final int N = 1_000_000;

    private PbMesh mesh;
    private SbVec3f[] vectors;
    private float[] target;

    @Setup
    public void setUp() {
        mesh = new PbIrregularMesh1D(N, new float[N]);
        vectors = new SbVec3f[N];
        for (int i = 0; i < N; i++) {
            vectors[i] = new SbVec3f(i, -i, 0.5f * i);
        }
        target = new float[3 * N];
    }

    @Benchmark
    @OperationsPerInvocation(N)
    public float javaCopyBaseline() {
        float[] out = target;
        for (int i = 0; i < N; i++) {
            SbVec3f v = vectors[i];
            out[3 * i] = v.getX();
            out[3 * i + 1] = v.getY();
            out[3 * i + 2] = v.getZ();
        }
        return out[3 * N - 1];
    }

    @Benchmark
    @OperationsPerInvocation(N)
    public PbMesh addVecsSet() {
        mesh.addVecsSet(0, vectors, "velocity");
        return mesh;
    }
}
