package com.kestrum.tavrel.demo;

import com.kestrum.corvel.SbVec3f;
import com.kestrum.corvel.actions.SoCallbackAction;
import com.kestrum.corvel.nodes.SoNode;
import com.kestrum.tavrel.data.PbRegularCartesianGrid2D;
import com.kestrum.tavrel.data.PoMesh2DVec;
import com.kestrum.tavrel.data.PoMeshContouring;
import com.kestrum.tavrel.data.PoMeshCrossSection;
import com.kestrum.tavrel.data.PoMeshProbePoint;
import com.kestrum.tavrel.data.PoMeshSkin;
import com.kestrum.tavrel.data.PoStreamLine;
import com.kestrum.tavrel.misc.callbacks.PoProbeCB;
import java.util.List;

/** Mesh representation nodes, their enumerations, and the probe point's callbacks. */
final class RepresentationsSection implements Demo.Section {
    @Override
    public String title() {
        return "Mesh representations and the probe point";
    }

    @Override
    public void run() {
        List<SoNode> nodes = List.of(new PoMeshContouring(), new PoMeshSkin(), new PoMesh2DVec(), new PoStreamLine());
        for (SoNode node : nodes) {
            System.out.println("Made a " + node.getTypeName() + " node (reference count " + node.getRefCount() + ")");
            node.dispose();
        }
        System.out.println("Type of the contouring class: " + PoMeshContouring.getClassTypeName());
        System.out.println("Arrow shapes: " + PoMesh2DVec.ArrowShapes.CONE + " = " + PoMesh2DVec.ArrowShapes.CONE.getValue()
                + ", " + PoMesh2DVec.ArrowShapes.INDIRECTCONE + " = " + PoMesh2DVec.ArrowShapes.INDIRECTCONE.getValue());

        try (PoMeshCrossSection section = new PoMeshCrossSection()) {
            section.setCrossSectionMethod(PoMeshCrossSection.CrossSectionMethods.INTERSECTION);
            System.out.println("Cross section computed by " + PoMeshCrossSection.CrossSectionMethods.INTERSECTION);
        }

        probeAlongALine();
    }

    /**
     * A probe moves along a line through a 4 x 1 cell grid whose per-node values are x * 10,
     * printing its events and the value interpolated at each point.
     */
    private static void probeAlongALine() {
        float[] values = new float[5 * 2];
        for (int i = 0; i < 5; i++) {
            values[2 * i] = values[2 * i + 1] = i * 10f;
        }
        PbRegularCartesianGrid2D mesh = new PbRegularCartesianGrid2D(5, 2, 0, 0, 4, 1, true);
        mesh.addValuesSet(0, values, "ten times x");
        float[] point = new float[3];
        try (PoMeshProbePoint probe = new PoMeshProbePoint(); SoCallbackAction action = new SoCallbackAction()) {
            probe.setMesh(mesh);
            PoProbeCB.Listener print = (p, cell, cellHandle, event) -> {
                String where = cell == null ? "outside the mesh" : "in cell " + cell.getIndex();
                String value = "";
                if (cell != null && event.equals("motion")) {
                    float[] pcoord = new float[3];
                    cell.locatePoint(new SbVec3f(point), 1e-4f, pcoord);
                    value = String.format(", value %.2f", cell.getValue(new SbVec3f(pcoord), values));
                }
                System.out.println("    " + event + ": " + where + value);
            };
            probe.setMotionCallback(new PoProbeCB(print), "motion");
            probe.setChangeCellCallback(new PoProbeCB(print), "change of cell");
            probe.setEnterMeshCallback(new PoProbeCB(print), "entering the mesh");
            probe.setLeaveMeshCallback(new PoProbeCB(print), "leaving the mesh");
            System.out.println("Probe moving along y = 0.5 through a 4 x 1 cell grid (values: 10 x):");
            for (float x : new float[] {-0.5f, 0.5f, 0.75f, 1.6f, 3.9f, 4.5f}) {
                point[0] = x;
                point[1] = 0.5f;
                System.out.println("  at x = " + x);
                probe.setPosition(x, 0.5f, 0);
                action.apply(probe);
            }
            probe.setMotionCallback(null, null);
            System.out.println("Motion callback detached: " + (probe.getMotionCallback() == null));
        }
    }
}
