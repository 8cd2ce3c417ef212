package com.kestrum.tavrel.benchmarks;

import com.kestrum.tavrel.data.PbMesh;
import com.kestrum.tavrel.data.PbRegularCartesianGrid2D;
import java.lang.invoke.MethodHandle;
import java.lang.invoke.MethodHandles;
import java.lang.invoke.MethodType;
import java.util.concurrent.TimeUnit;
import org.openjdk.jmh.annotations.Benchmark;
import org.openjdk.jmh.annotations.BenchmarkMode;
import org.openjdk.jmh.annotations.Mode;
import org.openjdk.jmh.annotations.OutputTimeUnit;
import org.openjdk.jmh.annotations.Scope;
import org.openjdk.jmh.annotations.Setup;
import org.openjdk.jmh.annotations.State;

/**
 * (a) The public getter {@code PbMesh.getNumNodes()} (disposal check, native call, toolkit
 * accessor) against an empty native method of the same library: the enumeration getter
 * {@code PbMesh$DataBindings.getPERCELLNative()}, which returns a constant and reads nothing.
 * The product exports no function for benchmarks, so the baseline is reached through a static
 * final MethodHandle from {@code privateLookupIn}, which the JIT compiles to a direct call.
 */
@State(Scope.Thread)
@BenchmarkMode(Mode.AverageTime)
@OutputTimeUnit(TimeUnit.NANOSECONDS)
public class ThinGetterBenchmark {
    private static final MethodHandle EMPTY_NATIVE = emptyNative();

    private PbMesh mesh;

    private static MethodHandle emptyNative() {
        try {
            MethodHandles.Lookup lookup =
                    MethodHandles.privateLookupIn(PbMesh.DataBindings.class, MethodHandles.lookup());
            return lookup.findStatic(PbMesh.DataBindings.class, "getPERCELLNative", MethodType.methodType(int.class));
        } catch (ReflectiveOperationException e) {
            throw new ExceptionInInitializerError(e);
        }
    }

    @Setup
    public void setUp() {
        mesh = new PbRegularCartesianGrid2D(10, 10, 0, 0, 1, 1, true);
    }

    @Benchmark
    public int emptyNativeBaseline() throws Throwable {
        return (int) EMPTY_NATIVE.invokeExact();
    }

    @Benchmark
    public int getNumNodes() {
        return mesh.getNumNodes();
    }
}
