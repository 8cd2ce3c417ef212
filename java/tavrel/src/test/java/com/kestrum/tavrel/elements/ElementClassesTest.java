package com.kestrum.tavrel.elements;

import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertFalse;
import static org.junit.jupiter.api.Assertions.assertInstanceOf;
import static org.junit.jupiter.api.Assertions.assertNotEquals;
import static org.junit.jupiter.api.Assertions.assertNull;
import static org.junit.jupiter.api.Assertions.assertSame;
import static org.junit.jupiter.api.Assertions.assertThrows;
import static org.junit.jupiter.api.Assertions.assertTrue;
import static org.junit.jupiter.params.provider.Arguments.arguments;

import com.kestrum.corvel.SbBox2f;
import com.kestrum.corvel.actions.SoAction;
import com.kestrum.corvel.elements.SoElement;
import com.kestrum.corvel.misc.SoState;
import com.kestrum.corvel.nodes.SoGroup;
import com.kestrum.corvel.nodes.SoNode;
import com.kestrum.tavrel.data.PbMesh2D;
import com.kestrum.tavrel.data.PbRegularCartesianGrid2D;
import com.kestrum.tavrel.data.PbRegularCartesianGrid3D;
import com.kestrum.tavrel.data.PbRegularMesh1D;
import com.kestrum.tavrel.graph.PbDateFormatMapping;
import com.kestrum.tavrel.graph.PbDomain;
import com.kestrum.tavrel.graph.PbIsovaluesList;
import com.kestrum.tavrel.graph.PbLinearDataMapping;
import com.kestrum.tavrel.graph.PbMiscTextAttr;
import com.kestrum.tavrel.graph.PbNumericDisplayFormat;
import com.kestrum.tavrel.testkit.ChildJvm;
import com.kestrum.tavrel.testkit.Elements;
import com.kestrum.tavrel.testkit.Journal;
import java.lang.reflect.InvocationTargetException;
import java.lang.reflect.Method;
import java.util.ArrayList;
import java.util.List;
import java.util.function.BiConsumer;
import java.util.function.Consumer;
import java.util.function.IntSupplier;
import java.util.function.Supplier;
import java.util.stream.Stream;
import org.junit.jupiter.api.AfterEach;
import org.junit.jupiter.api.Test;
import org.junit.jupiter.params.ParameterizedTest;
import org.junit.jupiter.params.provider.Arguments;
import org.junit.jupiter.params.provider.MethodSource;

/**
 * The thirteen element classes, one table: each Java subclass bound to its own type on its
 * toolkit class's stack, the protected init refused for anything but a Java element, and the
 * static set and get reaching the toolkit element of a live traversal.
 */
class ElementClassesTest {
    /** Run by the init of every element of the test classes below, before the toolkit's init. */
    static volatile Runnable onInit = () -> {};

    static final class ElementsTestBevelEdge extends PoBevelEdgeElement {
        @Override
        public void init(SoState state) {
            onInit.run();
            super.init(state);
        }
    }

    static final class ElementsTestCellFilter extends PoCellFilterElement {
        @Override
        public void init(SoState state) {
            onInit.run();
            super.init(state);
        }
    }

    static final class ElementsTestDataMapping extends PoDataMappingElement {
        @Override
        public void init(SoState state) {
            onInit.run();
            super.init(state);
        }
    }

    static final class ElementsTestDateFormatMapping extends PoDateFormatMappingElement {
        @Override
        public void init(SoState state) {
            onInit.run();
            super.init(state);
        }
    }

    static final class ElementsTestDomain extends PoDomainElement {
        @Override
        public void init(SoState state) {
            onInit.run();
            super.init(state);
        }
    }

    static final class ElementsTestIsovaluesList extends PoIsovaluesListElement {
        @Override
        public void init(SoState state) {
            onInit.run();
            super.init(state);
        }
    }

    static final class ElementsTestLabelHints extends PoLabelHintsElement {
        @Override
        public void init(SoState state) {
            onInit.run();
            super.init(state);
        }
    }

    static final class ElementsTestMesh1DFilter extends PoMesh1DFilterElement {
        @Override
        public void init(SoState state) {
            onInit.run();
            super.init(state);
        }
    }

    static final class ElementsTestMesh1DHints extends PoMesh1DHintsElement {
        @Override
        public void init(SoState state) {
            onInit.run();
            super.init(state);
        }
    }

    static final class ElementsTestMesh extends PoMeshElement {
        @Override
        public void init(SoState state) {
            onInit.run();
            super.init(state);
        }
    }

    static final class ElementsTestMiscTextAttr extends PoMiscTextAttrElement {
        @Override
        public void init(SoState state) {
            onInit.run();
            super.init(state);
        }
    }

    static final class ElementsTestNumericDisplayFormat extends PoNumericDisplayFormatElement {
        @Override
        public void init(SoState state) {
            onInit.run();
            super.init(state);
        }
    }

    static final class ElementsTestProfile extends PoProfileElement {
        @Override
        public void init(SoState state) {
            onInit.run();
            super.init(state);
        }
    }

    /**
     * One element class: its Java class, a Java subclass, a check of its static set and get, its
     * set with a node (any value), and its other static calls that make the element on first use.
     */
    record Row(Class<?> elementClass, Supplier<SoElement> make, IntSupplier stackIndex, Supplier<String> typeName,
            Consumer<SoState> setAndGet, BiConsumer<SoState, SoNode> setWith, List<Consumer<SoState>> reads) {
        @Override
        public String toString() {
            return elementClass.getSimpleName();
        }
    }

    static Stream<Row> rows() {
        return Stream.of(
                new Row(PoBevelEdgeElement.class, ElementsTestBevelEdge::new, PoBevelEdgeElement::getClassStackIndex,
                        PoBevelEdgeElement::getClassTypeName, state -> {
                            Journal.start();
                            PoBevelEdgeElement.set(state, null, true, 0.25f, 1, 2.5f);
                            assertEquals(List.of("PoBevelEdgeElement::set(0x" + hex(state) + ", null, 1, 0.25, 1, 2.5)"),
                                    Journal.stop());
                        }, (s, n) -> PoBevelEdgeElement.set(s, n, true, 0.25f, 1, 2.5f), List.of()),
                new Row(PoCellFilterElement.class, ElementsTestCellFilter::new, PoCellFilterElement::getClassStackIndex,
                        PoCellFilterElement::getClassTypeName, state -> {
                            try (SoGroup notAFilter = new SoGroup()) {
                                assertNull(PoCellFilterElement.get(state));
                                PoCellFilterElement.set(state, notAFilter);
                                assertNull(PoCellFilterElement.get(state));
                            }
                        }, PoCellFilterElement::set, List.of(PoCellFilterElement::get)),
                pointerRow(PoDataMappingElement.class, ElementsTestDataMapping::new, PoDataMappingElement::getClassStackIndex,
                        PoDataMappingElement::getClassTypeName, PbLinearDataMapping::new, PoDataMappingElement::set,
                        PoDataMappingElement::get),
                pointerRow(PoDateFormatMappingElement.class, ElementsTestDateFormatMapping::new,
                        PoDateFormatMappingElement::getClassStackIndex, PoDateFormatMappingElement::getClassTypeName,
                        PbDateFormatMapping::new, PoDateFormatMappingElement::set, PoDateFormatMappingElement::get),
                pointerRow(PoDomainElement.class, ElementsTestDomain::new, PoDomainElement::getClassStackIndex,
                        PoDomainElement::getClassTypeName, PbDomain::new, PoDomainElement::set, PoDomainElement::get),
                pointerRow(PoIsovaluesListElement.class, ElementsTestIsovaluesList::new,
                        PoIsovaluesListElement::getClassStackIndex, PoIsovaluesListElement::getClassTypeName,
                        PbIsovaluesList::new, PoIsovaluesListElement::set, PoIsovaluesListElement::get),
                new Row(PoLabelHintsElement.class, ElementsTestLabelHints::new, PoLabelHintsElement::getClassStackIndex,
                        PoLabelHintsElement::getClassTypeName, state -> {
                            Journal.start();
                            PoLabelHintsElement.set(state, null, 2, 1, "Größe \uD83D\uDE00", true, false);
                            assertEquals(List.of("PoLabelHintsElement::set(0x" + hex(state)
                                    + ", null, 2, 1, \"Größe \uD83D\uDE00\", 1, 0)"), Journal.stop());
                        }, (s, n) -> PoLabelHintsElement.set(s, n, 2, 1, "text", true, false), List.of()),
                new Row(PoMesh1DFilterElement.class, ElementsTestMesh1DFilter::new,
                        PoMesh1DFilterElement::getClassStackIndex, PoMesh1DFilterElement::getClassTypeName, state -> {
                            assertNull(PoMesh1DFilterElement.getDefault());
                            assertNull(PoMesh1DFilterElement.get(state));
                            try (SoGroup node = new SoGroup()) {
                                PoMesh1DFilterElement.set(state, null, node);
                                assertEquals(node.getNativeResourceHandleInternal(),
                                        PoMesh1DFilterElement.get(state).getNativeResourceHandleInternal());
                            }
                        }, (s, n) -> PoMesh1DFilterElement.set(s, n, null), List.of(PoMesh1DFilterElement::get)),
                new Row(PoMesh1DHintsElement.class, ElementsTestMesh1DHints::new,
                        PoMesh1DHintsElement::getClassStackIndex, PoMesh1DHintsElement::getClassTypeName, state -> {
                            assertEquals(0, PoMesh1DHintsElement.getDefault());
                            assertEquals(0, PoMesh1DHintsElement.get(state));
                            PoMesh1DHintsElement.set(state, null, 5);
                            assertEquals(5, PoMesh1DHintsElement.get(state));
                        }, (s, n) -> PoMesh1DHintsElement.set(s, n, 5), List.of(PoMesh1DHintsElement::get)),
                new Row(PoMeshElement.class, ElementsTestMesh::new, PoMeshElement::getClassStackIndex,
                        PoMeshElement::getClassTypeName, state -> {
                            PbRegularMesh1D line = new PbRegularMesh1D();
                            PbRegularCartesianGrid2D grid = new PbRegularCartesianGrid2D(true);
                            PbRegularCartesianGrid3D box = new PbRegularCartesianGrid3D(true);
                            PoMeshElement.set(state, null, line);
                            assertSame(line, PoMeshElement.getMesh1D(state));
                            assertNull(PoMeshElement.getMesh2D(state));
                            PoMeshElement.set(state, null, grid);
                            assertSame(grid, PoMeshElement.getMesh(state));
                            assertSame(grid, PoMeshElement.getMesh2D(state));
                            PoMeshElement.set(state, null, box);
                            assertSame(box, PoMeshElement.getMesh3D(state));
                            assertNull(PoMeshElement.getMesh1D(state));
                        }, (s, n) -> PoMeshElement.set(s, n, (PbMesh2D) null), List.of(PoMeshElement::getMesh,
                                PoMeshElement::getMesh1D, PoMeshElement::getMesh2D, PoMeshElement::getMesh3D)),
                pointerRow(PoMiscTextAttrElement.class, ElementsTestMiscTextAttr::new,
                        PoMiscTextAttrElement::getClassStackIndex, PoMiscTextAttrElement::getClassTypeName,
                        PbMiscTextAttr::new, PoMiscTextAttrElement::set, PoMiscTextAttrElement::get),
                pointerRow(PoNumericDisplayFormatElement.class, ElementsTestNumericDisplayFormat::new,
                        PoNumericDisplayFormatElement::getClassStackIndex,
                        PoNumericDisplayFormatElement::getClassTypeName,
                        () -> new PbNumericDisplayFormat(PbNumericDisplayFormat.FormatTypes.FLOATFORMAT, 6, 2),
                        PoNumericDisplayFormatElement::set, PoNumericDisplayFormatElement::get),
                new Row(PoProfileElement.class, ElementsTestProfile::new, PoProfileElement::getClassStackIndex,
                        PoProfileElement::getClassTypeName, state -> {
                            assertNull(PoProfileElement.getDefault());
                            assertNull(PoProfileElement.getProfile(state, 1));
                            assertEquals(0, PoProfileElement.getProfilePointCount(state, 1));
                            assertTrue(PoProfileElement.getBBox(state).getValue()[0] > PoProfileElement.getBBox(state).getValue()[2]);
                            try (SoGroup profile = new SoGroup()) {
                                PoProfileElement.set(state, null, profile);
                                assertEquals(4, PoProfileElement.getProfilePointCount(state, 2));
                                assertEquals(List.of(-2f, -2f, 2f, -2f, 2f, 2f, -2f, 2f),
                                        boxed(PoProfileElement.getProfile(state, -2)));
                                SbBox2f box = PoProfileElement.getBBox(state);
                                assertEquals(-1f, box.getValue()[0]);
                                assertEquals(1f, box.getValue()[3]);
                            }
                        }, (s, n) -> PoProfileElement.set(s, n, null), List.of(PoProfileElement::get,
                                PoProfileElement::getBBox, s -> PoProfileElement.getProfile(s, 1),
                                s -> PoProfileElement.getDirectProfile(s, 1),
                                s -> PoProfileElement.getProfilePointCount(s, 1))));
    }

    interface Setter<T> {
        void set(SoState state, SoNode node, T value);
    }

    interface Getter<T> {
        T get(SoState state);
    }

    /** An element holding one attribute object: set gives get the same Java object back. */
    static <T> Row pointerRow(Class<?> cls, Supplier<SoElement> make, IntSupplier stackIndex, Supplier<String> typeName,
            Supplier<T> value, Setter<T> set, Getter<T> get) {
        return new Row(cls, make, stackIndex, typeName, state -> {
            T v = value.get();
            assertNull(get.get(state));
            set.set(state, null, v);
            assertSame(v, get.get(state));
            set.set(state, null, null);
            assertNull(get.get(state));
        }, (s, n) -> set.set(s, n, null), List.of(get::get));
    }

    static List<Float> boxed(float[] values) {
        Float[] b = new Float[values.length];
        for (int i = 0; i < values.length; i++) {
            b[i] = values[i];
        }
        return List.of(b);
    }

    static String hex(SoState state) {
        return Long.toHexString(state.getNativeResourceHandleInternal());
    }

    static long h(SoElement element) {
        return element.getNativeResourceHandleInternal();
    }

    static Stream<Row> classes() {
        return rows();
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("classes")
    void aJavaClassGetsItsOwnTypeOnItsToolkitClassStackAndOneKey(Row row) {
        try (SoElement first = row.make().get(); SoElement second = row.make().get()) {
            assertEquals(row.elementClass().getSimpleName(), row.typeName().get());
            assertEquals(first.getClass().getName(), first.getTypeName());
            assertTrue(row.stackIndex().getAsInt() >= 0);
            assertEquals(row.stackIndex().getAsInt(), first.getStackIndex());
            assertEquals(row.stackIndex().getAsInt(), second.getStackIndex());
            assertNotEquals(0, first.getElementKey());
            assertEquals(first.getElementKey(), second.getElementKey());
            assertTrue(Elements.isJavaElement(h(first)));
        }
    }

    /** The popped flag takes exactly 1 as true; capture calls captureThis only with the cache flag set. */
    @ParameterizedTest(name = "{0}")
    @MethodSource("classes")
    void theAccessInterfaceReachesTheToolkitMembers(Row row) {
        try (SoElement element = row.make().get()) {
            assertTrue(Elements.poppedAfterSetting(h(element), 1));
            assertTrue(element.isPopped());
            assertFalse(Elements.poppedAfterSetting(h(element), 2));
            assertFalse(Elements.poppedAfterSetting(h(element), 0));
            assertFalse(element.isPopped());
            // Inside a traversal: the state's Java view lives as long as it.
            Traversal.run(state -> {
                assertEquals(0, Elements.captureOnNewState(h(element), false));
                assertEquals(1, Elements.captureOnNewState(h(element), true));
            });
        }
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("classes")
    void staticSetAndGetReachTheElementOfALiveTraversal(Row row) {
        Traversal.run(row.setAndGet());
    }

    /**
     * initImpl runs the toolkit's init for a Java element; for 0 and for a toolkit element of the
     * class it throws IllegalAccessException and changes nothing.
     */
    @ParameterizedTest(name = "{0}")
    @MethodSource("classes")
    void initImplIsRefusedForAnythingButAJavaElement(Row row) throws Exception {
        Method initImpl = row.elementClass().getDeclaredMethod("initImpl", long.class, long.class);
        initImpl.setAccessible(true);
        try (SoElement element = row.make().get()) {
            Traversal.run(state -> {
                long plain = Elements.topElement(state.getNativeResourceHandleInternal(), row.stackIndex().getAsInt());
                assertFalse(Elements.isJavaElement(plain));
                for (long target : new long[] {0L, plain}) {
                    InvocationTargetException e = assertThrows(InvocationTargetException.class,
                            () -> initImpl.invoke(null, target, state.getNativeResourceHandleInternal()));
                    assertInstanceOf(IllegalAccessException.class, e.getCause());
                    assertEquals("Call of protected methods not allowed.", e.getCause().getMessage());
                }
                element.init(state);  // the toolkit's init of the Java element: no exception
            });
        }
    }

    /** A native element bound by hand, as a Java class's first and later objects are. */
    private static int[] bind(Class<?> cls, String typeName, boolean create, int stackIndex, short key, Object peer)
            throws Exception {
        Method ctor = cls.getDeclaredMethod("ctorImpl");
        ctor.setAccessible(true);
        Method init = cls.getDeclaredMethod("initCustomClass", long.class, Object.class, boolean.class, String.class,
                int.class, short.class);
        init.setAccessible(true);
        long handle = (long) ctor.invoke(null);
        int[] result = (int[]) init.invoke(null, handle, peer, create, typeName, stackIndex, key);
        Method delete = SoElement.class.getDeclaredMethod("deleteNative", long.class);
        delete.setAccessible(true);
        delete.invoke(null, handle);  // the element deletes its peer reference
        return result;
    }

    /**
     * Stack index -1 takes the toolkit class's index and the bad key (0) a new key, different for
     * each element so bound; any other index and key are kept as given (the key as 16 unsigned
     * bits).
     */
    @ParameterizedTest(name = "{0}")
    @MethodSource("classes")
    void stackIndexAndKeyAreChosenOrKeptAsGiven(Row row) throws Exception {
        Class<?> cls = row.elementClass();
        String name = "ElementsTestBound" + cls.getSimpleName();
        int[] first = bind(cls, name, true, -1, (short) 0, new Object());
        int[] second = bind(cls, name, false, -1, (short) 0, new Object());
        assertEquals(row.stackIndex().getAsInt(), first[0]);
        assertEquals(row.stackIndex().getAsInt(), second[0]);
        assertNotEquals(0, first[1]);
        assertNotEquals(first[1], second[1]);
        assertEquals(List.of(3, 9), List.of(bind(cls, name, false, 3, (short) 9, new Object())[0],
                bind(cls, name, false, 3, (short) 9, new Object())[1]));
        assertEquals(0xFFFE, bind(cls, name, false, 7, (short) 0xFFFE, new Object())[1]);
    }

    /** Makes the traversal states make the row's Java subclass on its stack. */
    static void enable(Row row) {
        try (SoElement registered = row.make().get()) {
            assertTrue(SoAction.enableElement(registered.getTypeName(), registered.getStackIndex()));
        }
    }

    @AfterEach
    void restoreToolkitElements() {
        onInit = () -> {};
        rows().forEach(r -> SoAction.enableElement(r.typeName().get(), r.stackIndex().getAsInt()));
    }

    /**
     * A Java element's init that throws when a static call makes the element: the call stops at
     * once (no JNI call with the exception pending, which -Xcheck:jni reports, and no output
     * read) and throws the exception of the override, whichever call it was.
     */
    @ParameterizedTest(name = "{0}")
    @MethodSource("classes")
    void anInitThatThrowsStopsTheCallThatMadeTheElement(Row row) {
        enable(row);
        onInit = () -> {
            throw new IllegalStateException("thrown by init");
        };
        try (SoGroup node = new SoGroup()) {
            List<Consumer<SoState>> calls = new ArrayList<>(row.reads());
            calls.add(s -> row.setWith().accept(s, node));
            for (Consumer<SoState> call : calls) {
                Traversal.run(s -> {
                    IllegalArgumentException e = assertThrows(IllegalArgumentException.class, () -> call.accept(s));
                    assertEquals("Exception raised during execution of Custom" + row.elementClass().getSimpleName()
                            + ".init.", e.getMessage());
                    assertEquals("thrown by init", e.getCause().getMessage());
                });
            }
        }
    }

    /**
     * In a child JVM, for every class: a Java element's init disposes the node given to the set
     * that makes the element; the set holds the node, so the element the toolkit fills names a
     * live node (a freed one before: a use of freed memory, which the sanitizer build reports).
     */
    public static void main(String[] args) {
        for (Row row : rows().toList()) {
            enable(row);
            SoNode[] given = new SoNode[1];
            onInit = () -> given[0].dispose();
            Traversal.run(s -> {
                given[0] = new SoGroup();
                row.setWith().accept(s, given[0]);
            });
            onInit = () -> {};
            SoAction.enableElement(row.typeName().get(), row.stackIndex().getAsInt());
            System.out.println("held by set: " + row);
        }
    }

    @Test
    void setHoldsItsNodeWhileAJavaInitDisposesIt() throws Exception {
        ChildJvm.Result r = ChildJvm.run(ElementClassesTest.class, List.of(), 120);
        assertFalse(r.crashed(), r::describe);
        assertFalse(r.jniWarning(), r::describe);
        assertEquals(0, r.exitCode(), r::describe);
        for (Row row : rows().toList()) {
            assertTrue(r.output().contains("held by set: " + row + "\n"), r::describe);
        }
    }
}
