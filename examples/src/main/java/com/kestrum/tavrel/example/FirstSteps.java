package com.kestrum.tavrel.example;

import com.kestrum.corvel.SbColor;
import com.kestrum.corvel.SbVec2f;
import com.kestrum.corvel.actions.SoCallbackAction;
import com.kestrum.corvel.actions.SoGLRenderAction;
import com.kestrum.corvel.nodes.SoGroup;
import com.kestrum.tavrel.PoTavrel;
import com.kestrum.tavrel.data.PbMesh;
import com.kestrum.tavrel.data.PbRegularCartesianGrid2D;
import com.kestrum.tavrel.data.PoMeshFilled;
import com.kestrum.tavrel.data.PoMeshProbePoint;
import com.kestrum.tavrel.graph.PoPieChart2D;
import com.kestrum.tavrel.misc.callbacks.PoProbeCB;
import com.kestrum.tavrel.nodes.PoCellFilter;
import java.nio.FloatBuffer;
import java.util.ArrayList;
import java.util.List;

/**
 * A mesh with data, drawn by a representation after a cell filter written in Java, a probe
 * with a listener moved across it, and a small chart. Exits with an error when something does
 * not come out as it should.
 */
public final class FirstSteps {
    /** Lets the toolkit draw the cells whose value is at least a threshold. */
    static final class AtLeast extends PoCellFilter {
        private final float threshold;
        final List<Integer> accepted = new ArrayList<>();

        AtLeast(float threshold) {
            this.threshold = threshold;
        }

        @Override
        public boolean acceptCell(int cellIndex, float value) {
            if (value >= threshold) {
                accepted.add(cellIndex);
                return true;
            }
            return false;
        }
    }

    private FirstSteps() {}

    public static void main(String[] args) throws Exception {
        Module module = PoTavrel.class.getModule();
        System.out.println(PoTavrel.getProductName() + " " + PoTavrel.getVersion() + ", "
                + (module.isNamed() ? "module " + module.getName() : "class path"));
        if (FirstSteps.class.getModule().isNamed()) {
            check(module.getName().equals("com.kestrum.tavrel")
                    && SoGroup.class.getModule().getName().equals("com.kestrum.corvel"), "module names");
        }

        // A mesh with data: 4 x 3 nodes over [0, 3] x [0, 2], one temperature per cell.
        PbRegularCartesianGrid2D grid = new PbRegularCartesianGrid2D(4, 3, 0, 0, 3, 2, true);
        grid.addValuesSet(0, new float[] {10, 25, 30, 15, 40, 20}, PbMesh.DataBindings.PER_CELL, "temperature");
        FloatBuffer temperature = grid.getDirectValuesSet(0);     // the mesh's own memory, no copy
        System.out.println("grid of " + grid.getNumCells() + " cells, temperature of cell 4: " + temperature.get(4));
        check(grid.getNumCells() == 6 && temperature.get(4) == 40, "the mesh");

        // A representation drawn after a cell filter written in Java.
        List<Integer> drawn;
        try (AtLeast filter = new AtLeast(20);
                PoMeshFilled filled = new PoMeshFilled();
                SoGroup scene = new SoGroup();
                SoGLRenderAction render = new SoGLRenderAction()) {
            filled.setMesh(grid);
            scene.addChild(filter);
            scene.addChild(filled);
            render.apply(scene);
            System.out.println("cells drawn (temperature at least 20): " + filter.accepted);
            check(filter.accepted.equals(List.of(1, 2, 4, 5)), "the cell filter");
            drawn = filter.accepted;
        }

        // A probe moved across the mesh, its listener told when it changes cell.
        List<String> events = new ArrayList<>();
        try (PoMeshProbePoint probe = new PoMeshProbePoint(); SoCallbackAction action = new SoCallbackAction()) {
            probe.setMesh(grid);
            probe.setChangeCellCallback(new PoProbeCB((p, cell, cellHandle, userData) ->
                    events.add(userData + " " + (cell == null ? "none" : cell.getIndex()))), "cell");
            for (float x : new float[] {0.5f, 1.5f, 2.5f}) {
                probe.setPosition(x, 1.5f, 0);
                action.apply(probe);
            }
        }
        System.out.println("probe events: " + events);
        check(events.size() == 3 && events.stream().distinct().count() == 3 && !events.contains("cell none"),
                "the probe");

        // A small chart: the cells drawn and not drawn as a pie chart, rendered into an SVG picture.
        try (PoPieChart2D pie = PoPieChart2D.of(new SbVec2f(0, 0), 1, new String[] {"drawn", "filtered out"},
                new float[] {drawn.size(), grid.getNumCells() - drawn.size()},
                new SbColor[] {new SbColor(0.9f, 0.4f, 0.1f), new SbColor(0.6f, 0.6f, 0.6f)});
                SoGLRenderAction render = new SoGLRenderAction()) {
            render.apply(pie);
            String svg = render.toSvg();
            System.out.println("chart: " + svg.length() + " characters of SVG, built " + pie.isBuilt());
            check(pie.isBuilt() && svg.contains("filtered out"), "the chart");
        }
        System.out.println("First steps done.");
    }

    private static void check(boolean condition, String what) {
        if (!condition) {
            throw new IllegalStateException("unexpected result: " + what);
        }
    }
}
