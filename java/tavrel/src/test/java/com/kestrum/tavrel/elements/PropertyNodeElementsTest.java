package com.kestrum.tavrel.elements;

import static org.junit.jupiter.api.Assertions.assertArrayEquals;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertFalse;
import static org.junit.jupiter.api.Assertions.assertNull;
import static org.junit.jupiter.api.Assertions.assertThrows;
import static org.junit.jupiter.api.Assertions.assertTrue;

import com.kestrum.corvel.SbBox3f;
import com.kestrum.corvel.SbVec3f;
import com.kestrum.corvel.actions.SoCallbackAction;
import com.kestrum.corvel.misc.NativeObject;
import com.kestrum.corvel.misc.SoState;
import com.kestrum.corvel.nodes.SoGroup;
import com.kestrum.corvel.nodes.SoNode;
import com.kestrum.corvel.nodes.SoSeparator;
import com.kestrum.tavrel.data.PbHexahedronCell;
import com.kestrum.tavrel.data.PbMesh;
import com.kestrum.tavrel.data.PbMesh2D;
import com.kestrum.tavrel.data.PbPixelCell;
import com.kestrum.tavrel.data.PbPyramidCell;
import com.kestrum.tavrel.data.PbQuadrangleCell;
import com.kestrum.tavrel.data.PbTetrahedronCell;
import com.kestrum.tavrel.data.PbTriangleCell;
import com.kestrum.tavrel.data.PbVoxelCell;
import com.kestrum.tavrel.data.PbWedgeCell;
import com.kestrum.tavrel.data.PoMeshFilled;
import com.kestrum.tavrel.data.PoMeshProbePoint;
import com.kestrum.tavrel.data.PoMeshSides;
import com.kestrum.tavrel.graph.PbDataMapping;
import com.kestrum.tavrel.graph.PbDateFormatMapping;
import com.kestrum.tavrel.graph.PbDomain;
import com.kestrum.tavrel.graph.PbIsovaluesList;
import com.kestrum.tavrel.graph.PbMiscTextAttr;
import com.kestrum.tavrel.graph.PbNumericDisplayFormat;
import com.kestrum.tavrel.graph.PoLinearAxis;
import com.kestrum.tavrel.graph.PoTimeAxis;
import com.kestrum.tavrel.nodes.PoCartesianGrid2D;
import com.kestrum.tavrel.nodes.PoDateFormatMapping;
import com.kestrum.tavrel.nodes.PoDomain;
import com.kestrum.tavrel.nodes.PoIndexListFilter;
import com.kestrum.tavrel.nodes.PoIntervalCellFilter;
import com.kestrum.tavrel.nodes.PoIsovaluesList;
import com.kestrum.tavrel.nodes.PoLinearDataMapping;
import com.kestrum.tavrel.nodes.PoMesh1DHints;
import com.kestrum.tavrel.nodes.PoMiscTextAttr;
import com.kestrum.tavrel.nodes.PoNumericDisplayFormat;
import com.kestrum.tavrel.nodes.PoSquareProfile;
import com.kestrum.tavrel.testkit.ChildJvm;
import com.kestrum.tavrel.testkit.Nodes;
import java.util.ArrayList;
import java.util.List;
import java.util.function.Consumer;
import java.util.function.Function;
import java.util.function.Supplier;
import org.junit.jupiter.api.Test;
import org.junit.jupiter.params.ParameterizedTest;
import org.junit.jupiter.params.provider.MethodSource;

/**
 * The property nodes seen from a Java node after them in a traversal: each has set its element
 * to its own attribute object or to itself, and a separator keeps them inside it.
 */
class PropertyNodeElementsTest {
    @Test
    void aNodeAfterThePropertyNodesReadsTheirElements() {
        List<String> seen = new ArrayList<>();
        try (PoLinearDataMapping mapping = new PoLinearDataMapping();
                PoIsovaluesList isovalues = new PoIsovaluesList();
                PoDomain domain = new PoDomain();
                PoDateFormatMapping dates = new PoDateFormatMapping();
                PoIntervalCellFilter cellFilter = new PoIntervalCellFilter();
                PoIndexListFilter pointFilter = new PoIndexListFilter();
                PoMesh1DHints hints = new PoMesh1DHints();
                PoSquareProfile profile = new PoSquareProfile();
                SoSeparator scoped = new SoSeparator();
                SoGroup root = new SoGroup()) {
            isovalues.setRegularIsoList(0f, 1f, 3);
            domain.setValues(new SbVec3f(0, 0, 0), new SbVec3f(2, 4, 8), PoDomain.BoundingBoxTypes.ASIS);
            dates.getField("coord2").setValue("10");
            hints.getField("geomInterpretation").setValue(
                    Integer.toString(PoMesh1DHints.GeomInterpretations.HISTOX.getValue()));
            Traversal.StateNode inside = new Traversal.StateNode((state, self) -> {
                seen.add("mapping colour of 1: " + PoDataMappingElement.get(state).getHLSColor(1f).lightness());
                assertArrayEquals(new float[] {0f, 0.5f, 1f}, PoIsovaluesListElement.get(state).getIsoList().values());
                assertEquals(new SbBox3f(0, 0, 0, 2, 4, 8), PoDomainElement.get(state).get3DDomain());
                assertEquals(20f, PoDateFormatMappingElement.get(state).getCoordinate("2000-01-03"));
                seen.add("cell filter " + (handle(PoCellFilterElement.get(state)) == handle(cellFilter)));
                seen.add("1D filter " + (handle(PoMesh1DFilterElement.get(state)) == handle(pointFilter)));
                seen.add("hints " + PoMesh1DHintsElement.get(state));
                seen.add("profile " + (handle(PoProfileElement.get(state)) == handle(profile)));
            });
            Traversal.StateNode after = new Traversal.StateNode((state, self) -> {
                assertNull(PoDataMappingElement.get(state), "the separator kept the mapping inside it");
                assertNull(PoIsovaluesListElement.get(state));
                seen.add("after the separator: " + (PoCellFilterElement.get(state) == null));
            });
            for (SoNode n : new SoNode[] {mapping, isovalues, domain, dates, cellFilter, pointFilter, hints, profile,
                    inside}) {
                scoped.addChild(n);
            }
            root.addChild(scoped);
            root.addChild(after);
            Traversal.apply(root, inside, after);
            inside.dispose();
            after.dispose();
        }
        assertEquals(List.of("mapping colour of 1: 1.0", "cell filter true", "1D filter true",
                "hints " + PoMesh1DHints.GeomInterpretations.HISTOX.getValue(), "profile true",
                "after the separator: true"), seen);
    }

    private static long handle(SoNode node) {
        return node == null ? 0 : node.getNativeResourceHandleInternal();
    }

    /**
     * A value that lives in the node that set its element (a property node's attribute object, a
     * mesh node's mesh): how to make such a node, read the value from the element, set the
     * element with a node (to another value or none) and use the value. The isovalues and the
     * meshes are large, so that their memory goes back to the system once freed and a use of it
     * crashes even without the sanitizer.
     */
    record Owned(String name, Supplier<SoNode> owner, Function<SoState, NativeObject> get, Setter set,
            Function<NativeObject, Object> use) {
        @Override
        public String toString() {
            return name;
        }
    }

    interface Setter {
        void set(SoState state, SoNode node, NativeObject value);
    }

    static final int LARGE = 200_000;
    static final int NODES = 500 * 500;

    static List<Owned> owned() {
        return List.of(
                new Owned("data mapping", PoLinearDataMapping::new, PoDataMappingElement::get,
                        (s, n, v) -> PoDataMappingElement.set(s, n, (PbDataMapping) v),
                        v -> ((PbDataMapping) v).getHLSColor(1f).lightness()),
                new Owned("date format mapping", PoDateFormatMapping::new, PoDateFormatMappingElement::get,
                        (s, n, v) -> PoDateFormatMappingElement.set(s, n, (PbDateFormatMapping) v),
                        v -> ((PbDateFormatMapping) v).getCoordinate("2000-01-03")),
                new Owned("domain", PoDomain::new, PoDomainElement::get,
                        (s, n, v) -> PoDomainElement.set(s, n, (PbDomain) v), v -> ((PbDomain) v).get3DDomain()),
                new Owned("isovalues list", () -> {
                    PoIsovaluesList list = new PoIsovaluesList();
                    list.setRegularIsoList(0f, 1f, LARGE);
                    return list;
                }, PoIsovaluesListElement::get, (s, n, v) -> PoIsovaluesListElement.set(s, n, (PbIsovaluesList) v),
                        v -> ((PbIsovaluesList) v).getIsoList().values().length),
                new Owned("text attributes", PoMiscTextAttr::new, PoMiscTextAttrElement::get,
                        (s, n, v) -> PoMiscTextAttrElement.set(s, n, (PbMiscTextAttr) v),
                        v -> ((PbMiscTextAttr) v).getFontName()),
                new Owned("numeric format", PoNumericDisplayFormat::new, PoNumericDisplayFormatElement::get,
                        (s, n, v) -> PoNumericDisplayFormatElement.set(s, n, (PbNumericDisplayFormat) v),
                        v -> ((PbNumericDisplayFormat) v).getFormat()),
                new Owned("mesh", PropertyNodeElementsTest::gridNode, PoMeshElement::getMesh, (s, n, v) -> {
                    if (v == null) {
                        PoMeshElement.set(s, n, (PbMesh2D) null);
                    } else {
                        new PbTriangleCell((PbMesh) v).dispose();  // takes a mesh of any dimension
                    }
                }, v -> ((PbMesh) v).getNodeCoord(NODES - 1)),
                new Owned("2D mesh", PropertyNodeElementsTest::gridNode, PoMeshElement::getMesh2D,
                        (s, n, v) -> PoMeshElement.set(s, n, (PbMesh2D) v),
                        v -> ((PbMesh) v).getNumCells() + " cells, last at " + ((PbMesh) v).getNodeCoord(NODES - 1)));
    }

    /**
     * A 2D grid node of 500 by 500 nodes, each at (i % 500, i / 500); no Java view of its mesh is
     * made (a live one would be what the element's getter gives).
     */
    static PoCartesianGrid2D gridNode() {
        float[] x = new float[NODES];
        float[] y = new float[NODES];
        for (int i = 0; i < NODES; i++) {
            x[i] = i % 500;
            y[i] = i / 500;
        }
        PoCartesianGrid2D grid = new PoCartesianGrid2D();
        grid.setGeometry(500, 500, x, y, null);
        return grid;
    }

    /**
     * The value kept by a node's override past the traversal, its owner gone since: using it, or
     * giving it to a set in a later traversal, is refused.
     */
    static String keptPastTheTraversal(Owned kind) {
        NativeObject[] kept = new NativeObject[1];
        SoNode owner = kind.owner().get();
        Traversal.StateNode reader = new Traversal.StateNode((s, self) -> kept[0] = kind.get().apply(s));
        try (SoGroup root = new SoGroup()) {
            root.addChild(owner);
            root.addChild(reader);
            Traversal.apply(root, reader);
        } finally {
            reader.dispose();
            owner.dispose();
        }
        String[] result = new String[2];
        try {
            result[0] = "used " + kind.use().apply(kept[0]);
        } catch (IllegalStateException e) {
            result[0] = "refused";
        }
        Traversal.run(s -> {
            try {
                kind.set().set(s, null, kept[0]);
                result[1] = "set";
            } catch (IllegalStateException e) {
                result[1] = "set refused";
            }
        });
        return result[0] + ", " + result[1];
    }

    /**
     * Within one traversal: a Java node's override traverses a detached owner by a direct call
     * (the owner sets the element), reads the value, disposes the owner's Java object and gives
     * the element another node at the same depth, which lets go of the state's reference on the
     * owner; a Java node after it uses the value, before the apply returns. The direct call holds
     * the owner until then.
     */
    static String usedAfterItsOwnerWentWithinTheTraversal(Owned kind) {
        NativeObject[] value = new NativeObject[1];
        Object[] result = new Object[1];
        Traversal.StateNode first = new Traversal.StateNode((s, self) -> {
            SoNode owner = kind.owner().get();
            owner.callback(((Traversal.StateNode) self).action);
            value[0] = kind.get().apply(s);
            owner.dispose();
            try (SoGroup other = new SoGroup()) {
                kind.set().set(s, other, null);
            }
        });
        Traversal.StateNode then = new Traversal.StateNode((s, self) -> {
            churn();
            result[0] = kind.use().apply(value[0]);
        });
        try (SoGroup root = new SoGroup()) {
            root.addChild(first);
            root.addChild(then);
            Traversal.apply(root, first, then);
        } finally {
            first.dispose();
            then.dispose();
        }
        return "used " + result[0];
    }

    /** Allocates and collects, so that freed native memory is reused or given back. */
    private static void churn() {
        for (int i = 0; i < 3; i++) {
            System.gc();
            byte[][] blocks = new byte[16][];
            for (int j = 0; j < blocks.length; j++) {
                blocks[j] = new byte[1 << 20];
            }
        }
    }

    /** In a child JVM: args[0] "kept" or "within", one line per kind of value. */
    public static void main(String[] args) {
        for (Owned kind : owned()) {
            String result = args[0].equals("kept") ? keptPastTheTraversal(kind) : usedAfterItsOwnerWentWithinTheTraversal(kind);
            System.out.println(kind + ": " + result);
        }
    }

    @Test
    void aValueKeptPastTheTraversalStopsWorking() throws Exception {
        ChildJvm.Result r = ChildJvm.run(PropertyNodeElementsTest.class, List.of(), 120, "kept");
        assertFalse(r.crashed(), r::describe);
        assertEquals(0, r.exitCode(), r::describe);
        for (Owned kind : owned()) {
            assertTrue(r.output().contains(kind + ": refused, set refused\n"), r::describe);
        }
    }

    @Test
    void aValueStaysUsableUntilTheApplyReturnsWhenItsOwnerWasTraversedByADirectCall() throws Exception {
        ChildJvm.Result r = ChildJvm.run(PropertyNodeElementsTest.class, List.of(), 120, "within");
        assertFalse(r.crashed(), r::describe);
        assertEquals(0, r.exitCode(), r::describe);
        List<String> expected = List.of("data mapping: used 1.0", "date format mapping: used 2.0",
                "domain: used " + new SbBox3f(0, 0, 0, 1, 1, 1), "isovalues list: used " + LARGE,
                "text attributes: used Sans",
                "numeric format: used " + new PbNumericDisplayFormat.Format(PbNumericDisplayFormat.FormatTypes.AUTOFORMAT, 0, 6),
                "mesh: used " + new SbVec3f(499, 499, 0),
                "2D mesh: used " + 499 * 499 + " cells, last at " + new SbVec3f(499, 499, 0));
        for (String line : expected) {
            assertTrue(r.output().contains(line + "\n"), () -> line + " missing: " + r.describe());
        }
    }

    /**
     * A property node traversed twice by direct calls with the outer traversal's action, from a
     * Java node of an inner apply, then disposed: the inner apply's end lets go of nothing, as
     * the outer state still names the node; the outer apply's end lets go of the state's
     * reference and of the one hold.
     */
    @Test
    void aNodeTraversedByADirectCallIsHeldUntilTheOutermostApplyReturns() {
        PoLinearDataMapping owner = new PoLinearDataMapping();
        long handle = owner.getNativeResourceHandleInternal();
        Nodes.ref(handle);
        int[] counts = new int[2];
        Traversal.StateNode outer = new Traversal.StateNode((s, self) -> {
            SoCallbackAction outerAction = ((Traversal.StateNode) self).action;
            Traversal.run(inner -> {
                owner.callback(outerAction);
                owner.callback(outerAction);
                owner.dispose();
            });
            counts[0] = Nodes.refCount(handle);
            counts[1] = PoDataMappingElement.get(s).getHLSColor(1f).lightness() == 1f ? 1 : 0;
        });
        try (SoGroup root = new SoGroup()) {
            root.addChild(outer);
            Traversal.apply(root, outer);
        } finally {
            outer.dispose();
        }
        assertArrayEquals(new int[] {3, 1}, counts, "the test's, the outer state's and the hold's references, and"
                + " the mapping still usable");
        assertEquals(1, Nodes.refCount(handle));
        Nodes.unref(handle);
    }

    /** The objects that keep a mesh's address beyond the call, given a mesh. */
    record Keeper(String name, Consumer<PbMesh> keep) {
        @Override
        public String toString() {
            return name;
        }
    }

    static List<Keeper> keepers() {
        return List.of(
                new Keeper("representation's setMesh(PbMesh)", m -> {
                    try (PoMeshFilled filled = new PoMeshFilled()) {
                        filled.setMesh(m);
                    }
                }),
                new Keeper("2D representation's setMesh(PbMesh2D)", m -> {
                    try (PoMeshSides sides = new PoMeshSides()) {
                        sides.setMesh((PbMesh2D) m);
                    }
                }),
                new Keeper("probe's setMesh", m -> {
                    try (PoMeshProbePoint probe = new PoMeshProbePoint()) {
                        probe.setMesh(m);
                    }
                }),
                new Keeper("PbTriangleCell", m -> new PbTriangleCell(m).dispose()),
                new Keeper("PbQuadrangleCell", m -> new PbQuadrangleCell(m).dispose()),
                new Keeper("PbPixelCell", m -> new PbPixelCell(m).dispose()),
                new Keeper("PbTetrahedronCell", m -> new PbTetrahedronCell(m).dispose()),
                new Keeper("PbPyramidCell", m -> new PbPyramidCell(m).dispose()),
                new Keeper("PbWedgeCell", m -> new PbWedgeCell(m).dispose()),
                new Keeper("PbHexahedronCell", m -> new PbHexahedronCell(m).dispose()),
                new Keeper("PbVoxelCell", m -> new PbVoxelCell(m).dispose()));
    }

    /**
     * The mesh of a traversal's state, as a view tied to the traversal, given to whatever keeps
     * its address beyond the call: refused before anything keeps it, while the mesh node's own
     * view is taken and the tied view goes on working, and may be set again on the state.
     */
    @ParameterizedTest(name = "{0}")
    @MethodSource("keepers")
    void whatKeepsAMeshRefusesTheMeshOfATraversalsState(Keeper keeper) {
        String[] seen = new String[3];
        try (PoCartesianGrid2D grid = gridNode(); SoGroup root = new SoGroup()) {
            Traversal.StateNode node = new Traversal.StateNode((s, self) -> {
                PbMesh2D tied = PoMeshElement.getMesh2D(s);
                IllegalArgumentException e = assertThrows(IllegalArgumentException.class,
                        () -> keeper.keep().accept(tied));
                seen[0] = e.getMessage();
                seen[1] = tied.getNumCells() + " cells";
                PoMeshElement.set(s, null, tied);
                keeper.keep().accept(grid.getMesh());
                seen[2] = "own view kept";
            });
            root.addChild(grid);
            root.addChild(node);
            try {
                Traversal.apply(root, node);
            } finally {
                node.dispose();
            }
        }
        assertArrayEquals(new String[] {"mesh is a view of a traversal's state, valid only during the traversal:"
                + " give the mesh node's getMesh() instead", 499 * 499 + " cells", "own view kept"}, seen);
    }

    /** An attribute object of a traversal's state given to a node that keeps its address. */
    record AttributeKeeper(String name, Supplier<SoNode> owner, Function<SoState, NativeObject> get, String argument,
            Consumer<NativeObject> keep) {
        @Override
        public String toString() {
            return name;
        }
    }

    static List<AttributeKeeper> attributeKeepers() {
        return List.of(
                new AttributeKeeper("representation's data mapping", PoLinearDataMapping::new, PoDataMappingElement::get,
                        "dataMapping", v -> {
                            try (PoMeshFilled filled = new PoMeshFilled()) {
                                filled.setDataMapping((PbDataMapping) v);
                            }
                        }),
                new AttributeKeeper("representation's isovalues", PoIsovaluesList::new, PoIsovaluesListElement::get,
                        "isovaluesList", v -> {
                            try (PoMeshFilled filled = new PoMeshFilled()) {
                                filled.setIsovaluesList((PbIsovaluesList) v);
                            }
                        }),
                new AttributeKeeper("graph node's domain", PoDomain::new, PoDomainElement::get, "domain", v -> {
                    try (PoLinearAxis axis = new PoLinearAxis()) {
                        axis.setDomain((PbDomain) v);
                    }
                }),
                new AttributeKeeper("axis's text attributes", PoMiscTextAttr::new, PoMiscTextAttrElement::get, "attr",
                        v -> {
                            try (PoLinearAxis axis = new PoLinearAxis()) {
                                axis.setMiscTextAttr((PbMiscTextAttr) v);
                            }
                        }),
                new AttributeKeeper("axis's format", PoNumericDisplayFormat::new, PoNumericDisplayFormatElement::get,
                        "format", v -> {
                            try (PoLinearAxis axis = new PoLinearAxis()) {
                                axis.setFormat((PbNumericDisplayFormat) v);
                            }
                        }),
                new AttributeKeeper("time axis's date mapping", PoDateFormatMapping::new,
                        PoDateFormatMappingElement::get, "mapping", v -> {
                            try (PoTimeAxis axis = new PoTimeAxis()) {
                                axis.setDateFormatMapping((PbDateFormatMapping) v);
                            }
                        }));
    }

    /**
     * The attribute object of a traversal's state, a view tied to the traversal, given to a node
     * that keeps its address beyond the call: refused before the node keeps it (its property node
     * may go once the traversal ends), while the view goes on working.
     */
    @ParameterizedTest(name = "{0}")
    @MethodSource("attributeKeepers")
    void whatKeepsAnAttributeObjectRefusesTheValueOfATraversalsState(AttributeKeeper keeper) {
        String[] seen = new String[2];
        try (SoNode owner = keeper.owner().get(); SoGroup root = new SoGroup()) {
            Traversal.StateNode node = new Traversal.StateNode((s, self) -> {
                NativeObject tied = keeper.get().apply(s);
                seen[0] = assertThrows(IllegalArgumentException.class, () -> keeper.keep().accept(tied)).getMessage();
                seen[1] = tied.isDisposed() ? "disposed" : "still usable";
            });
            root.addChild(owner);
            root.addChild(node);
            try {
                Traversal.apply(root, node);
            } finally {
                node.dispose();
            }
        }
        assertArrayEquals(new String[] {keeper.argument() + " is a view of a traversal's state, valid only during the"
                + " traversal: a node cannot keep it", "still usable"}, seen);
    }
}
