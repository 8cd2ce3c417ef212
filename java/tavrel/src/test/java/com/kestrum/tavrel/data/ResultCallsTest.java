package com.kestrum.tavrel.data;

import static com.kestrum.tavrel.testkit.CoreCalls.newString;
import static com.kestrum.tavrel.testkit.CoreCalls.sequence;
import static com.kestrum.tavrel.testkit.CoreCalls.toolkit;
import static org.junit.jupiter.api.Assertions.assertEquals;

import com.kestrum.corvel.SbVec3f;
import com.kestrum.tavrel.testkit.CoreCalls;
import com.kestrum.tavrel.testkit.JniCalls;
import com.kestrum.tavrel.testkit.NativeMethods;
import java.lang.reflect.Method;
import java.util.List;
import java.util.stream.Stream;
import org.junit.jupiter.params.ParameterizedTest;
import org.junit.jupiter.params.provider.Arguments;
import org.junit.jupiter.params.provider.MethodSource;

/**
 * Results made from what the toolkit returns: a name becomes a Java string, a data set a direct
 * buffer over the toolkit's memory (4 bytes a value, 12 a vector; the count asked of the mesh
 * first), each after the toolkit calls that give it, and nothing for a set that does not exist.
 */
class ResultCallsTest {
    private static final PbRegularCartesianGrid2D MESH = new PbRegularCartesianGrid2D(2, 3, 0, 0, 1, 2, true); // 6 nodes

    static {
        MESH.addValuesSet(0, new float[6], "v");
        MESH.addVecsSet(0, new SbVec3f[] {new SbVec3f(), new SbVec3f(), new SbVec3f(), new SbVec3f(), new SbVec3f(),
                new SbVec3f()}, "vectors");
        MESH.addStringsSet(0, new String[] {"a", "b", "c", "d", "e", "f"}, "labels");
    }


    static Stream<Arguments> results() {
        return Stream.of(
                Arguments.of("getValuesSetNameImpl", 0, sequence(toolkit("PbMesh::getValuesSetName(0)"), newString("v"))),
                Arguments.of("getVecsSetNameImpl", 0, sequence(toolkit("PbMesh::getVecsSetName(0)"), newString("vectors"))),
                Arguments.of("getStringsSetNameImpl", 0,
                        sequence(toolkit("PbMesh::getStringsSetName(0)"), newString("labels"))),
                Arguments.of("getValuesSetNameImpl", 7, List.of(toolkit("PbMesh::getValuesSetName(7)"))),
                Arguments.of("getDirectValuesSetImpl", 0, List.of(toolkit("PbMesh::getValuesBinding(0)"),
                        toolkit("PbMesh::getNumNodes()"), toolkit("PbMesh::getValuesSet(0)"), "NewDirectByteBuffer(24)")),
                Arguments.of("getDirectVecsSetImpl", 0, List.of(toolkit("PbMesh::getNumNodes()"),
                        toolkit("PbMesh::getVecsSet(0)"), "NewDirectByteBuffer(72)")),
                Arguments.of("getDirectValuesSetImpl", 7, List.of(toolkit("PbMesh::getValuesBinding(7)"),
                        toolkit("PbMesh::getNumNodes()"), toolkit("PbMesh::getValuesSet(7)"))));
    }

    @ParameterizedTest(name = "{0}({1})")
    @MethodSource("results")
    void resultsAfterTheToolkit(String method, int set, List<String> expected) throws Throwable {
        Method m = PbMesh.class.getDeclaredMethod(method, long.class, int.class);
        m.setAccessible(true);
        Object[] args = {MESH.getNativeResourceHandleInternal(), set};
        NativeMethods.invoke(m, MESH, args);
        assertEquals(expected, JniCalls.recordWithToolkit(() -> NativeMethods.invoke(m, MESH, args)).calls());
    }
}
