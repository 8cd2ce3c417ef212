package com.kestrum.tavrel.demo;

import com.kestrum.corvel.actions.SoCallbackAction;
import com.kestrum.corvel.actions.SoGLRenderAction;
import com.kestrum.corvel.actions.SoWriteAction;
import com.kestrum.corvel.nodes.SoGroup;
import com.kestrum.tavrel.nodes.PoCellFilter;
import com.kestrum.tavrel.nodes.PoNode;

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

    /** Accepts the cells whose value lies in [low, high]. */
    static final class ValueRangeFilter extends PoCellFilter {
        private final float low;
        private final float high;

        ValueRangeFilter() {
            this(0, 0);
        }

        ValueRangeFilter(float low, float high) {
            this.low = low;
            this.high = high;
        }

        @Override
        public boolean acceptCell(int cellIndex, float value) {
            return value >= low && value <= high;
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

        float[] cellValues = {0.1f, 0.45f, 0.8f, 0.3f, 0.95f, 0.5f};
        try (ValueRangeFilter filter = new ValueRangeFilter(0.3f, 0.8f)) {
            // A representation asks its filter about every cell of its mesh with the cell's value.
            StringBuilder accepted = new StringBuilder();
            for (int cell = 0; cell < cellValues.length; cell++) {
                if (filter.acceptCell(cell, cellValues[cell])) {
                    accepted.append(accepted.length() == 0 ? "" : ", ").append(cell);
                }
            }
            System.out.println("Cell filter " + filter.getTypeName() + " accepts the cells with values in [0.3, 0.8]: "
                    + accepted);
        }
    }
}
