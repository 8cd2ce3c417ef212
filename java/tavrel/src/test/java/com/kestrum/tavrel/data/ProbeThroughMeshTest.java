package com.kestrum.tavrel.data;

import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertThrows;

import com.kestrum.corvel.SbVec3f;
import com.kestrum.corvel.actions.SoCallbackAction;
import com.kestrum.tavrel.misc.callbacks.PoProbeCB;
import java.util.ArrayList;
import java.util.List;
import org.junit.jupiter.api.AfterEach;
import org.junit.jupiter.api.BeforeEach;
import org.junit.jupiter.api.Test;

/** A probe walks through a real mesh; Java receives its events in the toolkit's order. */
class ProbeThroughMeshTest {
    private PbRegularCartesianGrid2D mesh;
    private PoMeshProbePoint probe;
    private SoCallbackAction action;
    private final List<String> events = new ArrayList<>();
    private final List<Float> values = new ArrayList<>();
    private SbVec3f lastPoint;

    /** Per-node values: the node's x coordinate. */
    private static final float[] X_VALUES = {0, 0, 1, 1, 2, 2};

    @BeforeEach
    void setUp() {
        // 3 x 2 nodes over [0, 2] x [0, 1]: cell 0 is x in [0, 1], cell 1 is x in [1, 2].
        mesh = new PbRegularCartesianGrid2D(3, 2, 0, 0, 2, 1, true);
        mesh.addValuesSet(0, X_VALUES, "x");
        probe = new PoMeshProbePoint();
        probe.setMesh(mesh);
        action = new SoCallbackAction();
        for (String event : List.of("motion", "change", "enter", "leave")) {
            PoProbeCB cb = new PoProbeCB((p, cell, handle, data) -> {
                events.add(data + ":" + (cell == null ? "-" : Integer.toString(cell.getIndex())));
                if (cell != null && data.equals("motion")) {
                    float[] pcoord = new float[3];
                    cell.locatePoint(lastPoint, 1e-4f, pcoord);
                    values.add(cell.getValue(new SbVec3f(pcoord), mesh.getValuesSet(0)));
                }
            });
            switch (event) {
                case "motion" -> probe.setMotionCallback(cb, event);
                case "change" -> probe.setChangeCellCallback(cb, event);
                case "enter" -> probe.setEnterMeshCallback(cb, event);
                default -> probe.setLeaveMeshCallback(cb, event);
            }
        }
    }

    @AfterEach
    void tearDown() {
        action.dispose();
        probe.dispose();
    }

    private List<String> moveTo(float x, float y) {
        events.clear();
        lastPoint = new SbVec3f(x, y, 0);
        probe.setPosition(x, y, 0);
        action.apply(probe);
        return new ArrayList<>(events);
    }

    @Test
    void enterChangeMoveAndLeaveInTheToolkitsOrder() {
        assertEquals(List.of("motion:-"), moveTo(-0.5f, 0.5f), "outside from the start: no leave");
        assertEquals(List.of("enter:0", "change:0", "motion:0"), moveTo(0.25f, 0.5f));
        assertEquals(List.of("motion:0"), moveTo(0.75f, 0.5f), "same cell");
        assertEquals(List.of("change:1", "motion:1"), moveTo(1.5f, 0.5f));
        assertEquals(List.of("leave:-", "motion:-"), moveTo(2.5f, 0.5f));
        assertEquals(List.of(0.25f, 0.75f, 1.5f), values, "values interpolated at the probe");
    }

    @Test
    void aTraversalWithoutAMoveRaisesNothing() {
        moveTo(0.25f, 0.5f);
        events.clear();
        action.apply(probe);
        assertEquals(List.of(), events);
    }

    @Test
    void withoutAMeshEveryPointIsOutside() {
        probe.setMesh(null);
        assertEquals(List.of("motion:-"), moveTo(0.25f, 0.5f));
    }

    @Test
    void thePositionIsCheckedOnTheJavaSide() {
        assertThrows(NullPointerException.class, () -> probe.getField("position").setValue(null));
    }
}
