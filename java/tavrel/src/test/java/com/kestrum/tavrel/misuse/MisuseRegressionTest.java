package com.kestrum.tavrel.misuse;

import static org.junit.jupiter.api.Assertions.assertFalse;
import static org.junit.jupiter.api.Assertions.assertTrue;

import com.kestrum.corvel.actions.SoAction;
import com.kestrum.corvel.actions.SoCallbackAction;
import com.kestrum.corvel.actions.SoGLRenderAction;
import com.kestrum.corvel.nodes.SoGroup;
import com.kestrum.corvel.nodes.SoSeparator;
import com.kestrum.tavrel.elements.PoDomainElement;
import com.kestrum.tavrel.nodes.PoDomain;
import com.kestrum.corvel.fields.SoField;
import com.kestrum.corvel.nodes.SoNode;
import com.kestrum.tavrel.data.PbCell;
import com.kestrum.tavrel.data.PbMesh;
import com.kestrum.tavrel.data.PbParalCartesianGrid2D;
import com.kestrum.tavrel.data.PoMeshFilled;
import com.kestrum.tavrel.data.PoMeshProbePoint;
import com.kestrum.tavrel.data.PbRegularCartesianGrid2D;
import com.kestrum.tavrel.misc.callbacks.PoProbeCB;
import com.kestrum.tavrel.nodes.PoCellFilter;
import com.kestrum.tavrel.nodes.PoNode;
import com.kestrum.tavrel.testkit.ChildJvm;
import com.kestrum.tavrel.testkit.Nodes;
import java.util.List;
import java.util.regex.Pattern;
import org.junit.jupiter.params.ParameterizedTest;
import org.junit.jupiter.params.provider.EnumSource;

/**
 * Call sequences that the misuse run found killing the JVM, each run in a child JVM so that a
 * regression fails here instead of ending the test run. The child prints what the library
 * answered; the output must match.
 */
class MisuseRegressionTest {
    private static final String DONE = "scenario done";

    enum Scenario {
        /** A Java node whose getRenderEngineMode disposes the node while it is being made. */
        NODE_DISPOSED_WHILE_BEING_MADE("node disposed: true\\R"),
        /** The same for a Java cell filter. */
        FILTER_DISPOSED_WHILE_BEING_MADE("filter disposed: true\\R"),
        /**
         * A view of a grid that keeps one coordinate per column and per row (a representation's
         * mesh, once the grid's own Java object is disposed) given arrays shorter than its axes.
         */
        SHORT_COORDINATES_ON_A_VIEW("view of PbParalCartesianGrid2D: refused x\\Rrefused y\\Raccepted\\R"),
        /** A field of a node used after the node's Java object, its only holder, was disposed. */
        FIELD_AFTER_ITS_NODE("field position: 1 2 3, node references: 1 then 0\\R"),
        /**
         * The enter-mesh listener changes the probe's mesh's geometry (which frees its cells); the
         * events that follow in the same move carry no cell rather than the freed one.
         */
        PROBE_MESH_CHANGED_BY_AN_EARLIER_EVENT("enter: cell 0 .*\\Rchange: no cell\\Rmotion: no cell\\R"),
        /** The enter-mesh listener gives the probe another mesh: the events that follow carry no cell. */
        PROBE_MESH_REPLACED_BY_AN_EARLIER_EVENT("enter: cell 0 .*\\Rchange: no cell\\Rmotion: no cell\\R"
                + "cell kept from the enter event: refused\\R"),
        /**
         * A node disposes the action that traverses it; a later node of the same traversal is
         * handed a view of the still-live native action and keeps it past the apply, which frees
         * the action: the kept view stops working.
         */
        ACTION_VIEW_KEPT_PAST_ITS_APPLY("kept action \\(apply\\): view, refused\\R"
                + "kept action \\(direct call\\): view, refused\\R"),
        /**
         * A node has part of the traversal run on another thread (waiting for it, so that the
         * calls are serialised); the state makes an element of a Java class there. The element
         * belongs to the state, not to its Java object, which neither frees it nor outlives the
         * traversal.
         */
        ELEMENT_MADE_BY_A_STATE_ON_ANOTHER_THREAD("element made on the other thread: disposed true\\R");

        final Pattern expected;

        Scenario(String expected) {
            this.expected = Pattern.compile(expected);
        }
    }

    public static void main(String[] args) {
        switch (Scenario.valueOf(args[0])) {
            case NODE_DISPOSED_WHILE_BEING_MADE:
                for (int i = 0; i < 3; i++) {  // the first object of a class creates its type
                    System.out.println("node disposed: " + new SelfDisposingNode().isDisposed());
                }
                break;
            case FILTER_DISPOSED_WHILE_BEING_MADE:
                for (int i = 0; i < 3; i++) {
                    System.out.println("filter disposed: " + new SelfDisposingFilter().isDisposed());
                }
                break;
            case SHORT_COORDINATES_ON_A_VIEW:
                shortCoordinatesOnAView();
                break;
            case FIELD_AFTER_ITS_NODE:
                fieldAfterItsNode();
                break;
            case PROBE_MESH_CHANGED_BY_AN_EARLIER_EVENT:
                probeMeshChangedByAnEarlierEvent(false);
                break;
            case PROBE_MESH_REPLACED_BY_AN_EARLIER_EVENT:
                probeMeshChangedByAnEarlierEvent(true);
                break;
            case ACTION_VIEW_KEPT_PAST_ITS_APPLY:
                actionViewKeptPastItsApply();
                break;
            case ELEMENT_MADE_BY_A_STATE_ON_ANOTHER_THREAD:
                elementMadeByAStateOnAnotherThread();
                break;
        }
        System.out.println(DONE);
    }

    private static void shortCoordinatesOnAView() {
        // A grid without rows has no nodes, yet its x array has a value per column.
        PbMesh empty = viewOf(new PbParalCartesianGrid2D(64, 0, new float[64], new float[0], false));
        PbMesh full = viewOf(new PbParalCartesianGrid2D(64, 48, new float[64], new float[48], false));
        System.out.println("view of PbParalCartesianGrid2D: "
                + attempt("x", () -> empty.setCoordinates(new float[3], null, null)) + "\n"
                + attempt("y", () -> full.setCoordinates(null, new float[47], null)) + "\n"
                + attempt("all", () -> full.setCoordinates(new float[64], new float[48], new float[64 * 48])));
    }

    /** The Java view that a representation gives of its mesh once the mesh's own object is disposed. */
    private static PbMesh viewOf(PbMesh mesh) {
        PoMeshFilled rep = new PoMeshFilled();
        rep.setMesh(mesh);
        mesh.dispose();
        return rep.getMesh();
    }

    private static void fieldAfterItsNode() {
        PoMeshProbePoint probe = new PoMeshProbePoint();
        long node = probe.getNativeResourceHandleInternal();
        SoField field = probe.getField("position");
        probe.dispose();
        field.setValue("1 2 3");
        String text = "field " + field.getName() + ": " + field.get() + ", node references: "
                + Nodes.refCount(node);
        Nodes.ref(node);  // keeps the node for the count after the field has let go
        field.dispose();
        System.out.println(text + " then " + (Nodes.refCount(node) - 1));
        Nodes.unref(node);
    }

    /**
     * A probe enters a grid; its enter-mesh listener changes the grid's geometry, or gives the
     * probe another mesh and then changes the grid's geometry; the change-cell and motion
     * listeners of the same move use the cell they get.
     */
    private static void probeMeshChangedByAnEarlierEvent(boolean replaceMesh) {
        // Large enough that freed cells go back to the system and a read of them faults.
        PbRegularCartesianGrid2D grid = new PbRegularCartesianGrid2D(400, 400, 0, 0, 1, 1, false);
        PbRegularCartesianGrid2D other = new PbRegularCartesianGrid2D(2, 2, 5, 5, 6, 6, false);
        for (int i = 0; i < 399 * 399; i += 97) {
            grid.getCell(i);
        }
        PbCell[] kept = new PbCell[1];
        try (PoMeshProbePoint probe = new PoMeshProbePoint(); SoCallbackAction action = new SoCallbackAction()) {
            probe.setMesh(grid);
            probe.setEnterMeshCallback(new PoProbeCB((p, cell, handle, data) -> {
                System.out.println("enter: " + describe(cell));
                kept[0] = cell;
                if (replaceMesh) {
                    p.setMesh(other);
                }
                grid.setGeometry(400, 400, 0, 0, 2, 2);
            }), null);
            PoProbeCB.Listener later = (p, cell, handle, data) -> System.out.println(data + ": " + describe(cell));
            probe.setChangeCellCallback(new PoProbeCB(later), "change");
            probe.setMotionCallback(new PoProbeCB(later), "motion");
            probe.setPosition(0.001f, 0.001f, 0);
            action.apply(probe);
        }
        if (replaceMesh) {
            System.out.println("cell kept from the enter event: " + attempt("", () -> kept[0].getVolume()));
        }
    }

    private static void actionViewKeptPastItsApply() {
        SoGLRenderAction[] kept = new SoGLRenderAction[1];
        SoGroup root = new SoGroup();
        root.addChild(new RenderHook(a -> a.dispose()));
        root.addChild(new RenderHook(a -> kept[0] = a));
        for (String how : new String[] {"apply", "direct call"}) {
            SoGLRenderAction render = new SoGLRenderAction();
            if (how.equals("apply")) {
                render.apply(root);
            } else {
                root.GLRender(render);  // the group's operation called from Java, not an apply
            }
            System.out.println("kept action (" + how + "): " + (kept[0] == render ? "the applied one" : "view") + ", "
                    + attempt("", () -> kept[0].apply(root)));
        }
    }

    private static void elementMadeByAStateOnAnotherThread() {
        try (KeptDomain registered = new KeptDomain()) {
            SoAction.enableElement(registered.getTypeName(), registered.getStackIndex());
        }
        KeptDomain.kept = null;
        SoSeparator inner = new SoSeparator();
        inner.addChild(new PoDomain());
        SoGroup root = new SoGroup();
        root.addChild(new RenderHook(a -> {
            Thread other = new Thread(() -> inner.GLRender(a));
            other.start();
            try {
                other.join();
            } catch (InterruptedException e) {
                throw new IllegalStateException(e);
            }
        }));
        try (SoGLRenderAction render = new SoGLRenderAction()) {
            render.apply(root);
        } finally {
            SoAction.enableElement(PoDomainElement.getClassTypeName(), PoDomainElement.getClassStackIndex());
        }
        boolean disposed = KeptDomain.kept.isDisposed();
        KeptDomain.kept = null;
        for (int i = 0; i < 5; i++) {  // a Java object that owned the freed element would free it again
            System.gc();
            System.runFinalization();
        }
        System.out.println("element made on the other thread: disposed " + disposed);
    }

    /** A Java node that hands the render action to a hook. */
    static final class RenderHook extends PoNode {
        private final java.util.function.Consumer<SoGLRenderAction> hook;

        RenderHook(java.util.function.Consumer<SoGLRenderAction> hook) {
            super("RenderHook");
            this.hook = hook;
        }

        @Override
        public void GLRender(SoGLRenderAction action) {
            hook.accept(action);
        }
    }

    /** Keeps the last element of its class that was made. */
    public static final class KeptDomain extends PoDomainElement {
        static volatile KeptDomain kept;

        public KeptDomain() {
            kept = this;
        }
    }

    private static String describe(PbCell cell) {
        return cell == null ? "no cell" : "cell " + cell.getIndex() + " of area " + cell.getArea();
    }

    private static String attempt(String what, Runnable call) {
        try {
            call.run();
            return "accepted";
        } catch (IllegalArgumentException | IllegalStateException e) {
            return ("refused " + what).trim();
        }
    }

    @ParameterizedTest
    @EnumSource(Scenario.class)
    void runsToItsEndInAChildJvm(Scenario scenario) throws Exception {
        ChildJvm.Result r = ChildJvm.run(MisuseRegressionTest.class, List.of(), 120, scenario.name());
        assertFalse(r.crashed(), r::describe);
        assertFalse(r.jniWarning(), r::describe);
        assertTrue(r.output().contains(DONE), r::describe);
        assertTrue(scenario.expected.matcher(r.output()).find(), r::describe);
    }

    /** Disposes itself when the toolkit asks its rendering mode, which happens while it is made. */
    static final class SelfDisposingNode extends PoNode {
        @Override
        public SoNode.RenderModes getRenderEngineMode() {
            dispose();
            return SoNode.RenderModes.ANY_RENDERING;
        }
    }

    static final class SelfDisposingFilter extends PoCellFilter {
        @Override
        public SoNode.RenderModes getRenderEngineMode() {
            dispose();
            return SoNode.RenderModes.ANY_RENDERING;
        }

        @Override
        public boolean acceptCell(int cellIndex, float value) {
            return true;
        }
    }
}
