package com.kestrum.tavrel.data;

import static org.junit.jupiter.api.Assertions.assertArrayEquals;
import static org.junit.jupiter.api.Assertions.assertEquals;

import org.junit.jupiter.api.Test;
import org.junit.jupiter.params.ParameterizedTest;
import org.junit.jupiter.params.provider.CsvSource;

/** Linear indices to grid indices, computed from the grid's counts at call time. */
class GridIndicesTest {
    private static PbGrid2D grid2D(int numX, int numY) {
        return new PbRegularCartesianGrid2D(numX, numY, 0, 0, 1, 1, true);
    }

    private static PbGrid3D grid3D(int numX, int numY, int numZ) {
        return new PbRegularCartesianGrid3D(numX, numY, numZ, 0, 0, 0, 1, 1, 1, true);
    }

    @Test
    void handComputedExamples() {
        PbGrid2D g2 = grid2D(4, 5);
        assertArrayEquals(new int[] {1, 2}, g2.getNodeIndices(7));
        assertArrayEquals(new int[] {1, 3}, g2.getCellIndices(7));
        PbGrid3D g3 = grid3D(2, 3, 4);
        assertArrayEquals(new int[] {1, 1, 1}, g3.getNodeIndices(17));
        assertArrayEquals(new int[] {0, 1, 2}, g3.getCellIndices(5));
        assertArrayEquals(new int[] {4, 5}, g2.getDim());
        assertArrayEquals(new int[] {2, 3, 4}, g3.getDim());
    }

    @Test
    void everyNodeAndCellOfAGridMapsBackToItsIndex() {
        PbGrid3D g = grid3D(3, 4, 5);
        for (int n = 0; n < 3 * 4 * 5; n++) {
            int[] ijk = g.getNodeIndices(n);
            assertEquals(n, (ijk[0] * 4 + ijk[1]) * 5 + ijk[2], "node " + n);
        }
        for (int n = 0; n < 2 * 3 * 4; n++) {
            int[] ijk = g.getCellIndices(n);
            assertEquals(n, (ijk[0] * 3 + ijk[1]) * 4 + ijk[2], "cell " + n);
        }
        PbGrid2D g2 = grid2D(3, 4);
        for (int n = 0; n < 12; n++) {
            int[] ij = g2.getNodeIndices(n);
            assertEquals(n, ij[0] * 4 + ij[1], "node " + n);
        }
    }

    @Test
    void indicesOutsideTheGridAreNotChecked() {
        assertArrayEquals(new int[] {5, 0}, grid2D(4, 5).getNodeIndices(25));
        assertArrayEquals(new int[] {0, -3}, grid2D(4, 5).getNodeIndices(-3));
    }

    /** A divisor below 1 gives -1 everywhere instead of a division by zero. */
    @ParameterizedTest(name = "{0} x {1} x {2}, {3}")
    @CsvSource({
        "4, 0, 0, node", "4, 1, 0, cell", "0, 0, 0, node", "1, 1, 0, cell",
        "2, 0, 3, node3", "2, 3, 0, node3", "2, 1, 3, cell3", "2, 3, 1, cell3", "2, 3, 4, none"})
    void degenerateGridsGiveMinusOne(int numX, int numY, int numZ, String what) {
        switch (what) {
            case "node" -> assertArrayEquals(new int[] {-1, -1}, grid2D(numX, numY).getNodeIndices(3));
            case "cell" -> assertArrayEquals(new int[] {-1, -1}, grid2D(numX, numY).getCellIndices(3));
            case "node3" -> assertArrayEquals(new int[] {-1, -1, -1}, grid3D(numX, numY, numZ).getNodeIndices(3));
            case "cell3" -> assertArrayEquals(new int[] {-1, -1, -1}, grid3D(numX, numY, numZ).getCellIndices(3));
            default -> assertArrayEquals(new int[] {0, 0, 3}, grid3D(numX, numY, numZ).getNodeIndices(3));
        }
    }

    @Test
    void countsAreReadWhenTheCallIsMade() {
        PbRegularCartesianGrid2D g = new PbRegularCartesianGrid2D(4, 5, 0, 0, 1, 1, true);
        g.setGeometry(4, 3, 0, 0, 1, 1);
        assertArrayEquals(new int[] {2, 1}, g.getNodeIndices(7));
    }
}
