package com.kestrum.tavrel.nodes;

import static com.kestrum.tavrel.testkit.CoreCalls.COPY_BACK_CHECK;
import static com.kestrum.tavrel.testkit.CoreCalls.array;
import static com.kestrum.tavrel.testkit.CoreCalls.copyBack;
import static com.kestrum.tavrel.testkit.CoreCalls.readString;
import static com.kestrum.tavrel.testkit.CoreCalls.sequence;
import static com.kestrum.tavrel.testkit.CoreCalls.toolkit;
import static com.kestrum.tavrel.testkit.CoreCalls.toolkitByName;
import static org.junit.jupiter.api.Assertions.assertEquals;

import com.kestrum.corvel.SbVec2f;
import com.kestrum.corvel.SbVec3f;
import com.kestrum.tavrel.testkit.JniCalls;
import java.util.List;
import java.util.stream.Stream;
import org.junit.jupiter.api.AfterAll;
import org.junit.jupiter.params.ParameterizedTest;
import org.junit.jupiter.params.provider.Arguments;
import org.junit.jupiter.params.provider.MethodSource;

/**
 * The JNI calls of the property nodes' methods with arguments: which arrays are read, which are
 * written back and when, and where the new array or the direct buffer is made, with the toolkit's
 * call in its place (inputs before it, outputs, the buffer and the new array after it); the
 * methods without arrays make the toolkit call alone.
 */
class PropertyNodeCallsTest {
    private static final PoIsovaluesList LIST = new PoIsovaluesList();
    private static final PoDomain DOMAIN = new PoDomain();
    private static final PoDateFormatMapping DATES = new PoDateFormatMapping();

    @AfterAll
    static void dispose() {
        LIST.dispose();
        DOMAIN.dispose();
        DATES.dispose();
    }

    /** The five outputs of getIsoList converted after the toolkit call, in Java order. */
    private static final List<String> FIVE_OUTPUTS = sequence(array("Int", 1), array("Float", 1), array("Float", 1),
            array("Float", 1), array("Boolean", 1));

    /** Their helpers going, the last made first: each copies its output back. */
    private static final List<String> FIVE_COPY_BACKS = sequence(COPY_BACK_CHECK, copyBack("Boolean", 1),
            COPY_BACK_CHECK, copyBack("Float", 1), COPY_BACK_CHECK, copyBack("Float", 1), COPY_BACK_CHECK,
            copyBack("Float", 1), COPY_BACK_CHECK, copyBack("Int", 1));

    private static final String GET_ISO_LIST = toolkit("PoIsovaluesList::getIsoList");

    static Stream<Arguments> methods() {
        long list = LIST.getNativeResourceHandleInternal();
        LIST.setRegularIsoList(0f, 1f, 5);
        return Stream.of(
                Arguments.of("PoIsovaluesList.getIsoListImpl: the toolkit, the outputs, the new array, the copy-backs",
                        (JniCalls.Block) () -> LIST.getIsoListImpl(list, new int[1], new float[1], new float[1],
                                new float[1], new boolean[1]),
                        sequence(GET_ISO_LIST, FIVE_OUTPUTS, "NewFloatArray(5)", "SetFloatArrayRegion(0, 5)",
                                FIVE_COPY_BACKS)),
                Arguments.of("PoIsovaluesList.getDirectIsoListImpl: the toolkit, the buffer, the outputs",
                        (JniCalls.Block) () -> LIST.getDirectIsoListImpl(list, new int[1], new float[1],
                                new float[1], new float[1], new boolean[1]),
                        sequence(GET_ISO_LIST, "NewDirectByteBuffer(20)", FIVE_OUTPUTS, FIVE_COPY_BACKS)),
                Arguments.of("PoIsovaluesList.setRegularIsoList(int, float[], int): the values ReadOnly",
                        (JniCalls.Block) () -> LIST.setRegularIsoList(3, new float[] {0, 1, 2, 3}, 5),
                        sequence(array("Float", 4), toolkit("PoIsovaluesList::setRegularIsoList"))),
                Arguments.of("PoIsovaluesList.setRegularIsoList(int, float, float): the toolkit alone",
                        (JniCalls.Block) () -> LIST.setRegularIsoList(5, 0f, 0.5f),
                        List.of(toolkit("PoIsovaluesList::setRegularIsoList"))),
                Arguments.of("PoIsovaluesList.setRegularIsoList(float, float, int): the toolkit alone",
                        (JniCalls.Block) () -> LIST.setRegularIsoList(0f, 1f, 5),
                        List.of(toolkit("PoIsovaluesList::setRegularIsoList"))),
                Arguments.of("PoDomain.getTransformImpl: the toolkit alone",
                        (JniCalls.Block) DOMAIN::getTransformAddress, List.of(toolkit("PoDomain::getTransform"))),
                Arguments.of("PoDomain.getMatrixTransformImpl: the toolkit alone",
                        (JniCalls.Block) DOMAIN::getMatrixTransformAddress,
                        List.of(toolkit("PoDomain::getMatrixTransform"))),
                Arguments.of("PoDomain.setValues(SbVec2f...): both arrays ReadWrite in one helper",
                        (JniCalls.Block) () -> DOMAIN.setValues(new SbVec2f(0, 0), new SbVec2f(1, 1),
                                PoDomain.BoundingBoxTypes.ASIS),
                        sequence(array("Float", 2), array("Float", 2), toolkit("PoDomain::setValues"),
                                COPY_BACK_CHECK, copyBack("Float", 2), copyBack("Float", 2))),
                Arguments.of("PoDomain.setValues(SbVec3f...): both arrays ReadWrite in one helper",
                        (JniCalls.Block) () -> DOMAIN.setValues(new SbVec3f(0, 0, 0), new SbVec3f(1, 1, 1),
                                PoDomain.BoundingBoxTypes.ASIS),
                        sequence(array("Float", 3), array("Float", 3), toolkit("PoDomain::setValues"),
                                COPY_BACK_CHECK, copyBack("Float", 3), copyBack("Float", 3))),
                Arguments.of("PoDateFormatMapping.getCoordinateImpl: the date, then the output after the call",
                        (JniCalls.Block) () -> DATES.coordinate("2000-01-05", new float[1]),
                        sequence(readString(10), toolkit("PoDateFormatMapping::getCoordinate"), array("Float", 1),
                                COPY_BACK_CHECK, copyBack("Float", 1))),
                Arguments.of("PoDateFormatMapping.getCoordinateImpl: an unreadable date, the output all the same",
                        (JniCalls.Block) () -> DATES.coordinate("soon", new float[1]),
                        sequence(readString(4), toolkit("PoDateFormatMapping::getCoordinate"), array("Float", 1),
                                COPY_BACK_CHECK, copyBack("Float", 1))));
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("methods")
    void arraysAreConvertedAsTheMethodSays(String method, JniCalls.Block block, List<String> expected) {
        JniCalls.record(block); // the first run may load classes
        assertEquals(expected, toolkitByName(JniCalls.recordWithToolkit(block).calls()));
    }
}
