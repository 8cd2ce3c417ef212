package com.kestrum.tavrel.misuse;

import static org.junit.jupiter.api.Assertions.assertFalse;
import static org.junit.jupiter.api.Assertions.assertTrue;

import com.kestrum.corvel.fields.SoField;
import com.kestrum.corvel.nodes.SoNode;
import com.kestrum.tavrel.data.PbMesh;
import com.kestrum.tavrel.data.PbParalCartesianGrid2D;
import com.kestrum.tavrel.data.PoMeshFilled;
import com.kestrum.tavrel.data.PoMeshProbePoint;
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
        FIELD_AFTER_ITS_NODE("field position: 1 2 3, node references: 1 then 0\\R");

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
        String text = "field " + field.getName() + ": " + field.getValue() + ", node references: "
                + Nodes.refCount(node);
        Nodes.ref(node);  // keeps the node for the count after the field has let go
        field.dispose();
        System.out.println(text + " then " + (Nodes.refCount(node) - 1));
        Nodes.unref(node);
    }

    private static String attempt(String what, Runnable call) {
        try {
            call.run();
            return "accepted";
        } catch (IllegalArgumentException e) {
            return "refused " + what;
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
