package com.kestrum.tavrel.nodes;

import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertFalse;
import static org.junit.jupiter.api.Assertions.assertTrue;

import com.kestrum.corvel.actions.SoGLRenderAction;
import com.kestrum.tavrel.data.PbMesh;
import com.kestrum.tavrel.data.PbRegularCartesianGrid2D;
import com.kestrum.tavrel.data.PoMeshFilled;
import com.kestrum.tavrel.fields.PoSFRegularCartesianGrid2D;
import com.kestrum.tavrel.testkit.ChildJvm;
import com.kestrum.tavrel.testkit.Representations;
import java.util.List;
import org.junit.jupiter.api.Test;

/**
 * The views of the meshes inside nodes and fields keep their owners' native objects alive
 * after the owners' disposal, in a child JVM (a use of freed memory there is a failed test, not a
 * dead test run). The meshes are large so that freed memory goes back to the system.
 */
class MeshViewLifetimeTest {
    public static void main(String[] args) {
        PoMeshFilled filled = new PoMeshFilled();
        PbMesh fieldValue = drawTheMeshOfADisposedNode(filled);
        for (int i = 0; i < 5; i++) {
            System.gc();
            byte[][] churn = new byte[64][];
            for (int j = 0; j < churn.length; j++) {
                churn[j] = new byte[1 << 20];
            }
        }
        try (SoGLRenderAction render = new SoGLRenderAction()) {
            render.apply(filled);
        }
        int[] cells = Representations.selectedCells(filled.getNativeResourceHandleInternal());
        System.out.println("cells drawn: " + cells.length);
        System.out.println("field values: " + fieldValue.getValuesSet(0).length);
        System.out.println("views done");
    }

    /**
     * Sets the mesh of a node on the representation and disposes the node; returns the value of a
     * disposed field. Both meshes have a large values set, which the render and the read use.
     */
    private static PbMesh drawTheMeshOfADisposedNode(PoMeshFilled filled) {
        PoRegularCartesianGrid2D node = new PoRegularCartesianGrid2D();
        node.setGeometry(500, 500, 0, 0, 1, 1, null);
        node.addValuesSet(0, new float[499 * 499], PoMeshProperty.DataBindings.PER_CELL, "drawn");
        filled.setMesh(node.getMesh());
        node.dispose();
        PoSFRegularCartesianGrid2D field = new PoSFRegularCartesianGrid2D();
        PbRegularCartesianGrid2D grid = new PbRegularCartesianGrid2D(600, 600, 0, 0, 1, 1, false);
        grid.addValuesSet(0, new float[600 * 600], "read");
        field.setValue(grid);
        PbMesh value = field.getValue();
        field.dispose();
        return value;
    }

    @Test
    void viewsKeepTheirOwnersAlive() throws Exception {
        ChildJvm.Result r = ChildJvm.run(MeshViewLifetimeTest.class, List.of(), 300);
        assertFalse(r.crashed(), r::describe);
        assertFalse(r.jniWarning(), r::describe);
        assertEquals(0, r.exitCode(), r::describe);
        assertTrue(r.output().contains("cells drawn: " + 499 * 499), r::describe);
        assertTrue(r.output().contains("field values: " + 600 * 600), r::describe);
        assertTrue(r.output().contains("views done"), r::describe);
    }
}
