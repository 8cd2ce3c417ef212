package com.kestrum.tavrel.graph;

import static org.junit.jupiter.api.Assertions.assertEquals;

import com.kestrum.corvel.SbVec2f;
import com.kestrum.tavrel.testkit.JniCalls;
import java.util.List;
import java.util.stream.Stream;
import org.junit.jupiter.params.ParameterizedTest;
import org.junit.jupiter.params.provider.Arguments;
import org.junit.jupiter.params.provider.MethodSource;

/**
 * The order in which graph natives read their Java arguments and make their results: the
 * histograms read the origin, then the name lists, then the values (not the toolkit's argument
 * order); an isovalue list's direct buffer is made before its outputs are read and written.
 */
class ConversionOrderCallsTest {
    private static final String[] CALLS = {"GetFloatArrayRegion", "GetIntArrayRegion", "GetBooleanArrayRegion",
        "GetObjectArrayElement", "NewDirectByteBuffer"};

    static Stream<Arguments> natives() {
        PbIsovaluesList list = new PbIsovaluesList(0, 1, 5);
        return Stream.of(
                Arguments.of("PoSingleHistogram: origin, names, values", (JniCalls.Block) () ->
                        new PoSingleHistogram(new SbVec2f(0, 0), 4, PoHistogram.Types.X, 3,
                                new float[] {1, 2, 3}, new String[] {"a", "b", "c"}).dispose(),
                        List.of("GetFloatArrayRegion(0, 2)", "GetObjectArrayElement(0)", "GetObjectArrayElement(1)",
                                "GetObjectArrayElement(2)", "GetFloatArrayRegion(0, 3)")),
                Arguments.of("PoMultipleHistogram: origin, both name lists in order, values", (JniCalls.Block) () ->
                        new PoMultipleHistogram(new SbVec2f(0, 0), 4, PoHistogram.Types.X, 2, 1,
                                new float[] {1, 2}, new String[] {"a", "b"}, new String[] {"c"}).dispose(),
                        List.of("GetFloatArrayRegion(0, 2)", "GetObjectArrayElement(0)", "GetObjectArrayElement(1)",
                                "GetObjectArrayElement(0)", "GetFloatArrayRegion(0, 2)")),
                Arguments.of("PbIsovaluesList.getDirectIsoList: the buffer first", (JniCalls.Block) list::getDirectIsoList,
                        List.of("NewDirectByteBuffer(20)", "GetIntArrayRegion(0, 1)", "GetFloatArrayRegion(0, 1)",
                                "GetFloatArrayRegion(0, 1)", "GetFloatArrayRegion(0, 1)",
                                "GetBooleanArrayRegion(0, 1)")));
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("natives")
    void argumentsAreReadInTheirOrder(String what, JniCalls.Block block, List<String> expected) {
        JniCalls.record(block); // the first run may load classes
        assertEquals(expected, JniCalls.record(block).callsOf(CALLS));
    }
}
