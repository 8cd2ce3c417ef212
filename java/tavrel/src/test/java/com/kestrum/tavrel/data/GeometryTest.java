package com.kestrum.tavrel.data;

import static com.kestrum.tavrel.testkit.Natives.call;
import static com.kestrum.tavrel.testkit.Natives.handle;
import static com.kestrum.tavrel.testkit.Natives.pointer;
import static org.junit.jupiter.api.Assertions.assertArrayEquals;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertNotNull;
import static org.junit.jupiter.api.Assertions.assertNull;
import static org.junit.jupiter.api.Assertions.assertSame;
import static org.junit.jupiter.api.Assertions.assertThrows;
import static org.junit.jupiter.api.Assertions.assertTrue;

import com.kestrum.corvel.SbVec3f;
import com.kestrum.tavrel.internal.JavaViews;
import com.kestrum.tavrel.testkit.Journal;
import java.nio.ByteBuffer;
import java.nio.FloatBuffer;
import java.util.List;
import org.junit.jupiter.api.Test;

/** Coordinates, node arrays, boxes, cell search, measures and fault meshes. */
class GeometryTest {
    private static final float[] X4 = {0, 2, 2, 0};
    private static final float[] Y4 = {0, 0, 1, 1};

    private static float[] floats(FloatBuffer b) {
        float[] out = new float[b.capacity()];
        b.get(0, out);
        return out;
    }

    @Test
    void meshesGiveTheCoordinateArraysTheyKeep() {
        FloatBuffer[] c = new PbCartesianGrid2D(2, 2, X4, Y4, true).getCoordinates();
        assertArrayEquals(X4, floats(c[0]));
        assertArrayEquals(Y4, floats(c[1]));
        assertNull(c[2]);

        c = new PbParalCartesianGrid2D(3, 2, new float[] {0, 1, 5}, new float[] {-1, 1}, new float[6], true)
                .getCoordinates();
        assertEquals(3, c[0].capacity());
        assertEquals(2, c[1].capacity());
        assertEquals(6, c[2].capacity());

        c = new PbIrregularMesh1D(2, new float[] {3, 4}).getCoordinates();
        assertArrayEquals(new float[] {3, 4}, floats(c[0]));
        assertNull(c[1]);
        assertNull(c[2]);
    }

    @Test
    void aMeshWithoutCoordinateArraysStoresNullIntoEveryOutput() {
        for (PbMesh mesh : List.of(new PbRegularCartesianGrid2D(2, 2, 0, 0, 1, 1, true),
                new PbRegularCartesianGrid3D(2, 2, 2, 0, 0, 0, 1, 1, 1, true), new PbRegularMesh1D(4, 0, 1),
                new PbPolarGrid2D(2, 2, new float[] {1, 2}, new float[] {0, 90}, true))) {
            Object[][] outs = {{"x"}, {"y"}, {"z"}};
            call(mesh, "getCoordinatesImpl", handle(mesh), outs[0], outs[1], outs[2]);
            for (Object[] out : outs) {
                assertNull(out[0], mesh.getClass().getSimpleName());
            }
        }
    }

    @Test
    void indexedMeshesGiveTheirNodeArrays() {
        float[] z = {5, 6, 7, 8};
        PbIndexedMesh2D flat = new PbIndexedMesh2D(4, X4, Y4, 1, new int[] {4}, new int[] {0, 1, 2, 3}, true);
        FloatBuffer[] nodes = flat.getNodes();
        assertArrayEquals(X4, floats(nodes[0]));
        assertArrayEquals(Y4, floats(nodes[1]));
        assertNull(nodes[2]);
        ByteBuffer raw = (ByteBuffer) ((Object[]) withOutputs(flat))[0];
        assertEquals(16, raw.capacity());

        PbIndexedMesh2D raised = new PbIndexedMesh2D(4, X4, Y4, z, 1, new int[] {4}, new int[] {0, 1, 2, 3}, true);
        assertArrayEquals(z, floats(raised.getNodes()[2]));
        assertEquals(2, raised.get2DNodes().length);
        assertArrayEquals(Y4, floats(raised.get2DNodes()[1]));

        PbIndexedMesh3D solid = new PbTetrahedronMesh3D(4, new float[] {0, 1, 0, 0}, new float[] {0, 0, 1, 0},
                new float[] {0, 0, 0, 1}, 1, new int[] {0, 1, 2, 3}, true);
        assertArrayEquals(new float[] {0, 0, 0, 1}, floats(solid.getNodes()[2]));
    }

    private static Object withOutputs(PbIndexedMesh2D mesh) {
        Object[] x = new Object[1];
        call(mesh, "getNodesImpl", handle(mesh), x, new Object[1], new Object[1]);
        return x;
    }

    @Test
    void setCoordinatesReplacesKeptArraysAndPassesNullsOn() {
        PbCartesianGrid2D grid = new PbCartesianGrid2D(2, 2, X4, Y4, true);
        grid.setCoordinates(null, new float[] {1, 1, 3, 3}, null);
        assertArrayEquals(new float[] {0, 1, 0, 2, 3, 0}, grid.getBoundingBox());
        assertArrayEquals(new float[] {1, 1, 3, 3}, floats(grid.getCoordinates()[1]));

        PbRegularCartesianGrid2D regular = new PbRegularCartesianGrid2D(2, 2, 0, 0, 1, 1, true);
        Journal.start();
        regular.setCoordinates(new float[] {9, 9, 9, 9}, null, null);
        List<String> lines = Journal.stop();
        assertTrue(lines.contains("PbMesh::setCoordinates([9, 9, 9, 9], null, null)"), lines.toString());
        assertEquals(new SbVec3f(1, 1, 0), regular.getNodeCoord(3));
    }

    @Test
    void nodeCoordinatesAndBoxes() {
        PbPolarGrid2D polar = new PbPolarGrid2D(2, 2, new float[] {1, 2}, new float[] {0, 90}, true);
        SbVec3f top = polar.getNodeCoord(1, 1);
        assertEquals(0f, top.getX(), 1e-6);
        assertEquals(2f, top.getY(), 1e-6);
        assertEquals(polar.getNodeCoord(3).getY(), top.getY());

        PbRegularCartesianGrid3D cube = new PbRegularCartesianGrid3D(3, 3, 3, 0, 0, 0, 2, 4, 6, true);
        assertEquals(new SbVec3f(1, 2, 6), cube.getNodeCoord(1, 1, 2));
        assertArrayEquals(new float[] {0, 0, 0, 2, 4, 6}, cube.getBoundingBox());

        PbTriangleMesh2D mesh = new PbTriangleMesh2D(4, X4, Y4, new float[] {0, 0, 9, 0}, 2,
                new int[] {0, 1, 2, 0, 2, 3}, true);
        assertArrayEquals(new float[] {0, 0, 2, 1}, mesh.get2DBoundingBox());
        assertArrayEquals(new float[] {0, 0, 0, 2, 1, 9}, mesh.getBoundingBox());
    }

    @Test
    void smallestAndBiggestCellBoxes() {
        PbParalCartesianGrid2D grid = new PbParalCartesianGrid2D(4, 2, new float[] {0, 1, 1.5f, 4},
                new float[] {0, 1}, true);
        float[] box = new float[6];
        assertEquals(1, grid.getSmallestCellBox(box));
        assertArrayEquals(new float[] {1, 0, 0, 1.5f, 1, 0}, box);
        assertEquals(2, grid.getBiggestCellBox(box));
        assertArrayEquals(new float[] {1.5f, 0, 0, 4, 1, 0}, box);

        int[] cell = {77};
        float[] box1D = new float[6];
        PbMesh line = new PbIrregularMesh1D(3, new float[] {0, 1, 2});
        call(line, "getSmallestCellBoxImpl", handle(line), cell, box1D);
        assertEquals(0, cell[0], "the index local starts at 0");
        assertTrue(box1D[0] > box1D[3], "an empty box");
    }

    @Test
    void findsTheCellContainingAPointWithItsParametricCoordinates() {
        PbRegularCartesianGrid2D grid = new PbRegularCartesianGrid2D(3, 3, 0, 0, 2, 2, true);
        float[] pcoord = new float[3];
        PbCell cell = grid.findContainingCell(new SbVec3f(1.25f, 0.5f, 0), 0, pcoord);
        assertNotNull(cell);
        assertEquals(2, cell.getIndex());
        assertArrayEquals(new int[] {1, 0}, grid.getCellIndices(cell.getIndex()));
        assertArrayEquals(new float[] {0.25f, 0.5f, 0}, pcoord, 1e-5f);

        float[] again = new float[3];
        PbCell same = grid.findContainingCell(new SbVec3f(1.25f, 0.5f, 0), 0, again, null);
        assertEquals(handle(cell), handle(same));
        assertArrayEquals(pcoord, again);
        long viaNative = (long) call(grid, "findContainingCellImpl", handle(grid), new float[] {1.25f, 0.5f, 0}, 0f,
                new float[3], 0L);
        assertEquals(handle(cell), viaNative, "an adjacent-cell handle of 0 searches like the other overload");

        PbCell next = grid.findContainingCell(new SbVec3f(1.9f, 1.9f, 0), 0, pcoord, cell);
        assertEquals(3, next.getIndex());
        assertNull(grid.findContainingCell(new SbVec3f(5, 5, 0), 0, pcoord));
    }

    @Test
    void findsCellsOfThreeDimensionalMeshes() {
        PbHexahedronMesh3D hexa = new PbHexahedronMesh3D(8, new float[] {0, 2, 2, 0, 0, 2, 2, 0},
                new float[] {0, 0, 2, 2, 0, 0, 2, 2}, new float[] {0, 0, 0, 0, 2, 2, 2, 2}, 1,
                new int[] {0, 1, 2, 3, 4, 5, 6, 7}, true);
        float[] pcoord = new float[3];
        PbCell cell = hexa.findContainingCell(new SbVec3f(0.5f, 1, 1.5f), 0, pcoord);
        assertArrayEquals(new float[] {0.25f, 0.5f, 0.75f}, pcoord, 1e-5f);
        assertEquals(8f, hexa.getVolume(), 1e-5);
        assertEquals(0f, hexa.getArea());
        float[] values = {0, 1, 2, 3, 4, 5, 6, 7};
        assertEquals(interpolateTrilinear(values, 0.25f, 0.5f, 0.75f), cell.getValue(new SbVec3f(pcoord), values),
                1e-5);
        assertNull(hexa.findContainingCell(new SbVec3f(0.5f, 1, 2.5f), 0, pcoord));
        assertNotNull(hexa.findContainingCell(new SbVec3f(0.5f, 1, 2.01f), 0.01f, pcoord), "within the tolerance");
    }

    private static float interpolateTrilinear(float[] v, float u, float w2, float w) {
        float[] bottom = {v[0], v[1], v[2], v[3]};
        float[] top = {v[4], v[5], v[6], v[7]};
        return (1 - w) * bilinear(bottom, u, w2) + w * bilinear(top, u, w2);
    }

    private static float bilinear(float[] q, float u, float v) {
        return (1 - u) * (1 - v) * q[0] + u * (1 - v) * q[1] + u * v * q[2] + (1 - u) * v * q[3];
    }

    @Test
    void measuresOfWholeMeshes() {
        PbQuadrangleMesh2D quads = new PbQuadrangleMesh2D(4, X4, Y4, 1, new int[] {0, 1, 2, 3}, true);
        assertEquals(2f, quads.getArea(), 1e-6);
        assertEquals(0f, quads.getVolume());
        PbTriangleMesh2D fan = new PbTriangleMesh2D(true);
        fan.setGeometry(5, new float[] {0, 1, 1, 0.5f, 0}, new float[] {0, 0, 1, 1.5f, 1});
        assertEquals(3, fan.getNumCells());
        assertEquals(1.25f, fan.getArea(), 1e-6);
    }

    @Test
    void oneDimensionalMeshesHaveNoCells() {
        PbRegularMesh1D line = new PbRegularMesh1D(5, 0, 4);
        assertEquals(4, line.getNumCells());
        assertNull(line.getCell(0));
        assertNull(line.findContainingCell(new SbVec3f(1, 0, 0), 0, new float[3]));
        assertNull(line.findContainingCell(new SbVec3f(1, 0, 0), 0, new float[3], null));
        assertEquals(0f, line.getVolume());
        assertEquals(0f, line.getArea());
        assertEquals(new SbVec3f(3, 0, 0), line.getNodeCoord(3));
    }

    @Test
    void cellsStopWorkingWhenTheGeometryChanges() {
        PbRegularCartesianGrid2D grid = new PbRegularCartesianGrid2D(3, 3, 0, 0, 2, 2, true);
        PbCell cell = grid.getCell(0);
        assertEquals(4, cell.getNumNodes());
        grid.setGeometry(4, 4, 0, 0, 3, 3);
        assertThrows(IllegalStateException.class, cell::getNumNodes);
        assertEquals(9, grid.getNumCells());
        assertEquals(4, grid.getCell(8).getNumNodes());
    }

    @Test
    void dataSetsFollowAChangeOfNodeCount() {
        PbRegularCartesianGrid2D grid = new PbRegularCartesianGrid2D(2, 2, 0, 0, 1, 1, true);
        grid.addValuesSet(0, new float[] {1, 2, 3, 4}, "t");
        grid.setGeometry(3, 2, 0, 0, 1, 1);
        assertArrayEquals(new float[] {1, 2, 3, 4, 0, 0}, grid.getValuesSet(0));
    }

    @Test
    void theFaultMeshIsTheToolkitsWithAStackFunctorAndTheFirstExtrapolation() {
        PbTriangleMesh2D mesh = new PbTriangleMesh2D(4, X4, Y4, 2, new int[] {0, 1, 2, 0, 2, 3}, true);
        mesh.addValuesSet(1, new float[] {1, 2, 3, 4}, "h");
        Journal.start();
        PbMesh2D fault = mesh.getFaultMesh(2, new int[] {0, 2}, null);
        List<String> lines = Journal.stop();
        int made = lines.indexOf("PbDefinedValue::PbDefinedValue()");
        String call = lines.get(made + 1);
        assertTrue(call.startsWith("PbMesh2D::getFaultMesh(2, [0, 2], null, 0, 0x"), call);
        assertEquals("PbDefinedValue::~PbDefinedValue()", lines.get(made + 2));
        assertEquals(4, fault.getNumNodes());
        assertEquals(2, fault.getNumCells());
        assertArrayEquals(new float[] {1, 2, 3, 4}, fault.getValuesSet(1));
        assertSame(fault, JavaViews.find(PbMesh2D.class, handle(fault), null));

        Journal.start();
        mesh.getFaultMesh(1, new int[] {3}, new SbVec3f[] {new SbVec3f(0, 0, 1)});
        lines = Journal.linesStartingWith("PbMesh2D::getFaultMesh");
        Journal.stop();
        assertTrue(lines.get(0).startsWith("PbMesh2D::getFaultMesh(1, [3], [(0, 0, 1)], 0, "), lines.toString());
    }

    @Test
    void aRegularGridFromAnotherGridKeepsItsExtent() {
        PbRegularCartesianGrid2D source = new PbRegularCartesianGrid2D(2, 2, -1, -2, 3, 4, false);
        PbRegularCartesianGrid2D grid = new PbRegularCartesianGrid2D(5, 3, source);
        assertEquals(15, grid.getNumNodes());
        assertArrayEquals(source.getBoundingBox(), grid.getBoundingBox());
        assertEquals(new SbVec3f(0, 1, 0), grid.getNodeCoord(1, 1));
    }

    @Test
    void meshAddressesGiveTheirJavaPeersOrViews() {
        PbCartesianGrid3D grid = new PbCartesianGrid3D(true);
        assertSame(grid, JavaViews.find(PbMesh.class, handle(grid), null));
        assertSame(grid, JavaViews.find(PbMesh3D.class, handle(grid), null));
        assertNull(JavaViews.find(PbMesh.class, 0, null));
        PbCell cell = new PbRegularCartesianGrid2D(2, 2, 0, 0, 1, 1, true).getCell(0);
        PbCell view = JavaViews.find(PbCell.class, handle(cell), null);
        assertEquals(handle(cell), handle(view));
        assertEquals(4, view.getNumNodes());
        assertEquals(pointer(handle(cell)), pointer(handle(view)));
    }

    @Test
    void directBuffersHaveTheExactCapacities() {
        PbParalCartesianGrid2D grid = new PbParalCartesianGrid2D(3, 2, new float[] {0, 1, 5}, new float[] {-1, 1},
                true);
        Object[][] outs = {{null}, {null}, {"z"}};
        call(grid, "getCoordinatesImpl", handle(grid), outs[0], outs[1], outs[2]);
        assertEquals(12, ((ByteBuffer) outs[0][0]).capacity());
        assertEquals(8, ((ByteBuffer) outs[1][0]).capacity());
        assertNull(outs[2][0]);
        grid.addVecsSet(0, new SbVec3f[] {new SbVec3f(), new SbVec3f(), new SbVec3f(), new SbVec3f(),
            new SbVec3f(), new SbVec3f()}, "v");
        assertEquals(72, ((ByteBuffer) call(grid, "getDirectVecsSetImpl", handle(grid), 0)).capacity());
    }

    /** The binding core's wrappers (used by native code) give the peers too. */
    @Test
    void theBindingCoreFindsMeshPeersAndCellViews() throws Exception {
        PbTriangleMesh2D mesh = new PbTriangleMesh2D(3, new float[] {0, 1, 0}, new float[] {0, 0, 1}, 1,
                new int[] {0, 1, 2}, true);
        java.lang.reflect.Method managed = com.kestrum.corvel.misc.ManagedObjects.class
                .getDeclaredMethod("getManagedObject", String.class, long.class);
        managed.setAccessible(true);
        assertSame(mesh, managed.invoke(null, "com.kestrum.tavrel.data.PbMesh2D", handle(mesh)));
        PbCell cell = (PbCell) managed.invoke(null, "com.kestrum.tavrel.data.PbCell", handle(mesh.getCell(0)));
        assertEquals(3, cell.getNumNodes());
        PbTetrahedronMesh3D tetrahedra = new PbTetrahedronMesh3D(true);
        assertSame(tetrahedra, managed.invoke(null, "com.kestrum.tavrel.data.PbMesh", handle(tetrahedra)));
    }
}
