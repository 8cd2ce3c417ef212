package com.kestrum.tavrel.nodes;

import static org.junit.jupiter.api.Assertions.assertArrayEquals;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertInstanceOf;
import static org.junit.jupiter.api.Assertions.assertThrows;

import com.kestrum.corvel.actions.SoAction;
import com.kestrum.corvel.actions.SoCallbackAction;
import com.kestrum.corvel.actions.SoSearchAction;
import com.kestrum.corvel.actions.SoWriteAction;
import com.kestrum.corvel.nodes.SoGroup;
import com.kestrum.tavrel.testkit.Journal;
import com.kestrum.tavrel.testkit.Nodes;
import com.kestrum.tavrel.testkit.Toolkit;
import java.lang.reflect.InvocationTargetException;
import java.lang.reflect.Method;
import java.util.ArrayList;
import java.util.List;
import org.junit.jupiter.api.Test;
import org.junit.jupiter.params.ParameterizedTest;
import org.junit.jupiter.params.provider.CsvSource;

/** Java cell filters asked by the toolkit, and the toolkit behaviour they reach. */
class PoCellFilterTest {
    /** Accepts the even cells; throws for cell 13; records its doAction calls. */
    static final class EvenCells extends PoCellFilter {
        final List<String> calls = new ArrayList<>();

        EvenCells() {
            super("EvenCells");
        }

        @Override
        public boolean acceptCell(int cellIndex, float value) {
            if (cellIndex == 13) {
                throw new IllegalStateException("unlucky " + value);
            }
            return cellIndex % 2 == 0;
        }

        @Override
        public void doAction(SoAction action) {
            calls.add("doAction");
            super.doAction(action);
        }

        @Override
        public int getRenderUnitID() {
            throw new UnsupportedOperationException("no unit");
        }
    }

    /** Decides by the cell's value. */
    static final class AboveHalf extends PoCellFilter {
        AboveHalf() {
            super("AboveHalf");
        }

        @Override
        public boolean acceptCell(int cellIndex, float value) {
            return value > 0.5f;
        }
    }

    /** Gives no answer of its own. */
    static final class NoAnswer extends PoCellFilter {
        NoAnswer() {
            super("NoAnswer");
        }
    }

    private static long h(PoNode n) {
        return n.getNativeResourceHandleInternal();
    }

    @Test
    void javaDecidesWhichCellsTheToolkitAccepts() {
        try (EvenCells even = new EvenCells(); AboveHalf above = new AboveHalf()) {
            assertEquals("true", Nodes.call(h(even), "acceptCell"), "cell 4");
            assertArrayEquals(new int[] {0, 2, 4, 6, 8}, Nodes.selectCells(h(even), new float[10]));
            assertArrayEquals(new int[] {1, 3},
                    Nodes.selectCells(h(above), new float[] {0.5f, 0.75f, 0.25f, 1.5f, -2f}));
        }
    }

    @Test
    void exceptionsOfTheFilterCarryItsOwnMessages() {
        try (EvenCells even = new EvenCells()) {
            float[] values = new float[14];
            values[13] = 0.25f;
            IllegalArgumentException e = assertThrows(IllegalArgumentException.class,
                    () -> Nodes.selectCells(h(even), values));
            assertEquals("Exception raised during execution of CustomPoCellFilter.acceptCell.", e.getMessage());
            assertEquals("unlucky 0.25", e.getCause().getMessage(), "the value reached Java as a float");

            e = assertThrows(IllegalArgumentException.class, () -> Nodes.invoke(h(even), "getRenderUnitID"));
            assertEquals("Exception raised during execution of CustomPoCellFilter.getRenderUnitID.", e.getMessage());
            assertInstanceOf(UnsupportedOperationException.class, e.getCause());
            assertEquals("0", Nodes.lastResult());
        }
    }

    @Test
    void acceptCellOfAFilterWithoutAnswerIsRefused() {
        try (NoAnswer filter = new NoAnswer()) {
            UnsupportedOperationException direct = assertThrows(UnsupportedOperationException.class,
                    () -> filter.acceptCell(1, 0f));
            assertEquals("PoCellFilter.acceptCell has no toolkit implementation: a Java class must override it"
                    + " (Call of a pure virtual method: PoCellFilter::acceptCell)", direct.getMessage());
            assertInstanceOf(IllegalAccessException.class, direct.getCause());
            assertEquals("Call of a pure virtual method: PoCellFilter::acceptCell", direct.getCause().getMessage());

            IllegalArgumentException e = assertThrows(IllegalArgumentException.class,
                    () -> Nodes.invoke(h(filter), "acceptCell"));
            assertEquals("Exception raised during execution of CustomPoCellFilter.acceptCell.", e.getMessage());
            assertInstanceOf(UnsupportedOperationException.class, e.getCause());
            assertInstanceOf(IllegalAccessException.class, e.getCause().getCause());
            assertEquals("false", Nodes.lastResult());
        }
    }

    @Test
    void acceptCellImplAsksAToolkitFilterOfAnotherClass() throws Exception {
        Method impl = PoCellFilter.class.getDeclaredMethod("acceptCellImpl", long.class, int.class, float.class);
        impl.setAccessible(true);
        long odd = Nodes.newOddCellFilter();
        Nodes.ref(odd);
        try (NoAnswer receiver = new NoAnswer()) {
            assertEquals(true, impl.invoke(receiver, odd, 3, 0.5f));
            assertEquals(false, impl.invoke(receiver, odd, 4, 0.5f));
        } finally {
            Nodes.unref(odd);
        }
    }

    @Test
    void doActionReachesThePoCellFilterBehaviourOnce() {
        try (EvenCells even = new EvenCells(); NoAnswer plain = new NoAnswer()) {
            Journal.start();
            Nodes.applyGenericAction(h(even));
            Nodes.applyGenericAction(h(plain));
            List<String> journal = Journal.stop();
            assertEquals(List.of("doAction"), even.calls);
            assertEquals(2, journal.stream().filter(l -> l.startsWith("PoCellFilter::doAction(")).count(),
                    journal.toString());
        }
    }

    /** The filter's Impl entry points: PoCellFilter's own behaviour, or the other filter's. */
    @ParameterizedTest(name = "{0}")
    @CsvSource({"doActionImpl, PoCellFilter::doAction, OddCellFilter::doAction(), ''",
        "writeImpl, PoCellFilter::write, '', OddCellFilter"})
    void implEntryPointsCallPoCellFilterForJavaFiltersAndTheVirtualOtherwise(String method, String ownCall,
            String otherCall, String otherOutput) throws Exception {
        Method impl = PoCellFilter.class.getDeclaredMethod(method, long.class, long.class);
        impl.setAccessible(true);
        long odd = Nodes.newOddCellFilter();
        Nodes.ref(odd);
        try (EvenCells even = new EvenCells(); SoWriteAction action = new SoWriteAction()) {
            long a = action.getNativeResourceHandleInternal();
            Journal.start();
            impl.invoke(even, h(even), a);
            List<String> journal = Journal.stop();
            assertEquals(List.of(ownCall + "(0x" + Long.toHexString(a) + ")"), journal);
            assertEquals(List.of(), even.calls, "the Java override is not called");
            assertEquals("", action.getOutput(), "a cell filter writes nothing");

            Journal.start();
            impl.invoke(even, odd, a);
            assertEquals(otherCall.isEmpty() ? List.of() : List.of(otherCall), Journal.stop());
            assertEquals(otherOutput.isEmpty() ? "" : otherOutput + "\n", action.getOutput());
        } finally {
            Nodes.unref(odd);
        }
    }

    @Test
    void nodeEntryPointsTreatAJavaFilterAsAJavaNode() throws Exception {
        Method callbackImpl = PoNode.class.getDeclaredMethod("callbackImpl", long.class, long.class);
        callbackImpl.setAccessible(true);
        Method doActionImpl = PoNode.class.getDeclaredMethod("doActionImpl", long.class, long.class);
        doActionImpl.setAccessible(true);
        try (EvenCells even = new EvenCells(); SoCallbackAction action = new SoCallbackAction()) {
            long a = action.getNativeResourceHandleInternal();
            Journal.start();
            callbackImpl.invoke(even, h(even), a);
            assertEquals(List.of("PoNode::callback(0x" + Long.toHexString(a) + ")"), Journal.stop());
            InvocationTargetException e = assertThrows(InvocationTargetException.class,
                    () -> doActionImpl.invoke(even, h(even), a));
            assertEquals("Call of a pure virtual method: PoNode::doAction", e.getCause().getMessage());
        }
    }

    @Test
    void writtenSceneLeavesTheFilterOut() {
        try (EvenCells even = new EvenCells(); SoGroup root = new SoGroup(); SoWriteAction write = new SoWriteAction()) {
            root.addChild(even);
            write.apply(root);
            assertEquals("Group {\n}\n", write.getOutput());
            try (SoSearchAction search = new SoSearchAction()) {
                search.apply(root);
                assertEquals(2, search.getNodesTraversed());
            }
        }
    }

    @Test
    void classTypeIsCellFilterUnderPoCellFilter() {
        assertEquals("PoCellFilter", PoCellFilter.getClassTypeName());
        assertEquals("PoCellFilter", Toolkit.parentTypeName("CellFilter"));
        try (AboveHalf above = new AboveHalf()) {
            assertEquals("AboveHalf", Nodes.typeName(h(above)));
            assertEquals("PoCellFilter", Toolkit.parentTypeName("AboveHalf"));
            assertEquals("\"AboveHalf\"", Nodes.call(h(above), "getFileFormatName"));
        }
    }
}
