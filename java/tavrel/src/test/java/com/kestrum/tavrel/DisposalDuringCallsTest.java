package com.kestrum.tavrel;

import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertSame;
import static org.junit.jupiter.api.Assertions.assertThrows;
import static org.junit.jupiter.api.Assertions.assertTrue;

import com.kestrum.corvel.actions.SoCallbackAction;
import com.kestrum.corvel.actions.SoGLRenderAction;
import com.kestrum.corvel.nodes.SoGroup;
import com.kestrum.tavrel.data.PbRegularCartesianGrid2D;
import com.kestrum.tavrel.data.PoMeshFilled;
import com.kestrum.tavrel.data.PoMeshProbePoint;
import com.kestrum.tavrel.misc.callbacks.PoProbeCB;
import com.kestrum.tavrel.nodes.PoCellFilter;
import com.kestrum.tavrel.nodes.PoNode;
import com.kestrum.tavrel.testkit.Nodes;
import java.util.ArrayList;
import java.util.List;
import org.junit.jupiter.api.Test;

/**
 * Disposing an object from a callback of a native call that is using it: the Java object is
 * disposed at once, the native object is let go when that call returns, and the call goes on
 * over live memory. Each test takes a reference of its own on the native node it watches (as a
 * scene graph would), so that its count can be read once the Java object has let go.
 */
class DisposalDuringCallsTest {
    /** Renders as the toolkit would, then runs a task. */
    static final class Hook extends PoNode {
        Runnable afterRender = () -> { };
        int renders;

        Hook() {
            super("DisposalDuringCallsHook");
        }

        @Override
        public void GLRender(SoGLRenderAction action) {
            renders++;
            super.GLRender(action);
            afterRender.run();
        }
    }

    /** Accepts every cell; runs a task when asked about cell 0. */
    static final class HookFilter extends PoCellFilter {
        Runnable onFirstCell = () -> { };
        int asked;

        HookFilter() {
            super("DisposalDuringCallsHookFilter");
        }

        @Override
        public boolean acceptCell(int cellIndex, float value) {
            asked++;
            if (cellIndex == 0) {
                onFirstCell.run();
            }
            return true;
        }
    }

    /** Makes a filter current, then has a representation ask it, within one traversal. */
    static final class FilterThenRepresentation extends PoNode {
        private final PoCellFilter filter;
        private final PoMeshFilled representation;

        FilterThenRepresentation(PoCellFilter filter, PoMeshFilled representation) {
            super("DisposalDuringCallsSequence");
            this.filter = filter;
            this.representation = representation;
        }

        @Override
        public void callback(SoCallbackAction action) {
            filter.callback(action);
            representation.callback(action);
        }
    }

    @Test
    void aProbeDisposedByItsListenerIsLetGoWhenItsRenderReturns() {
        PbRegularCartesianGrid2D grid = new PbRegularCartesianGrid2D(3, 3, 0, 0, 1, 1, false);
        PoMeshProbePoint probe = new PoMeshProbePoint();
        long handle = probe.getNativeResourceHandleInternal();
        Nodes.ref(handle);
        List<PoMeshProbePoint> received = new ArrayList<>();
        List<String> seen = new ArrayList<>();
        int[] referencesAtFirstEvent = new int[1];
        PoProbeCB.Listener listener = (p, cell, cellHandle, event) -> {
            received.add(p);
            probe.dispose();
            if (received.size() == 1) {
                referencesAtFirstEvent[0] = Nodes.refCount(handle);
            }
            seen.add(event + " in cell " + cell.getIndex() + ", disposed " + probe.isDisposed());
        };
        probe.setMesh(grid);
        probe.setEnterMeshCallback(new PoProbeCB(listener), "enter");
        probe.setChangeCellCallback(new PoProbeCB(listener), "change");
        probe.setMotionCallback(new PoProbeCB(listener), "motion");
        probe.setPosition(0.25f, 0.25f, 0);
        try (SoGLRenderAction render = new SoGLRenderAction()) {
            probe.GLRender(render);
        }

        assertEquals(List.of("enter in cell 0, disposed true", "change in cell 0, disposed true",
                "motion in cell 0, disposed true"), seen);
        assertEquals(2, referencesAtFirstEvent[0], "the disposed Java object's reference is kept during the call");
        assertSame(probe, received.get(0));
        assertThrows(IllegalStateException.class, () -> probe.setPosition(0, 0, 0));
        // Later events found no registered Java object and got a view, with a reference of its own.
        received.stream().filter(p -> p != probe).forEach(PoMeshProbePoint::dispose);
        assertEquals(1, Nodes.refCount(handle), "the Java object's reference was given back after the call");
        Nodes.unref(handle);
    }

    @Test
    void aJavaNodeDisposingItselfInItsOverrideIsLetGoWhenTheApplyReturns() {
        Hook node = new Hook();
        long handle = node.getNativeResourceHandleInternal();
        Nodes.ref(handle);
        int[] inside = new int[1];
        node.afterRender = () -> {
            node.dispose();
            inside[0] = Nodes.refCount(handle);
        };
        try (SoGLRenderAction render = new SoGLRenderAction()) {
            render.apply(node);
            IllegalStateException e = assertThrows(IllegalStateException.class, () -> render.apply(node));
            assertEquals("node has been disposed", e.getMessage());
        }
        assertEquals(1, node.renders);
        assertEquals(3, inside[0], "the Java object's, the apply's and the test's references");
        assertEquals(1, Nodes.refCount(handle));
        Nodes.unref(handle);
    }

    @Test
    void aFilterDisposingItselfInAcceptCellIsAskedAboutEveryCellAndLetGoAfterTheTraversal() {
        PbRegularCartesianGrid2D grid = new PbRegularCartesianGrid2D(4, 4, 0, 0, 1, 1, false);
        HookFilter filter = new HookFilter();
        long handle = filter.getNativeResourceHandleInternal();
        Nodes.ref(handle);
        int[] inside = new int[1];
        filter.onFirstCell = () -> {
            filter.dispose();
            inside[0] = Nodes.refCount(handle);
        };
        try (PoMeshFilled filled = new PoMeshFilled(); SoCallbackAction callback = new SoCallbackAction();
                FilterThenRepresentation root = new FilterThenRepresentation(filter, filled)) {
            filled.setMesh(grid);
            callback.apply(root);
        }
        assertTrue(filter.isDisposed());
        assertEquals(9, filter.asked);
        assertEquals(3, inside[0], "the test's reference, the traversal state's and the Java object's, which the"
                + " direct call inside the traversal holds until the traversal ends");
        assertEquals(1, Nodes.refCount(handle));
        Nodes.unref(handle);
    }

    @Test
    void anActionDisposedDuringItsApplyTraversesToTheEnd() {
        SoGLRenderAction render = new SoGLRenderAction();
        try (SoGroup root = new SoGroup(); Hook disposer = new Hook(); Hook after = new Hook()) {
            disposer.afterRender = render::dispose;
            root.addChild(disposer);
            root.addChild(after);
            render.apply(root);
            assertEquals(1, after.renders, "the node after the disposal is still traversed");
            assertTrue(render.isDisposed());
            assertThrows(IllegalStateException.class, () -> render.apply(root));
            assertThrows(IllegalStateException.class, () -> root.GLRender(render));
        }
    }

    @Test
    void theNodeAndTheActionOfADirectRenderAreBothHeldUntilItReturns() {
        SoGLRenderAction render = new SoGLRenderAction();
        SoGroup root = new SoGroup();
        long handle = root.getNativeResourceHandleInternal();
        Nodes.ref(handle);
        int[] inside = new int[1];
        try (Hook disposer = new Hook(); Hook after = new Hook()) {
            disposer.afterRender = () -> {
                render.dispose();
                root.dispose();
                inside[0] = Nodes.refCount(handle);
            };
            root.addChild(disposer);
            root.addChild(after);
            root.GLRender(render);
            assertEquals(1, after.renders);
        }
        assertTrue(render.isDisposed() && root.isDisposed());
        assertEquals(2, inside[0]);
        assertEquals(1, Nodes.refCount(handle));
        Nodes.unref(handle);
    }
}
