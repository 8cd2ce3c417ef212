package com.kestrum.tavrel.demo;

import com.kestrum.corvel.actions.SoCallbackAction;
import com.kestrum.corvel.actions.SoGLRenderAction;
import com.kestrum.corvel.actions.SoWriteAction;
import com.kestrum.corvel.nodes.SoGroup;
import com.kestrum.tavrel.data.PbMesh;
import com.kestrum.tavrel.data.PbRegularCartesianGrid2D;
import com.kestrum.tavrel.data.PoMeshFilled;
import com.kestrum.tavrel.nodes.PoCellFilter;
import com.kestrum.tavrel.nodes.PoNode;
import java.util.ArrayList;
import java.util.List;

/** A node and a cell filter written in Java, used by the toolkit. */
final class CustomNodeSection implements Demo.Section {
    /** Counts the traversals that reach it, then lets the toolkit do its own work. */
    static final class TraversalCounter extends PoNode {
        int renders;
        int callbacks;

        @Override
        public void GLRender(SoGLRenderAction action) {
            renders++;
            super.GLRender(action);
        }

        @Override
        public void callback(SoCallbackAction action) {
            callbacks++;
            super.callback(action);
        }
    }

    /** Accepts the cells whose value lies in [low, high]; remembers what it was asked and answered. */
    static final class ValueRangeFilter extends PoCellFilter {
        private final float low;
        private final float high;
        final List<String> answers = new ArrayList<>();
        final List<Integer> accepted = new ArrayList<>();

        ValueRangeFilter() {
            this(0, 0);
        }

        ValueRangeFilter(float low, float high) {
            this.low = low;
            this.high = high;
        }

        @Override
        public boolean acceptCell(int cellIndex, float value) {
            boolean accept = value >= low && value <= high;
            answers.add("cell " + cellIndex + " (value " + value + "): " + (accept ? "accepted" : "rejected"));
            if (accept) {
                accepted.add(cellIndex);
            }
            return accept;
        }
    }

    @Override
    public String title() {
        return "Nodes written in Java";
    }

    @Override
    public void run() {
        try (TraversalCounter counter = new TraversalCounter();
                SoGroup root = new SoGroup();
                SoGLRenderAction render = new SoGLRenderAction();
                SoCallbackAction callback = new SoCallbackAction();
                SoWriteAction write = new SoWriteAction()) {
            root.addChild(counter);
            root.addChild(counter);
            for (int frame = 0; frame < 3; frame++) {
                render.apply(root);
            }
            callback.apply(root);
            System.out.println("Toolkit type of the Java node: " + counter.getTypeName()
                    + " (derived from " + PoNode.getClassTypeName() + ")");
            System.out.println("The node is twice in the group; 3 renders and 1 callback traversal reached it "
                    + counter.renders + " and " + counter.callbacks + " times");
            write.apply(root);
            System.out.print("Written by the toolkit:\n" + write.getOutput());
        }

        // A grid of 4 x 3 nodes has 3 x 2 cells; the representation draws them with their values (set 0).
        try (PbMesh grid = new PbRegularCartesianGrid2D(4, 3, 0f, 0f, 3f, 2f, false);
                ValueRangeFilter filter = new ValueRangeFilter(0.3f, 0.8f);
                PoMeshFilled filled = new PoMeshFilled();
                SoGroup scene = new SoGroup();
                SoGLRenderAction render = new SoGLRenderAction()) {
            grid.addValuesSet(0, new float[] {0.1f, 0.45f, 0.8f, 0.3f, 0.95f, 0.5f}, PbMesh.DataBindings.PER_CELL,
                    "temperature");
            filled.setMesh(grid);
            scene.addChild(filter); // the filter comes first: the representation after it asks it
            scene.addChild(filled);
            render.apply(scene);
            System.out.println("Rendering a PoMeshFilled of " + grid.getNumCells() + " cells after cell filter "
                    + filter.getTypeName() + " (values in [0.3, 0.8]); the toolkit asked:");
            for (String answer : filter.answers) {
                System.out.println("  " + answer);
            }
            System.out.println("Cells drawn: " + filter.accepted);
        }
    }
}
