package com.kestrum.tavrel.data;

import static com.kestrum.tavrel.testkit.CoreCalls.newString;
import static com.kestrum.tavrel.testkit.CoreCalls.readString;
import static com.kestrum.tavrel.testkit.CoreCalls.sequence;
import static org.junit.jupiter.api.Assertions.assertEquals;

import com.kestrum.tavrel.PoTavrel;
import com.kestrum.tavrel.nodes.PoNode;
import com.kestrum.tavrel.testkit.JniCalls;
import java.util.List;
import java.util.stream.Stream;
import org.junit.jupiter.params.ParameterizedTest;
import org.junit.jupiter.params.provider.Arguments;
import org.junit.jupiter.params.provider.MethodSource;

/**
 * The JNI calls of string conversions: a string argument is read once and leaves no
 * reference; a string result is one new Java string (the one local reference the method
 * returns), none for a missing one; a string array is read element by element, each element's
 * reference deleted at once.
 */
class StringConversionCallsTest {
    /** Reading element i of a Java String[] of that element's length (-1 for a null element). */
    private static List<String> element(int i, int length) {
        return length < 0 ? List.of("GetObjectArrayElement(" + i + ") -> null")
                : sequence("GetObjectArrayElement(" + i + ")", readString(length), "DeleteLocalRef()");
    }

    static Stream<Arguments> conversions() {
        PbRegularCartesianGrid2D mesh = new PbRegularCartesianGrid2D(2, 2, 0, 0, 1, 1, true);
        mesh.addValuesSet(0, new float[4], "temperature");
        mesh.addValuesSet(1, new float[4], "température");
        return Stream.of(
                Arguments.of("a set name, to the toolkit as an SbString", (JniCalls.Block) () ->
                        mesh.addValuesSet(2, new float[4], "pressure"),
                        sequence(readString(8), "GetArrayLength() -> 4", "GetFloatArrayRegion(0, 4)"), 0),
                Arguments.of("a set name back, ASCII", (JniCalls.Block) () -> mesh.getValuesSetName(0),
                        newString("temperature"), 1),
                Arguments.of("a set name back, beyond ASCII", (JniCalls.Block) () -> mesh.getValuesSetName(1),
                        List.of("NewString(11)"), 1),
                Arguments.of("the name of a set that does not exist", (JniCalls.Block) () -> mesh.getValuesSetName(9),
                        List.of(), 0),
                Arguments.of("a type name", (JniCalls.Block) PoNode::getClassTypeName, newString("PoNode"), 1),
                Arguments.of("the toolkit's version", (JniCalls.Block) PoTavrel::getVersion, newString("10.4.0"), 1),
                Arguments.of("a strings set: names and elements, null elements included", (JniCalls.Block) () ->
                        mesh.addStringsSet(0, new String[] {"a", null, "ccc", ""}, "labels"),
                        sequence(readString(6), "GetArrayLength() -> 4", element(0, 1), element(1, -1),
                                element(2, 3), element(3, 0)), 0));
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("conversions")
    void stringsAreReadOnceAndResultsMadeOnce(String conversion, JniCalls.Block block, List<String> expected,
            int results) {
        JniCalls.record(block); // the first run may load classes
        JniCalls.Recording r = JniCalls.record(block);
        assertEquals(expected, r.calls());
        assertEquals(results, r.localReferencesCreated() - r.localReferencesDeleted(),
                "the references left are the results returned");
    }
}
