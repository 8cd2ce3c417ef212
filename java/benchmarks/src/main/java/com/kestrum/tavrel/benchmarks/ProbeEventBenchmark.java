package com.kestrum.tavrel.benchmarks;

import com.kestrum.tavrel.data.PbCell;
import com.kestrum.tavrel.data.PbRegularCartesianGrid2D;
import com.kestrum.tavrel.data.PoMeshProbePoint;
import com.kestrum.tavrel.misc.callbacks.PoProbeCB;
import java.util.concurrent.TimeUnit;
import org.openjdk.jmh.annotations.Benchmark;
import org.openjdk.jmh.annotations.BenchmarkMode;
import org.openjdk.jmh.annotations.Mode;
import org.openjdk.jmh.annotations.OperationsPerInvocation;
import org.openjdk.jmh.annotations.OutputTimeUnit;
import org.openjdk.jmh.annotations.Scope;
import org.openjdk.jmh.annotations.Setup;
import org.openjdk.jmh.annotations.State;
import org.openjdk.jmh.annotations.TearDown;

/**
 * A probe's motion event delivered to a Java listener (the toolkit calls the callback bridge,
 * which calls the Java callback object, which hands the probe and a view of the cell to the
 * listener), per event, against its floor: a bare upcall through a cached identifier passing one
 * object.
 */
@State(Scope.Thread)
@BenchmarkMode(Mode.AverageTime)
@OutputTimeUnit(TimeUnit.NANOSECONDS)
public class ProbeEventBenchmark {
    static final int EVENTS = 1000;

    private final Floors.ObjectSink sink = new Floors.ObjectSink();
    private PbRegularCartesianGrid2D mesh;
    private PoMeshProbePoint probe;
    private long probeHandle;
    private long cellHandle;
    private int events;

    /** Makes a probe on a small grid with a motion listener. */
    @Setup
    public void setUp() {
        Floors.ensureLoaded();
        mesh = new PbRegularCartesianGrid2D(5, 2, 0, 0, 4, 1, true);
        probe = new PoMeshProbePoint();
        probe.setMesh(mesh);
        probe.setMotionCallback(new PoProbeCB((p, cell, handle, userData) -> events++), "motion");
        probeHandle = probe.getNativeResourceHandleInternal();
        PbCell cell = mesh.getCell(1);
        cellHandle = cell.getNativeResourceHandleInternal();
    }

    /** Disposes of the probe. */
    @TearDown
    public void tearDown() {
        probe.dispose();
    }

    /** The floor: bare upcalls passing one object. */
    @Benchmark
    @OperationsPerInvocation(EVENTS)
    public void objectUpcallFloor() {
        Floors.objectUpcalls(sink, probe, EVENTS);
    }

    /**
     * The JNI calls of the callback bridge around an upcall of {@code invokeNativ} (with nothing
     * done in Java): what an event costs in JNI alone.
     */
    @Benchmark
    @OperationsPerInvocation(EVENTS)
    public void jniSequenceFloor() {
        Floors.bridgeSequences(sink, probeHandle, cellHandle, EVENTS);
    }

    /** Motion events raised by the toolkit's probe, each reaching the listener. */
    @Benchmark
    @OperationsPerInvocation(EVENTS)
    public void motionEvents() {
        Floors.raiseMotions(probeHandle, cellHandle, EVENTS);
    }
}
