package com.kestrum.tavrel.data;

import static com.kestrum.tavrel.testkit.CoreCalls.COPY_BACK_CHECK;
import static com.kestrum.tavrel.testkit.CoreCalls.array;
import static com.kestrum.tavrel.testkit.CoreCalls.copyBack;
import static com.kestrum.tavrel.testkit.CoreCalls.readString;
import static com.kestrum.tavrel.testkit.CoreCalls.sequence;
import static org.junit.jupiter.api.Assertions.assertEquals;

import com.kestrum.corvel.SbVec2f;
import com.kestrum.corvel.SbVec3f;
import com.kestrum.tavrel.testkit.JniCalls;
import com.kestrum.tavrel.testkit.Natives;
import java.util.ArrayList;
import java.util.List;
import java.util.stream.Stream;
import org.junit.jupiter.api.Test;
import org.junit.jupiter.params.ParameterizedTest;
import org.junit.jupiter.params.provider.Arguments;
import org.junit.jupiter.params.provider.MethodSource;

/**
 * The JNI calls of the vector-object conversion, in every method that converts vectors: one
 * class and one field lookup per array, then per vector exactly its element, its float array,
 * the array's elements released without copy-back, and its two local references deleted.
 */
class VectorConversionCallsTest {
    private static final String VEC3 = "Lcom/kestrum/corvel/SbVec3f;";
    private static final String VEC2 = "Lcom/kestrum/corvel/SbVec2f;";

    /** The calls that convert n vectors of the class (a signature). */
    static List<String> conversion(int n, String vectorClass) {
        List<String> calls = new ArrayList<>(List.of(
                "GetArrayLength() -> " + n,
                "GetObjectArrayElement(0)",
                "GetObjectClass() -> " + vectorClass,
                "GetFieldID(" + vectorClass + ", \"array\", \"[F\")",
                "DeleteLocalRef()",
                "DeleteLocalRef()"));
        for (int i = 0; i < n; i++) {
            calls.addAll(List.of("GetObjectArrayElement(" + i + ")", "GetObjectField(array)", "GetFloatArrayElements()",
                    "ReleaseFloatArrayElements(JNI_ABORT)", "DeleteLocalRef()", "DeleteLocalRef()"));
        }
        return calls;
    }

    private static SbVec3f[] vec3(int n) {
        SbVec3f[] v = new SbVec3f[n];
        for (int i = 0; i < n; i++) {
            v[i] = new SbVec3f(i, i + 0.5f, -i);
        }
        return v;
    }

    private static SbVec2f[] vec2(int n) {
        SbVec2f[] v = new SbVec2f[n];
        for (int i = 0; i < n; i++) {
            v[i] = new SbVec2f(i, -i);
        }
        return v;
    }

    private static PbRegularCartesianGrid2D grid() {
        return new PbRegularCartesianGrid2D(2, 2, 0, 0, 1, 1, true); // 4 nodes, 1 pixel cell
    }

    /** Each user: its block, and the whole sequence it makes. */
    static Stream<Arguments> users() {
        PbRegularCartesianGrid2D mesh = grid();
        PbCell cell = grid().getCell(0);
        SbVec3f pcoord = new SbVec3f(0.5f, 0.5f, 0);
        List<String> three = array("Float", 3);
        return Stream.of(
                Arguments.of("PbMesh.addVecsSet", (JniCalls.Block) () -> mesh.addVecsSet(1, vec3(4), "v3"),
                        sequence(readString(2), conversion(4, VEC3))),
                Arguments.of("PbMesh2D.addVecsSet", (JniCalls.Block) () -> mesh.addVecsSet(2, vec2(4), "v2"),
                        sequence(readString(2), conversion(4, VEC2))),
                // the new mesh's Java object registers as its peer: the binding core's weak reference
                Arguments.of("PbMesh2D.getFaultMesh", (JniCalls.Block) () -> mesh.getFaultMesh(2,
                        new int[] {0, 3}, vec3(2)), sequence(conversion(2, VEC3), array("Int", 2),
                                "NewWeakGlobalRef()")),
                // pcoord, then the output, then the vectors; the output is copied back first
                Arguments.of("PbCell.getValue(SbVec3f, SbVec3f[])",
                        (JniCalls.Block) () -> cell.getValue(pcoord, vec3(4)),
                        sequence(three, three, conversion(4, VEC3), COPY_BACK_CHECK, copyBack("Float", 3),
                                COPY_BACK_CHECK, copyBack("Float", 3))),
                Arguments.of("PbCell.getValue(float[], SbVec3f[])",
                        (JniCalls.Block) () -> cell.getValue(new float[] {0.5f, 0.5f, 0}, vec3(4)),
                        sequence(three, three, conversion(4, VEC3), COPY_BACK_CHECK, copyBack("Float", 3))));
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("users")
    void eachVectorIsReadWithTwoElementCallsAndItsReferencesFreedAtOnce(String user, JniCalls.Block block,
            List<String> expected) {
        JniCalls.record(block); // the first run may load classes
        JniCalls.Recording r = JniCalls.record(block);
        assertEquals(expected, r.calls());
        assertEquals(2, r.localReferencesPeak());
        assertEquals(r.localReferencesCreated(), r.localReferencesDeleted());
    }

    @Test
    void localReferencesStayConstantOverAMillionVectors() {
        int n = 1_000_000;
        PbRegularCartesianGrid2D mesh = new PbRegularCartesianGrid2D(1000, 1000, 0, 0, 1, 1, true);
        SbVec3f[] vectors = vec3(n);
        JniCalls.Recording r = JniCalls.count(() -> mesh.addVecsSet(0, vectors, "field"));
        assertEquals(2, r.localReferencesPeak());
        assertEquals(2L * n + 2, r.localReferencesCreated());
        assertEquals(2L * n + 2, r.localReferencesDeleted());
        assertEquals(1, r.count("GetObjectClass"));
        assertEquals(1, r.count("GetFieldID"));
        assertEquals(n + 1, r.count("GetObjectArrayElement"));
        assertEquals(n, r.count("ReleaseFloatArrayElements"));
    }

    /** Null, empty and null-headed arrays (past the Java checks): no native array is made. */
    @Test
    void nullEmptyAndNullHeadedArraysStopAfterTheirFirstLook() {
        PbRegularCartesianGrid2D mesh = grid();
        long h = Natives.handle(mesh);
        SbVec3f[] nullHeaded = vec3(4);
        nullHeaded[0] = null;
        assertEquals(readString(1), JniCalls.record(
                () -> Natives.callDeclared(PbMesh.class, mesh, "addVecsSetImpl", h, 0, null, "n")).calls());
        assertEquals(sequence(readString(1), "GetArrayLength() -> 0"), JniCalls.record(
                () -> Natives.callDeclared(PbMesh.class, mesh, "addVecsSetImpl", h, 0, new SbVec3f[0], "n")).calls());
        assertEquals(sequence(readString(1), "GetArrayLength() -> 4", "GetObjectArrayElement(0) -> null"),
                JniCalls.record(() -> Natives.callDeclared(PbMesh.class, mesh, "addVecsSetImpl", h, 0, nullHeaded,
                        "n")).calls());
    }
}
