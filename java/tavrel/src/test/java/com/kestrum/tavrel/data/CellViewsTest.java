package com.kestrum.tavrel.data;

import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertNotSame;
import static org.junit.jupiter.api.Assertions.assertThrows;
import static org.junit.jupiter.params.provider.Arguments.arguments;

import com.kestrum.corvel.actions.SoCallbackAction;
import com.kestrum.corvel.misc.ManagedObjects;
import com.kestrum.tavrel.internal.JavaViews;
import com.kestrum.tavrel.misc.callbacks.PoProbeCB;
import java.util.function.Consumer;
import java.util.function.Supplier;
import java.util.stream.Stream;
import org.junit.jupiter.api.Test;
import org.junit.jupiter.params.ParameterizedTest;
import org.junit.jupiter.params.provider.Arguments;
import org.junit.jupiter.params.provider.MethodSource;

/**
 * Every view of a cell stops working once its mesh may have freed it: after any change of the
 * mesh's geometry, whichever Java object of the mesh made it, and, for a cell whose mesh is not
 * known, after a change of any mesh's geometry. Cells made by constructors belong to their Java
 * objects and keep working.
 */
class CellViewsTest {
    private static final float[] X4 = {0, 1, 1, 0};
    private static final float[] Y4 = {0, 0, 1, 1};
    private static final float[] Z4 = {0, 0, 0, 0};
    private static final float[] A2 = {0, 1};
    private static final int[] TWO_TRIANGLES = {0, 1, 2, 0, 2, 3};
    private static final float[] CUBE_X = {0, 1, 1, 0, 0, 1, 1, 0};
    private static final float[] CUBE_Y = {0, 0, 1, 1, 0, 0, 1, 1};
    private static final float[] CUBE_Z = {0, 0, 0, 0, 1, 1, 1, 1};
    private static final int[] CUBE = {0, 1, 2, 3, 4, 5, 6, 7};
    private static final int[] TETRAHEDRON = {0, 1, 3, 4};

    private static <M extends PbMesh> Arguments change(String name, Supplier<M> make, Consumer<M> change) {
        return arguments(name, make, change);
    }

    private static PbCartesianGrid2D cartesian2D() {
        return new PbCartesianGrid2D(2, 2, X4, Y4, false);
    }

    private static PbIndexedMesh2D indexed2D() {
        return new PbIndexedMesh2D(4, X4, Y4, 2, new int[] {3, 3}, TWO_TRIANGLES, false);
    }

    private static PbIndexedMesh3D indexed3D() {
        return new PbIndexedMesh3D(8, CUBE_X, CUBE_Y, CUBE_Z, 1, new int[] {8}, CUBE, false);
    }

    /** Every Java operation that replaces a geometry, on a mesh with cells. */
    static Stream<Arguments> geometryChanges() {
        return Stream.of(
                change("PbRegularCartesianGrid2D.setGeometry", () -> new PbRegularCartesianGrid2D(2, 2, 0, 0, 1, 1, false),
                        m -> m.setGeometry(2, 2, 0, 0, 2, 2)),
                change("PbRegularCartesianGrid2D.setGeometry(z)",
                        () -> new PbRegularCartesianGrid2D(2, 2, 0, 0, 1, 1, false),
                        m -> m.setGeometry(2, 2, 0, 0, 2, 2, Z4)),
                change("PbRegularCartesianGrid3D.setGeometry",
                        () -> new PbRegularCartesianGrid3D(2, 2, 2, 0, 0, 0, 1, 1, 1, false),
                        m -> m.setGeometry(2, 2, 2, 0, 0, 0, 2, 2, 2)),
                change("PbGrid2D.setGeometry", CellViewsTest::cartesian2D, m -> m.setGeometry(2, 2, X4, Y4)),
                change("PbGrid2D.setGeometry(z)", () -> new PbPolarGrid2D(2, 2, A2, A2, false),
                        m -> m.setGeometry(2, 2, A2, A2, Z4)),
                change("PbGrid3D.setGeometry", () -> new PbParalCartesianGrid3D(2, 2, 2, A2, A2, A2, false),
                        m -> m.setGeometry(2, 2, 2, A2, A2, A2)),
                change("PbMesh.setCoordinates", CellViewsTest::cartesian2D, m -> m.setCoordinates(X4, null, null)),
                change("PbMesh.setCoordinates(3D)", CellViewsTest::indexed3D, m -> m.setCoordinates(null, null, CUBE_Z)),
                change("PbIndexedMesh2D.setGeometry", CellViewsTest::indexed2D,
                        m -> m.setGeometry(4, X4, Y4, 2, new int[] {3, 3}, TWO_TRIANGLES)),
                change("PbIndexedMesh2D.setGeometry(z)", CellViewsTest::indexed2D,
                        m -> m.setGeometry(4, X4, Y4, Z4, 1, new int[] {4}, new int[] {0, 1, 2, 3})),
                change("PbTriangleMesh2D.setGeometry", () -> new PbTriangleMesh2D(4, X4, Y4, 2, TWO_TRIANGLES, false),
                        m -> m.setGeometry(4, X4, Y4, 2, TWO_TRIANGLES)),
                change("PbTriangleMesh2D.setGeometry(z)",
                        () -> new PbTriangleMesh2D(4, X4, Y4, 2, TWO_TRIANGLES, false),
                        m -> m.setGeometry(4, X4, Y4, Z4, 2, TWO_TRIANGLES)),
                change("PbTriangleMesh2D.setGeometry(fan)",
                        () -> new PbTriangleMesh2D(4, X4, Y4, 2, TWO_TRIANGLES, false), m -> m.setGeometry(4, X4, Y4)),
                change("PbQuadrangleMesh2D.setGeometry",
                        () -> new PbQuadrangleMesh2D(4, X4, Y4, 1, new int[] {0, 1, 2, 3}, false),
                        m -> m.setGeometry(4, X4, Y4, 1, new int[] {0, 1, 2, 3})),
                change("PbQuadrangleMesh2D.setGeometry(z)",
                        () -> new PbQuadrangleMesh2D(4, X4, Y4, 1, new int[] {0, 1, 2, 3}, false),
                        m -> m.setGeometry(4, X4, Y4, Z4, 1, new int[] {0, 1, 2, 3})),
                change("PbIndexedMesh3D.setGeometry", CellViewsTest::indexed3D,
                        m -> m.setGeometry(8, CUBE_X, CUBE_Y, CUBE_Z, 1, new int[] {8}, CUBE)),
                change("PbTetrahedronMesh3D.setGeometry",
                        () -> new PbTetrahedronMesh3D(8, CUBE_X, CUBE_Y, CUBE_Z, 1, TETRAHEDRON, false),
                        m -> m.setGeometry(8, CUBE_X, CUBE_Y, CUBE_Z, 1, TETRAHEDRON)),
                change("PbHexahedronMesh3D.setGeometry",
                        () -> new PbHexahedronMesh3D(8, CUBE_X, CUBE_Y, CUBE_Z, 1, CUBE, false),
                        m -> m.setGeometry(8, CUBE_X, CUBE_Y, CUBE_Z, 1, CUBE)));
    }

    /** Another Java object of the same native mesh: a view, made while the mesh has no registered peer. */
    private static PbMesh otherObjectOf(PbMesh mesh) {
        long handle = mesh.getNativeResourceHandleInternal();
        ManagedObjects.unregisterPeer(handle, mesh);
        PbMesh view = JavaViews.find(PbMesh.class, handle, null);
        assertNotSame(mesh, view);
        return view;
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("geometryChanges")
    <M extends PbMesh> void cellsOfEveryJavaObjectOfTheMeshRefuseAfterTheChange(String name, Supplier<M> make,
            Consumer<M> change) {
        M mesh = make.get();
        PbCell own = mesh.getCell(0);
        PbCell throughView = otherObjectOf(mesh).getCell(0);
        PbCell unknownMesh = JavaViews.find(PbCell.class, own.getNativeResourceHandleInternal(), null);
        own.getNumNodes();
        throughView.getNumNodes();
        unknownMesh.getNumNodes();

        change.accept(mesh);

        for (PbCell cell : new PbCell[] {own, throughView, unknownMesh}) {
            IllegalStateException e = assertThrows(IllegalStateException.class, cell::getVolume, name);
            assertEquals("the cell's mesh has changed since the cell was obtained", e.getMessage());
        }
        mesh.getCell(0).getNumNodes();
    }

    @Test
    void aCellOfAnUnknownMeshRefusesAfterAChangeOfAnyMesh() {
        PbCartesianGrid2D mesh = cartesian2D();
        PbCell unknownMesh = JavaViews.find(PbCell.class, mesh.getCell(0).getNativeResourceHandleInternal(), null);
        PbCell own = mesh.getCell(0);
        new PbRegularMesh1D().setGeometry(3, 0, 1);
        own.getNumNodes();
        assertThrows(IllegalStateException.class, unknownMesh::getNumNodes);
    }

    @Test
    void aCellOfADisposedMeshObjectRefusesButACellMadeByAConstructorKeepsWorking() {
        PbTriangleMesh2D mesh = new PbTriangleMesh2D(4, X4, Y4, 2, TWO_TRIANGLES, false);
        PbCell own = mesh.getCell(1);
        PbTriangleCell made = new PbTriangleCell(mesh);
        PbTriangleCell copy = new PbTriangleCell(made);
        mesh.setGeometry(4, X4, Y4);
        mesh.dispose();
        assertThrows(IllegalStateException.class, own::getNumNodes);
        assertEquals(0, made.getNumNodes());
        assertEquals(0, copy.getNumNodes());
    }

    /** The cell handed to a probe's listener belongs to the probe's mesh. */
    @Test
    void aProbesCellRefusesAfterAChangeOfTheProbesMeshOnly() {
        PbRegularCartesianGrid2D grid = new PbRegularCartesianGrid2D(3, 3, 0, 0, 1, 1, false);
        PbRegularCartesianGrid2D other = new PbRegularCartesianGrid2D(3, 3, 0, 0, 1, 1, false);
        PbCell[] seen = new PbCell[1];
        try (PoMeshProbePoint probe = new PoMeshProbePoint(); SoCallbackAction action = new SoCallbackAction()) {
            probe.setMesh(grid);
            probe.setMotionCallback(new PoProbeCB((p, cell, handle, data) -> seen[0] = cell), null);
            probe.setPosition(0.75f, 0.25f, 0);
            action.apply(probe);
        }
        assertEquals(2, seen[0].getIndex());
        other.setGeometry(2, 2, 0, 0, 1, 1);
        assertEquals(2, seen[0].getIndex());
        grid.setGeometry(2, 2, 0, 0, 1, 1);
        assertThrows(IllegalStateException.class, seen[0]::getIndex);
    }

    /** A probe whose Java object does not know its mesh (a view) hands out cells of an unknown mesh. */
    @Test
    void theCellOfAProbeViewRefusesAfterAChangeOfAnyMesh() {
        PbRegularCartesianGrid2D grid = new PbRegularCartesianGrid2D(3, 3, 0, 0, 1, 1, false);
        PbCell[] seen = new PbCell[1];
        PoMeshProbePoint[] probes = new PoMeshProbePoint[1];
        try (PoMeshProbePoint probe = new PoMeshProbePoint(); SoCallbackAction action = new SoCallbackAction()) {
            probe.setMesh(grid);
            probe.setMotionCallback(new PoProbeCB((p, cell, handle, data) -> {
                probes[0] = p;
                seen[0] = cell;
            }), null);
            probe.setPosition(0.75f, 0.25f, 0);
            ManagedObjects.unregisterPeer(probe.getNativeResourceHandleInternal(), probe);
            action.apply(probe);
            assertNotSame(probe, probes[0]);
            probes[0].dispose();
        }
        assertEquals(2, seen[0].getIndex());
        new PbRegularMesh1D().setGeometry(3, 0, 1);
        assertThrows(IllegalStateException.class, seen[0]::getIndex);
    }
}
