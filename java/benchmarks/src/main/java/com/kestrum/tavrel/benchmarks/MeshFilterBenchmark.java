package com.kestrum.tavrel.benchmarks;

import com.kestrum.corvel.actions.SoGLRenderAction;
import com.kestrum.corvel.nodes.SoGroup;
import com.kestrum.corvel.nodes.SoNode;
import com.kestrum.tavrel.data.PbMesh;
import com.kestrum.tavrel.data.PbRegularCartesianGrid2D;
import com.kestrum.tavrel.data.PoMeshFilled;
import com.kestrum.tavrel.nodes.PoIntervalCellFilter;
import java.util.concurrent.TimeUnit;
import org.openjdk.jmh.annotations.Benchmark;
import org.openjdk.jmh.annotations.BenchmarkMode;
import org.openjdk.jmh.annotations.Mode;
import org.openjdk.jmh.annotations.OutputTimeUnit;
import org.openjdk.jmh.annotations.Param;
import org.openjdk.jmh.annotations.Scope;
import org.openjdk.jmh.annotations.Setup;
import org.openjdk.jmh.annotations.State;
import org.openjdk.jmh.annotations.TearDown;

/**
 * A render of a mesh of {@code size} cells (a grid of 100 x 100 to 2,500 x 4,000 cells, a value
 * per cell) drawn by a filled representation after a cell filter, which the render asks about
 * every cell: a Java filter ({@link CellFilterBenchmark.RangeFilter}, an upcall a cell) and the
 * toolkit's own {@code PoIntervalCellFilter} property node (no upcall). The report divides by
 * {@code size}: time per cell, which should not grow with the size.
 */
@State(Scope.Thread)
@BenchmarkMode(Mode.AverageTime)
@OutputTimeUnit(TimeUnit.NANOSECONDS)
public class MeshFilterBenchmark {
    /** The number of cells. */
    @Param({"10000", "1000000", "10000000"})
    public int size;

    private PbMesh mesh;
    private SoNode[] owned;
    private SoGroup javaFiltered;
    private SoGroup intervalFiltered;
    private SoGLRenderAction render;

    /** Makes the mesh, both filters, two filled representations and the action. */
    @Setup
    public void setUp() {
        Floors.ensureLoaded();
        int columns = size == 10_000_000 ? 2500 : (int) Math.round(Math.sqrt(size));
        int rows = size / columns;
        if ((long) columns * rows != size) {
            throw new IllegalArgumentException("no grid of " + size + " cells");
        }
        mesh = new PbRegularCartesianGrid2D(columns + 1, rows + 1, 0, 0, 1, 1, true);
        float[] values = new float[size];
        for (int i = 0; i < size; i++) {
            values[i] = (i % 200) / 100f;
        }
        mesh.addValuesSet(0, values, PbMesh.DataBindings.PER_CELL, "per cell");
        CellFilterBenchmark.RangeFilter javaFilter = new CellFilterBenchmark.RangeFilter();
        PoIntervalCellFilter interval = new PoIntervalCellFilter();
        interval.getField("max").setValue("0.99");
        PoMeshFilled first = new PoMeshFilled();
        first.setMesh(mesh);
        PoMeshFilled second = new PoMeshFilled();
        second.setMesh(mesh);
        javaFiltered = new SoGroup();
        javaFiltered.addChild(javaFilter);
        javaFiltered.addChild(first);
        intervalFiltered = new SoGroup();
        intervalFiltered.addChild(interval);
        intervalFiltered.addChild(second);
        owned = new SoNode[] {javaFiltered, intervalFiltered, first, second, javaFilter, interval};
        render = new SoGLRenderAction();
    }

    /** Disposes of the nodes and the action. */
    @TearDown
    public void tearDown() {
        render.dispose();
        for (SoNode node : owned) {
            node.dispose();
        }
    }

    /** The render through the Java filter. */
    @Benchmark
    public SoGLRenderAction javaFilter() {
        render.apply(javaFiltered);
        return render;
    }

    /** The render through the toolkit's interval filter. */
    @Benchmark
    public SoGLRenderAction intervalFilter() {
        render.apply(intervalFiltered);
        return render;
    }
}
