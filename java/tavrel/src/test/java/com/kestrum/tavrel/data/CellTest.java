package com.kestrum.tavrel.data;

import static com.kestrum.tavrel.testkit.Natives.call;
import static com.kestrum.tavrel.testkit.Natives.handle;
import static org.junit.jupiter.api.Assertions.assertArrayEquals;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertTrue;

import com.kestrum.corvel.SbVec3f;
import com.kestrum.tavrel.internal.JavaViews;
import com.kestrum.tavrel.testkit.Journal;
import com.kestrum.tavrel.testkit.Natives;
import java.util.List;
import java.util.function.BiConsumer;
import java.util.function.Supplier;
import java.util.stream.Stream;
import org.junit.jupiter.api.Test;
import org.junit.jupiter.params.ParameterizedTest;
import org.junit.jupiter.params.provider.Arguments;
import org.junit.jupiter.params.provider.MethodSource;

/** Cells of every kind: counts, measures, location, interpolation, derivatives. */
class CellTest {
    // Unit cube corners in the hexahedron order.
    private static final float[] CX = {0, 1, 1, 0, 0, 1, 1, 0};
    private static final float[] CY = {0, 0, 1, 1, 0, 0, 1, 1};
    private static final float[] CZ = {0, 0, 0, 0, 1, 1, 1, 1};

    private static PbCell indexed3D(int type, int[] nodes) {
        float[] x = {0, 1, 1, 0, 0, 1, 1, 0, 0.5f};
        float[] y = {0, 0, 1, 1, 0, 0, 1, 1, 0.5f};
        float[] z = {0, 0, 0, 0, 1, 1, 1, 1, 1};
        return new PbIndexedMesh3D(9, x, y, z, 1, new int[] {type}, nodes, true).getCell(0);
    }

    static Stream<Arguments> kinds() {
        Supplier<PbCell> triangle = () -> new PbTriangleMesh2D(3, new float[] {0, 1, 0}, new float[] {0, 0, 1}, 1,
                new int[] {0, 1, 2}, true).getCell(0);
        Supplier<PbCell> quadrangle = () -> new PbCartesianGrid2D(2, 2, new float[] {0, 0, 2, 2},
                new float[] {0, 1, 0, 1}, true).getCell(0);
        Supplier<PbCell> pixel = () -> new PbRegularCartesianGrid2D(2, 2, 0, 0, 2, 1, true).getCell(0);
        Supplier<PbCell> tetrahedron = () -> new PbTetrahedronMesh3D(4, new float[] {0, 1, 0, 0},
                new float[] {0, 0, 1, 0}, new float[] {0, 0, 0, 1}, 1, new int[] {0, 1, 2, 3}, true).getCell(0);
        Supplier<PbCell> pyramid = () -> indexed3D(5, new int[] {0, 1, 2, 3, 8});
        Supplier<PbCell> wedge = () -> indexed3D(6, new int[] {0, 1, 3, 4, 5, 7});
        Supplier<PbCell> hexahedron = () -> new PbHexahedronMesh3D(8, CX, CY, CZ, 1,
                new int[] {0, 1, 2, 3, 4, 5, 6, 7}, true).getCell(0);
        Supplier<PbCell> voxel = () -> new PbParalCartesianGrid3D(2, 2, 2, new float[] {0, 1},
                new float[] {0, 1}, new float[] {0, 1}, true).getCell(0);
        // kind, cell, nodes, edges, facets, area, volume, longest edge
        return Stream.of(
                Arguments.of("triangle", triangle, 3, 3, 3, 0.5f, 0f, (float) Math.sqrt(2)),
                Arguments.of("quadrangle", quadrangle, 4, 4, 4, 2f, 0f, 2f),
                Arguments.of("pixel", pixel, 4, 4, 4, 2f, 0f, 2f),
                Arguments.of("tetrahedron", tetrahedron, 4, 6, 4, 0f, 1 / 6f, (float) Math.sqrt(2)),
                Arguments.of("pyramid", pyramid, 5, 8, 5, 0f, 1 / 3f, (float) Math.sqrt(1.5)),
                Arguments.of("wedge", wedge, 6, 9, 5, 0f, 0.5f, (float) Math.sqrt(2)),
                Arguments.of("hexahedron", hexahedron, 8, 12, 6, 0f, 1f, 1f),
                Arguments.of("voxel", voxel, 8, 12, 6, 0f, 1f, 1f));
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("kinds")
    void countsAndMeasures(String kind, Supplier<PbCell> make, int nodes, int edges, int facets, float area,
            float volume, float longest) {
        PbCell cell = make.get();
        assertEquals(nodes, cell.getNumNodes());
        assertEquals(edges, cell.getNumEdges());
        assertEquals(facets, cell.getNumFacets());
        assertEquals(area, cell.getArea(), 1e-6);
        assertEquals(volume, cell.getVolume(), 1e-6);
        assertEquals(longest, cell.getLongestEdgeLength(), 1e-6);
        assertEquals(0, cell.getIndex());
    }

    /** A linear field is reproduced exactly by every kind's interpolation, at the centre and elsewhere. */
    @ParameterizedTest(name = "{0}")
    @MethodSource("kinds")
    void locatesPointsAndInterpolatesLinearFields(String kind, Supplier<PbCell> make) {
        PbCell cell = make.get();
        int span = 0;
        for (int i = 0; i < cell.getNumNodes(); i++) {
            span = Math.max(span, cell.getNodeIndex(i) + 1);
        }
        boolean flat = cell.getVolume() == 0;
        float[] values = new float[span];
        SbVec3f[] vectors = new SbVec3f[span];
        java.util.Arrays.setAll(vectors, i -> new SbVec3f());
        for (int i = 0; i < cell.getNumNodes(); i++) {
            SbVec3f p = cell.getNodeCoord(i);
            values[cell.getNodeIndex(i)] = field(p);
            vectors[cell.getNodeIndex(i)] = new SbVec3f(p.getX(), 2 * p.getY(), flat ? 0 : p.getZ());
        }
        SbVec3f centre = cell.getCenter();
        SbVec3f inside = new SbVec3f(centre.getX() * 0.9f, centre.getY() * 1.05f, centre.getZ() * 0.95f);
        float[] pcoord = new float[3];
        assertEquals(1, cell.locatePoint(inside, 0, pcoord));
        assertEquals(field(inside), cell.getValue(new SbVec3f(pcoord), values), 1e-4);
        assertEquals(field(inside), cell.getValue(pcoord, values), 1e-4);
        SbVec3f v = cell.getValue(pcoord, vectors);
        assertEquals(inside.getX(), v.getX(), 1e-4);
        assertEquals(2 * inside.getY(), v.getY(), 1e-4);
        assertEquals(v, cell.getValue(new SbVec3f(pcoord), vectors));
    }

    private static float field(SbVec3f p) {
        return 1 + p.getX() + 2 * p.getY() + 3 * p.getZ();
    }

    @Test
    void locatePointReturnsTheToolkitResultAndAlwaysCopiesTheCoordinatesBack() {
        PbCell cell = new PbRegularCartesianGrid2D(2, 2, 0, 0, 1, 1, true).getCell(0);
        float[] pcoord = {7, 7, 7};
        assertEquals(0, cell.locatePoint(new SbVec3f(3, 0.5f, 0), 0, pcoord));
        assertArrayEquals(new float[] {3, 0.5f, 0}, pcoord, 1e-5f);
        assertEquals(1, cell.locatePoint(new SbVec3f(1.01f, 0.5f, 0), 0.02f, pcoord));
    }

    @Test
    void nodeIndicesAndCoordinatesAreTheMeshs() {
        PbRegularCartesianGrid3D grid = new PbRegularCartesianGrid3D(2, 3, 2, 0, 0, 0, 1, 2, 1, true);
        PbCell cell = grid.getCell(1);
        int[] expected = {2, 8, 10, 4, 3, 9, 11, 5};
        for (int i = 0; i < cell.getNumNodes(); i++) {
            assertEquals(expected[i], (int) call(cell, "getNodeIndexImpl", handle(cell), i));
            assertEquals(grid.getNodeCoord(expected[i]), cell.getNodeCoord(i));
        }
        assertArrayEquals(new float[] {0, 1, 0, 1, 2, 1}, cell.getBounds());
        assertArrayEquals(cell.getBounds(), cell.getBoundingBox());
        assertEquals(new SbVec3f(0.5f, 1.5f, 0.5f), cell.getCenter());
    }

    @Test
    void aCellMadeFromAMeshAloneHasNoNodesAndItsBoundsReadZero() {
        PbMesh mesh = new PbRegularCartesianGrid2D(2, 2, 0, 0, 1, 1, true);
        PbQuadrangleCell cell = new PbQuadrangleCell(mesh);
        assertEquals(0, cell.getNumNodes());
        assertEquals(-1, cell.getIndex());
        float[][] out = {{7}, {7}, {7}, {7}, {7}, {7}};
        call(cell, "getBoundsImpl", handle(cell), out[0], out[1], out[2], out[3], out[4], out[5]);
        for (float[] bound : out) {
            assertEquals(0f, bound[0]);
        }
        assertEquals(0f, cell.getValue(new float[3], new float[0]));
    }

    @Test
    void theCopyOfAMeshCellKeepsItsNodes() {
        PbCell source = new PbHexahedronMesh3D(8, CX, CY, CZ, 1, new int[] {0, 1, 2, 3, 4, 5, 6, 7}, true)
                .getCell(0);
        float[] pcoord = new float[3];
        long copy = (long) Natives.callStatic(PbHexahedronCell.class, "ctorImpl1", handle(source));
        PbCell cell = JavaViews.find(PbCell.class, copy, null);
        assertEquals(8, cell.getNumNodes());
        assertEquals(1f, cell.getVolume(), 1e-6);
        assertEquals(1, cell.locatePoint(new SbVec3f(0.5f, 0.5f, 0.5f), 0, pcoord));
    }

    @Test
    void shapeFunctionDerivativesOfEveryKindSumToZero() {
        PbMesh mesh = new PbRegularCartesianGrid2D(true);
        List<BiConsumer<SbVec3f, float[]>> derivatives = List.of(new PbQuadrangleCell(mesh)::getDerivs,
                new PbPyramidCell(mesh)::getDerivs, new PbWedgeCell(mesh)::getDerivs,
                new PbHexahedronCell(mesh)::getDerivs);
        int[] lengths = {PbQuadrangleCell.DERIVS_LENGTH, PbPyramidCell.DERIVS_LENGTH, PbWedgeCell.DERIVS_LENGTH,
                PbHexahedronCell.DERIVS_LENGTH};
        SbVec3f p = new SbVec3f(0.2f, 0.3f, 0.4f);
        for (int c = 0; c < lengths.length; c++) {
            float[] derivs = new float[lengths[c]];
            derivatives.get(c).accept(p, derivs);
            int n = lengths[c] / 3;
            for (int axis = 0; axis < (c == 0 ? 2 : 3); axis++) {
                float sum = 0;
                for (int i = 0; i < n; i++) {
                    sum += derivs[axis * n + i];
                }
                assertEquals(0f, sum, 1e-6, "kind " + c + " axis " + axis);
            }
        }
        float[] derivs = new float[24];
        derivatives.get(3).accept(new SbVec3f(0, 0, 0), derivs);
        assertEquals(-1f, derivs[0]);
        assertEquals(1f, derivs[1]);
        assertEquals(1f, derivs[8 + 3], "dN3/dv at the origin");
        assertEquals(1f, derivs[16 + 4], "dN4/dw at the origin");
    }

    @Test
    void aNullVectorArrayReachesTheToolkitAsNull() {
        PbCell cell = new PbRegularCartesianGrid2D(2, 2, 0, 0, 1, 1, true).getCell(0);
        float[] out = {5, 5, 5};
        Journal.start();
        call(cell, "getValueImpl1", handle(cell), new float[] {0.5f, 0.5f, 0}, null, out);
        call(cell, "getValueImpl3", handle(cell), new float[] {0.5f, 0.5f, 0}, new Object[0], out);
        List<String> lines = Journal.stop();
        assertTrue(lines.contains("PbCell::getValue((0.5, 0.5, 0), null)"), lines.toString());
        assertTrue(lines.contains("PbCell::getValue(const float*)([0.5, 0.5, 0], null)"), lines.toString());
        assertArrayEquals(new float[] {0, 0, 0}, out);
    }
}
