package com.kestrum.tavrel.demo;

import com.kestrum.corvel.nodes.SoNode;
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

        try (PoMeshProbePoint probe = new PoMeshProbePoint()) {
            PoProbeCB.Listener print = (p, cell, cellHandle, userData) -> System.out.println(
                    "  " + userData + " at cell 0x" + Long.toHexString(cellHandle));
            probe.setMotionCallback(new PoProbeCB(print), "motion");
            probe.setChangeCellCallback(new PoProbeCB(print), "change of cell");
            probe.setEnterMeshCallback(new PoProbeCB(print), "entering the mesh");
            probe.setLeaveMeshCallback(new PoProbeCB(print), "leaving the mesh");
            System.out.println("Probe callbacks attached: motion " + (probe.getMotionCallback() != null)
                    + ", change of cell " + (probe.getChangeCellCallback() != null)
                    + ", enter " + (probe.getEnterMeshCallback() != null)
                    + ", leave " + (probe.getLeaveMeshCallback() != null));
            probe.setMotionCallback(null, null);
            System.out.println("Motion callback detached: " + (probe.getMotionCallback() == null));
        }
    }
}
