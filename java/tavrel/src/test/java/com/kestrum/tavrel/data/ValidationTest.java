package com.kestrum.tavrel.data;

import static org.junit.jupiter.api.Assertions.assertThrows;
import static org.junit.jupiter.api.Assertions.assertTrue;

import com.kestrum.corvel.SbVec2f;
import com.kestrum.corvel.SbVec3f;
import com.kestrum.tavrel.testkit.Journal;
import java.util.List;
import java.util.stream.Stream;
import org.junit.jupiter.api.function.Executable;
import org.junit.jupiter.params.ParameterizedTest;
import org.junit.jupiter.params.provider.Arguments;
import org.junit.jupiter.params.provider.MethodSource;

/** Misuse from Java is refused with a clear exception before any native call. */
class ValidationTest {
    private static final float[] X4 = {0, 1, 1, 0};
    private static final float[] Y4 = {0, 0, 1, 1};

    private static PbRegularCartesianGrid2D grid() {
        return new PbRegularCartesianGrid2D(3, 3, 0, 0, 1, 1, true);
    }

    private static Arguments refused(String what, Class<? extends Throwable> expected, Executable misuse) {
        return Arguments.of(what, expected, misuse);
    }

    static Stream<Arguments> misuses() {
        PbRegularCartesianGrid2D g = grid();
        PbRegularCartesianGrid2D disposed = grid();
        disposed.dispose();
        PbRegularCartesianGrid2D changed = grid();
        PbCell stale = changed.getCell(0);
        changed.setGeometry(2, 2, 0, 0, 1, 1);
        PbCell cell = g.getCell(3);
        PbHexahedronCell hexahedron = new PbHexahedronCell(g);
        PbIndexedMesh2D indexed = new PbIndexedMesh2D(true);
        return Stream.of(
                refused("null values", NullPointerException.class, () -> g.addValuesSet(0, null, "n")),
                refused("short values", IllegalArgumentException.class, () -> g.addValuesSet(0, new float[8], "n")),
                refused("short per-cell values", IllegalArgumentException.class,
                        () -> g.addValuesSet(0, new float[3], PbMesh.DataBindings.PER_CELL, "n")),
                refused("null binding", NullPointerException.class, () -> g.addValuesSet(0, new float[9], null, "n")),
                refused("null name", NullPointerException.class, () -> g.addValuesSet(0, new float[9], null)),
                refused("short vectors", IllegalArgumentException.class,
                        () -> g.addVecsSet(0, new SbVec3f[2], "n")),
                refused("a null vector", NullPointerException.class, () -> g.addVecsSet(0, withNull3(9), "n")),
                refused("a null 2D vector", NullPointerException.class, () -> g.addVecsSet(0, withNull2(9), "n")),
                refused("short strings", IllegalArgumentException.class, () -> g.addStringsSet(0, new String[1], "n")),
                refused("empty min output", IllegalArgumentException.class, () -> g.getMinValuesSet(0, new float[0])),
                refused("null max output", NullPointerException.class, () -> g.getMaxVecsSet(0, null)),
                refused("short box", IllegalArgumentException.class, () -> g.getBiggestCellBox(new float[5])),
                refused("node index", IndexOutOfBoundsException.class, () -> g.getNodeCoord(9)),
                refused("cell index", IndexOutOfBoundsException.class, () -> g.getCell(-1)),
                refused("grid index", IndexOutOfBoundsException.class, () -> g.getNodeCoord(0, 3)),
                refused("short pcoord", IllegalArgumentException.class,
                        () -> g.findContainingCell(new SbVec3f(), 0, new float[2])),
                refused("null point", NullPointerException.class, () -> g.findContainingCell(null, 0, new float[3])),
                refused("short coordinates", IllegalArgumentException.class,
                        () -> g.setCoordinates(new float[8], null, null)),
                refused("disposed mesh", IllegalStateException.class, disposed::getNumNodes),
                refused("stale cell", IllegalStateException.class, stale::getVolume),
                refused("stale adjacent cell", IllegalStateException.class,
                        () -> changed.findContainingCell(new SbVec3f(), 0, new float[3], stale)),
                refused("short cell values", IllegalArgumentException.class,
                        () -> cell.getValue(new SbVec3f(), new float[5])),
                refused("null cell vector", NullPointerException.class,
                        () -> cell.getValue(new float[3], new SbVec3f[9])),
                refused("cell node", IndexOutOfBoundsException.class, () -> cell.getNodeIndex(4)),
                refused("short derivatives", IllegalArgumentException.class,
                        () -> hexahedron.getDerivs(new SbVec3f(), new float[23])),
                refused("null cell mesh", NullPointerException.class, () -> new PbTriangleCell((PbMesh) null)),
                refused("disposed cell mesh", IllegalStateException.class, () -> new PbVoxelCell(disposed)),
                refused("negative count", IllegalArgumentException.class,
                        () -> new PbCartesianGrid2D(-1, 2, X4, Y4, true)),
                refused("count larger than arrays", IllegalArgumentException.class,
                        () -> new PbCartesianGrid2D(2, 3, X4, Y4, true)),
                refused("too many nodes", IllegalArgumentException.class,
                        () -> new PbRegularCartesianGrid3D(5000, 5000, 5000, 0, 0, 0, 1, 1, 1, true)),
                refused("null z", NullPointerException.class,
                        () -> new PbParalCartesianGrid2D(2, 2, X4, Y4, null, true)),
                refused("short axis", IllegalArgumentException.class,
                        () -> new PbParalCartesianGrid3D(2, 2, 3, X4, Y4, new float[2], true)),
                refused("short regular z", IllegalArgumentException.class,
                        () -> g.setGeometry(3, 3, 0, 0, 1, 1, new float[8])),
                refused("bad cell type", IllegalArgumentException.class,
                        () -> new PbIndexedMesh2D(4, X4, Y4, 1, new int[] {5}, new int[] {0, 1, 2, 3, 0}, true)),
                refused("node index out of the mesh", IllegalArgumentException.class,
                        () -> new PbTriangleMesh2D(4, X4, Y4, 1, new int[] {0, 1, 4}, true)),
                refused("short connectivity", IllegalArgumentException.class,
                        () -> new PbHexahedronMesh3D(4, X4, Y4, X4, 1, new int[] {0, 1, 2, 3}, true)),
                refused("short cell types", IllegalArgumentException.class,
                        () -> new PbIndexedMesh3D(4, X4, Y4, X4, 2, new int[] {4}, new int[] {0, 1, 2, 3}, true)),
                refused("fault node", IndexOutOfBoundsException.class,
                        () -> g.getFaultMesh(1, new int[] {9}, null)),
                refused("short fault vectors", IllegalArgumentException.class,
                        () -> g.getFaultMesh(2, new int[] {0, 1}, new SbVec3f[] {new SbVec3f()})),
                refused("null copy source", NullPointerException.class,
                        () -> new PbRegularCartesianGrid2D((PbRegularCartesianGrid2D) null)),
                refused("null orientation", NullPointerException.class,
                        () -> indexed.setElemOrientation(null)),
                refused("short 1D abscissas", IllegalArgumentException.class, () -> new PbIrregularMesh1D(3, new float[2])));
    }

    private static SbVec3f[] withNull3(int n) {
        SbVec3f[] v = new SbVec3f[n];
        java.util.Arrays.fill(v, new SbVec3f());
        v[n - 1] = null;
        return v;
    }

    private static SbVec2f[] withNull2(int n) {
        SbVec2f[] v = new SbVec2f[n];
        java.util.Arrays.fill(v, new SbVec2f());
        v[3] = null;
        return v;
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("misuses")
    void isRefusedBeforeTheToolkitIsCalled(String what, Class<? extends Throwable> expected, Executable misuse) {
        Journal.start();
        assertThrows(expected, misuse);
        List<String> lines = Journal.stop();
        assertTrue(lines.stream().noneMatch(l -> l.contains("::set") || l.contains("::add") || l.contains("::Pb")
                || l.contains("getValue") || l.contains("getDerivs") || l.contains("findContainingCell")
                || l.contains("getFaultMesh")), what + ": " + lines);
    }
}
