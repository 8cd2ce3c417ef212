package com.kestrum.tavrel.benchmarks;

import com.kestrum.corvel.actions.SoGLRenderAction;
import com.kestrum.corvel.nodes.SoGroup;
import com.kestrum.tavrel.nodes.PoNode;
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
 * A forwarded virtual call: a render traversal of a group of {@value #NODES} Java-extended nodes,
 * whose {@code GLRender} override the toolkit reaches through the binding (the action handed to
 * Java as its Java object), per node, against its floor: a bare upcall through a cached
 * identifier passing one object, to a Java method with the same body as the override.
 */
@State(Scope.Thread)
@BenchmarkMode(Mode.AverageTime)
@OutputTimeUnit(TimeUnit.NANOSECONDS)
public class ForwardedCallBenchmark {
    static final int NODES = 1000;

    /** Counts the renders that reach it; draws nothing. */
    public static final class RenderCounter extends PoNode {
        int renders;

        /** A node of the toolkit type "RenderCounter". */
        public RenderCounter() {
            super();
        }

        @Override
        public void GLRender(SoGLRenderAction action) {
            renders++;
        }
    }

    private final Floors.ObjectSink sink = new Floors.ObjectSink();
    private SoGroup root;
    private RenderCounter[] nodes;
    private SoGLRenderAction render;

    /** Makes the group of Java nodes and the action. */
    @Setup
    public void setUp() {
        Floors.ensureLoaded();
        root = new SoGroup();
        nodes = new RenderCounter[NODES];
        for (int i = 0; i < NODES; i++) {
            nodes[i] = new RenderCounter();
            root.addChild(nodes[i]);
        }
        render = new SoGLRenderAction();
    }

    /** Disposes of the nodes (Java nodes stay reachable until then). */
    @TearDown
    public void tearDown() {
        render.dispose();
        root.dispose();
        for (RenderCounter node : nodes) {
            node.dispose();
        }
    }

    /** The floor: bare upcalls passing one object. */
    @Benchmark
    @OperationsPerInvocation(NODES)
    public void objectUpcallFloor() {
        Floors.objectUpcalls(sink, render, NODES);
    }

    /**
     * The JNI calls of a forwarded call around the same upcall, without its lookups: what the
     * render's sequence costs in JNI alone.
     */
    @Benchmark
    @OperationsPerInvocation(NODES)
    public void jniSequenceFloor() {
        Floors.forwardedSequences(sink, render, SoGLRenderAction.class, NODES);
    }

    /** The render traversal. */
    @Benchmark
    @OperationsPerInvocation(NODES)
    public void renderJavaNodes() {
        render.apply(root);
    }
}
