package com.kestrum.tavrel.benchmarks;

import com.kestrum.corvel.actions.SoAction;
import com.kestrum.corvel.actions.SoGLRenderAction;
import com.kestrum.corvel.elements.SoElement;
import com.kestrum.corvel.misc.SoState;
import com.kestrum.corvel.nodes.SoGroup;
import com.kestrum.corvel.nodes.SoSeparator;
import com.kestrum.tavrel.elements.PoMesh1DHintsElement;
import com.kestrum.tavrel.nodes.PoMesh1DHints;
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
 * Forwarded operations of a Java element: a render traversal of {@value #SEPARATORS} separators,
 * each holding a hints node that sets the element of a Java class, so that the traversal's state
 * pushes a Java element when the separator opens and pops it when it closes (both forwarded to
 * Java, the state handed over as its Java object, and for pop the previous element too), per
 * separator, against the JNI calls of that push and pop alone around the same upcalls.
 */
@State(Scope.Thread)
@BenchmarkMode(Mode.AverageTime)
@OutputTimeUnit(TimeUnit.NANOSECONDS)
public class ElementPushBenchmark {
    static final int SEPARATORS = 1000;

    /** Counts the pushes that reach it. */
    public static final class PushCounter extends PoMesh1DHintsElement {
        static int pushes;

        /** An element of the toolkit type named after this class. */
        public PushCounter() {
            super();
        }

        @Override
        public void push(SoState state) {
            pushes++;
        }
    }

    private final Floors.ObjectSink sink = new Floors.ObjectSink();
    private SoGroup root;
    private PoMesh1DHints hints;
    private SoSeparator[] separators;
    private SoGLRenderAction render;
    private PushCounter element;

    /** Makes the separators and the action, and enables the Java element class on its stack. */
    @Setup
    public void setUp() {
        Floors.ensureLoaded();
        element = new PushCounter();
        SoAction.enableElement(element.getTypeName(), element.getStackIndex());
        root = new SoGroup();
        hints = new PoMesh1DHints();
        separators = new SoSeparator[SEPARATORS];
        for (int i = 0; i < SEPARATORS; i++) {
            separators[i] = new SoSeparator();
            separators[i].addChild(hints);
            root.addChild(separators[i]);
        }
        render = new SoGLRenderAction();
    }

    /** Gives the stack its toolkit class back and disposes of the graph. */
    @TearDown
    public void tearDown() {
        SoAction.enableElement(PoMesh1DHintsElement.getClassTypeName(), PoMesh1DHintsElement.getClassStackIndex());
        render.dispose();
        root.dispose();
        for (SoSeparator separator : separators) {
            separator.dispose();
        }
        hints.dispose();
        element.dispose();
    }

    /**
     * The JNI calls of a forwarded push and pop around the same upcalls, without their lookups
     * (an object of the state's class stands for the state: the action, checked against its class).
     */
    @Benchmark
    @OperationsPerInvocation(SEPARATORS)
    public void jniSequenceFloor() {
        Floors.elementSequences(sink, render, SoGLRenderAction.class, element, SoElement.class, SEPARATORS);
    }

    /** The render traversal. */
    @Benchmark
    @OperationsPerInvocation(SEPARATORS)
    public void renderSeparators() {
        render.apply(root);
    }
}
