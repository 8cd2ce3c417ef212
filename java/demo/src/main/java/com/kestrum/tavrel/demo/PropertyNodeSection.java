package com.kestrum.tavrel.demo;

import com.kestrum.corvel.actions.SoGLRenderAction;
import com.kestrum.corvel.nodes.SoGroup;
import com.kestrum.corvel.nodes.SoNode;
import com.kestrum.tavrel.data.PoMeshFilled;
import com.kestrum.tavrel.graph.PbIsovaluesList.IsoList;
import com.kestrum.tavrel.nodes.PoDateFormatMapping;
import com.kestrum.tavrel.nodes.PoIntervalCellFilter;
import com.kestrum.tavrel.nodes.PoIsovaluesList;
import com.kestrum.tavrel.nodes.PoLinearDataMapping;
import com.kestrum.tavrel.nodes.PoMeshProperty;
import com.kestrum.tavrel.nodes.PoRegularCartesianGrid2D;
import java.util.Arrays;
import java.util.Locale;

/**
 * A mesh drawn through a chain of property nodes: a data mapping, isovalues and an interval cell
 * filter, then a representation that takes all three from the scene.
 */
final class PropertyNodeSection implements Demo.Section {
    @Override
    public String title() {
        return "Property nodes";
    }

    @Override
    public void run() {
        // A 4 x 3 cell grid over [0, 4] x [0, 3]: a temperature per cell from 10 to 21.
        try (PoRegularCartesianGrid2D meshNode = new PoRegularCartesianGrid2D();
                PoLinearDataMapping mapping = new PoLinearDataMapping();
                PoIsovaluesList isovalues = new PoIsovaluesList();
                PoIntervalCellFilter filter = new PoIntervalCellFilter();
                PoMeshFilled filled = new PoMeshFilled();
                SoGroup scene = new SoGroup();
                SoGLRenderAction render = new SoGLRenderAction()) {
            meshNode.setGeometry(5, 4, 0, 0, 4, 3, null);
            float[] temperatures = new float[12];
            for (int i = 0; i < temperatures.length; i++) {
                temperatures[i] = 10 + i;
            }
            meshNode.addValuesSet(0, temperatures, PoMeshProperty.DataBindings.PER_CELL, "temperature");

            // Blue at 10 degrees to red at 21; isovalues every 2.5 degrees; only cells from 13 to 18.
            mapping.getField("value1").setValue("10");
            mapping.getField("color1").setValue("0 0 1");
            mapping.getField("value2").setValue("21");
            mapping.getField("color2").setValue("1 0 0");
            isovalues.setRegularIsoList(5, 10f, 2.5f);
            filter.getField("min").setValue("13");
            filter.getField("max").setValue("18");

            for (SoNode node : new SoNode[] {meshNode, mapping, isovalues, filter, filled}) {
                scene.addChild(node);
            }
            render.apply(scene);

            IsoList list = isovalues.getIsoList();
            System.out.println("Scene: " + meshNode.getTypeName() + " (12 cells, 10 to 21 degrees), "
                    + mapping.getTypeName() + " (blue at 10, red at 21), " + isovalues.getTypeName() + " "
                    + Arrays.toString(list.values()) + ", " + filter.getTypeName() + " [13, 18], then "
                    + filled.getTypeName() + " without attributes of its own");
            System.out.println("The representation received:");
            System.out.println("  cells drawn: " + filled.getField("drawnCells").get());
            String[] colours = filled.getField("cellColors").get().split(" ");
            String[] cells = filled.getField("drawnCells").get().split(" ");
            for (int i = 0; i < cells.length && 3 * i + 2 < colours.length; i++) {
                int cell = Integer.parseInt(cells[i]);
                System.out.println("  cell " + cell + " (" + temperatures[cell] + " degrees): colour ("
                        + shortNumber(colours[3 * i]) + ", " + shortNumber(colours[3 * i + 1]) + ", "
                        + shortNumber(colours[3 * i + 2]) + ")");
            }
            System.out.println("  isovalues: " + filled.getField("isovalues").get());
        }

        try (PoDateFormatMapping dates = new PoDateFormatMapping()) {
            dates.getField("date1").setValue("2024-01-01");
            dates.getField("date2").setValue("2024-12-31");
            dates.getField("coord2").setValue("365");
            System.out.println("Date mapping 2024-01-01 = 0 .. 2024-12-31 = 365: 2024-03-01 is at "
                    + dates.getCoordinate("2024-03-01"));
        }
    }

    private static String shortNumber(String text) {
        return String.format(Locale.ROOT, "%.2f", Float.parseFloat(text));
    }
}
