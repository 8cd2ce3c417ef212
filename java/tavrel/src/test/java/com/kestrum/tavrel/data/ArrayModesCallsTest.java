package com.kestrum.tavrel.data;

import static com.kestrum.tavrel.testkit.CoreCalls.COPY_BACK_CHECK;
import static com.kestrum.tavrel.testkit.CoreCalls.array;
import static com.kestrum.tavrel.testkit.CoreCalls.copyBack;
import static com.kestrum.tavrel.testkit.CoreCalls.readString;
import static com.kestrum.tavrel.testkit.CoreCalls.sequence;
import static com.kestrum.tavrel.testkit.CoreCalls.times;
import static org.junit.jupiter.api.Assertions.assertEquals;

import com.kestrum.corvel.SbVec3f;
import com.kestrum.tavrel.testkit.CoreCalls;
import com.kestrum.tavrel.testkit.JniCalls;
import java.util.List;
import java.util.stream.Stream;
import org.junit.jupiter.params.ParameterizedTest;
import org.junit.jupiter.params.provider.Arguments;
import org.junit.jupiter.params.provider.MethodSource;

/**
 * Which arrays a native method copies back: output arrays are converted ReadWrite (read, then
 * written back when their helper goes, after a check for a pending exception), input arrays
 * ReadOnly (read only), and a query point ReadWrite where the method takes it so. One row per
 * way the methods convert their arrays; the lengths tell the arrays apart. The toolkit's calls
 * stand among them: outputs converted after the toolkit call, query points and a box the
 * toolkit fills before it.
 */
class ArrayModesCallsTest {
    private static final SbVec3f CENTRE = new SbVec3f(0.5f, 0.5f, 0);

    /** Output array of one element, written back at once (its own helper). */
    private static List<String> output(String kind, int length) {
        return sequence(array(kind, length), COPY_BACK_CHECK, copyBack(kind, length));
    }

    /** A toolkit call, by its function's name. */
    private static String t(String function) {
        return CoreCalls.toolkit(function);
    }

    static Stream<Arguments> methods() {
        PbRegularCartesianGrid2D grid = new PbRegularCartesianGrid2D(2, 3, 0, 0, 1, 2, true); // 6 nodes, 2 cells
        grid.addValuesSet(0, new float[] {1, 2, 3, 4, 5, 6}, "v");
        PbCell pixel = grid.getCell(0);
        PbHexahedronMesh3D cube = new PbHexahedronMesh3D(8, new float[] {0, 1, 1, 0, 0, 1, 1, 0},
                new float[] {0, 0, 1, 1, 0, 0, 1, 1}, new float[] {0, 0, 0, 0, 1, 1, 1, 1}, 1,
                new int[] {0, 1, 2, 3, 4, 5, 6, 7}, true);
        PbHexahedronCell hexahedron = new PbHexahedronCell(cube);
        PbCartesianGrid2D cartesian = new PbCartesianGrid2D(2, 2, new float[] {0, 1, 0, 1}, new float[] {0, 0, 1, 1},
                true);
        return Stream.of(
                Arguments.of("PbMesh.addValuesSet: values ReadOnly", (JniCalls.Block) () ->
                        grid.addValuesSet(1, new float[6], "w"), sequence(t("PbMesh::getNumNodes"), readString(1), array("Float", 6), t("PbMesh::addValuesSet"))),
                // The Java side first asks the mesh how many values each array must hold (through
                // the coordinate buffers), then the native call reads x and y.
                Arguments.of("PbMesh.setCoordinates: x, y, z ReadOnly", (JniCalls.Block) () ->
                        cartesian.setCoordinates(new float[] {0, 1, 0, 1}, new float[] {0, 0, 1, 1}, null),
                        sequence(t("PbCartesianGrid2D::getCoordinates"), "NewDirectByteBuffer(16)", "SetObjectArrayElement(0)",
                                "DeleteLocalRef()", "NewDirectByteBuffer(16)", "SetObjectArrayElement(0)", "DeleteLocalRef()",
                                "SetObjectArrayElement(0, null)", t("PbMesh::getNumNodes"), array("Float", 4),
                                array("Float", 4), t("PbCartesianGrid2D::setCoordinates"))),
                Arguments.of("PbMesh.getMinValuesSet: output ReadWrite after the toolkit", (JniCalls.Block) () ->
                        grid.getMinValuesSet(0, new float[1]), sequence(t("PbMesh::getMinValuesSet"), output("Float", 1))),
                Arguments.of("PbMesh.getBoundingBox: six floats ReadWrite", (JniCalls.Block) grid::getBoundingBox,
                        sequence(t("PbMesh::getBoundingBox"), output("Float", 6))),
                Arguments.of("PbMesh.getSmallestCellBox: box, then cell index, box written back first",
                        (JniCalls.Block) () -> grid.getSmallestCellBox(new float[6]),
                        sequence(array("Float", 6), t("PbMesh::getSmallestCellBox"), array("Int", 1), COPY_BACK_CHECK,
                                copyBack("Float", 6),
                                COPY_BACK_CHECK, copyBack("Int", 1))),
                Arguments.of("PbMesh.findContainingCell: point and pcoord ReadWrite, one helper",
                        (JniCalls.Block) () -> grid.findContainingCell(CENTRE, 0.01f, new float[3]),
                        sequence(array("Float", 3), array("Float", 3), t("PbMesh::findContainingCell"), COPY_BACK_CHECK,
                                times(2, copyBack("Float", 3)))),
                Arguments.of("PbGrid2D.getDim: two outputs, each with its own helper",
                        (JniCalls.Block) grid::getDim,
                        sequence(t("PbGrid2D::getDim"), output("Int", 1), output("Int", 1))),
                Arguments.of("PbGrid2D.getNodeIndices: two outputs", (JniCalls.Block) () -> grid.getNodeIndices(3),
                        sequence(t("PbGrid2D::getDim"), output("Int", 1), output("Int", 1))),
                Arguments.of("PbGrid2D.setGeometry: x, y ReadOnly", (JniCalls.Block) () ->
                        cartesian.setGeometry(2, 2, new float[] {0, 2, 0, 2}, new float[] {0, 0, 2, 2}),
                        sequence(array("Float", 4), array("Float", 4), t("PbCartesianGrid2D::setGeometry"))),
                Arguments.of("PbMesh2D.get2DBoundingBox: four floats ReadWrite",
                        (JniCalls.Block) grid::get2DBoundingBox,
                        sequence(t("PbMesh2D::get2DBoundingBox"), output("Float", 4))),
                Arguments.of("PbCell.getBounds: six outputs, written back in reverse", (JniCalls.Block) pixel::getBounds,
                        sequence(t("PbCell::getBounds"), times(6, array("Float", 1)),
                                times(6, COPY_BACK_CHECK, copyBack("Float", 1)))),
                Arguments.of("PbCell.getCenter: output ReadWrite", (JniCalls.Block) pixel::getCenter,
                        sequence(t("PbCell::getCenter"), output("Float", 3))),
                Arguments.of("PbCell.locatePoint: point and pcoord ReadWrite", (JniCalls.Block) () ->
                        pixel.locatePoint(CENTRE, 0.01f, new float[3]),
                        sequence(array("Float", 3), array("Float", 3), t("PbCell::locatePoint"), COPY_BACK_CHECK,
                                times(2, copyBack("Float", 3)))),
                Arguments.of("PbCell.getValue(SbVec3f, float[]): pcoord ReadWrite, values ReadOnly",
                        (JniCalls.Block) () -> pixel.getValue(CENTRE, new float[5]),
                        sequence(array("Float", 3), array("Float", 5), t("PbCell::getValue"), COPY_BACK_CHECK,
                                copyBack("Float", 3))),
                Arguments.of("PbCell.getValue(float[], float[]): both ReadOnly", (JniCalls.Block) () ->
                        pixel.getValue(new float[] {0.5f, 0.5f, 0}, new float[5]),
                        sequence(array("Float", 3), array("Float", 5), t("PbCell::getValue"))),
                Arguments.of("PbHexahedronCell.getDerivs: pcoord and derivs ReadWrite", (JniCalls.Block) () ->
                        hexahedron.getDerivs(CENTRE, new float[24]),
                        sequence(array("Float", 3), array("Float", 24), t("PbHexahedronCell::getDerivs"), COPY_BACK_CHECK,
                                copyBack("Float", 24), copyBack("Float", 3))));
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("methods")
    void outputsAreCopiedBackAndInputsNot(String method, JniCalls.Block block, List<String> expected) {
        JniCalls.record(block); // the first run may load classes
        assertEquals(expected, CoreCalls.toolkitByName(JniCalls.recordWithToolkit(block).calls()));
    }
}
