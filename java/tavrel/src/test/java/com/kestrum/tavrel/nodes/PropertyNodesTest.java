package com.kestrum.tavrel.nodes;

import static org.junit.jupiter.api.Assertions.assertArrayEquals;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertFalse;
import static org.junit.jupiter.api.Assertions.assertNotEquals;
import static org.junit.jupiter.api.Assertions.assertThrows;
import static org.junit.jupiter.api.Assertions.assertTrue;

import com.kestrum.corvel.SbVec2f;
import com.kestrum.corvel.SbVec3f;
import com.kestrum.corvel.actions.SoGLRenderAction;
import com.kestrum.corvel.nodes.SoGroup;
import com.kestrum.corvel.nodes.SoNode;
import com.kestrum.tavrel.data.PoMeshFilled;
import com.kestrum.tavrel.graph.PbIsovaluesList.IsoList;
import com.kestrum.tavrel.nodes.PoMeshProperty.DataBindings;
import com.kestrum.tavrel.testkit.Journal;
import java.nio.ByteBuffer;
import java.nio.ByteOrder;
import java.nio.FloatBuffer;
import java.util.List;
import java.util.function.Consumer;
import java.util.stream.Stream;
import org.junit.jupiter.api.Test;
import org.junit.jupiter.params.ParameterizedTest;
import org.junit.jupiter.params.provider.Arguments;
import org.junit.jupiter.params.provider.MethodSource;

/** The attribute property nodes' methods with arguments, and a representation drawing through them. */
class PropertyNodesTest {
    private static final float[] NO_VALUES = {};

    /**
     * The three regular-list setters: each reaches its own toolkit overload with the arguments in
     * its order, and the list it makes is read back.
     */
    static Stream<Arguments> regularLists() {
        return Stream.of(
                Arguments.of("(int, float[], int): 4 values over the range of the values given",
                        (Consumer<PoIsovaluesList>) l -> l.setRegularIsoList(3, new float[] {2, -1, 5, 100}, 4),
                        "PoIsovaluesList::setRegularIsoList(int, float*, int)(3, [2, -1, 5], 4)",
                        new float[] {-1, 1, 3, 5}, -1f, 5f, 2f),
                Arguments.of("(int, float, float): 5 values from an origin, a step apart",
                        (Consumer<PoIsovaluesList>) l -> l.setRegularIsoList(5, 1f, 0.5f),
                        "PoIsovaluesList::setRegularIsoList(int, float, float)(5, 1, 0.5)",
                        new float[] {1, 1.5f, 2, 2.5f, 3}, 1f, 3f, 0.5f),
                Arguments.of("(float, float, int): 3 values from a minimum to a maximum",
                        (Consumer<PoIsovaluesList>) l -> l.setRegularIsoList(1f, 5f, 3),
                        "PoIsovaluesList::setRegularIsoList(float, float, int)(1, 5, 3)",
                        new float[] {1, 3, 5}, 1f, 5f, 2f));
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("regularLists")
    void regularListSettersReachTheirOverloadInTheirArgumentOrder(String what, Consumer<PoIsovaluesList> set,
            String journalLine, float[] values, float min, float max, float step) {
        try (PoIsovaluesList list = new PoIsovaluesList()) {
            Journal.start();
            set.accept(list);
            assertEquals(List.of(journalLine), Journal.stop());
            IsoList read = list.getIsoList();
            assertArrayEquals(values, read.values(), 1e-6f);
            assertEquals(min, read.min());
            assertEquals(max, read.max());
            assertEquals(step, read.step(), 1e-6f);
            assertTrue(read.regular());
        }
    }

    @Test
    void outputArraysAndBothListsAgree() {
        try (PoIsovaluesList list = new PoIsovaluesList()) {
            list.setRegularIsoList(0f, 2f, 5);
            int[] num = {-1, -1};
            float[] min = {9, 9};
            float[] max = {9, 9};
            float[] step = {9, 9};
            boolean[] regular = {false, false};
            long h = list.getNativeResourceHandleInternal();
            float[] copy = list.getIsoListImpl(h, num, min, max, step, regular);
            assertArrayEquals(new int[] {5, -1}, num, "the count in element 0 only");
            assertArrayEquals(new float[] {0, 9}, min);
            assertArrayEquals(new float[] {2, 9}, max);
            assertArrayEquals(new float[] {0.5f, 9}, step);
            assertArrayEquals(new boolean[] {true, false}, regular, "the flag in element 0 only");
            assertArrayEquals(new float[] {0, 0.5f, 1, 1.5f, 2}, copy);

            num[0] = -1;
            regular[0] = false;
            ByteBuffer buffer = (ByteBuffer) list.getDirectIsoListImpl(h, num, min, max, step, regular);
            assertEquals(20, buffer.capacity(), "5 floats of the node's memory");
            assertEquals(5, num[0]);
            assertTrue(regular[0]);
            FloatBuffer direct = list.getDirectIsoList();
            float[] viewed = new float[direct.remaining()];
            direct.get(viewed);
            assertArrayEquals(copy, viewed);
            assertArrayEquals(copy, list.getIsoList().values());
            FloatBuffer same = buffer.order(ByteOrder.nativeOrder()).asFloatBuffer();
            assertEquals(1.5f, same.get(3), "the direct buffer shows the list without a copy");
        }
    }

    @Test
    void anEmptyListGivesAnEmptyArrayAndAnEmptyBuffer() {
        try (PoIsovaluesList list = new PoIsovaluesList()) {
            IsoList read = list.getIsoList();
            assertArrayEquals(NO_VALUES, read.values());
            assertEquals(0, list.getDirectIsoList().capacity());
            list.setRegularIsoList(0, 3f, 1f);
            assertArrayEquals(NO_VALUES, list.getIsoList().values());
        }
    }

    @Test
    void isovalueSettersRefuseWhatTheToolkitCouldNotTake() {
        try (PoIsovaluesList list = new PoIsovaluesList()) {
            assertThrows(IllegalArgumentException.class, () -> list.setRegularIsoList(3, new float[2], 4));
            assertThrows(IllegalArgumentException.class, () -> list.setRegularIsoList(-1, 0f, 1f));
            assertThrows(IllegalArgumentException.class, () -> list.setRegularIsoList(0f, 1f, Integer.MAX_VALUE));
            assertThrows(NullPointerException.class, () -> list.setRegularIsoList(1, null, 4));
            list.dispose();
            assertThrows(IllegalStateException.class, list::getIsoList);
            assertThrows(IllegalStateException.class, list::getDirectIsoList);
        }
    }

    @Test
    void aDateMapsOntoItsCoordinateAndAnUnparsableOneGivesFalseAndZero() {
        try (PoDateFormatMapping mapping = new PoDateFormatMapping()) {
            assertEquals(2f, mapping.getCoordinate("2000-01-03"));
            mapping.getField("coord2").setValue("10");
            assertEquals(5f, mapping.getCoordinate("2000-01-01 12:00"));

            float[] coord = {7f, 7f};
            Journal.start();
            assertFalse(mapping.coordinate("the third of January", coord));
            assertEquals(List.of("PoDateFormatMapping::getCoordinate(\"the third of January\")"), Journal.stop());
            assertArrayEquals(new float[] {0f, 7f}, coord, "0 stored when the toolkit writes nothing");
            IllegalArgumentException refused = assertThrows(IllegalArgumentException.class,
                    () -> mapping.getCoordinate("2000-13-45"));
            assertEquals("the date mapping cannot read the date \"2000-13-45\"", refused.getMessage());
            assertThrows(NullPointerException.class, () -> mapping.getCoordinate(null));
        }
    }

    @Test
    void domainValuesReachTheToolkitAsVectorsAndItsMatrixFollowsThem() {
        try (PoDomain domain = new PoDomain()) {
            Journal.start();
            domain.setValues(new SbVec2f(1, 2), new SbVec2f(3, 6), PoDomain.BoundingBoxTypes.MAXBOUNDEDCUBE);
            domain.setValues(new SbVec3f(1, 2, 3), new SbVec3f(4, 5, 6), PoDomain.BoundingBoxTypes.ASIS);
            long transform = domain.getTransformAddress();
            long matrix = domain.getMatrixTransformAddress();
            assertEquals(List.of("PoDomain::setValues((1, 2), (3, 6), 2)",
                    "PoDomain::setValues((1, 2, 3), (4, 5, 6), 0)",
                    "PoDomain::getTransform()", "PoDomain::getMatrixTransform()"), Journal.stop());
            assertEquals(0L, transform, "this toolkit makes no transform node");
            assertNotEquals(0L, matrix);
            assertEquals(matrix, domain.getMatrixTransformAddress(), "the same matrix for the node's life");
            assertEquals("1 2 3", domain.getField("min").get(), "the node keeps the box as given");
            assertThrows(NullPointerException.class,
                    () -> domain.setValues(null, new SbVec2f(), PoDomain.BoundingBoxTypes.ASIS));
            assertThrows(NullPointerException.class, () -> domain.setValues(new SbVec3f(), new SbVec3f(), null));
        }
    }

    /** A 3 x 2 cell grid with the values 0, 0.2 ... 1 per cell. */
    private static PoRegularCartesianGrid2D grid() {
        PoRegularCartesianGrid2D grid = new PoRegularCartesianGrid2D();
        grid.setGeometry(4, 3, 0, 0, 3, 2, null);
        grid.addValuesSet(0, new float[] {0f, 0.2f, 0.4f, 0.6f, 0.8f, 1f}, DataBindings.PER_CELL, "v");
        return grid;
    }

    @Test
    void aRepresentationAfterThePropertyNodesDrawsWithTheirAttributes() {
        try (PoRegularCartesianGrid2D grid = grid();
                PoLinearDataMapping mapping = new PoLinearDataMapping();
                PoIsovaluesList isovalues = new PoIsovaluesList();
                PoDomain domain = new PoDomain();
                PoIntervalCellFilter filter = new PoIntervalCellFilter();
                PoMeshFilled filled = new PoMeshFilled();
                SoGroup group = new SoGroup();
                SoGLRenderAction render = new SoGLRenderAction()) {
            mapping.getField("color2").setValue("1 0 0");  // 0 black to 1 red
            isovalues.setRegularIsoList(0f, 1f, 5);
            domain.setValues(new SbVec2f(0, 0), new SbVec2f(3, 2), PoDomain.BoundingBoxTypes.ASIS);
            filter.getField("min").setValue("0.3");
            filter.getField("max").setValue("0.9");
            for (SoNode n : new SoNode[] {grid, mapping, isovalues, domain, filter, filled}) {
                group.addChild(n);
            }
            Journal.start();
            render.apply(group);
            List<String> selections = Journal.linesStartingWith("PoMesh::selectCells(");
            Journal.stop();

            assertEquals(1, selections.size());
            assertTrue(selections.get(0).endsWith(", 6, [2, 3, 4])"), selections.get(0));
            assertEquals("2 3 4", filled.getField("drawnCells").get(), "the cells the interval filter kept");
            assertEquals("0.400000006 0 0 0.600000024 0 0 0.800000012 0 0", filled.getField("cellColors").get());
            assertEquals("0 0.25 0.5 0.75 1", filled.getField("isovalues").get());
            assertEquals("0 0 0 3 2 0", filled.getField("domain").get());

            // Outside the group (a render of the representation alone) it finds none of them.
            render.apply(filled);
            assertEquals("", filled.getField("drawnCells").get(), "no mesh without the mesh node");
            assertEquals("", filled.getField("cellColors").get());
            assertEquals("", filled.getField("isovalues").get());
        }
    }

    @Test
    void disposedPropertyNodesRefuseTheirMethods() {
        PoDomain domain = new PoDomain();
        PoDateFormatMapping mapping = new PoDateFormatMapping();
        domain.dispose();
        mapping.dispose();
        assertThrows(IllegalStateException.class, domain::getMatrixTransformAddress);
        assertThrows(IllegalStateException.class,
                () -> domain.setValues(new SbVec2f(), new SbVec2f(), PoDomain.BoundingBoxTypes.ASIS));
        assertThrows(IllegalStateException.class, () -> mapping.getCoordinate("2000-01-01"));
    }
}
