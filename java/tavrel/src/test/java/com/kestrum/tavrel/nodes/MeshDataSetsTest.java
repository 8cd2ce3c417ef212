package com.kestrum.tavrel.nodes;

import static com.kestrum.tavrel.testkit.Natives.callDeclared;
import static org.junit.jupiter.api.Assertions.assertArrayEquals;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertNull;

import com.kestrum.corvel.SbVec3f;
import com.kestrum.corvel.misc.NativeObject;
import com.kestrum.tavrel.data.PbMesh;
import com.kestrum.tavrel.fields.PoSFMesh;
import com.kestrum.tavrel.fields.PoSFRegularCartesianGrid2D;
import com.kestrum.tavrel.nodes.PoMeshProperty.DataBindings;
import com.kestrum.tavrel.testkit.Journal;
import java.nio.FloatBuffer;
import java.util.List;
import java.util.function.Supplier;
import java.util.stream.Stream;
import org.junit.jupiter.params.ParameterizedTest;
import org.junit.jupiter.params.provider.Arguments;
import org.junit.jupiter.params.provider.MethodSource;

/**
 * Data sets added on a mesh node or on a mesh field reach the mesh inside it, through the
 * node's own operation or the field's, with the name unchanged and null vector data where the
 * vector array has none.
 */
class MeshDataSetsTest {
    /** Where data sets are added: a node or a field holding a grid of 3 x 2 nodes (2 cells). */
    interface Target {
        /** The journaled function of an operation ("addValuesSet", ...). */
        String function(String operation);

        PbMesh mesh();

        void addValuesSet(int set, float[] values, String name);

        void addValuesSet(int set, float[] values, DataBindings binding, String name);

        void addStringsSet(int set, String[] strings, String name);

        void addVecsSet(int set, SbVec3f[] vectors, String name);

        /** The object whose private natives take the calls. */
        NativeObject object();
    }

    static Target node() {
        PoRegularCartesianGrid2D node = new PoRegularCartesianGrid2D();
        node.setGeometry(3, 2, 0, 0, 2, 1, null);
        return new Target() {
            public String function(String operation) {
                return "PoRegularCartesianGrid2D::" + operation;
            }

            public PbMesh mesh() {
                return node.getMesh();
            }

            public void addValuesSet(int set, float[] values, String name) {
                node.addValuesSet(set, values, name);
            }

            public void addValuesSet(int set, float[] values, DataBindings binding, String name) {
                node.addValuesSet(set, values, binding, name);
            }

            public void addStringsSet(int set, String[] strings, String name) {
                node.addStringsSet(set, strings, name);
            }

            public void addVecsSet(int set, SbVec3f[] vectors, String name) {
                node.addVecsSet(set, vectors, name);
            }

            public NativeObject object() {
                return node;
            }

            @Override
            public String toString() {
                return "node";
            }
        };
    }

    static Target field() {
        PoSFRegularCartesianGrid2D field = new PoSFRegularCartesianGrid2D();
        field.setGeometry(3, 2, 0, 0, 2, 1, null);
        return new Target() {
            public String function(String operation) {
                return "PoSFMesh::" + operation;
            }

            public PbMesh mesh() {
                return field.getValue();
            }

            public void addValuesSet(int set, float[] values, String name) {
                field.addValuesSet(set, values, name);
            }

            public void addValuesSet(int set, float[] values, DataBindings binding, String name) {
                field.addValuesSet(set, values, binding, name);
            }

            public void addStringsSet(int set, String[] strings, String name) {
                field.addStringsSet(set, strings, name);
            }

            public void addVecsSet(int set, SbVec3f[] vectors, String name) {
                field.addVecsSet(set, vectors, name);
            }

            public NativeObject object() {
                return field;
            }

            @Override
            public String toString() {
                return "field";
            }
        };
    }

    static Stream<Arguments> targets() {
        return Stream.of(Arguments.of((Supplier<Target>) MeshDataSetsTest::node),
                Arguments.of((Supplier<Target>) MeshDataSetsTest::field));
    }

    /** The only journal line of the function recorded while the action ran. */
    private static String journaled(String function, Runnable action) {
        Journal.start();
        try {
            action.run();
        } finally {
            Journal.setEnabled(false);
        }
        List<String> lines = Journal.linesStartingWith(function + "(");
        assertEquals(1, lines.size(), () -> "journal: " + Journal.stop());
        return lines.get(0);
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("targets")
    void valuesSetsReachTheMeshInside(Supplier<Target> made) {
        Target t = made.get();
        String name = "Temperatur \u00b0C \u2713 \ud83c\udf21";
        String function = t.function("addValuesSet");
        float[] values = {1, 2.5f, 3, 4, 5, 6};
        assertEquals(function + "(2, [1, 2.5, 3, 4, 5, 6], \"" + name + "\")",
                journaled(function, () -> t.addValuesSet(2, values, name)));
        assertArrayEquals(new float[] {1, 2.5f, 3, 4, 5, 6}, t.mesh().getValuesSet(2));
        assertEquals(name, t.mesh().getValuesSetName(2), "the name crosses unchanged");

        assertEquals(function + "(0, [7, 8], PER_CELL, \"cells\")",
                journaled(function, () -> t.addValuesSet(0, new float[] {7, 8}, DataBindings.PER_CELL, "cells")));
        assertEquals(PbMesh.DataBindings.PER_CELL, t.mesh().getValuesBinding(0));
        assertArrayEquals(new float[] {7, 8}, t.mesh().getValuesSet(0));
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("targets")
    void stringsSetsReachTheMeshInside(Supplier<Target> made) {
        Target t = made.get();
        String[] strings = {"a", null, "c", "d", "\u00e9", "f"};
        assertEquals(t.function("addStringsSet") + "(1, [\"a\", \"\", \"c\", \"d\", \"\u00e9\", \"f\"], \"labels\")",
                journaled(t.function("addStringsSet"), () -> t.addStringsSet(1, strings, "labels")));
        assertEquals("labels", t.mesh().getStringsSetName(1));
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("targets")
    void vectorsReachTheMeshInOrder(Supplier<Target> made) {
        Target t = made.get();
        SbVec3f[] vectors = new SbVec3f[6];
        for (int i = 0; i < 6; i++) {
            vectors[i] = new SbVec3f(3 * i + 1, 3 * i + 2, 3 * i + 3);
        }
        assertEquals(t.function("addVecsSet") + "(4, [(1, 2, 3), (4, 5, 6), (7, 8, 9), (10, 11, 12), (13, 14, 15), "
                + "(16, 17, 18)], \"v\")", journaled(t.function("addVecsSet"), () -> t.addVecsSet(4, vectors, "v")));
        FloatBuffer floats = t.mesh().getDirectVecsSet(4);
        float[] read = new float[floats.capacity()];
        floats.get(read);
        assertArrayEquals(new float[] {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18}, read);
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("targets")
    void vectorArraysWithoutDataGiveANullPointer(Supplier<Target> made) {
        Target t = made.get();
        String function = t.function("addVecsSet");
        assertEquals(function + "(1, null, \"none\")", journaled(function, () -> t.addVecsSet(1, null, "none")));
        assertEquals(function + "(2, null, \"empty\")",
                journaled(function, () -> t.addVecsSet(2, new SbVec3f[0], "empty")));
        // An array whose first element is null: past the Java checks, straight to the native method.
        Class<?> declaring = t.object() instanceof PoSFMesh ? PoSFMesh.class : PoMeshProperty.class;
        Object[] nullHeaded = {null, new SbVec3f(1, 2, 3)};
        assertEquals(function + "(3, null, \"headless\")", journaled(function, () -> callDeclared(declaring,
                t.object(), "addVecsSetImpl", t.object().getNativeResourceHandleInternal(), 3, nullHeaded,
                "headless")));
        assertNull(t.mesh().getDirectVecsSet(3));
        assertEquals("headless", t.mesh().getVecsSetName(3), "the set exists, without data");
    }
}
