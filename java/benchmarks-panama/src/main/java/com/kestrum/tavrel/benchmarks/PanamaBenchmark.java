package com.kestrum.tavrel.benchmarks;

import com.kestrum.tavrel.data.PbMesh;
import com.kestrum.tavrel.data.PbRegularCartesianGrid2D;
import java.lang.foreign.Arena;
import java.lang.foreign.FunctionDescriptor;
import java.lang.foreign.Linker;
import java.lang.foreign.MemorySegment;
import java.lang.foreign.SymbolLookup;
import java.lang.foreign.ValueLayout;
import java.lang.invoke.MethodHandle;
import java.nio.file.Path;
import java.util.concurrent.TimeUnit;
import org.openjdk.jmh.annotations.Benchmark;
import org.openjdk.jmh.annotations.BenchmarkMode;
import org.openjdk.jmh.annotations.Mode;
import org.openjdk.jmh.annotations.OutputTimeUnit;
import org.openjdk.jmh.annotations.Scope;
import org.openjdk.jmh.annotations.Setup;
import org.openjdk.jmh.annotations.State;

/**
 * The thin getter through JNI ({@code PbMesh.getNumNodes()}) against a binding generated for the
 * foreign-function API of JDK 22 and newer: a downcall of a plain C accessor over the same
 * toolkit getter ({@code tavrel_bench_getNumNodes} in the test library), plain and with the
 * critical-call linker option (no thread-state transition: a cost a JNI binding cannot reach).
 * Compiled and run only on JDK 22 or newer.
 */
@State(Scope.Thread)
@BenchmarkMode(Mode.AverageTime)
@OutputTimeUnit(TimeUnit.NANOSECONDS)
@SuppressWarnings("restricted") // the downcalls are what is measured
public class PanamaBenchmark {
    private static final MethodHandle PLAIN;
    private static final MethodHandle CRITICAL;

    static {
        Floors.ensureLoaded();
        SymbolLookup library = SymbolLookup.libraryLookup(Path.of(Floors.LIBRARY_PATH), Arena.global());
        MemorySegment accessor = library.find("tavrel_bench_getNumNodes").orElseThrow();
        FunctionDescriptor descriptor = FunctionDescriptor.of(ValueLayout.JAVA_INT, ValueLayout.ADDRESS);
        Linker linker = Linker.nativeLinker();
        PLAIN = linker.downcallHandle(accessor, descriptor);
        CRITICAL = linker.downcallHandle(accessor, descriptor, Linker.Option.critical(false));
    }

    private PbMesh mesh;
    private MemorySegment address;

    /** Makes a small grid and takes its address. */
    @Setup
    public void setUp() {
        mesh = new PbRegularCartesianGrid2D(10, 10, 0, 0, 1, 1, true);
        address = MemorySegment.ofAddress(mesh.getNativeResourceHandleInternal());
    }

    /** The public getter, through JNI. */
    @Benchmark
    public int jniGetNumNodes() {
        return mesh.getNumNodes();
    }

    /** A plain downcall of the accessor. */
    @Benchmark
    public int downcallPlain() throws Throwable {
        return (int) PLAIN.invokeExact(address);
    }

    /** A critical downcall of the accessor (no thread-state transition). */
    @Benchmark
    public int downcallCritical() throws Throwable {
        return (int) CRITICAL.invokeExact(address);
    }
}
