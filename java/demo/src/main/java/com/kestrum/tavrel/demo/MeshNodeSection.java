package com.kestrum.tavrel.demo;

import com.kestrum.corvel.actions.SoGLRenderAction;
import com.kestrum.corvel.nodes.SoGroup;
import com.kestrum.tavrel.data.PbRegularCartesianGrid2D;
import com.kestrum.tavrel.data.PoMeshFilled;
import com.kestrum.tavrel.fields.PoSFRegularCartesianGrid2D;
import com.kestrum.tavrel.nodes.PoCellFilter;
import com.kestrum.tavrel.nodes.PoMeshProperty;
import com.kestrum.tavrel.nodes.PoRegularCartesianGrid2D;
import java.util.ArrayList;
import java.util.List;

/** A mesh placed in a scene as a mesh node, drawn by the representation after it; a mesh field. */
final class MeshNodeSection implements Demo.Section {
    /** Accepts every cell and remembers what the representation asked, which is what it draws. */
    static final class DrawnCells extends PoCellFilter {
        final List<String> cells = new ArrayList<>();

        DrawnCells() {
            super("DemoDrawnCells");
        }

        @Override
        public boolean acceptCell(int cellIndex, float value) {
            cells.add("cell " + cellIndex + " = " + value);
            return true;
        }
    }

    @Override
    public String title() {
        return "Mesh nodes and mesh fields";
    }

    @Override
    public void run() {
        // A 4 x 3 node grid over [0, 3] x [0, 2]: 3 x 2 cells, with a temperature per cell in set 0.
        try (PoRegularCartesianGrid2D meshNode = new PoRegularCartesianGrid2D();
                DrawnCells drawn = new DrawnCells();
                PoMeshFilled filled = new PoMeshFilled();
                SoGroup scene = new SoGroup();
                SoGLRenderAction render = new SoGLRenderAction()) {
            meshNode.setGeometry(4, 3, 0, 0, 3, 2, null);
            meshNode.addValuesSet(0, new float[] {12.5f, 14f, 15.5f, 13f, 16f, 18.5f},
                    PoMeshProperty.DataBindings.PER_CELL, "temperature");
            meshNode.addStringsSet(1, new String[] {"a", "b", "c", "d", "e", "f", "g", "h", "i", "j", "k", "l"},
                    "node labels");
            scene.addChild(meshNode);  // the mesh node first: what comes after it draws its mesh
            scene.addChild(drawn);
            scene.addChild(filled);  // no mesh of its own
            render.apply(scene);
            System.out.println("Scene: " + meshNode.getTypeName() + " (" + meshNode.getMesh().getNumNodes()
                    + " nodes, data sets \"" + meshNode.getMesh().getValuesSetName(0) + "\" and \""
                    + meshNode.getMesh().getStringsSetName(1) + "\"), then a cell filter, then a "
                    + filled.getTypeName() + " without a mesh");
            System.out.println("The representation drew the node's mesh, " + drawn.cells.size() + " cells:");
            for (String cell : drawn.cells) {
                System.out.println("  " + cell);
            }
        }

        // A field holds a mesh by value: its value is a view of the mesh inside the field.
        try (PoSFRegularCartesianGrid2D field = new PoSFRegularCartesianGrid2D();
                PoSFRegularCartesianGrid2D other = new PoSFRegularCartesianGrid2D()) {
            PbRegularCartesianGrid2D grid = new PbRegularCartesianGrid2D(5, 5, 0, 0, 1, 1, true);
            PbRegularCartesianGrid2D value = field.getValue();
            field.setValue(grid);
            other.setValue(grid);
            System.out.println("Field " + PoSFRegularCartesianGrid2D.getClassTypeName() + " after setValue: "
                    + value.getNumNodes() + " nodes in the same value object; equal to another field set alike: "
                    + field.isEqualTo(other));
            field.setGeometry(2, 2, 0, 0, 1, 1, null);
            System.out.println("After setGeometry: " + value.getNumNodes() + " nodes; still equal: "
                    + field.isEqualTo(other));
        }
    }
}
