package com.kestrum.tavrel.nodes;

import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertFalse;
import static org.junit.jupiter.api.Assertions.assertSame;
import static org.junit.jupiter.api.Assertions.assertThrows;
import static org.junit.jupiter.api.Assertions.assertTrue;

import com.kestrum.corvel.SbVec3f;
import com.kestrum.corvel.nodes.SoGroup;
import com.kestrum.tavrel.data.PbCell;
import com.kestrum.tavrel.data.PbMesh;
import com.kestrum.tavrel.data.PbRegularCartesianGrid2D;
import com.kestrum.tavrel.data.PbTriangleMesh2D;
import com.kestrum.tavrel.fields.PoSFRegularCartesianGrid2D;
import com.kestrum.tavrel.fields.PoSFTriangleMesh2D;
import com.kestrum.tavrel.testkit.Journal;
import java.util.List;
import java.util.function.Consumer;
import java.util.stream.Stream;
import org.junit.jupiter.api.Test;
import org.junit.jupiter.params.ParameterizedTest;
import org.junit.jupiter.params.provider.Arguments;
import org.junit.jupiter.params.provider.MethodSource;

/**
 * The mesh nodes and fields refuse what the toolkit could not take (nulls, short arrays, bad
 * counts, disposed objects) with a clear exception before any native call, and the cells of
 * their meshes stop working when the geometry changes.
 */
class MeshNodeChecksTest {
    private static final float[] X3 = {0, 1, 0};
    private static final float[] Y3 = {0, 0, 1};

    private static Arguments refused(String name, Class<? extends Throwable> type, String message,
            Consumer<PoTriangleMesh2D> onNode) {
        return Arguments.of(name, type, message, onNode);
    }

    static Stream<Arguments> refusedCalls() {
        return Stream.of(
                refused("null x", NullPointerException.class, "x is null", n -> n.setGeometry(3, null, Y3)),
                refused("short y", IllegalArgumentException.class, "y has 3 elements, 4 needed",
                        n -> n.setGeometry(4, new float[4], Y3)),
                refused("negative count", IllegalArgumentException.class, "numNodes is negative: -1",
                        n -> n.setGeometry(-1, X3, Y3)),
                refused("huge count", IllegalArgumentException.class, "numNodes is 2147483647",
                        n -> n.setGeometry(Integer.MAX_VALUE, X3, Y3)),
                refused("null z", NullPointerException.class, "z is null",
                        n -> n.setGeometry(3, X3, Y3, null, 1, new int[] {0, 1, 2})),
                refused("node index outside", IllegalArgumentException.class, "triangleNodes[2] is 3",
                        n -> n.setGeometry(3, X3, Y3, 1, new int[] {0, 1, 3})),
                refused("negative cells", IllegalArgumentException.class, "numCells is negative",
                        n -> n.setGeometry(3, X3, Y3, -2, new int[0])),
                refused("short values", IllegalArgumentException.class, "values has 2 elements, 3 needed",
                        n -> n.addValuesSet(0, new float[2], "v")),
                refused("null binding", NullPointerException.class, "binding is null",
                        n -> n.addValuesSet(0, new float[3], null, "v")),
                refused("per-cell values", IllegalArgumentException.class, "values has 0 elements, 1 needed",
                        n -> n.addValuesSet(0, new float[0], PoMeshProperty.DataBindings.PER_CELL, "v")),
                refused("null name", NullPointerException.class, "name is null",
                        n -> n.addValuesSet(0, new float[3], null)),
                refused("null strings", NullPointerException.class, "strings is null",
                        n -> n.addStringsSet(0, null, "s")),
                refused("short vectors", IllegalArgumentException.class, "vectors has 1 elements, 3 needed",
                        n -> n.addVecsSet(0, new SbVec3f[] {new SbVec3f()}, "v")),
                refused("null vector", NullPointerException.class, "vectors[1] is null",
                        n -> n.addVecsSet(0, new SbVec3f[] {new SbVec3f(), null, new SbVec3f()}, "v")));
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("refusedCalls")
    void refusesBeforeTheToolkitIsCalled(String name, Class<? extends Throwable> type, String message,
            Consumer<PoTriangleMesh2D> call) {
        try (PoTriangleMesh2D node = new PoTriangleMesh2D()) {
            node.setGeometry(3, X3, Y3, 1, new int[] {0, 1, 2});
            node.getMesh();
            Journal.start();
            Throwable t = assertThrows(type, () -> call.accept(node));
            List<String> journal = Journal.stop();
            assertTrue(t.getMessage().startsWith(message), t::getMessage);
            assertTrue(journal.stream().noneMatch(l -> l.startsWith("PoTriangleMesh2D::add")
                    || l.startsWith("PoSFTriangleMesh2D::setGeometry")), journal::toString);
        }
    }

    @Test
    void fieldsRefuseMissingAndDisposedArguments() {
        PbTriangleMesh2D disposed = new PbTriangleMesh2D(true);
        disposed.dispose();
        try (PoSFTriangleMesh2D field = new PoSFTriangleMesh2D(); SoGroup node = new SoGroup()) {
            PoSFTriangleMesh2D gone = new PoSFTriangleMesh2D();
            gone.dispose();
            PbTriangleMesh2D mesh = new PbTriangleMesh2D(true);
            assertEquals("mesh is null", assertThrows(NullPointerException.class,
                    () -> field.setValue((PbTriangleMesh2D) null)).getMessage());
            assertEquals("mesh has been disposed", assertThrows(IllegalStateException.class,
                    () -> field.setValue(disposed)).getMessage());
            assertEquals("other is null", assertThrows(NullPointerException.class, () -> field.isEqualTo(null))
                    .getMessage());
            assertEquals("other has been disposed", assertThrows(IllegalStateException.class,
                    () -> field.isEqualTo(gone)).getMessage());
            assertThrows(NullPointerException.class, () -> field.addToContainer(null, "f", 0, mesh));
            assertThrows(NullPointerException.class, () -> field.addToContainer(node, null, 0, mesh));
            assertThrows(NullPointerException.class, () -> field.addToContainer(node, "f", 0, null));
            SoGroup closed = new SoGroup();
            closed.dispose();
            assertThrows(IllegalStateException.class, () -> field.addToContainer(closed, "f", 0, mesh));
            for (Runnable call : List.<Runnable>of(gone::getValue, () -> gone.setValue(mesh),
                    () -> gone.isEqualTo(field), () -> gone.setGeometry(0, new float[0], new float[0]),
                    () -> gone.addValuesSet(0, new float[0], "v"), () -> gone.addToContainer(node, "f", 0, mesh))) {
                assertEquals("PoSFTriangleMesh2D has been disposed",
                        assertThrows(IllegalStateException.class, call::run).getMessage());
            }
        }
    }

    @Test
    void aDisposedNodeRefusesEveryCall() {
        PoRegularMesh1D node = new PoRegularMesh1D();
        node.dispose();
        for (Runnable call : List.<Runnable>of(node::getMesh, () -> node.setGeometry(2, 0, 1),
                () -> node.addValuesSet(0, new float[0], "v"), () -> node.addVecsSet(0, null, "v"))) {
            assertEquals("PoRegularMesh1D has been disposed",
                    assertThrows(IllegalStateException.class, call::run).getMessage());
        }
    }

    @Test
    void cellsOfANodesMeshStopWorkingWhenItsGeometryChanges() {
        try (PoRegularCartesianGrid2D node = new PoRegularCartesianGrid2D()) {
            node.setGeometry(3, 3, 0, 0, 1, 1, null);
            PbCell fromView = node.getMesh().getCell(0);
            assertEquals(0.25f, fromView.getArea(), 1e-6f);
            node.setGeometry(2, 2, 0, 0, 1, 1, null);
            assertThrows(IllegalStateException.class, fromView::getArea);
            assertEquals(1f, node.getMesh().getCell(0).getArea(), 1e-6f, "new cells work");
        }
    }

    @Test
    void cellsOfAFieldsMeshStopWorkingWhenItsValueChanges() {
        try (PoSFRegularCartesianGrid2D field = new PoSFRegularCartesianGrid2D(); SoGroup node = new SoGroup()) {
            PbRegularCartesianGrid2D grid = new PbRegularCartesianGrid2D(2, 2, 0, 0, 1, 1, true);
            for (Consumer<PoSFRegularCartesianGrid2D> change : List.<Consumer<PoSFRegularCartesianGrid2D>>of(
                    f -> f.setValue(grid), f -> f.setGeometry(3, 3, 0, 0, 1, 1, null),
                    f -> f.addToContainer(node, "f", 0, grid))) {
                field.setGeometry(2, 2, 0, 0, 1, 1, null);
                PbCell cell = field.getValue().getCell(0);
                cell.getArea();
                change.accept(field);
                assertThrows(IllegalStateException.class, cell::getArea);
            }
        }
    }

    @Test
    void theViewOfAMeshOutlivesTheDisposalOfItsNode() {
        PoRegularCartesianGrid2D node = new PoRegularCartesianGrid2D();
        node.setGeometry(4, 4, 0, 0, 1, 1, null);
        PbMesh mesh = node.getMesh();
        assertSame(mesh, node.getMesh(), "one view while it is reachable");
        node.dispose();
        assertTrue(node.isDisposed());
        assertEquals(16, mesh.getNumNodes(), "the view holds the node");
        assertFalse(mesh.isDisposed());
        mesh.dispose();
        assertThrows(IllegalStateException.class, mesh::getNumNodes);
    }
}
