package com.kestrum.tavrel.data;

import static com.kestrum.tavrel.testkit.Natives.call;
import static com.kestrum.tavrel.testkit.Natives.callDeclared;
import static com.kestrum.tavrel.testkit.Natives.handle;
import static org.junit.jupiter.api.Assertions.assertArrayEquals;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertFalse;
import static org.junit.jupiter.api.Assertions.assertNotNull;
import static org.junit.jupiter.api.Assertions.assertNull;
import static org.junit.jupiter.api.Assertions.assertTrue;

import com.kestrum.corvel.SbVec2f;
import com.kestrum.corvel.SbVec3f;
import com.kestrum.tavrel.data.PbMesh.DataBindings;
import com.kestrum.tavrel.testkit.Journal;
import com.kestrum.tavrel.testkit.MeshKit;
import java.nio.ByteBuffer;
import java.nio.ByteOrder;
import java.nio.FloatBuffer;
import java.util.List;
import org.junit.jupiter.api.Test;
import org.junit.jupiter.params.ParameterizedTest;
import org.junit.jupiter.params.provider.EnumSource;
import org.junit.jupiter.params.provider.ValueSource;

/** Values, vecs and strings sets: copies, direct buffers, names, bindings, extremes. */
class DataSetsTest {
    /** A 3 x 4 grid: 12 nodes, 6 cells. */
    private static PbRegularCartesianGrid2D grid() {
        return new PbRegularCartesianGrid2D(3, 4, 0, 0, 2, 3, true);
    }

    private static float[] ramp(int n) {
        float[] v = new float[n];
        for (int i = 0; i < n; i++) {
            v[i] = i * 0.5f;
        }
        return v;
    }

    private static float[] contents(FloatBuffer buffer) {
        float[] out = new float[buffer.capacity()];
        buffer.get(0, out);
        return out;
    }

    @ParameterizedTest
    @EnumSource(DataBindings.class)
    void aValuesSetHasOneValuePerCellOrPerNodeThroughBothPaths(DataBindings binding) {
        PbMesh mesh = grid();
        int length = binding == DataBindings.PER_CELL ? 6 : 12;
        float[] values = ramp(length);
        mesh.addValuesSet(3, values, binding, "pressure");
        assertEquals(binding, mesh.getValuesBinding(3));
        assertArrayEquals(values, mesh.getValuesSet(3));
        ByteBuffer raw = (ByteBuffer) call(mesh, "getDirectValuesSetImpl", handle(mesh), 3);
        assertTrue(raw.isDirect());
        assertEquals(4 * length, raw.capacity());
        assertArrayEquals(values, contents(mesh.getDirectValuesSet(3)));
        assertEquals("pressure", mesh.getValuesSetName(3));
    }

    @Test
    void theOneBindingOverloadBindsPerNode() {
        PbMesh mesh = grid();
        mesh.addValuesSet(0, ramp(12), "t");
        assertEquals(DataBindings.PER_NODE, mesh.getValuesBinding(0));
        assertEquals(12, mesh.getValuesSet(0).length);
    }

    @Test
    void aDirectBufferAliasesTheMeshData() {
        PbMesh mesh = grid();
        mesh.addValuesSet(1, ramp(12), DataBindings.PER_NODE, "v");
        FloatBuffer direct = mesh.getDirectValuesSet(1);
        float[] copy = mesh.getValuesSet(1);

        MeshKit.setValue(handle(mesh), 1, 5, 42f);
        assertEquals(42f, direct.get(5));
        assertEquals(2.5f, copy[5], "the copy is independent of the mesh");

        direct.put(7, -8f);
        assertEquals(-8f, MeshKit.valueAt(handle(mesh), 1, 7));
        assertEquals(-8f, mesh.getValuesSet(1)[7]);
        assertEquals(ByteOrder.nativeOrder(), direct.order());
    }

    @Test
    void vecsSetsComeBackAsCopiesAndAsDirectBuffers() {
        PbMesh mesh = new PbIrregularMesh1D(3, new float[] {0, 1, 2});
        SbVec3f[] vectors = {new SbVec3f(1, 2, 3), new SbVec3f(4, 5, 6), new SbVec3f(0, 3, 4)};
        mesh.addVecsSet(2, vectors, "wind");
        assertArrayEquals(vectors, mesh.getVecsSet(2));
        FloatBuffer direct = mesh.getDirectVecsSet(2);
        assertEquals(9, direct.capacity());
        direct.put(8, 9f);
        assertEquals(9f, MeshKit.vecAt(handle(mesh), 2, 2, 2));
        assertEquals("wind", mesh.getVecsSetName(2));
        assertEquals(1, mesh.getNumVecsSet());
        float[] out = {-1};
        assertTrue(mesh.getMaxVecsSet(2, out));
        assertEquals(Math.sqrt(9 + 81), out[0], 1e-5);
        assertTrue(mesh.getMinVecsSet(2, out));
        assertEquals(Math.sqrt(14), out[0], 1e-5);
    }

    @Test
    void twoDimensionalVectorsAreKeptWithZeroZ() {
        PbMesh2D mesh = new PbTriangleMesh2D(3, new float[] {0, 1, 0}, new float[] {0, 0, 1}, 1, new int[] {0, 1, 2},
                true);
        mesh.addVecsSet(0, new SbVec2f[] {new SbVec2f(1, 2), new SbVec2f(3, 4), new SbVec2f(5, 6)}, "flow");
        assertArrayEquals(new float[] {1, 2, 0, 3, 4, 0, 5, 6, 0}, contents(mesh.getDirectVecsSet(0)));
    }

    /** Null, empty and null-headed vector arrays all reach the toolkit as a null pointer. */
    @ParameterizedTest
    @ValueSource(strings = {"null", "empty", "null-headed"})
    void vectorArraysWithoutAFirstVectorGiveTheToolkitNull(String kind) {
        PbMesh2D mesh = twoNodeMesh();
        Object[] vectors3 = switch (kind) {
            case "null" -> null;
            case "empty" -> new SbVec3f[0];
            default -> new SbVec3f[] {null, new SbVec3f(1, 1, 1)};
        };
        Object[] vectors2 = vectors3 == null ? null : vectors3.length == 0 ? new SbVec2f[0]
                : new SbVec2f[] {null, new SbVec2f(1, 1)};
        Journal.start();
        callDeclared(PbMesh.class, mesh, "addVecsSetImpl", handle(mesh), 4, vectors3, "n3");
        List<String> lines = Journal.stop();
        assertTrue(lines.contains("PbMesh::addVecsSet(4, null, \"n3\")"), lines.toString());
        Journal.start();
        callDeclared(PbMesh2D.class, mesh, "addVecsSetImpl", handle(mesh), 5, vectors2, "n2");
        lines = Journal.stop();
        assertTrue(lines.contains("PbMesh2D::addVecsSet(5, null, \"n2\")"), lines.toString());
        assertNull(mesh.getVecsSet(4));
        assertNull(mesh.getDirectVecsSet(5));
        assertEquals("n2", mesh.getVecsSetName(5));
    }

    private static PbMesh2D twoNodeMesh() {
        return new PbTriangleMesh2D(2, new float[] {0, 1}, new float[] {0, 0}, 0, new int[0], true);
    }

    @Test
    void vectorsReachTheToolkitInOrder() {
        PbMesh mesh = twoNodeMesh();
        Journal.start();
        mesh.addVecsSet(0, new SbVec3f[] {new SbVec3f(1, 2, 3), new SbVec3f(-4, 5.5f, 6)}, "é");
        List<String> lines = Journal.stop();
        assertTrue(lines.contains("PbMesh::addVecsSet(0, [(1, 2, 3), (-4, 5.5, 6)], \"é\")"), lines.toString());
    }

    @Test
    void missingSetsGiveNullsAndFailingExtremesWriteZero() {
        PbMesh mesh = grid();
        assertNull(mesh.getValuesSetName(9));
        assertNull(mesh.getStringsSetName(9));
        assertNull(mesh.getVecsSetName(9));
        assertNull(mesh.getValuesSet(9));
        assertNull(mesh.getDirectValuesSet(9));
        assertNull(mesh.getDirectVecsSet(9));
        assertNull(mesh.getVecsSet(9));
        assertEquals(0L, call(mesh, "getVecsSetImpl", handle(mesh), 9));
        for (String extreme : List.of("getMinValuesSet", "getMaxValuesSet", "getMinVecsSet", "getMaxVecsSet")) {
            float[] out = {123f};
            assertEquals(false, call(mesh, extreme + "Impl", handle(mesh), 9, out), extreme);
            assertEquals(0f, out[0], extreme + " writes 0 when the toolkit sets nothing");
        }
        assertFalse(mesh.removeValuesSet(9));
    }

    @Test
    void extremesOfAValuesSet() {
        PbMesh mesh = grid();
        float[] values = ramp(12);
        values[4] = -7;
        mesh.addValuesSet(0, values, "t");
        float[] out = new float[1];
        assertTrue(mesh.getMinValuesSet(0, out));
        assertEquals(-7f, out[0]);
        assertTrue(mesh.getMaxValuesSet(0, out));
        assertEquals(5.5f, out[0]);
    }

    @Test
    void setsAreCountedReplacedAndRemoved() {
        PbMesh mesh = grid();
        mesh.addValuesSet(0, ramp(12), "a");
        mesh.addValuesSet(5, ramp(6), DataBindings.PER_CELL, "b");
        mesh.addValuesSet(5, ramp(12), DataBindings.PER_NODE, "c");
        assertEquals(2, mesh.getNumValuesSet());
        assertEquals("c", mesh.getValuesSetName(5));
        assertEquals(12, mesh.getValuesSet(5).length);
        assertTrue(mesh.removeValuesSet(0));
        assertFalse(mesh.removeValuesSet(0));
        assertEquals(1, mesh.getNumValuesSet());
        mesh.removeAllValuesSet();
        assertEquals(0, mesh.getNumValuesSet());

        String[] labels = new String[12];
        java.util.Arrays.fill(labels, "x");
        mesh.addStringsSet(1, labels, "labels");
        mesh.addStringsSet(2, labels, "more");
        assertEquals(2, mesh.getNumStringsSet());
        assertEquals("labels", mesh.getStringsSetName(1));
        assertTrue(mesh.removeStringsSet(1));
        mesh.removeAllStringsSet();
        assertEquals(0, mesh.getNumStringsSet());

        mesh.addVecsSet(1, null, "empty");
        assertEquals(1, mesh.getNumVecsSet());
        assertTrue(mesh.removeVecsSet(1));
        mesh.addVecsSet(1, null, "again");
        mesh.removeAllVecsSet();
        assertEquals(0, mesh.getNumVecsSet());
    }

    @Test
    void stringsReachTheToolkit() {
        PbMesh mesh = twoNodeMesh();
        Journal.start();
        mesh.addStringsSet(0, new String[] {"north", null}, "names");
        List<String> lines = Journal.stop();
        assertTrue(lines.contains("PbMesh::addStringsSet(0, [\"north\", \"\"], \"names\")"), lines.toString());
    }

    @Test
    void theDataDuplicationFlagIsReported() {
        assertTrue(new PbCartesianGrid2D(true).isDataDuplicated());
        assertFalse(new PbCartesianGrid2D(false).isDataDuplicated());
        PbMesh copy = new PbCartesianGrid2D(new PbCartesianGrid2D(false));
        assertFalse(copy.isDataDuplicated());
        assertNotNull(copy.toString());
    }
}
