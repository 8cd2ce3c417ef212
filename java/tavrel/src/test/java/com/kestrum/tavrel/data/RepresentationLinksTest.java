package com.kestrum.tavrel.data;

import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertNull;
import static org.junit.jupiter.api.Assertions.assertSame;
import static org.junit.jupiter.api.Assertions.assertThrows;
import static org.junit.jupiter.api.Assertions.assertTrue;
import static org.junit.jupiter.params.provider.Arguments.arguments;

import com.kestrum.corvel.misc.NativeObject;
import com.kestrum.tavrel.graph.PbDataMapping;
import com.kestrum.tavrel.graph.PbIsovaluesList;
import com.kestrum.tavrel.graph.PbMiscTextAttr;
import com.kestrum.tavrel.graph.PbNumericDisplayFormat;
import com.kestrum.tavrel.testkit.Journal;
import com.kestrum.tavrel.testkit.Representations;
import java.lang.reflect.Method;
import java.util.List;
import java.util.function.BiConsumer;
import java.util.function.Function;
import java.util.function.LongFunction;
import java.util.function.Supplier;
import java.util.stream.Stream;
import org.junit.jupiter.api.Test;
import org.junit.jupiter.params.ParameterizedTest;
import org.junit.jupiter.params.provider.Arguments;
import org.junit.jupiter.params.provider.MethodSource;

/** The objects a representation keeps by address, and the cross-section method. */
class RepresentationLinksTest {
    // Addresses that the stand-in keeps and never reads.
    private static final long ADDRESS = 0x7e57a000L;

    /** One set/get pair: the node to use, the setter, the getter and a Java object of the kind set. */
    private record Link<N extends PoMesh, O extends NativeObject>(
            String toolkitSetter, String toolkitGetter, Supplier<N> node, BiConsumer<N, O> set,
            Function<N, O> get, LongFunction<O> object) {
        @Override
        public String toString() {
            return toolkitSetter;
        }
    }

    static Stream<Arguments> links() {
        return Stream.of(
                arguments(new Link<PoCellShape, PbMesh>("PoMesh::setMesh", "PoMesh::getMesh",
                        PoCellShape::new, PoMesh::setMesh, PoMesh::getMesh, a -> new PbMesh(a) {})),
                arguments(new Link<PoMeshSkin, PbDataMapping>("PoMesh::setDataMapping", "PoMesh::getDataMapping",
                        PoMeshSkin::new, PoMesh::setDataMapping, PoMesh::getDataMapping, a -> new PbDataMapping(a) {})),
                arguments(new Link<PoMesh3DVec, PbDataMapping>("PoMesh::setModuleDataMapping",
                        "PoMesh::getModuleDataMapping", PoMesh3DVec::new, PoMesh::setModuleDataMapping,
                        PoMesh::getModuleDataMapping, a -> new PbDataMapping(a) {})),
                arguments(new Link<PoMeshContouring, PbIsovaluesList>("PoMesh::setIsovaluesList",
                        "PoMesh::getIsovaluesList", PoMeshContouring::new, PoMesh::setIsovaluesList,
                        PoMesh::getIsovaluesList, a -> new PbIsovaluesList(a) {})),
                arguments(new Link<PoMeshFilled, PbMesh2D>("PoMesh2D::setMesh", "PoMesh2D::getMesh",
                        PoMeshFilled::new, PoMesh2D::setMesh, PoMesh2D::getMesh, a -> new PbMesh2D(a) {})),
                arguments(new Link<PoStreamLine, PbMesh3D>("PoMesh3D::setMesh", "PoMesh3D::getMesh",
                        PoStreamLine::new, PoMesh3D::setMesh, PoMesh3D::getMesh, a -> new PbMesh3D(a) {})),
                arguments(new Link<PoMeshContouring, PbNumericDisplayFormat>("PoMeshContouring::setFormat",
                        "PoMeshContouring::getFormat", PoMeshContouring::new, PoMeshContouring::setFormat,
                        PoMeshContouring::getFormat, a -> new PbNumericDisplayFormat(a) {})),
                arguments(new Link<PoMeshContouring, PbMiscTextAttr>("PoMeshContouring::setMiscTextAttr",
                        "PoMeshContouring::getMiscTextAttr", PoMeshContouring::new, PoMeshContouring::setMiscTextAttr,
                        PoMeshContouring::getMiscTextAttr, a -> new PbMiscTextAttr(a) {})));
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("links")
    <N extends PoMesh, O extends NativeObject> void theNodeKeepsTheAddressAndGivesItBack(Link<N, O> link) {
        N node = link.node().get();
        try {
            O object = link.object().apply(ADDRESS);
            assertNull(link.get().apply(node), "a new node holds nothing");
            Journal.start();
            link.set().accept(node, object);
            O got = link.get().apply(node);
            link.set().accept(node, null);
            O afterReset = link.get().apply(node);
            List<String> calls = Journal.stop();

            assertSame(object, got);
            assertNull(afterReset);
            assertEquals(List.of(link.toolkitSetter() + "(0x7e57a000)", link.toolkitGetter() + "()",
                    link.toolkitSetter() + "(null)", link.toolkitGetter() + "()"), calls);
        } finally {
            node.dispose();
        }
    }

    @Test
    void aGetterWithoutAJavaObjectForTheAddressGivesNull() throws Exception {
        PoMeshSkin node = new PoMeshSkin();
        try {
            Method setImpl = PoMesh.class.getDeclaredMethod("setMeshImpl", long.class, long.class);
            setImpl.setAccessible(true);
            setImpl.invoke(node, node.getNativeResourceHandleInternal(), ADDRESS);
            Method getImpl = PoMesh.class.getDeclaredMethod("getMeshImpl", long.class);
            getImpl.setAccessible(true);
            assertEquals(ADDRESS, getImpl.invoke(node, node.getNativeResourceHandleInternal()));
            assertNull(((PoMesh) node).getMesh());
        } finally {
            node.dispose();
        }
    }

    @Test
    void aRepresentationOfOneDimensionTakesOnlyMeshesOfThatDimension() {
        PoMeshFilled filled = new PoMeshFilled();
        PoMeshSkin skin = new PoMeshSkin();
        try {
            Journal.start();
            PbMesh mesh3D = new PbMesh3D(ADDRESS) {};
            PbMesh mesh2D = new PbMesh2D(ADDRESS) {};
            assertThrows(IllegalArgumentException.class, () -> filled.setMesh(mesh3D));
            assertThrows(IllegalArgumentException.class, () -> skin.setMesh(mesh2D));
            assertEquals(List.of(), Journal.stop());

            filled.setMesh(mesh2D); // as a PbMesh: reaches the 2D setter
            assertSame(mesh2D, filled.getMesh());
        } finally {
            filled.dispose();
            skin.dispose();
        }
    }

    @Test
    void argumentsAndReceiverAreCheckedBeforeTheNativeCall() {
        PoMeshContouring node = new PoMeshContouring();
        PbNumericDisplayFormat disposed = new PbNumericDisplayFormat(ADDRESS) {};
        disposed.dispose();
        Journal.start();
        assertThrows(IllegalStateException.class, () -> node.setFormat(disposed));
        assertThrows(NullPointerException.class, () -> new PoMeshCrossSection().setCrossSectionMethod(null));
        node.dispose();
        assertThrows(IllegalStateException.class, () -> node.getFormat());
        assertTrue(Journal.stop().stream().noneMatch(l -> l.startsWith("PoMeshContouring::setFormat")));
    }

    @Test
    void theCrossSectionMethodIsStoredInTheNodeWithoutAToolkitCall() throws Exception {
        PoMeshCrossSection node = new PoMeshCrossSection();
        long handle = node.getNativeResourceHandleInternal();
        try {
            assertEquals(0, Representations.crossSectionMethod(handle));
            Journal.start();
            node.setCrossSectionMethod(PoMeshCrossSection.CrossSectionMethods.INTERSECTION);
            assertEquals(List.of(), Journal.stop());
            assertEquals(2, Representations.crossSectionMethod(handle));

            // A value outside the enumeration passes unchanged.
            Method setImpl = PoMeshCrossSection.class.getDeclaredMethod("setCrossSectionMethodImpl", long.class,
                    int.class);
            setImpl.setAccessible(true);
            setImpl.invoke(node, handle, 7);
            assertEquals(7, Representations.crossSectionMethod(handle));
        } finally {
            node.dispose();
        }
    }
}
