package com.kestrum.tavrel.nodes;

import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertFalse;
import static org.junit.jupiter.api.Assertions.assertInstanceOf;
import static org.junit.jupiter.api.Assertions.assertTrue;

import com.kestrum.tavrel.data.PbMesh;
import com.kestrum.tavrel.fields.PoSFCartesianGrid2D;
import com.kestrum.tavrel.fields.PoSFCartesianGrid3D;
import com.kestrum.tavrel.fields.PoSFHexahedronMesh3D;
import com.kestrum.tavrel.fields.PoSFIndexedMesh2D;
import com.kestrum.tavrel.fields.PoSFIndexedMesh3D;
import com.kestrum.tavrel.fields.PoSFIrregularMesh1D;
import com.kestrum.tavrel.fields.PoSFMesh;
import com.kestrum.tavrel.fields.PoSFParalCartesianGrid2D;
import com.kestrum.tavrel.fields.PoSFParalCartesianGrid3D;
import com.kestrum.tavrel.fields.PoSFPolarGrid2D;
import com.kestrum.tavrel.fields.PoSFQuadrangleMesh2D;
import com.kestrum.tavrel.fields.PoSFRegularCartesianGrid2D;
import com.kestrum.tavrel.fields.PoSFRegularCartesianGrid3D;
import com.kestrum.tavrel.fields.PoSFRegularMesh1D;
import com.kestrum.tavrel.fields.PoSFTetrahedronMesh3D;
import com.kestrum.tavrel.fields.PoSFTriangleMesh2D;
import com.kestrum.tavrel.testkit.Journal;
import java.util.ArrayList;
import java.util.List;
import java.util.function.Consumer;
import java.util.function.Supplier;
import java.util.stream.Collectors;
import java.util.stream.IntStream;
import java.util.stream.Stream;
import org.junit.jupiter.params.ParameterizedTest;
import org.junit.jupiter.params.provider.Arguments;
import org.junit.jupiter.params.provider.MethodSource;

/**
 * Every geometry replacement of the mesh nodes and the mesh fields reaches the right overload
 * of the field's setGeometry with its arguments in order, and the mesh the node or field holds
 * takes that geometry; every class has its toolkit type.
 */
class MeshGeometryCallsTest {
    static final float[] X4 = {0, 1, 1, 0};
    static final float[] Y4 = {0, 0, 1, 1};
    static final float[] Z4 = {0.5f, 1.5f, 2.5f, 3.5f};
    static final float[] X2 = {0, 2};
    static final float[] Y2 = {0, 3};
    static final float[] Z2 = {-1, 1};
    static final float[] X8 = {0, 1, 1, 0, 0, 1, 1, 0};
    static final float[] Y8 = {0, 0, 1, 1, 0, 0, 1, 1};
    static final float[] Z8 = {0, 0, 0, 0, 1, 1, 1, 1};
    static final int[] TRIANGLES = {0, 1, 2, 0, 2, 3};
    static final int[] QUAD = {0, 1, 2, 3};
    static final int[] HEX = {0, 1, 2, 3, 4, 5, 6, 7};
    static final int[] TETS = {0, 1, 3, 4, 1, 2, 3, 6};

    /** An array as the journal renders it. */
    static String a(float... values) {
        return IntStream.range(0, values.length).mapToObj(i -> values[i] == (int) values[i]
                ? Integer.toString((int) values[i]) : Float.toString(values[i]))
                .collect(Collectors.joining(", ", "[", "]"));
    }

    static String a(int... values) {
        return IntStream.of(values).mapToObj(Integer::toString).collect(Collectors.joining(", ", "[", "]"));
    }

    /**
     * One geometry replacement: on a node and on a field of the kind, the same call; the journal
     * line of the field's setGeometry it must make, and the node count of the mesh afterwards.
     */
    private static <N extends PoMeshProperty, F extends PoSFMesh> void variant(List<Arguments> cases, String kind,
            Supplier<N> node, Consumer<N> onNode, Supplier<F> field, Consumer<F> onField, String arguments,
            int nodes) {
        String line = "PoSF" + kind + "::setGeometry" + arguments;
        cases.add(Arguments.of("Po" + kind + " " + arguments, line, nodes, (Supplier<PbMesh>) () -> {
            N n = node.get();
            onNode.accept(n);
            return n.getMesh();
        }));
        cases.add(Arguments.of("PoSF" + kind + " " + arguments, line, nodes, (Supplier<PbMesh>) () -> {
            F f = field.get();
            onField.accept(f);
            return f.getValue();
        }));
    }

    static Stream<Arguments> geometries() {
        List<Arguments> c = new ArrayList<>();
        variant(c, "CartesianGrid2D", PoCartesianGrid2D::new, n -> n.setGeometry(2, 2, X4, Y4, Z4),
                PoSFCartesianGrid2D::new, f -> f.setGeometry(2, 2, X4, Y4, Z4),
                "(2, 2, " + a(X4) + ", " + a(Y4) + ", " + a(Z4) + ")", 4);
        variant(c, "CartesianGrid2D", PoCartesianGrid2D::new, n -> n.setGeometry(2, 2, X4, Y4, null),
                PoSFCartesianGrid2D::new, f -> f.setGeometry(2, 2, X4, Y4, null),
                "(2, 2, " + a(X4) + ", " + a(Y4) + ", null)", 4);
        variant(c, "ParalCartesianGrid2D", PoParalCartesianGrid2D::new, n -> n.setGeometry(2, 2, X2, Y2, Z4),
                PoSFParalCartesianGrid2D::new, f -> f.setGeometry(2, 2, X2, Y2, Z4),
                "(2, 2, " + a(X2) + ", " + a(Y2) + ", " + a(Z4) + ")", 4);
        variant(c, "PolarGrid2D", PoPolarGrid2D::new, n -> n.setGeometry(2, 3, X2, new float[] {0, 45, 90}, null),
                PoSFPolarGrid2D::new, f -> f.setGeometry(2, 3, X2, new float[] {0, 45, 90}, null),
                "(2, 3, " + a(X2) + ", [0, 45, 90], null)", 6);
        variant(c, "RegularCartesianGrid2D", PoRegularCartesianGrid2D::new,
                n -> n.setGeometry(3, 2, 0, 1, 2, 3.5f, null), PoSFRegularCartesianGrid2D::new,
                f -> f.setGeometry(3, 2, 0, 1, 2, 3.5f, null), "(3, 2, 0, 1, 2, 3.5, null)", 6);
        variant(c, "RegularCartesianGrid2D", PoRegularCartesianGrid2D::new,
                n -> n.setGeometry(2, 2, -1, -2, 3, 4, Z4), PoSFRegularCartesianGrid2D::new,
                f -> f.setGeometry(2, 2, -1, -2, 3, 4, Z4), "(2, 2, -1, -2, 3, 4, " + a(Z4) + ")", 4);
        variant(c, "CartesianGrid3D", PoCartesianGrid3D::new, n -> n.setGeometry(2, 2, 2, X8, Y8, Z8),
                PoSFCartesianGrid3D::new, f -> f.setGeometry(2, 2, 2, X8, Y8, Z8),
                "(2, 2, 2, " + a(X8) + ", " + a(Y8) + ", " + a(Z8) + ")", 8);
        variant(c, "ParalCartesianGrid3D", PoParalCartesianGrid3D::new, n -> n.setGeometry(2, 2, 2, X2, Y2, Z2),
                PoSFParalCartesianGrid3D::new, f -> f.setGeometry(2, 2, 2, X2, Y2, Z2),
                "(2, 2, 2, " + a(X2) + ", " + a(Y2) + ", " + a(Z2) + ")", 8);
        variant(c, "RegularCartesianGrid3D", PoRegularCartesianGrid3D::new,
                n -> n.setGeometry(2, 3, 4, 0, 1, 2, 3, 4, 5.5f), PoSFRegularCartesianGrid3D::new,
                f -> f.setGeometry(2, 3, 4, 0, 1, 2, 3, 4, 5.5f), "(2, 3, 4, 0, 1, 2, 3, 4, 5.5)", 24);
        variant(c, "IndexedMesh2D", PoIndexedMesh2D::new,
                n -> n.setGeometry(4, X4, Y4, 2, new int[] {3, 3}, TRIANGLES), PoSFIndexedMesh2D::new,
                f -> f.setGeometry(4, X4, Y4, 2, new int[] {3, 3}, TRIANGLES),
                "(4, " + a(X4) + ", " + a(Y4) + ", 2, [3, 3], " + a(TRIANGLES) + ")", 4);
        variant(c, "IndexedMesh2D", PoIndexedMesh2D::new,
                n -> n.setGeometry(4, X4, Y4, Z4, 1, new int[] {4}, new int[] {3, 2, 1, 0}), PoSFIndexedMesh2D::new,
                f -> f.setGeometry(4, X4, Y4, Z4, 1, new int[] {4}, new int[] {3, 2, 1, 0}),
                "(4, " + a(X4) + ", " + a(Y4) + ", " + a(Z4) + ", 1, [4], [3, 2, 1, 0])", 4);
        variant(c, "IndexedMesh3D", PoIndexedMesh3D::new, n -> n.setGeometry(8, X8, Y8, Z8, 1, new int[] {8}, HEX),
                PoSFIndexedMesh3D::new, f -> f.setGeometry(8, X8, Y8, Z8, 1, new int[] {8}, HEX),
                "(8, " + a(X8) + ", " + a(Y8) + ", " + a(Z8) + ", 1, [8], " + a(HEX) + ")", 8);
        // The triangle mesh's overloads are numbered differently in the node and in the field.
        variant(c, "TriangleMesh2D", PoTriangleMesh2D::new, n -> n.setGeometry(4, X4, Y4),
                PoSFTriangleMesh2D::new, f -> f.setGeometry(4, X4, Y4), "(4, " + a(X4) + ", " + a(Y4) + ")", 4);
        variant(c, "TriangleMesh2D", PoTriangleMesh2D::new, n -> n.setGeometry(4, X4, Y4, 2, TRIANGLES),
                PoSFTriangleMesh2D::new, f -> f.setGeometry(4, X4, Y4, 2, TRIANGLES),
                "(4, " + a(X4) + ", " + a(Y4) + ", 2, " + a(TRIANGLES) + ")", 4);
        variant(c, "TriangleMesh2D", PoTriangleMesh2D::new, n -> n.setGeometry(4, X4, Y4, Z4, 2, TRIANGLES),
                PoSFTriangleMesh2D::new, f -> f.setGeometry(4, X4, Y4, Z4, 2, TRIANGLES),
                "(4, " + a(X4) + ", " + a(Y4) + ", " + a(Z4) + ", 2, " + a(TRIANGLES) + ")", 4);
        variant(c, "QuadrangleMesh2D", PoQuadrangleMesh2D::new, n -> n.setGeometry(4, X4, Y4, 1, QUAD),
                PoSFQuadrangleMesh2D::new, f -> f.setGeometry(4, X4, Y4, 1, QUAD),
                "(4, " + a(X4) + ", " + a(Y4) + ", 1, " + a(QUAD) + ")", 4);
        variant(c, "QuadrangleMesh2D", PoQuadrangleMesh2D::new, n -> n.setGeometry(4, X4, Y4, Z4, 1, QUAD),
                PoSFQuadrangleMesh2D::new, f -> f.setGeometry(4, X4, Y4, Z4, 1, QUAD),
                "(4, " + a(X4) + ", " + a(Y4) + ", " + a(Z4) + ", 1, " + a(QUAD) + ")", 4);
        variant(c, "TetrahedronMesh3D", PoTetrahedronMesh3D::new, n -> n.setGeometry(8, X8, Y8, Z8, 2, TETS),
                PoSFTetrahedronMesh3D::new, f -> f.setGeometry(8, X8, Y8, Z8, 2, TETS),
                "(8, " + a(X8) + ", " + a(Y8) + ", " + a(Z8) + ", 2, " + a(TETS) + ")", 8);
        variant(c, "HexahedronMesh3D", PoHexahedronMesh3D::new, n -> n.setGeometry(8, X8, Y8, Z8, 1, HEX),
                PoSFHexahedronMesh3D::new, f -> f.setGeometry(8, X8, Y8, Z8, 1, HEX),
                "(8, " + a(X8) + ", " + a(Y8) + ", " + a(Z8) + ", 1, " + a(HEX) + ")", 8);
        variant(c, "IrregularMesh1D", PoIrregularMesh1D::new, n -> n.setGeometry(2, X2),
                PoSFIrregularMesh1D::new, f -> f.setGeometry(2, X2), "(2, " + a(X2) + ")", 2);
        variant(c, "RegularMesh1D", PoRegularMesh1D::new, n -> n.setGeometry(3, -1, 0.25f),
                PoSFRegularMesh1D::new, f -> f.setGeometry(3, -1, 0.25f), "(3, -1, 0.25)", 3);
        return c.stream();
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("geometries")
    void reachesTheFieldsSetGeometryWithItsArgumentsInOrder(String name, String line, int nodes,
            Supplier<PbMesh> call) {
        Journal.start();
        PbMesh mesh;
        try {
            mesh = call.get();
        } finally {
            Journal.setEnabled(false);
        }
        String function = line.substring(0, line.indexOf('('));
        List<String> lines = Journal.linesStartingWith(function + "(");
        assertEquals(List.of(line), lines, () -> "journal: " + Journal.stop());
        assertEquals(nodes, mesh.getNumNodes(), "the mesh inside takes the geometry");
    }

    /** A node or field class, its toolkit type, and the class of its mesh. */
    static Stream<Arguments> classes() {
        List<Arguments> c = new ArrayList<>();
        kind(c, "CartesianGrid2D", PoCartesianGrid2D::new, PoCartesianGrid2D.getClassTypeName(),
                PoSFCartesianGrid2D::new, PoSFCartesianGrid2D.getClassTypeName());
        kind(c, "CartesianGrid3D", PoCartesianGrid3D::new, PoCartesianGrid3D.getClassTypeName(),
                PoSFCartesianGrid3D::new, PoSFCartesianGrid3D.getClassTypeName());
        kind(c, "ParalCartesianGrid2D", PoParalCartesianGrid2D::new, PoParalCartesianGrid2D.getClassTypeName(),
                PoSFParalCartesianGrid2D::new, PoSFParalCartesianGrid2D.getClassTypeName());
        kind(c, "ParalCartesianGrid3D", PoParalCartesianGrid3D::new, PoParalCartesianGrid3D.getClassTypeName(),
                PoSFParalCartesianGrid3D::new, PoSFParalCartesianGrid3D.getClassTypeName());
        kind(c, "RegularCartesianGrid2D", PoRegularCartesianGrid2D::new,
                PoRegularCartesianGrid2D.getClassTypeName(), PoSFRegularCartesianGrid2D::new,
                PoSFRegularCartesianGrid2D.getClassTypeName());
        kind(c, "RegularCartesianGrid3D", PoRegularCartesianGrid3D::new,
                PoRegularCartesianGrid3D.getClassTypeName(), PoSFRegularCartesianGrid3D::new,
                PoSFRegularCartesianGrid3D.getClassTypeName());
        kind(c, "PolarGrid2D", PoPolarGrid2D::new, PoPolarGrid2D.getClassTypeName(), PoSFPolarGrid2D::new,
                PoSFPolarGrid2D.getClassTypeName());
        kind(c, "IndexedMesh2D", PoIndexedMesh2D::new, PoIndexedMesh2D.getClassTypeName(), PoSFIndexedMesh2D::new,
                PoSFIndexedMesh2D.getClassTypeName());
        kind(c, "IndexedMesh3D", PoIndexedMesh3D::new, PoIndexedMesh3D.getClassTypeName(), PoSFIndexedMesh3D::new,
                PoSFIndexedMesh3D.getClassTypeName());
        kind(c, "TriangleMesh2D", PoTriangleMesh2D::new, PoTriangleMesh2D.getClassTypeName(),
                PoSFTriangleMesh2D::new, PoSFTriangleMesh2D.getClassTypeName());
        kind(c, "QuadrangleMesh2D", PoQuadrangleMesh2D::new, PoQuadrangleMesh2D.getClassTypeName(),
                PoSFQuadrangleMesh2D::new, PoSFQuadrangleMesh2D.getClassTypeName());
        kind(c, "TetrahedronMesh3D", PoTetrahedronMesh3D::new, PoTetrahedronMesh3D.getClassTypeName(),
                PoSFTetrahedronMesh3D::new, PoSFTetrahedronMesh3D.getClassTypeName());
        kind(c, "HexahedronMesh3D", PoHexahedronMesh3D::new, PoHexahedronMesh3D.getClassTypeName(),
                PoSFHexahedronMesh3D::new, PoSFHexahedronMesh3D.getClassTypeName());
        kind(c, "IrregularMesh1D", PoIrregularMesh1D::new, PoIrregularMesh1D.getClassTypeName(),
                PoSFIrregularMesh1D::new, PoSFIrregularMesh1D.getClassTypeName());
        kind(c, "RegularMesh1D", PoRegularMesh1D::new, PoRegularMesh1D.getClassTypeName(), PoSFRegularMesh1D::new,
                PoSFRegularMesh1D.getClassTypeName());
        return c.stream();
    }

    private static void kind(List<Arguments> cases, String kind, Supplier<? extends PoMeshProperty> node,
            String nodeType, Supplier<? extends PoSFMesh> field, String fieldType) {
        cases.add(Arguments.of(kind, node, nodeType, field, fieldType));
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("classes")
    void eachClassHasItsTypeAndAMeshOfItsKind(String kind, Supplier<? extends PoMeshProperty> newNode,
            String nodeType, Supplier<? extends PoSFMesh> newField, String fieldType) throws Exception {
        assertEquals("Po" + kind, nodeType);
        assertEquals("PoSF" + kind, fieldType);
        Class<?> meshClass = Class.forName("com.kestrum.tavrel.data.Pb" + kind);
        Journal.start();
        PoMeshProperty node = newNode.get();
        PoSFMesh field = newField.get();
        List<String> journal = Journal.stop();
        assertTrue(journal.contains("Po" + kind + "::Po" + kind + "()"), journal::toString);
        assertTrue(journal.contains("PoSF" + kind + "::PoSF" + kind + "()"), journal::toString);
        assertEquals(nodeType, node.getTypeName());
        assertInstanceOf(meshClass, node.getMesh());
        assertInstanceOf(meshClass, field.getValue());
        assertEquals(0, node.getMesh().getNumNodes(), "an empty mesh");
        assertFalse(node.getMesh().isDisposed());
        node.dispose();
        field.dispose();
    }

    @org.junit.jupiter.api.Test
    void theAbstractBasesHaveTheirTypesAndTheBindingsTheToolkitsValues() {
        assertEquals("PoMeshProperty", PoMeshProperty.getClassTypeName());
        assertEquals("PoSFMesh", PoSFMesh.getClassTypeName());
        assertEquals(0, PoMeshProperty.DataBindings.PER_CELL.getValue());
        assertEquals(1, PoMeshProperty.DataBindings.PER_NODE.getValue());
    }
}
