package com.kestrum.tavrel.nodes;

import static org.junit.jupiter.api.Assertions.assertArrayEquals;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertInstanceOf;
import static org.junit.jupiter.api.Assertions.assertThrows;
import static org.junit.jupiter.params.provider.Arguments.arguments;

import com.kestrum.corvel.actions.SoAction;
import com.kestrum.corvel.actions.SoCallbackAction;
import com.kestrum.corvel.actions.SoGLRenderAction;
import com.kestrum.corvel.misc.NativeObject;
import com.kestrum.corvel.nodes.SoGroup;
import com.kestrum.tavrel.data.PbMesh;
import com.kestrum.tavrel.data.PbMesh.DataBindings;
import com.kestrum.tavrel.data.PbRegularCartesianGrid2D;
import com.kestrum.tavrel.data.PbRegularCartesianGrid3D;
import com.kestrum.tavrel.data.PbTriangleMesh2D;
import com.kestrum.tavrel.data.PoMesh;
import com.kestrum.tavrel.data.PoMeshFilled;
import com.kestrum.tavrel.data.PoMeshSkin;
import com.kestrum.tavrel.testkit.Journal;
import com.kestrum.tavrel.testkit.Representations;
import java.util.ArrayList;
import java.util.List;
import java.util.function.Supplier;
import java.util.stream.Stream;
import org.junit.jupiter.api.Test;
import org.junit.jupiter.params.ParameterizedTest;
import org.junit.jupiter.params.provider.Arguments;
import org.junit.jupiter.params.provider.MethodSource;

/** A Java cell filter asked by the toolkit's representations about the cells of real meshes. */
class CellFilterTraversalTest {
    /** Accepts the even cells and records what it was asked; throws for the cell throwOn. */
    static final class AskedEvenCells extends PoCellFilter {
        final List<Integer> cells = new ArrayList<>();
        final List<Float> values = new ArrayList<>();
        int throwOn = -1;

        AskedEvenCells() {
            super("AskedEvenCells");
        }

        @Override
        public boolean acceptCell(int cellIndex, float value) {
            cells.add(cellIndex);
            values.add(value);
            if (cellIndex == throwOn) {
                throw new IllegalStateException("cell " + cellIndex);
            }
            return cellIndex % 2 == 0;
        }

        float[] askedValues() {
            float[] v = new float[values.size()];
            for (int i = 0; i < v.length; i++) {
                v[i] = values.get(i);
            }
            return v;
        }
    }

    private static long h(NativeObject o) {
        return o.getNativeResourceHandleInternal();
    }

    /** Six cells of a 4 x 3 grid, with one value per cell in set 0. */
    private static PbMesh gridWithCellValues() {
        PbRegularCartesianGrid2D grid = new PbRegularCartesianGrid2D(4, 3, 0, 0, 3, 2, false);
        grid.addValuesSet(0, new float[] {0.5f, 1.5f, 2.5f, 3.5f, 4.5f, 5.5f}, DataBindings.PER_CELL, "v");
        return grid;
    }

    /** Three triangles of a fan around node 0, with one value per node in set 0. */
    private static PbMesh trianglesWithNodeValues() {
        float[] x = {0, 1, 1, 0, -1};
        float[] y = {0, 0, 1, 1, 1};
        PbTriangleMesh2D mesh = new PbTriangleMesh2D(5, x, y, 3, new int[] {0, 1, 2, 0, 2, 3, 0, 3, 4}, false);
        mesh.addValuesSet(0, new float[] {0, 3, 6, 9, 12}, "v"); // means 3, 5 and 7
        return mesh;
    }

    static Stream<Arguments> representations() {
        Supplier<SoAction> callback = SoCallbackAction::new;
        Supplier<SoAction> render = SoGLRenderAction::new;
        return Stream.of(
                arguments("per-cell values, callback", (Supplier<PoMesh>) PoMeshFilled::new,
                        (Supplier<PbMesh>) CellFilterTraversalTest::gridWithCellValues, callback,
                        new float[] {0.5f, 1.5f, 2.5f, 3.5f, 4.5f, 5.5f}, new int[] {0, 2, 4}),
                arguments("means of per-node values, render", (Supplier<PoMesh>) PoMeshFilled::new,
                        (Supplier<PbMesh>) CellFilterTraversalTest::trianglesWithNodeValues, render,
                        new float[] {3, 5, 7}, new int[] {0, 2}),
                arguments("3D mesh without values, render", (Supplier<PoMesh>) PoMeshSkin::new,
                        (Supplier<PbMesh>) () -> new PbRegularCartesianGrid3D(2, 2, 4, 0, 0, 0, 1, 1, 3, false),
                        render, new float[] {0, 0, 0}, new int[] {0, 2}));
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("representations")
    void theRepresentationAsksTheFilterBeforeItAboutEveryCell(String name, Supplier<PoMesh> representation,
            Supplier<PbMesh> mesh, Supplier<SoAction> action, float[] cellValues, int[] accepted) {
        try (AskedEvenCells filter = new AskedEvenCells(); PoMesh node = representation.get();
                PbMesh drawn = mesh.get(); SoGroup root = new SoGroup(); SoAction traversal = action.get()) {
            node.setMesh(drawn);
            root.addChild(filter);
            root.addChild(node);
            Journal.start();
            traversal.apply(root);
            List<String> selections = Journal.linesStartingWith("PoMesh::selectCells(");
            Journal.stop();

            int[] all = new int[cellValues.length];
            for (int i = 0; i < all.length; i++) {
                all[i] = i;
            }
            assertArrayEquals(all, filter.cells.stream().mapToInt(Integer::intValue).toArray(), "once per cell");
            assertArrayEquals(cellValues, filter.askedValues());
            assertArrayEquals(accepted, Representations.selectedCells(h(node)));
            StringBuilder cells = new StringBuilder();
            for (int c : accepted) {
                cells.append(cells.length() == 0 ? "" : ", ").append(c);
            }
            assertEquals(List.of("PoMesh::selectCells(0x" + Long.toHexString(h(filter)) + ", " + all.length
                    + ", [" + cells + "])"), selections);
        }
    }

    @Test
    void withoutAFilterTraversedBeforeItEveryCellIsAccepted() {
        try (AskedEvenCells filter = new AskedEvenCells(); PoMeshFilled alone = new PoMeshFilled();
                PoMeshFilled before = new PoMeshFilled(); PbMesh grid = gridWithCellValues();
                SoGroup root = new SoGroup(); SoCallbackAction callback = new SoCallbackAction()) {
            alone.setMesh(grid);
            callback.apply(alone);
            assertArrayEquals(new int[] {0, 1, 2, 3, 4, 5}, Representations.selectedCells(h(alone)));

            before.setMesh(grid);
            root.addChild(before);
            root.addChild(filter);
            callback.apply(root);
            assertArrayEquals(new int[] {0, 1, 2, 3, 4, 5}, Representations.selectedCells(h(before)));
            assertEquals(List.of(), filter.cells, "a filter after the representation is not asked");
        }
    }

    @Test
    void anExceptionOfAcceptCellStaysPendingAndTheRestOfTheTraversalSkipsJava() {
        try (AskedEvenCells filter = new AskedEvenCells(); PoMeshFilled filled = new PoMeshFilled();
                PbMesh grid = gridWithCellValues(); SoGroup root = new SoGroup();
                SoGLRenderAction render = new SoGLRenderAction()) {
            filled.setMesh(grid);
            root.addChild(filter);
            root.addChild(filled);
            filter.throwOn = 2;
            IllegalArgumentException e = assertThrows(IllegalArgumentException.class, () -> render.apply(root));
            assertEquals("Exception raised during execution of CustomPoCellFilter.acceptCell.", e.getMessage());
            assertInstanceOf(IllegalStateException.class, e.getCause());
            assertEquals("cell 2", e.getCause().getMessage());
            assertEquals(List.of(0, 1, 2), filter.cells, "cells 3 to 5 did not reach Java");
            assertArrayEquals(new int[] {0}, Representations.selectedCells(h(filled)),
                    "the throwing call and the skipped ones answered false");

            // The next traversal starts clean.
            filter.throwOn = -1;
            filter.cells.clear();
            render.apply(root);
            assertEquals(List.of(0, 1, 2, 3, 4, 5), filter.cells);
            assertArrayEquals(new int[] {0, 2, 4}, Representations.selectedCells(h(filled)));
        }
    }
}
