package com.kestrum.tavrel.benchmarks;

import com.kestrum.corvel.SbColor;
import com.kestrum.tavrel.data.PbMesh;
import com.kestrum.tavrel.data.PbRegularCartesianGrid2D;
import com.kestrum.tavrel.graph.PbLinearDataMapping;
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
 * against its floor: an empty instance native of the test library taking the same handle; and two
 * setters of an attribute object, for their allocation (JMH's GC profiler).
 */
@State(Scope.Thread)
@BenchmarkMode(Mode.AverageTime)
@OutputTimeUnit(TimeUnit.NANOSECONDS)
public class ThinGetterBenchmark {
    private PbMesh mesh;
    private long handle;
    private Floors floors;
    private PbLinearDataMapping mapping;
    private final SbColor red = new SbColor(1, 0, 0);
    private float threshold;

    /** Makes a small grid and loads the floors. */
    @Setup
    public void setUp() {
        Floors.ensureLoaded();
        floors = new Floors();
        mesh = new PbRegularCartesianGrid2D(10, 10, 0, 0, 1, 1, true);
        handle = mesh.getNativeResourceHandleInternal();
        mapping = new PbLinearDataMapping();
    }

    /** The floor: an empty instance native taking a long. */
    @Benchmark
    public int emptyGetterFloor() {
        return floors.emptyGetter(handle);
    }

    /** The same native shape calling the toolkit's accessor: the getter without its Java side. */
    @Benchmark
    public int toolkitGetterFloor() {
        return floors.toolkitGetter(handle);
    }

    /** The public getter. */
    @Benchmark
    public int getNumNodes() {
        return mesh.getNumNodes();
    }

    /** A setter of an attribute object taking a float. */
    @Benchmark
    public PbLinearDataMapping setMinThreshold() {
        threshold += 1e-3f;
        mapping.setMinThreshold(threshold);
        return mapping;
    }

    /** A setter of an attribute object taking a colour, which crosses as a copy of its three components. */
    @Benchmark
    public PbLinearDataMapping setMinThresholdColor() {
        threshold += 1e-3f;
        mapping.setMinThreshold(threshold, red, 0.5f);
        return mapping;
    }
}
