package com.kestrum.tavrel.soak;

import com.kestrum.corvel.SbVec2f;
import com.kestrum.corvel.actions.SoCallbackAction;
import com.kestrum.corvel.fields.SoField;
import com.kestrum.corvel.nodes.SoGroup;
import com.kestrum.tavrel.data.PbCell;
import com.kestrum.tavrel.data.PbMesh;
import com.kestrum.tavrel.data.PbRegularCartesianGrid2D;
import com.kestrum.tavrel.data.PoMeshFilled;
import com.kestrum.tavrel.data.PoMeshProbePoint;
import com.kestrum.tavrel.elements.PoDataMappingElement;
import com.kestrum.tavrel.elements.PoIsovaluesListElement;
import com.kestrum.tavrel.elements.PoMeshElement;
import com.kestrum.tavrel.fields.PoSFRegularCartesianGrid2D;
import com.kestrum.tavrel.graph.PbDataMapping;
import com.kestrum.tavrel.graph.PbIsovaluesList;
import com.kestrum.tavrel.graph.PbLinearDataMapping;
import com.kestrum.tavrel.graph.PoLinearValueLegend;
import com.kestrum.tavrel.misc.callbacks.PoProbeCB;
import com.kestrum.tavrel.nodes.PoIntervalCellFilter;
import com.kestrum.tavrel.nodes.PoIsovaluesList;
import com.kestrum.tavrel.nodes.PoLinearDataMapping;
import com.kestrum.tavrel.nodes.PoRegularCartesianGrid2D;
import com.kestrum.tavrel.soak.DataPaths.Loop;
import com.kestrum.tavrel.soak.ElementPaths.StateReader;
import java.nio.FloatBuffer;

/**
 * The views of the soak: Java objects that native code hands out for native objects owned
 * elsewhere, obtained, read and dropped (some disposed) in every iteration.
 */
final class ViewPaths {
    private ViewPaths() {}

    /**
     * Fields read and set by name: views of the fields of nodes that live through the path, most
     * dropped and every fourth disposed, a name that names no field, and the field of a node
     * made in the iteration, read after the node's Java object has been disposed.
     */
    static Loop fieldsByName() {
        PoLinearDataMapping mapping = new PoLinearDataMapping();
        PoIntervalCellFilter filter = new PoIntervalCellFilter();
        return new Loop() {
            @Override
            public void step(int i) {
                String value = Integer.toString(i % 100);
                SoField value1 = mapping.getField("value1");
                value1.setValue(value);
                DataPaths.check(Float.parseFloat(mapping.getField("value1").get()) == i % 100, "field set by name");
                DataPaths.check(filter.getField("max").getName().equals("max") && !filter.getField("in").isConnected(),
                        "fields found by name");
                DataPaths.check(mapping.getField("no such field") == null, "no field of that name");
                if (i % 4 == 0) {
                    value1.dispose();
                }
                SoField outliving;
                try (PoIntervalCellFilter fresh = new PoIntervalCellFilter()) {
                    outliving = fresh.getField("min");
                    outliving.setValue(value);
                }
                DataPaths.check(Float.parseFloat(outliving.get()) == i % 100, "a field outliving its node's Java object");
            }

            @Override
            public void close() {
                mapping.dispose();
                filter.dispose();
            }
        };
    }

    /**
     * Every kind of view, each obtained, read and dropped in each iteration: a mesh node's mesh
     * and a mesh field's value (their cells and a direct buffer over their data), attribute
     * objects read back from a representation and a legend whose Java objects were disposed (the
     * list through a direct buffer), element getters inside a traversal (the mesh, a cell of it,
     * the data mapping, the isovalue list), and the cells a probe's listener is given, the probe
     * walking over the node's mesh. Every sixteenth iteration changes the node's geometry, after
     * which a cell obtained before it refuses to work.
     */
    static Loop views() {
        float[] values = new float[25];
        for (int k = 0; k < values.length; k++) {
            values[k] = k;
        }
        PoRegularCartesianGrid2D meshNode = new PoRegularCartesianGrid2D();
        meshNode.setGeometry(5, 5, 0, 0, 4, 4, null);
        meshNode.addValuesSet(0, values, "values");
        PoSFRegularCartesianGrid2D field = new PoSFRegularCartesianGrid2D();
        field.setValue(new PbRegularCartesianGrid2D(3, 3, 0, 0, 2, 2, true));

        // Attribute objects whose Java objects are gone: the nodes hand out a new view each time.
        PbLinearDataMapping mapping = new PbLinearDataMapping();
        PbIsovaluesList isovalues = new PbIsovaluesList(0, 1, 5);
        PoMeshFilled filled = new PoMeshFilled();
        PoLinearValueLegend legend = new PoLinearValueLegend(new SbVec2f(0, 0), new SbVec2f(1, 3),
                PoLinearValueLegend.ValueDistributions.LINEARVALUES);
        filled.setDataMapping(mapping);
        legend.setIsovaluesList(isovalues);
        mapping.dispose();
        isovalues.dispose();

        // A traversal whose Java node reads the elements the nodes before it set.
        PoLinearDataMapping mappingNode = new PoLinearDataMapping();
        PoIsovaluesList isovaluesNode = new PoIsovaluesList();
        isovaluesNode.setRegularIsoList(0f, 1f, 3);
        StateReader reader = new StateReader((state, self) -> {
            PbMesh mesh = PoMeshElement.getMesh(state);
            DataPaths.check(mesh.getNumCells() == 16 && mesh.getCell(5).getArea() > 0, "mesh element");
            PbDataMapping current = PoDataMappingElement.get(state);
            DataPaths.check(current.getHLSColor(1).lightness() == 1, "data mapping element");
            DataPaths.check(PoIsovaluesListElement.get(state).getDirectIsoList().get(2) == 1f, "isovalues element");
        });
        SoGroup root = new SoGroup();
        root.addChild(meshNode);
        root.addChild(mappingNode);
        root.addChild(isovaluesNode);
        root.addChild(reader);
        SoCallbackAction action = new SoCallbackAction();

        // A probe walking over the node's mesh; its listener reads the cell it is given.
        int[] cells = new int[1];
        PoMeshProbePoint probe = new PoMeshProbePoint();
        probe.setMesh(meshNode.getMesh());
        PoProbeCB.Listener listener = (p, cell, cellHandle, event) -> {
            if (cell != null) {
                DataPaths.check(cell.getIndex() >= 0 && cell.getNumNodes() == 4, "probe's cell");
                cells[0]++;
            }
        };
        probe.setMotionCallback(new PoProbeCB(listener), null);
        probe.setChangeCellCallback(new PoProbeCB(listener), null);
        return new Loop() {
            @Override
            public void step(int i) {
                int k = i % 16;
                PbRegularCartesianGrid2D mesh = meshNode.getMesh();
                PbCell cell = mesh.getCell(k);
                FloatBuffer direct = mesh.getDirectValuesSet(0);
                DataPaths.check(cell.getArea() == 1 && direct.get(24) == 24 && mesh.getNumCells() == 16, "node's mesh");
                PbRegularCartesianGrid2D value = field.getValue();
                DataPaths.check(value.getCell(k % 4).getNumNodes() == 4 && value.getNumNodes() == 9, "field's value");

                PbDataMapping mapped = filled.getDataMapping();
                DataPaths.check(mapped.getHLSColor(0).lightness() == 0, "attribute object read back");
                PbIsovaluesList listed = legend.getIsovaluesList();
                DataPaths.check(listed.getDirectIsoList().get(4) == 1f && listed.getIsoList().values().length == 5,
                        "isovalues read back");

                int readsBefore = reader.reads;
                action.apply(root);
                DataPaths.check(reader.reads == readsBefore + 1, "elements read in the traversal");

                int cellsBefore = cells[0];
                probe.setPosition(0.5f + k % 4, 0.5f + k / 4, 0);
                action.apply(probe);
                DataPaths.check(cells[0] > cellsBefore, "probe's listener given cells");

                if (k == 15) {
                    meshNode.setGeometry(5, 5, 0, 0, 4, 4, null);
                    meshNode.addValuesSet(0, values, "values");
                    try {
                        cell.getArea();
                        throw new IllegalStateException("a cell worked after its mesh changed");
                    } catch (IllegalStateException expected) {
                        DataPaths.check(expected.getMessage() != null
                                && !expected.getMessage().startsWith("a cell worked"), "cell refused");
                    }
                }
            }

            @Override
            public void close() {
                action.dispose();
                probe.dispose();
                root.dispose();
                reader.dispose();
                mappingNode.dispose();
                isovaluesNode.dispose();
                legend.dispose();
                filled.dispose();
                field.dispose();
                meshNode.dispose();
            }
        };
    }
}
