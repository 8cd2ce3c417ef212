package com.kestrum.tavrel.data;

import com.kestrum.tavrel.internal.Checks;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertThrows;
import static org.junit.jupiter.api.Assertions.assertTrue;
import static org.junit.jupiter.params.provider.Arguments.arguments;

import com.kestrum.tavrel.testkit.Journal;
import java.util.List;
import java.util.stream.Stream;
import org.junit.jupiter.api.Test;
import org.junit.jupiter.api.function.Executable;
import org.junit.jupiter.params.ParameterizedTest;
import org.junit.jupiter.params.provider.Arguments;
import org.junit.jupiter.params.provider.MethodSource;

/**
 * Node and cell counts that fit an int but no Java array (a data set of that size could never
 * come back to Java) are refused by every constructor and setter that takes counts, before the
 * toolkit is called: the toolkit would fail to allocate them, and that ends the process.
 */
class CountLimitsTest {
    /** One more than the most nodes or cells a mesh may have. */
    private static final int OVER = Checks.MAX_COUNT + 1;
    private static final int HUGE = Integer.MAX_VALUE;
    private static final float[] F4 = {0, 1, 1, 0};
    private static final int[] TRIANGLE = {0, 1, 2};

    static Stream<Arguments> countsTooLarge() {
        PbRegularMesh1D regular1D = new PbRegularMesh1D(2, 0, 1);
        PbIrregularMesh1D irregular1D = new PbIrregularMesh1D(2, new float[] {0, 1});
        PbRegularCartesianGrid2D regular2D = new PbRegularCartesianGrid2D(2, 2, 0, 0, 1, 1, false);
        PbRegularCartesianGrid3D regular3D = new PbRegularCartesianGrid3D(2, 2, 2, 0, 0, 0, 1, 1, 1, false);
        PbCartesianGrid2D cartesian2D = new PbCartesianGrid2D(2, 2, F4, F4, false);
        PbParalCartesianGrid3D paral3D = new PbParalCartesianGrid3D(2, 2, 2, F4, F4, F4, false);
        PbTriangleMesh2D triangles = new PbTriangleMesh2D(3, F4, F4, 1, TRIANGLE, false);
        PbIndexedMesh2D indexed2D = new PbIndexedMesh2D(false);
        PbIndexedMesh3D indexed3D = new PbIndexedMesh3D(false);
        PbTetrahedronMesh3D tetrahedra = new PbTetrahedronMesh3D(false);
        return Stream.of(
                arguments("PbRegularMesh1D(numNodes)", "numNodes", (Executable) () -> new PbRegularMesh1D(HUGE, 0, 1)),
                arguments("PbRegularMesh1D.setGeometry", "numNodes",
                        (Executable) () -> regular1D.setGeometry(OVER, 0, 1)),
                arguments("PbIrregularMesh1D(numNodes)", "numNodes",
                        (Executable) () -> new PbIrregularMesh1D(OVER, F4)),
                arguments("PbIrregularMesh1D.setGeometry", "numNodes",
                        (Executable) () -> irregular1D.setGeometry(HUGE, F4)),
                arguments("PbRegularCartesianGrid2D(numX)", "numX",
                        (Executable) () -> new PbRegularCartesianGrid2D(HUGE, 1, 0, 0, 1, 1, false)),
                arguments("PbRegularCartesianGrid2D(numX, numY)", "too many nodes",
                        (Executable) () -> new PbRegularCartesianGrid2D(20_000, 20_000, 0, 0, 1, 1, false)),
                arguments("PbRegularCartesianGrid2D(grid)", "too many nodes",
                        (Executable) () -> new PbRegularCartesianGrid2D(OVER / 2 + 1, 2, regular2D)),
                arguments("PbRegularCartesianGrid2D.setGeometry", "numX",
                        (Executable) () -> regular2D.setGeometry(OVER, 1, 0, 0, 1, 1)),
                arguments("PbRegularCartesianGrid2D.setGeometry(z)", "numY",
                        (Executable) () -> regular2D.setGeometry(1, HUGE, 0, 0, 1, 1, F4)),
                arguments("PbRegularCartesianGrid3D(numX, numY, numZ)", "too many nodes",
                        (Executable) () -> new PbRegularCartesianGrid3D(600, 600, 600, 0, 0, 0, 1, 1, 1, false)),
                arguments("PbRegularCartesianGrid3D.setGeometry", "numZ",
                        (Executable) () -> regular3D.setGeometry(1, 1, HUGE, 0, 0, 0, 1, 1, 1)),
                arguments("PbCartesianGrid2D(numX, numY)", "too many nodes",
                        (Executable) () -> new PbCartesianGrid2D(OVER / 2 + 1, 2, F4, F4, false)),
                arguments("PbCartesianGrid2D.setGeometry", "too many nodes",
                        (Executable) () -> cartesian2D.setGeometry(2, OVER / 2 + 1, F4, F4)),
                arguments("PbParalCartesianGrid2D(numX, numY, z)", "numX",
                        (Executable) () -> new PbParalCartesianGrid2D(HUGE, 1, F4, F4, F4, false)),
                arguments("PbPolarGrid2D(numX, numY)", "numX",
                        (Executable) () -> new PbPolarGrid2D(OVER, 1, F4, F4, false)),
                arguments("PbCartesianGrid3D(numX, numY, numZ)", "too many nodes",
                        (Executable) () -> new PbCartesianGrid3D(600, 600, 600, F4, F4, F4, false)),
                arguments("PbParalCartesianGrid3D.setGeometry", "numY",
                        (Executable) () -> paral3D.setGeometry(1, HUGE, 1, F4, F4, F4)),
                arguments("PbTriangleMesh2D(numNodes)", "numNodes",
                        (Executable) () -> new PbTriangleMesh2D(OVER, F4, F4, 1, TRIANGLE, false)),
                arguments("PbTriangleMesh2D(numTriangles)", "numCells",
                        (Executable) () -> new PbTriangleMesh2D(3, F4, F4, HUGE, TRIANGLE, false)),
                arguments("PbTriangleMesh2D.setGeometry(fan)", "numNodes",
                        (Executable) () -> triangles.setGeometry(HUGE, F4, F4)),
                arguments("PbTriangleMesh2D.setGeometry(z)", "numCells",
                        (Executable) () -> triangles.setGeometry(3, F4, F4, F4, OVER, TRIANGLE)),
                arguments("PbQuadrangleMesh2D(numQuadrangles)", "numCells",
                        (Executable) () -> new PbQuadrangleMesh2D(4, F4, F4, OVER, new int[4], false)),
                arguments("PbIndexedMesh2D(numNodes)", "numNodes",
                        (Executable) () -> new PbIndexedMesh2D(HUGE, F4, F4, 0, new int[0], new int[0], false)),
                arguments("PbIndexedMesh2D.setGeometry", "numCells",
                        (Executable) () -> indexed2D.setGeometry(3, F4, F4, HUGE, new int[] {3}, TRIANGLE)),
                arguments("PbIndexedMesh3D.setGeometry", "numNodes",
                        (Executable) () -> indexed3D.setGeometry(OVER, F4, F4, F4, 0, new int[0], new int[0])),
                arguments("PbTetrahedronMesh3D.setGeometry", "numCells",
                        (Executable) () -> tetrahedra.setGeometry(4, F4, F4, F4, HUGE, new int[4])),
                arguments("PbHexahedronMesh3D(numNodes)", "numNodes",
                        (Executable) () -> new PbHexahedronMesh3D(HUGE, F4, F4, F4, 0, new int[0], false)));
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("countsTooLarge")
    void isRefusedWithTheLimitBeforeTheToolkitIsCalled(String call, String named, Executable misuse) {
        Journal.start();
        IllegalArgumentException e = assertThrows(IllegalArgumentException.class, misuse);
        List<String> lines = Journal.stop();
        assertTrue(e.getMessage().contains(named) && e.getMessage().contains(Integer.toString(Checks.MAX_COUNT)),
                e.getMessage());
        assertTrue(lines.stream().noneMatch(l -> l.contains("::set") || l.contains("::Pb")), call + ": " + lines);
    }

    @Test
    void aCountAtTheLimitIsAccepted() {
        // A regular 1D mesh keeps no per-node memory until it gets data sets.
        PbRegularMesh1D mesh = new PbRegularMesh1D(Checks.MAX_COUNT, 0, 1);
        assertEquals(Checks.MAX_COUNT, mesh.getNumNodes());
        mesh.setGeometry(2, 0, 1);
        assertEquals(2, mesh.getNumNodes());
    }

    @Test
    void aMeshThatRefusedAHugeCountKeepsItsGeometryAndSets() {
        PbRegularMesh1D mesh = new PbRegularMesh1D(2, 0, 1);
        mesh.addStringsSet(0, new String[] {"a", "b"}, "labels");
        IllegalArgumentException e =
                assertThrows(IllegalArgumentException.class, () -> mesh.setGeometry(Integer.MAX_VALUE, 0, 1));
        assertEquals("numNodes is 2147483647, more than 178956970, the most nodes or cells a mesh can have (its data"
                + " sets must fit in Java arrays)", e.getMessage());
        assertEquals(2, mesh.getNumNodes());
        assertEquals("labels", mesh.getStringsSetName(0));
    }
}
