package com.kestrum.tavrel.benchmarks;

import com.kestrum.corvel.SbVec3f;
import com.kestrum.tavrel.data.PbIrregularMesh1D;
import com.kestrum.tavrel.data.PbMesh;
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
 * {@code PbMesh.addVecsSet} with {@code size} {@code SbVec3f} objects (argument checks, the
 * conversion of each vector, the toolkit's copy of the set) against its floor: a native loop of the
 * test library making exactly the per-vector JNI calls of the conversion. One operation converts
 * every vector; the report divides by {@code size}.
 */
@State(Scope.Thread)
@BenchmarkMode(Mode.AverageTime)
@OutputTimeUnit(TimeUnit.NANOSECONDS)
public class AddVecsSetBenchmark {
    /** The number of vectors. */
    @Param({"1000", "100000", "1000000"})
    public int size;

    private PbMesh mesh;
    private SbVec3f[] vectors;

    /** Makes a mesh of {@code size} nodes and as many vectors. */
    @Setup
    public void setUp() {
        Floors.ensureLoaded();
        mesh = new PbIrregularMesh1D(size, new float[size]);
        vectors = new SbVec3f[size];
        for (int i = 0; i < size; i++) {
            vectors[i] = new SbVec3f(i, -i, 0.5f * i);
        }
    }

    /** The floor: the conversion's JNI calls, nothing else. */
    @Benchmark
    public float vectorLoopFloor() {
        return Floors.vectorLoop(vectors);
    }

    /** The public method. */
    @Benchmark
    public PbMesh addVecsSet() {
        mesh.addVecsSet(0, vectors, "velocity");
        return mesh;
    }
}
