package com.kestrum.tavrel.benchmarks;

import com.kestrum.tavrel.data.PbMesh;
import com.kestrum.tavrel.data.PbRegularCartesianGrid2D;
import java.util.concurrent.TimeUnit;
import org.openjdk.jmh.annotations.Benchmark;
import org.openjdk.jmh.annotations.BenchmarkMode;
import org.openjdk.jmh.annotations.Mode;
import org.openjdk.jmh.annotations.OutputTimeUnit;
import org.openjdk.jmh.annotations.Scope;
import org.openjdk.jmh.annotations.Setup;
import org.openjdk.jmh.annotations.State;

/**
 * A thin getter, {@code PbMesh.getNumNodes()} (disposal check, native call, toolkit accessor),
 * against its floor: an empty instance native of the test library taking the same handle.
 */
@State(Scope.Thread)
@BenchmarkMode(Mode.AverageTime)
@OutputTimeUnit(TimeUnit.NANOSECONDS)
public class ThinGetterBenchmark {
    private PbMesh mesh;
    private long handle;
    private Floors floors;

    /** Makes a small grid and loads the floors. */
    @Setup
    public void setUp() {
        Floors.ensureLoaded();
        floors = new Floors();
        mesh = new PbRegularCartesianGrid2D(10, 10, 0, 0, 1, 1, true);
        handle = mesh.getNativeResourceHandleInternal();
    }

    /** The floor: an empty instance native taking a long. */
    @Benchmark
    public int emptyGetterFloor() {
        return floors.emptyGetter(handle);
    }

    /** The public getter. */
    @Benchmark
    public int getNumNodes() {
        return mesh.getNumNodes();
    }
}
