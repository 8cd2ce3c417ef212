package com.kestrum.tavrel.elements;

import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertFalse;
import static org.junit.jupiter.api.Assertions.assertInstanceOf;
import static org.junit.jupiter.api.Assertions.assertNull;
import static org.junit.jupiter.api.Assertions.assertSame;
import static org.junit.jupiter.api.Assertions.assertThrows;
import static org.junit.jupiter.api.Assertions.assertTrue;

import com.kestrum.corvel.actions.SoAction;
import com.kestrum.corvel.actions.SoCallbackAction;
import com.kestrum.corvel.elements.SoElement;
import com.kestrum.corvel.misc.ManagedObjects;
import com.kestrum.corvel.misc.SoState;
import com.kestrum.corvel.nodes.SoGroup;
import com.kestrum.corvel.nodes.SoSeparator;
import com.kestrum.tavrel.data.PoMeshFilled;
import com.kestrum.tavrel.graph.PbLinearDataMapping;
import com.kestrum.tavrel.nodes.PoRegularCartesianGrid2D;
import com.kestrum.tavrel.testkit.Elements;
import java.util.ArrayList;
import java.util.List;
import org.junit.jupiter.api.AfterEach;
import org.junit.jupiter.api.Test;
import org.junit.jupiter.params.ParameterizedTest;
import org.junit.jupiter.params.provider.ValueSource;

/** Java elements made, pushed, popped and asked by the toolkit's traversal states. */
class ElementTraversalTest {
    static final List<String> LOG = new ArrayList<>();

    /** Records what the state asks of it, naming elements by the order the state made them. */
    static final class ElementTraversalRecorder extends PoDataMappingElement {
        static final List<ElementTraversalRecorder> MADE = new ArrayList<>();
        final int number;

        ElementTraversalRecorder() {
            MADE.add(this);
            number = MADE.size();
        }

        static String name(SoElement e) {
            return e instanceof ElementTraversalRecorder ? "#" + ((ElementTraversalRecorder) e).number : String.valueOf(e);
        }

        @Override
        public void init(SoState state) {
            LOG.add("init " + name(this));
            super.init(state);
        }

        @Override
        public void push(SoState state) {
            LOG.add("push " + name(this) + " above " + name(getNextInStack()) + " at depth " + state.getDepth());
        }

        @Override
        public void pop(SoState state, SoElement previousTop) {
            LOG.add("pop " + name(this) + " after " + name(previousTop) + (previousTop.isPopped() ? " (popped)" : ""));
        }
    }

    /** Throws from the operation named by {@code throwIn}. */
    static final class ElementTraversalThrower extends PoMeshElement {
        static String throwIn = "";

        private void maybeThrow(String operation) {
            if (operation.equals(throwIn)) {
                throw new IllegalStateException("thrown by " + operation);
            }
        }

        @Override
        public void init(SoState state) {
            maybeThrow("init");
            super.init(state);
        }

        @Override
        public void push(SoState state) {
            maybeThrow("push");
        }

        @Override
        public void pop(SoState state, SoElement previousTop) {
            maybeThrow("pop");
        }

        @Override
        public void captureThis(SoState state) {
            maybeThrow("captureThis");
            super.captureThis(state);
        }

        @Override
        public boolean matches(SoElement element) {
            maybeThrow("matches");
            return super.matches(element);
        }

        @Override
        public SoElement copyMatchInfo() {
            maybeThrow("copyMatchInfo");
            return super.copyMatchInfo();
        }
    }

    /** Enables the Java class's type on its stack (with one object made to register the class). */
    static void enable(SoElement registered) {
        try (registered) {
            assertTrue(SoAction.enableElement(registered.getTypeName(), registered.getStackIndex()));
        }
    }

    @AfterEach
    void restoreToolkitElements() {
        SoAction.enableElement(PoDataMappingElement.getClassTypeName(), PoDataMappingElement.getClassStackIndex());
        SoAction.enableElement(PoMeshElement.getClassTypeName(), PoMeshElement.getClassStackIndex());
        ElementTraversalThrower.throwIn = "";
        LOG.clear();
        ElementTraversalRecorder.MADE.clear();
    }

    @Test
    void aSeparatorPushesAJavaElementAboveThePreviousTopAndPopsBackToIt() {
        enable(new ElementTraversalRecorder());
        ElementTraversalRecorder.MADE.clear();
        PbLinearDataMapping outer = new PbLinearDataMapping();
        PbLinearDataMapping inner = new PbLinearDataMapping();
        List<Object> seen = new ArrayList<>();
        Traversal.StateNode setOuter = new Traversal.StateNode((s, n) -> PoDataMappingElement.set(s, n, outer));
        Traversal.StateNode setInner = new Traversal.StateNode((s, n) -> PoDataMappingElement.set(s, n, inner));
        Traversal.StateNode readInside = new Traversal.StateNode((s, n) -> seen.add(PoDataMappingElement.get(s)));
        Traversal.StateNode readAfter = new Traversal.StateNode((s, n) -> seen.add(PoDataMappingElement.get(s)));
        try (SoGroup root = new SoGroup(); SoSeparator separator = new SoSeparator()) {
            root.addChild(setOuter);
            root.addChild(separator);
            separator.addChild(setInner);
            separator.addChild(readInside);
            root.addChild(readAfter);
            Traversal.apply(root, setOuter, setInner, readInside, readAfter);
        } finally {
            for (Traversal.StateNode n : List.of(setOuter, setInner, readInside, readAfter)) {
                n.dispose();
            }
        }
        assertEquals(List.of("init #1", "push #2 above #1 at depth 1", "pop #1 after #2 (popped)"), LOG);
        assertSame(inner, seen.get(0));
        assertSame(outer, seen.get(1));
        // The state made both and freed them with itself: their Java objects are disposed.
        assertEquals(2, ElementTraversalRecorder.MADE.size());
        assertTrue(ElementTraversalRecorder.MADE.stream().allMatch(SoElement::isDisposed));
    }

    /**
     * An exception in a forwarded operation reaches the caller of apply with the operation's
     * message; the traversal goes on (every node is still traversed) without calling Java again.
     */
    @ParameterizedTest
    @ValueSource(strings = {"init", "push", "pop", "captureThis"})
    void anExceptionOfAForwardedOperationIsReportedAndTheTraversalGoesOn(String operation) {
        enable(new ElementTraversalThrower());
        int traversedWithout = traverseMeshInSeparator();
        ElementTraversalThrower.throwIn = operation;
        IllegalArgumentException e = assertThrows(IllegalArgumentException.class, this::traverseMeshInSeparator);
        assertEquals("Exception raised during execution of CustomPoMeshElement." + operation + ".", e.getMessage());
        assertInstanceOf(IllegalStateException.class, e.getCause());
        assertEquals("thrown by " + operation, e.getCause().getMessage());
        ElementTraversalThrower.throwIn = "";
        assertEquals(traversedWithout, lastTraversed);
    }

    int lastTraversed;

    /** A grid node in a separator, then a representation drawing it, with the cache flag set first. */
    int traverseMeshInSeparator() {
        Traversal.StateNode openCache = new Traversal.StateNode((s, n) -> s.setCacheOpen(true));
        try (SoGroup root = new SoGroup(); SoSeparator separator = new SoSeparator();
                PoRegularCartesianGrid2D grid = new PoRegularCartesianGrid2D(); PoMeshFilled filled = new PoMeshFilled();
                SoCallbackAction action = new SoCallbackAction()) {
            grid.setGeometry(3, 3, 0, 0, 2, 2, null);
            root.addChild(openCache);
            root.addChild(separator);
            separator.addChild(grid);
            root.addChild(filled);
            try {
                action.apply(root);
            } finally {
                lastTraversed = action.getNodesTraversed();
            }
            return lastTraversed;
        } finally {
            openCache.dispose();
        }
    }

    /** matches and copyMatchInfo as the toolkit's caches call them. */
    @ParameterizedTest
    @ValueSource(strings = {"matches", "copyMatchInfo"})
    void anExceptionOfACacheOperationIsReportedWithItsMessage(String operation) {
        try (ElementTraversalThrower element = new ElementTraversalThrower()) {
            long h = element.getNativeResourceHandleInternal();
            ElementTraversalThrower.throwIn = operation;
            IllegalArgumentException e = assertThrows(IllegalArgumentException.class,
                    () -> {
                        if (operation.equals("matches")) {
                            Elements.matches(h, h);
                        } else {
                            Elements.copyMatchInfo(h);
                        }
                    });
            assertEquals("Exception raised during execution of CustomPoMeshElement." + operation + ".", e.getMessage());
            ElementTraversalThrower.throwIn = "";
            assertTrue(Elements.matches(h, h));  // the toolkit's: the same node (none)
        }
    }

    /** copyMatchInfo's result reaches the toolkit as the native handle of the returned Java element. */
    @Test
    void copyMatchInfoGivesTheToolkitTheReturnedJavaElement() {
        try (ElementTraversalThrower element = new ElementTraversalThrower()) {
            long h = element.getNativeResourceHandleInternal();
            long copy = Elements.copyMatchInfo(h);
            assertTrue(Elements.isJavaElement(copy));
            assertFalse(copy == h);
            // The copy is the Java object the default made; it belongs to that object.
            SoElement copied = (SoElement) ManagedObjects.peerOf(copy);
            assertInstanceOf(ElementTraversalThrower.class, copied);
            copied.dispose();
        }
    }

    @Test
    void statesAndElementsOfAFinishedTraversalRefuseToWork() {
        SoState[] kept = new SoState[1];
        Traversal.run(state -> kept[0] = state);
        assertTrue(kept[0].isDisposed());
        assertThrows(IllegalStateException.class, () -> PoDataMappingElement.get(kept[0]));
        assertThrows(IllegalStateException.class, () -> PoMeshElement.set(kept[0], null, (com.kestrum.tavrel.data.PbMesh2D) null));
        assertThrows(NullPointerException.class, () -> PoCellFilterElement.get(null));
        try (SoCallbackAction action = new SoCallbackAction()) {
            assertNull(action.getState());
        }
    }
}
