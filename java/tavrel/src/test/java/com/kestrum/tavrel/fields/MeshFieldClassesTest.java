package com.kestrum.tavrel.fields;

import static com.kestrum.tavrel.testkit.Natives.handle;
import static com.kestrum.tavrel.testkit.Natives.pointer;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertFalse;
import static org.junit.jupiter.api.Assertions.assertNull;
import static org.junit.jupiter.api.Assertions.assertSame;
import static org.junit.jupiter.api.Assertions.assertThrows;
import static org.junit.jupiter.api.Assertions.assertTrue;

import com.kestrum.corvel.nodes.SoGroup;
import com.kestrum.corvel.nodes.SoNode;
import com.kestrum.tavrel.data.PbMesh;
import com.kestrum.tavrel.testkit.Fields;
import com.kestrum.tavrel.testkit.Journal;
import java.util.List;
import java.util.function.BiConsumer;
import java.util.function.BiPredicate;
import java.util.function.Consumer;
import java.util.function.Function;
import java.util.function.Supplier;
import java.util.stream.Collectors;
import java.util.stream.Stream;
import org.junit.jupiter.params.ParameterizedTest;
import org.junit.jupiter.params.provider.MethodSource;

/**
 * What every mesh field class does with a mesh of its own class: {@code setValue} copies it in,
 * {@code isEqualTo} compares two fields through the class's own comparison, {@code
 * addToContainer} sets the value, attaches the field and names it, and refuses a null value
 * (the native side reads the value unconditionally).
 */
class MeshFieldClassesTest {
    private static final float[] X4 = {0, 1, 1, 0};
    private static final float[] Y4 = {0, 0, 1, 1};
    private static final float[] Z4 = {0.5f, 1.5f, 2.5f, 3.5f};
    private static final float[] X8 = {0, 1, 1, 0, 0, 1, 1, 0};
    private static final float[] Y8 = {0, 0, 1, 1, 0, 0, 1, 1};
    private static final float[] Z8 = {0, 0, 0, 0, 1, 1, 1, 1};
    private static final int[] HEX = {0, 1, 2, 3, 4, 5, 6, 7};

    @FunctionalInterface
    interface AddToContainer<F, M> {
        void add(F field, SoNode container, String name, int fieldType, M initialValue);
    }

    /**
     * A field class: how to make one, a geometry giving its mesh {@code nodes} nodes, and the
     * class's own typed methods.
     */
    record Kind<F extends PoSFMesh, M extends PbMesh>(String name, Supplier<F> make, Consumer<F> geometry, int nodes,
            Function<F, M> value, BiConsumer<F, M> setValue, BiPredicate<F, F> isEqualTo,
            AddToContainer<F, M> addToContainer) {
        @Override
        public String toString() {
            return name;
        }

        /** A field of the class whose mesh has the geometry and one values set. */
        F filled() {
            F field = make.get();
            geometry.accept(field);
            field.addValuesSet(0, new float[nodes], "zeros");
            return field;
        }
    }

    private static <F extends PoSFMesh, M extends PbMesh> Kind<F, M> kind(String name, Supplier<F> make,
            Consumer<F> geometry, int nodes, Function<F, M> value, BiConsumer<F, M> setValue,
            BiPredicate<F, F> isEqualTo, AddToContainer<F, M> addToContainer) {
        return new Kind<>(name, make, geometry, nodes, value, setValue, isEqualTo, addToContainer);
    }

    static Stream<Kind<?, ?>> kinds() {
        return Stream.of(
                kind("PoSFCartesianGrid2D", PoSFCartesianGrid2D::new, f -> f.setGeometry(2, 2, X4, Y4, Z4), 4,
                        PoSFCartesianGrid2D::getValue, PoSFCartesianGrid2D::setValue, PoSFCartesianGrid2D::isEqualTo,
                        PoSFCartesianGrid2D::addToContainer),
                kind("PoSFCartesianGrid3D", PoSFCartesianGrid3D::new, f -> f.setGeometry(2, 2, 2, X8, Y8, Z8), 8,
                        PoSFCartesianGrid3D::getValue, PoSFCartesianGrid3D::setValue, PoSFCartesianGrid3D::isEqualTo,
                        PoSFCartesianGrid3D::addToContainer),
                kind("PoSFParalCartesianGrid2D", PoSFParalCartesianGrid2D::new,
                        f -> f.setGeometry(2, 3, new float[] {0, 2}, new float[] {0, 1, 3}, null), 6,
                        PoSFParalCartesianGrid2D::getValue, PoSFParalCartesianGrid2D::setValue,
                        PoSFParalCartesianGrid2D::isEqualTo, PoSFParalCartesianGrid2D::addToContainer),
                kind("PoSFParalCartesianGrid3D", PoSFParalCartesianGrid3D::new,
                        f -> f.setGeometry(2, 2, 2, new float[] {0, 2}, new float[] {0, 3}, new float[] {-1, 1}), 8,
                        PoSFParalCartesianGrid3D::getValue, PoSFParalCartesianGrid3D::setValue,
                        PoSFParalCartesianGrid3D::isEqualTo, PoSFParalCartesianGrid3D::addToContainer),
                kind("PoSFRegularCartesianGrid2D", PoSFRegularCartesianGrid2D::new,
                        f -> f.setGeometry(3, 2, 0, 1, 2, 3.5f, null), 6, PoSFRegularCartesianGrid2D::getValue,
                        PoSFRegularCartesianGrid2D::setValue, PoSFRegularCartesianGrid2D::isEqualTo,
                        PoSFRegularCartesianGrid2D::addToContainer),
                kind("PoSFRegularCartesianGrid3D", PoSFRegularCartesianGrid3D::new,
                        f -> f.setGeometry(2, 3, 4, 0, 1, 2, 3, 4, 5.5f), 24, PoSFRegularCartesianGrid3D::getValue,
                        PoSFRegularCartesianGrid3D::setValue, PoSFRegularCartesianGrid3D::isEqualTo,
                        PoSFRegularCartesianGrid3D::addToContainer),
                kind("PoSFPolarGrid2D", PoSFPolarGrid2D::new,
                        f -> f.setGeometry(2, 3, new float[] {1, 2}, new float[] {0, 45, 90}, null), 6,
                        PoSFPolarGrid2D::getValue, PoSFPolarGrid2D::setValue, PoSFPolarGrid2D::isEqualTo,
                        PoSFPolarGrid2D::addToContainer),
                kind("PoSFIndexedMesh2D", PoSFIndexedMesh2D::new,
                        f -> f.setGeometry(4, X4, Y4, 2, new int[] {3, 3}, new int[] {0, 1, 2, 0, 2, 3}), 4,
                        PoSFIndexedMesh2D::getValue, PoSFIndexedMesh2D::setValue, PoSFIndexedMesh2D::isEqualTo,
                        PoSFIndexedMesh2D::addToContainer),
                kind("PoSFIndexedMesh3D", PoSFIndexedMesh3D::new,
                        f -> f.setGeometry(8, X8, Y8, Z8, 1, new int[] {8}, HEX), 8, PoSFIndexedMesh3D::getValue,
                        PoSFIndexedMesh3D::setValue, PoSFIndexedMesh3D::isEqualTo, PoSFIndexedMesh3D::addToContainer),
                kind("PoSFTriangleMesh2D", PoSFTriangleMesh2D::new,
                        f -> f.setGeometry(4, X4, Y4, 2, new int[] {0, 1, 2, 0, 2, 3}), 4, PoSFTriangleMesh2D::getValue,
                        PoSFTriangleMesh2D::setValue, PoSFTriangleMesh2D::isEqualTo,
                        PoSFTriangleMesh2D::addToContainer),
                kind("PoSFQuadrangleMesh2D", PoSFQuadrangleMesh2D::new,
                        f -> f.setGeometry(4, X4, Y4, Z4, 1, new int[] {0, 1, 2, 3}), 4, PoSFQuadrangleMesh2D::getValue,
                        PoSFQuadrangleMesh2D::setValue, PoSFQuadrangleMesh2D::isEqualTo,
                        PoSFQuadrangleMesh2D::addToContainer),
                kind("PoSFTetrahedronMesh3D", PoSFTetrahedronMesh3D::new,
                        f -> f.setGeometry(8, X8, Y8, Z8, 2, new int[] {0, 1, 3, 4, 1, 2, 3, 6}), 8,
                        PoSFTetrahedronMesh3D::getValue, PoSFTetrahedronMesh3D::setValue,
                        PoSFTetrahedronMesh3D::isEqualTo, PoSFTetrahedronMesh3D::addToContainer),
                kind("PoSFHexahedronMesh3D", PoSFHexahedronMesh3D::new,
                        f -> f.setGeometry(8, X8, Y8, Z8, 1, HEX), 8, PoSFHexahedronMesh3D::getValue,
                        PoSFHexahedronMesh3D::setValue, PoSFHexahedronMesh3D::isEqualTo,
                        PoSFHexahedronMesh3D::addToContainer),
                kind("PoSFIrregularMesh1D", PoSFIrregularMesh1D::new, f -> f.setGeometry(3, new float[] {0, 2, 5}),
                        3, PoSFIrregularMesh1D::getValue, PoSFIrregularMesh1D::setValue,
                        PoSFIrregularMesh1D::isEqualTo, PoSFIrregularMesh1D::addToContainer),
                kind("PoSFRegularMesh1D", PoSFRegularMesh1D::new, f -> f.setGeometry(3, -1, 0.25f), 3,
                        PoSFRegularMesh1D::getValue, PoSFRegularMesh1D::setValue, PoSFRegularMesh1D::isEqualTo,
                        PoSFRegularMesh1D::addToContainer));
    }

    /** The journal's lines of the field class's own calls (the meshes' own calls left out). */
    private static List<String> fieldCalls() {
        return Journal.stop().stream().filter(l -> !l.startsWith("Pb")).collect(Collectors.toList());
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("kinds")
    <F extends PoSFMesh, M extends PbMesh> void setValueCopiesTheMeshIntoTheField(Kind<F, M> kind) {
        try (F source = kind.filled(); F field = kind.make().get()) {
            M mesh = kind.value().apply(source);
            long address = handle(kind.value().apply(field));
            Journal.start();
            kind.setValue().accept(field, mesh);
            assertEquals(List.of(kind.name() + "::setValue(" + pointer(handle(mesh)) + ")"), fieldCalls());
            M copied = kind.value().apply(field);
            assertEquals(address, handle(copied), "copied into the mesh inside the field");
            assertEquals(kind.nodes(), copied.getNumNodes());
            assertEquals("zeros", copied.getValuesSetName(0), "with its data sets");
        }
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("kinds")
    <F extends PoSFMesh, M extends PbMesh> void isEqualToComparesTheMeshesOfTwoFields(Kind<F, M> kind) {
        try (F a = kind.filled(); F b = kind.make().get()) {
            Journal.start();
            assertFalse(kind.isEqualTo().test(a, b), "a mesh and an empty one");
            assertEquals(List.of(kind.name() + "::operator==(" + pointer(handle(b)) + ")"), fieldCalls());
            kind.setValue().accept(b, kind.value().apply(a));
            assertTrue(kind.isEqualTo().test(a, b), "the same mesh");
            assertTrue(kind.isEqualTo().test(b, a));
            b.addValuesSet(1, new float[kind.nodes()], "more");
            assertFalse(kind.isEqualTo().test(a, b), "the data sets count");
        }
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("kinds")
    <F extends PoSFMesh, M extends PbMesh> void addToContainerSetsTheValueAttachesTheFieldAndNamesIt(Kind<F, M> kind) {
        try (F source = kind.filled(); F field = kind.make().get(); SoGroup node = new SoGroup()) {
            M initial = kind.value().apply(source);
            Journal.start();
            kind.addToContainer().add(field, node, "mesh", 10, initial);
            assertEquals(List.of("SoFieldContainer::getFieldData()",
                    kind.name() + "::setValue(" + pointer(handle(initial)) + ")",
                    "SoField::setContainer(" + pointer(handle(node)) + ")",
                    "SoFieldData::addField(null, \"mesh\", " + pointer(handle(field)) + ")"), fieldCalls());
            assertEquals(2, Fields.fieldType(handle(field)), "the low three bits of 10");
            assertSame(field, node.getField("mesh"));
            assertEquals(handle(node), Fields.container(handle(field)));
            assertEquals(kind.nodes(), kind.value().apply(field).getNumNodes(), "the initial value, copied");
        }
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("kinds")
    <F extends PoSFMesh, M extends PbMesh> void addToContainerRefusesANullInitialValue(Kind<F, M> kind) {
        try (F field = kind.make().get(); SoGroup node = new SoGroup()) {
            Journal.start();
            NullPointerException e = assertThrows(NullPointerException.class,
                    () -> kind.addToContainer().add(field, node, "mesh", 0, null));
            assertEquals("initialValue is null", e.getMessage());
            assertEquals(List.of(), Journal.stop(), "no toolkit call");
            assertNull(node.getField("mesh"));
            assertEquals(0, Fields.container(handle(field)));
        }
    }
}
