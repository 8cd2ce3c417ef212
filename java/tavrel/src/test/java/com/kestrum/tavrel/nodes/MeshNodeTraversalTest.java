package com.kestrum.tavrel.nodes;

import static com.kestrum.tavrel.testkit.Natives.handle;
import static org.junit.jupiter.api.Assertions.assertArrayEquals;
import static org.junit.jupiter.api.Assertions.assertEquals;

import com.kestrum.corvel.actions.SoAction;
import com.kestrum.corvel.actions.SoCallbackAction;
import com.kestrum.corvel.actions.SoGLRenderAction;
import com.kestrum.corvel.nodes.SoGroup;
import com.kestrum.corvel.nodes.SoNode;
import com.kestrum.tavrel.data.PbRegularCartesianGrid2D;
import com.kestrum.tavrel.data.PoMeshFilled;
import com.kestrum.tavrel.data.PoMeshSkin;
import com.kestrum.tavrel.nodes.PoMeshProperty.DataBindings;
import com.kestrum.tavrel.testkit.Representations;
import java.util.ArrayList;
import java.util.List;
import java.util.function.Supplier;
import java.util.stream.Stream;
import org.junit.jupiter.api.Test;
import org.junit.jupiter.params.ParameterizedTest;
import org.junit.jupiter.params.provider.Arguments;
import org.junit.jupiter.params.provider.MethodSource;

/**
 * A mesh node traversed by an action makes its mesh the one that the representations after it
 * draw when they have none of their own; a cell filter between them is asked about its cells.
 */
class MeshNodeTraversalTest {
    /** A node of a 4 x 3 grid (3 x 2 cells) with one value per cell in set 0. */
    private static PoRegularCartesianGrid2D gridNode() {
        PoRegularCartesianGrid2D node = new PoRegularCartesianGrid2D();
        node.setGeometry(4, 3, 0, 0, 3, 2, null);
        node.addValuesSet(0, new float[] {0.5f, 1.5f, 2.5f, 3.5f, 4.5f, 5.5f}, DataBindings.PER_CELL, "v");
        return node;
    }

    /** Accepts the cells whose value is below 3 and records the values it was asked about. */
    static final class BelowThree extends PoCellFilter {
        final List<Float> asked = new ArrayList<>();

        BelowThree() {
            super("MeshNodeTraversalBelowThree");
        }

        @Override
        public boolean acceptCell(int cellIndex, float value) {
            asked.add(value);
            return value < 3;
        }
    }

    private static SoGroup group(SoNode... children) {
        SoGroup g = new SoGroup();
        for (SoNode c : children) {
            g.addChild(c);
        }
        return g;
    }

    private static int[] drawn(SoNode representation) {
        return Representations.selectedCells(handle(representation));
    }

    static Stream<Arguments> actions() {
        return Stream.of(Arguments.of("render", (Supplier<SoAction>) SoGLRenderAction::new),
                Arguments.of("callback", (Supplier<SoAction>) SoCallbackAction::new));
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("actions")
    void aRepresentationAfterAMeshNodeDrawsItsMesh(String name, Supplier<SoAction> action) {
        try (PoRegularCartesianGrid2D node = gridNode(); PoMeshFilled filled = new PoMeshFilled();
                SoGroup scene = group(node, filled); SoAction traversal = action.get()) {
            traversal.apply(scene);
            assertArrayEquals(new int[] {0, 1, 2, 3, 4, 5}, drawn(filled));
        }
    }

    @Test
    void aCellFilterBetweenIsAskedAboutTheNodesCells() {
        try (PoRegularCartesianGrid2D node = gridNode(); BelowThree filter = new BelowThree();
                PoMeshSkin skin = new PoMeshSkin(); SoGroup scene = group(node, filter, skin);
                SoGLRenderAction render = new SoGLRenderAction()) {
            render.apply(scene);
            assertEquals(List.of(0.5f, 1.5f, 2.5f, 3.5f, 4.5f, 5.5f), filter.asked);
            assertArrayEquals(new int[] {0, 1, 2}, drawn(skin), "any representation, whatever its dimension");
        }
    }

    @Test
    void theCurrentMeshIsTheLastNodesAndOnlyForRepresentationsWithoutOne() {
        PbRegularCartesianGrid2D own = new PbRegularCartesianGrid2D(2, 2, 0, 0, 1, 1, false);
        try (PoMeshFilled before = new PoMeshFilled(); PoRegularCartesianGrid2D first = gridNode();
                PoMeshFilled afterFirst = new PoMeshFilled(); PoRegularCartesianGrid2D second = gridNode();
                PoMeshFilled withOwn = new PoMeshFilled(); PoMeshFilled afterSecond = new PoMeshFilled();
                SoGroup scene = group(before, first, afterFirst, second, withOwn, afterSecond);
                SoCallbackAction callback = new SoCallbackAction()) {
            second.setGeometry(3, 2, 0, 0, 2, 1, null);  // 2 cells
            withOwn.setMesh(own);  // 1 cell
            callback.apply(scene);
            assertArrayEquals(new int[] {}, drawn(before), "no mesh yet");
            assertArrayEquals(new int[] {0, 1, 2, 3, 4, 5}, drawn(afterFirst));
            assertArrayEquals(new int[] {0}, drawn(withOwn), "its own mesh");
            assertArrayEquals(new int[] {0, 1}, drawn(afterSecond));
        }
    }

    @Test
    void theCurrentMeshLastsForOneApplyOnly() {
        try (PoRegularCartesianGrid2D node = gridNode(); PoMeshFilled filled = new PoMeshFilled();
                SoGLRenderAction render = new SoGLRenderAction()) {
            render.apply(node);
            filled.GLRender(render);  // outside apply: no state, no mesh
            assertArrayEquals(new int[] {}, drawn(filled));
            try (SoGroup scene = group(node, filled)) {
                render.apply(scene);
                assertArrayEquals(new int[] {0, 1, 2, 3, 4, 5}, drawn(filled));
            }
        }
    }

    @Test
    void theMeshDrawnIsTheNodesAsItIsWhenTraversed() {
        try (PoRegularCartesianGrid2D node = gridNode(); PoMeshFilled filled = new PoMeshFilled();
                SoGroup scene = group(node, filled); SoGLRenderAction render = new SoGLRenderAction()) {
            render.apply(scene);
            node.setGeometry(2, 2, 0, 0, 1, 1, null);
            render.apply(scene);
            assertArrayEquals(new int[] {0}, drawn(filled));
        }
    }
}
