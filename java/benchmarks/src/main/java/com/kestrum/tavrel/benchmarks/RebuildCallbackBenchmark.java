package com.kestrum.tavrel.benchmarks;

import com.kestrum.tavrel.graph.PoCircleCenterRadius;
import com.kestrum.tavrel.misc.callbacks.PoRebuildCB;
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
 * A graph node's rebuild event delivered to a Java listener (the toolkit calls the callback
 * bridge, which calls the Java callback object, which hands the node's Java object to the
 * listener), per event, against the bridge's JNI calls alone around an empty upcall.
 */
@State(Scope.Thread)
@BenchmarkMode(Mode.AverageTime)
@OutputTimeUnit(TimeUnit.NANOSECONDS)
public class RebuildCallbackBenchmark {
    static final int EVENTS = 1000;

    private final Floors.ObjectSink sink = new Floors.ObjectSink();
    private PoCircleCenterRadius node;
    private long nodeHandle;
    private int events;

    /** Makes a graph node with a pre-rebuild listener. */
    @Setup
    public void setUp() {
        Floors.ensureLoaded();
        node = new PoCircleCenterRadius();
        node.addPreRebuildCallback(new PoRebuildCB((n, handle, userData) -> events++), "rebuild");
        nodeHandle = node.getNativeResourceHandleInternal();
    }

    /** Disposes of the node. */
    @TearDown
    public void tearDown() {
        node.dispose();
    }

    /** The JNI calls of the rebuild bridge around an upcall of {@code invokeNativ} (empty in Java). */
    @Benchmark
    @OperationsPerInvocation(EVENTS)
    public void jniSequenceFloor() {
        Floors.rebuildBridgeSequences(sink, nodeHandle, EVENTS);
    }

    /** Pre-rebuild events raised as the node's rebuild raises them, each reaching the listener. */
    @Benchmark
    @OperationsPerInvocation(EVENTS)
    public void rebuildEvents() {
        Floors.raiseRebuilds(nodeHandle, EVENTS);
    }
}
