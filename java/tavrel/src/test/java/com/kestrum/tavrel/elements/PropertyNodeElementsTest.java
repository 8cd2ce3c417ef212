package com.kestrum.tavrel.elements;

import static org.junit.jupiter.api.Assertions.assertArrayEquals;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertFalse;
import static org.junit.jupiter.api.Assertions.assertNull;
import static org.junit.jupiter.api.Assertions.assertTrue;

import com.kestrum.corvel.SbBox3f;
import com.kestrum.corvel.SbVec3f;
import com.kestrum.corvel.misc.NativeObject;
import com.kestrum.corvel.misc.SoState;
import com.kestrum.corvel.nodes.SoGroup;
import com.kestrum.corvel.nodes.SoNode;
import com.kestrum.corvel.nodes.SoSeparator;
import com.kestrum.tavrel.data.PbMesh;
import com.kestrum.tavrel.data.PbMesh2D;
import com.kestrum.tavrel.data.PbTriangleCell;
import com.kestrum.tavrel.graph.PbDataMapping;
import com.kestrum.tavrel.graph.PbDateFormatMapping;
import com.kestrum.tavrel.graph.PbDomain;
import com.kestrum.tavrel.graph.PbIsovaluesList;
import com.kestrum.tavrel.graph.PbMiscTextAttr;
import com.kestrum.tavrel.graph.PbNumericDisplayFormat;
import com.kestrum.tavrel.nodes.PoDateFormatMapping;
import com.kestrum.tavrel.nodes.PoDomain;
import com.kestrum.tavrel.nodes.PoIndexListFilter;
import com.kestrum.tavrel.nodes.PoIntervalCellFilter;
import com.kestrum.tavrel.nodes.PoIsovaluesList;
import com.kestrum.tavrel.nodes.PoLinearDataMapping;
import com.kestrum.tavrel.nodes.PoMesh1DHints;
import com.kestrum.tavrel.nodes.PoMiscTextAttr;
import com.kestrum.tavrel.nodes.PoNumericDisplayFormat;
import com.kestrum.tavrel.nodes.PoRegularCartesianGrid2D;
import com.kestrum.tavrel.nodes.PoSquareProfile;
import com.kestrum.tavrel.testkit.ChildJvm;
import java.util.ArrayList;
import java.util.List;
import java.util.function.BiConsumer;
import java.util.function.Function;
import java.util.function.Supplier;
import org.junit.jupiter.api.Test;

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
     * element (to another value or none) and use the value.
     */
    record Owned(String name, Supplier<SoNode> owner, Function<SoState, NativeObject> get,
            BiConsumer<SoState, NativeObject> set, Function<NativeObject, Object> use) {
        @Override
        public String toString() {
            return name;
        }
    }

    static List<Owned> owned() {
        return List.of(
                new Owned("data mapping", PoLinearDataMapping::new, PoDataMappingElement::get,
                        (s, v) -> PoDataMappingElement.set(s, null, (PbDataMapping) v),
                        v -> ((PbDataMapping) v).getHLSColor(1f).lightness()),
                new Owned("date format mapping", PoDateFormatMapping::new, PoDateFormatMappingElement::get,
                        (s, v) -> PoDateFormatMappingElement.set(s, null, (PbDateFormatMapping) v),
                        v -> ((PbDateFormatMapping) v).getCoordinate("2000-01-03")),
                new Owned("domain", PoDomain::new, PoDomainElement::get,
                        (s, v) -> PoDomainElement.set(s, null, (PbDomain) v), v -> ((PbDomain) v).get3DDomain()),
                new Owned("isovalues list", () -> {
                    PoIsovaluesList list = new PoIsovaluesList();
                    list.setRegularIsoList(0f, 1f, 3);
                    return list;
                }, PoIsovaluesListElement::get, (s, v) -> PoIsovaluesListElement.set(s, null, (PbIsovaluesList) v),
                        v -> ((PbIsovaluesList) v).getIsoList().values().length),
                new Owned("text attributes", PoMiscTextAttr::new, PoMiscTextAttrElement::get,
                        (s, v) -> PoMiscTextAttrElement.set(s, null, (PbMiscTextAttr) v),
                        v -> ((PbMiscTextAttr) v).getFontName()),
                new Owned("numeric format", PoNumericDisplayFormat::new, PoNumericDisplayFormatElement::get,
                        (s, v) -> PoNumericDisplayFormatElement.set(s, null, (PbNumericDisplayFormat) v),
                        v -> ((PbNumericDisplayFormat) v).getFormat()),
                new Owned("mesh", PropertyNodeElementsTest::gridNode, PoMeshElement::getMesh, (s, v) -> {
                    if (v == null) {
                        PoMeshElement.set(s, null, (PbMesh2D) null);
                    } else {
                        new PbTriangleCell((PbMesh) v).dispose();  // takes a mesh of any dimension
                    }
                }, v -> ((PbMesh) v).getNumNodes()),
                new Owned("2D mesh", PropertyNodeElementsTest::gridNode, PoMeshElement::getMesh2D,
                        (s, v) -> PoMeshElement.set(s, null, (PbMesh2D) v), v -> ((PbMesh) v).getNumCells()));
    }

    static SoNode gridNode() {
        PoRegularCartesianGrid2D grid = new PoRegularCartesianGrid2D();
        grid.setGeometry(3, 3, 0, 0, 2, 2, null);
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
                kind.set().accept(s, kept[0]);
                result[1] = "set";
            } catch (IllegalStateException e) {
                result[1] = "set refused";
            }
        });
        return result[0] + ", " + result[1];
    }

    /**
     * Within one traversal: the owner sets the element (traversed by a node's override), the
     * value is read, the owner's Java object disposed and the element set to nothing, which lets
     * go of the owner's last native reference; the value is used afterwards.
     */
    static String usedAfterItsOwnerWentWithinTheTraversal(Owned kind) {
        Object[] result = new Object[1];
        Traversal.StateNode node = new Traversal.StateNode((s, self) -> {
            SoNode owner = kind.owner().get();
            owner.callback(((Traversal.StateNode) self).action);
            NativeObject value = kind.get().apply(s);
            owner.dispose();
            kind.set().accept(s, null);
            result[0] = kind.use().apply(value);
        });
        try (SoGroup root = new SoGroup()) {
            root.addChild(node);
            Traversal.apply(root, node);
        } finally {
            node.dispose();
        }
        return "used " + result[0];
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
    void aValueStaysUsableUntilTheTraversalEndsWhateverBecomesOfItsOwner() throws Exception {
        ChildJvm.Result r = ChildJvm.run(PropertyNodeElementsTest.class, List.of(), 120, "within");
        assertFalse(r.crashed(), r::describe);
        assertEquals(0, r.exitCode(), r::describe);
        List<String> expected = List.of("data mapping: used 1.0", "date format mapping: used 2.0",
                "domain: used " + new SbBox3f(0, 0, 0, 1, 1, 1), "isovalues list: used 3", "text attributes: used Sans",
                "numeric format: used " + new PbNumericDisplayFormat.Format(PbNumericDisplayFormat.FormatTypes.AUTOFORMAT, 0, 6),
                "mesh: used 9", "2D mesh: used 4");
        for (String line : expected) {
            assertTrue(r.output().contains(line + "\n"), () -> line + " missing: " + r.describe());
        }
    }
}
