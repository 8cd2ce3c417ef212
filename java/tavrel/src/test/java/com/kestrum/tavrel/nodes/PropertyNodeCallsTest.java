package com.kestrum.tavrel.nodes;

import static com.kestrum.tavrel.testkit.CoreCalls.COPY_BACK_CHECK;
import static com.kestrum.tavrel.testkit.CoreCalls.array;
import static com.kestrum.tavrel.testkit.CoreCalls.copyBack;
import static com.kestrum.tavrel.testkit.CoreCalls.readString;
import static com.kestrum.tavrel.testkit.CoreCalls.sequence;
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
 * written back and when, and where the new array or the direct buffer is made.
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

    static Stream<Arguments> methods() {
        long list = LIST.getNativeResourceHandleInternal();
        LIST.setRegularIsoList(0f, 1f, 5);
        return Stream.of(
                Arguments.of("PoIsovaluesList.getIsoListImpl: outputs, then the new array, then the copy-backs",
                        (JniCalls.Block) () -> LIST.getIsoListImpl(list, new int[1], new float[1], new float[1],
                                new float[1], new boolean[1]),
                        sequence(FIVE_OUTPUTS, "NewFloatArray(5)", "SetFloatArrayRegion(0, 5)", FIVE_COPY_BACKS)),
                Arguments.of("PoIsovaluesList.getDirectIsoListImpl: the buffer, then the outputs",
                        (JniCalls.Block) () -> LIST.getDirectIsoListImpl(list, new int[1], new float[1],
                                new float[1], new float[1], new boolean[1]),
                        sequence("NewDirectByteBuffer(20)", FIVE_OUTPUTS, FIVE_COPY_BACKS)),
                Arguments.of("PoIsovaluesList.setRegularIsoList(int, float[], int): the values ReadOnly",
                        (JniCalls.Block) () -> LIST.setRegularIsoList(3, new float[] {0, 1, 2, 3}, 5),
                        array("Float", 4)),
                Arguments.of("PoDomain.setValues(SbVec2f...): both arrays ReadWrite in one helper",
                        (JniCalls.Block) () -> DOMAIN.setValues(new SbVec2f(0, 0), new SbVec2f(1, 1),
                                PoDomain.BoundingBoxTypes.ASIS),
                        sequence(array("Float", 2), array("Float", 2), COPY_BACK_CHECK, copyBack("Float", 2),
                                copyBack("Float", 2))),
                Arguments.of("PoDomain.setValues(SbVec3f...): both arrays ReadWrite in one helper",
                        (JniCalls.Block) () -> DOMAIN.setValues(new SbVec3f(0, 0, 0), new SbVec3f(1, 1, 1),
                                PoDomain.BoundingBoxTypes.ASIS),
                        sequence(array("Float", 3), array("Float", 3), COPY_BACK_CHECK, copyBack("Float", 3),
                                copyBack("Float", 3))),
                Arguments.of("PoDateFormatMapping.getCoordinateImpl: the date, then the output after the call",
                        (JniCalls.Block) () -> DATES.coordinate("2000-01-05", new float[1]),
                        sequence(readString(10), array("Float", 1), COPY_BACK_CHECK, copyBack("Float", 1))),
                Arguments.of("PoDateFormatMapping.getCoordinateImpl: an unreadable date, the output all the same",
                        (JniCalls.Block) () -> DATES.coordinate("soon", new float[1]),
                        sequence(readString(4), array("Float", 1), COPY_BACK_CHECK, copyBack("Float", 1))));
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("methods")
    void arraysAreConvertedAsTheMethodSays(String method, JniCalls.Block block, List<String> expected) {
        JniCalls.record(block); // the first run may load classes
        assertEquals(expected, JniCalls.record(block).calls());
    }
}
