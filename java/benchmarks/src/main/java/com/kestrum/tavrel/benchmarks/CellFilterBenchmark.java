package com.kestrum.tavrel.benchmarks;

import com.kestrum.corvel.actions.SoGLRenderAction;
import com.kestrum.corvel.nodes.SoGroup;
import com.kestrum.tavrel.data.PbMesh;
import com.kestrum.tavrel.data.PbRegularCartesianGrid2D;
import com.kestrum.tavrel.data.PoMeshFilled;
import com.kestrum.tavrel.nodes.PoCellFilter;
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
 * A Java cell filter asked about every cell of a {@value #CELLS}-cell mesh during a render (a
 * group holding the filter and a filled representation of the mesh), per cell, against its floor:
 * a bare upcall through a cached identifier passing an int and a float and returning a boolean,
 * to a Java method with the same body as the filter's.
 */
@State(Scope.Thread)
@BenchmarkMode(Mode.AverageTime)
@OutputTimeUnit(TimeUnit.NANOSECONDS)
public class CellFilterBenchmark {
    static final int SIDE = 1000;
    static final int CELLS = SIDE * SIDE;

    /** Accepts values in [0, 1) and counts the questions. */
    public static final class RangeFilter extends PoCellFilter {
        int asked;

        /** A filter of the toolkit type "RangeFilter". */
        public RangeFilter() {
            super();
        }

        @Override
        public boolean acceptCell(int cellIndex, float value) {
            asked++;
            return value >= 0 && value < 1;
        }
    }

    private final Floors.BooleanSink sink = new Floors.BooleanSink();
    private PbMesh mesh;
    private RangeFilter filter;
    private PoMeshFilled filled;
    private SoGroup root;
    private SoGLRenderAction render;

    /** Makes the mesh with a values set per cell, the filter, the representation and the action. */
    @Setup
    public void setUp() {
        Floors.ensureLoaded();
        mesh = new PbRegularCartesianGrid2D(SIDE + 1, SIDE + 1, 0, 0, 1, 1, true);
        float[] values = new float[CELLS];
        for (int i = 0; i < CELLS; i++) {
            values[i] = (i % 200) / 100f;
        }
        mesh.addValuesSet(0, values, PbMesh.DataBindings.PER_CELL, "per cell");
        filter = new RangeFilter();
        filled = new PoMeshFilled();
        filled.setMesh(mesh);
        root = new SoGroup();
        root.addChild(filter);
        root.addChild(filled);
        render = new SoGLRenderAction();
    }

    /** Disposes of the nodes and the action. */
    @TearDown
    public void tearDown() {
        render.dispose();
        root.dispose();
        filled.dispose();
        filter.dispose();
    }

    /** The floor: bare boolean upcalls from two primitives. */
    @Benchmark
    @OperationsPerInvocation(CELLS)
    public int booleanUpcallFloor() {
        return Floors.booleanUpcalls(sink, CELLS);
    }

    /**
     * The JNI calls of a forwarded call of the filter around the same upcall: what the render's
     * sequence costs in JNI alone.
     */
    @Benchmark
    @OperationsPerInvocation(CELLS)
    public int jniSequenceFloor() {
        return Floors.filterSequences(sink, CELLS);
    }

    /** The render, which asks the filter about every cell. */
    @Benchmark
    @OperationsPerInvocation(CELLS)
    public void renderFilteredMesh() {
        render.apply(root);
    }
}
