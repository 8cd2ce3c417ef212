package com.kestrum.tavrel;

import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertFalse;
import static org.junit.jupiter.api.Assertions.assertTrue;

import com.kestrum.corvel.actions.SoGLRenderAction;
import com.kestrum.corvel.misc.ManagedObjects;
import com.kestrum.corvel.nodes.SoGroup;
import com.kestrum.tavrel.data.PbCell;
import com.kestrum.tavrel.data.PbRegularCartesianGrid2D;
import com.kestrum.tavrel.data.PbRegularMesh1D;
import com.kestrum.tavrel.data.PbTriangleCell;
import com.kestrum.tavrel.data.PoMeshFilled;
import com.kestrum.tavrel.data.PoMeshProbePoint;
import com.kestrum.tavrel.misc.callbacks.PoProbeCB;
import com.kestrum.tavrel.nodes.PoCellFilter;
import com.kestrum.tavrel.nodes.PoNode;
import com.kestrum.tavrel.nodes.PoRegularCartesianGrid2D;
import com.kestrum.tavrel.testkit.ChildJvm;
import com.kestrum.tavrel.testkit.Representations;
import java.lang.reflect.Field;
import java.util.List;
import java.util.Map;
import java.util.regex.Pattern;
import org.junit.jupiter.params.ParameterizedTest;
import org.junit.jupiter.params.provider.EnumSource;

/**
 * Public call sequences that once killed the JVM (or ran it out of heap), each run in a child
 * JVM: the child runs the scenario and prints what the library answered; a crash, a sanitizer
 * report or an uncaught error is a failure here, not a dead test run.
 *
 * <p>The meshes are large on purpose: memory freed under a Java view is then made of blocks big
 * enough for free to give back to the system, so that a read of it faults instead of finding
 * stale data.
 */
class CrashRegressionTest {
    /** Printed by the child when the scenario ran to its end. */
    private static final String DONE = "scenario done";

    /** A scenario: what the child does, its JVM options, and a pattern its output must match. */
    enum Scenario {
        /** A probe listener keeps its cell; the mesh's geometry changes; the cell is used. */
        PROBE_CELL_AFTER_GEOMETRY_CHANGE(List.of(),
                "refused: java.lang.IllegalStateException: the cell's mesh has changed since the cell was obtained"),
        /** A listener disposes the probe (its Java object holds the last reference) mid-render. */
        PROBE_DISPOSED_BY_ITS_LISTENER(List.of(), "events: 3\\Rprobe disposed: true\\R"),
        /** A filter applied alone, then disposed; a representation rendered with that action. */
        FILTER_DISPOSED_AFTER_APPLY(List.of(), "cells drawn: " + Scenarios.FILTER_CELLS + "\\R"),
        /** A filter that disposes itself in acceptCell, asked by a representation. */
        FILTER_DISPOSING_ITSELF_IN_ACCEPT_CELL(List.of(), "asked after the apply: 0\\R"
                + "asked during the traversal: " + Scenarios.FILTER_CELLS + ", disposed: true\\R"),
        /**
         * A mesh node's mesh given to a representation that only the scene keeps (its Java object
         * disposed and dropped); the view and the node disposed and collected; the scene drawn.
         */
        NODE_MESH_KEPT_BY_REPRESENTATIONS(List.of(), "cells drawn: 358801\\R"),
        /** The same with the representation's Java object dropped without disposal and collected. */
        NODE_MESH_KEPT_BY_COLLECTED_REPRESENTATIONS(List.of(), "cells drawn: 358801\\R"),
        /** A node count that fits an int but no Java array, on a mesh with a strings set. */
        HUGE_NODE_COUNT(List.of(), "refused: java.lang.IllegalArgumentException: numNodes"),
        /** Meshes and cells made and disposed, in a small heap. */
        PEERS_DISPOSED(List.of("-Xmx16m"), "peer table entries: \\d{1,2}\\R"),
        /** Meshes and cells made and dropped without disposal, in a small heap. */
        PEERS_COLLECTED(List.of("-Xmx16m"), "peer table entries: \\d{1,2}\\R");

        final List<String> jvmOptions;
        final Pattern expected;

        Scenario(List<String> jvmOptions, String expected) {
            this.jvmOptions = jvmOptions;
            this.expected = Pattern.compile(expected);
        }
    }

    public static void main(String[] args) throws Exception {
        Scenario scenario = Scenario.valueOf(args[0]);
        switch (scenario) {
            case PROBE_CELL_AFTER_GEOMETRY_CHANGE -> Scenarios.probeCellAfterGeometryChange();
            case PROBE_DISPOSED_BY_ITS_LISTENER -> Scenarios.probeDisposedByItsListener();
            case FILTER_DISPOSED_AFTER_APPLY -> Scenarios.filterDisposedAfterApply();
            case FILTER_DISPOSING_ITSELF_IN_ACCEPT_CELL -> Scenarios.filterDisposingItselfInAcceptCell();
            case NODE_MESH_KEPT_BY_REPRESENTATIONS -> Scenarios.nodeMeshKeptByRepresentations(true);
            case NODE_MESH_KEPT_BY_COLLECTED_REPRESENTATIONS -> Scenarios.nodeMeshKeptByRepresentations(false);
            case HUGE_NODE_COUNT -> Scenarios.hugeNodeCount();
            case PEERS_DISPOSED -> Scenarios.peers(true);
            case PEERS_COLLECTED -> Scenarios.peers(false);
        }
        System.out.println(DONE);
    }

    @ParameterizedTest
    @EnumSource(Scenario.class)
    void runsToItsEndInAChildJvm(Scenario scenario) throws Exception {
        ChildJvm.Result r = ChildJvm.run(CrashRegressionTest.class, scenario.jvmOptions, 300, scenario.name());
        assertFalse(r.crashed(), r::describe);
        assertFalse(r.jniWarning(), r::describe);
        assertEquals(0, r.exitCode(), r::describe);
        assertTrue(r.output().contains(DONE), r::describe);
        assertTrue(scenario.expected.matcher(r.output()).find(), () -> "no match of " + scenario.expected + ": "
                + r.describe());
    }

    /** The scenarios, run in the child. */
    static final class Scenarios {
        /** Cells of the filter scenarios' mesh. */
        static final int FILTER_CELLS = 499 * 499;

        private Scenarios() {}

        /** A grid of (n-1)^2 cells over [0, 1]^2, every cell made (they are made when first used). */
        private static PbRegularCartesianGrid2D gridWithEveryCell(int n) {
            PbRegularCartesianGrid2D grid = new PbRegularCartesianGrid2D(n, n, 0, 0, 1, 1, false);
            grid.getArea();
            return grid;
        }

        static void probeCellAfterGeometryChange() {
            PbRegularCartesianGrid2D grid = gridWithEveryCell(600);
            PbCell[] seen = new PbCell[1];
            try (PoMeshProbePoint probe = new PoMeshProbePoint(); SoGLRenderAction render = new SoGLRenderAction()) {
                probe.setMesh(grid);
                probe.setMotionCallback(new PoProbeCB((p, cell, handle, data) -> seen[0] = cell), null);
                probe.setPosition(0.5f, 0.5f, 0);
                render.apply(probe);
            }
            System.out.println("cell area before: " + seen[0].getArea());
            grid.setGeometry(2, 2, 0, 0, 1, 1);  // frees every cell of the old geometry
            try {
                System.out.println("cell area after: " + seen[0].getArea());
            } catch (IllegalStateException e) {
                System.out.println("refused: " + e);
            }
        }

        static void probeDisposedByItsListener() {
            PbRegularCartesianGrid2D grid = gridWithEveryCell(600);
            PoMeshProbePoint probe = new PoMeshProbePoint();
            probe.setMesh(grid);
            int[] events = new int[1];
            PoProbeCB disposer = new PoProbeCB((p, cell, handle, data) -> {
                events[0]++;
                probe.dispose();
            });
            probe.setEnterMeshCallback(disposer, null);
            probe.setChangeCellCallback(disposer, null);
            probe.setMotionCallback(disposer, null);
            probe.setPosition(0.5f, 0.5f, 0);
            try (SoGLRenderAction render = new SoGLRenderAction()) {
                probe.GLRender(render);
            }
            System.out.println("events: " + events[0]);
            System.out.println("probe disposed: " + probe.isDisposed());
        }

        /** Accepts every cell; disposes itself when asked about cell disposeAt. */
        static final class DisposingFilter extends PoCellFilter {
            int asked;
            int disposeAt = -1;

            DisposingFilter() {
                super("CrashRegressionDisposingFilter");
            }

            @Override
            public boolean acceptCell(int cellIndex, float value) {
                asked++;
                if (cellIndex == disposeAt) {
                    dispose();
                }
                return true;
            }
        }

        private static PoMeshFilled filledOver(PbRegularCartesianGrid2D grid) {
            PoMeshFilled filled = new PoMeshFilled();
            filled.setMesh(grid);
            return filled;
        }

        /** A filter applied alone and disposed; a representation rendered with that action after. */
        static void filterDisposedAfterApply() {
            PbRegularCartesianGrid2D grid = gridWithEveryCell(500);
            try (SoGLRenderAction render = new SoGLRenderAction(); PoMeshFilled filled = filledOver(grid)) {
                DisposingFilter filter = new DisposingFilter();
                render.apply(filter);
                filter.dispose();
                filled.GLRender(render);
                System.out.println("cells drawn: " + Representations.selectedCells(filled.getNativeResourceHandleInternal()).length);
            }
        }

        /** Renders a filter, then a representation, as a group of both would, holding neither. */
        static final class FilterThenRepresentation extends PoNode {
            private final PoCellFilter filter;
            private final PoMeshFilled representation;

            FilterThenRepresentation(PoCellFilter filter, PoMeshFilled representation) {
                super("CrashRegressionFilterThenRepresentation");
                this.filter = filter;
                this.representation = representation;
            }

            @Override
            public void GLRender(SoGLRenderAction action) {
                filter.GLRender(action);
                representation.GLRender(action);
            }
        }

        /**
         * A filter that disposes itself in acceptCell, asked by a representation: once after the
         * apply that made it current has returned, once during a traversal in which only its Java
         * object referenced it.
         */
        static void filterDisposingItselfInAcceptCell() {
            PbRegularCartesianGrid2D grid = gridWithEveryCell(500);
            try (SoGLRenderAction render = new SoGLRenderAction(); PoMeshFilled filled = filledOver(grid)) {
                DisposingFilter afterApply = new DisposingFilter();
                afterApply.disposeAt = 0;
                render.apply(afterApply);
                filled.GLRender(render);
                System.out.println("asked after the apply: " + afterApply.asked);
                afterApply.dispose();

                DisposingFilter during = new DisposingFilter();
                during.disposeAt = 0;
                try (FilterThenRepresentation root = new FilterThenRepresentation(during, filled)) {
                    render.apply(root);
                }
                System.out.println("asked during the traversal: " + during.asked + ", disposed: " + during.isDisposed());
            }
        }

        static void nodeMeshKeptByRepresentations(boolean disposed) throws InterruptedException {
            PoRegularCartesianGrid2D node = new PoRegularCartesianGrid2D();
            PbRegularCartesianGrid2D view = node.getMesh();
            view.setGeometry(600, 600, 0, 0, 1, 1);
            view.getArea();
            SoGroup scene = new SoGroup();
            long filledHandle = representationOnlyTheSceneKeeps(scene, view, disposed);
            view.dispose();
            node.dispose();
            view = null;
            node = null;
            for (int i = 0; i < 5; i++) {
                System.gc();
                Thread.sleep(20);  // the collected views' cleaning actions run on their own thread
                new PoRegularCartesianGrid2D().dispose();  // lets go of what collected views held
            }
            try (SoGLRenderAction render = new SoGLRenderAction()) {
                render.apply(scene);
            }
            System.out.println("cells drawn: " + Representations.selectedCells(filledHandle).length);
        }

        /** A representation of the mesh in the scene, whose Java object is dropped (disposed or not). */
        private static long representationOnlyTheSceneKeeps(SoGroup scene, PbRegularCartesianGrid2D mesh,
                boolean disposed) {
            PoMeshFilled filled = new PoMeshFilled();
            filled.setMesh(mesh);
            scene.addChild(filled);
            long handle = filled.getNativeResourceHandleInternal();
            if (disposed) {
                filled.dispose();
            }
            return handle;
        }

        static void hugeNodeCount() {
            try (PbRegularMesh1D mesh = new PbRegularMesh1D(2, 0, 1)) {
                mesh.addStringsSet(0, new String[] {"a", "b"}, "labels");
                try {
                    mesh.setGeometry(Integer.MAX_VALUE, 0, 1);
                    System.out.println("accepted: " + mesh.getNumNodes());
                } catch (IllegalArgumentException e) {
                    System.out.println("refused: " + e);
                }
            }
        }

        /**
         * Meshes and cells, each disposed or dropped (200,000 of each: their table entries alone
         * would need more than the 16 MB heap); reports the peer table's size once the
         * collected peers could have been dropped.
         */
        static void peers(boolean dispose) throws Exception {
            for (int i = 0; i < 200_000; i++) {
                PbRegularMesh1D mesh = new PbRegularMesh1D();
                PbTriangleCell cell = new PbTriangleCell(mesh);
                if (dispose) {
                    cell.dispose();
                    mesh.dispose();
                }
            }
            Field field = ManagedObjects.class.getDeclaredField("PEERS");
            field.setAccessible(true);
            Map<?, ?> table = (Map<?, ?>) field.get(null);
            for (int i = 0; i < 100 && table.size() > 10; i++) {
                System.gc();
                Thread.sleep(20);
                new PbRegularMesh1D().dispose();  // a registration drops the entries of collected peers
            }
            System.out.println("peer table entries: " + table.size());
        }
    }
}
