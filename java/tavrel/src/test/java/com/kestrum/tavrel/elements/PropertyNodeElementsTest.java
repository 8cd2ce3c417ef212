package com.kestrum.tavrel.elements;

import static org.junit.jupiter.api.Assertions.assertArrayEquals;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertNull;

import com.kestrum.corvel.SbBox3f;
import com.kestrum.corvel.SbVec3f;
import com.kestrum.corvel.nodes.SoGroup;
import com.kestrum.corvel.nodes.SoNode;
import com.kestrum.corvel.nodes.SoSeparator;
import com.kestrum.tavrel.nodes.PoDateFormatMapping;
import com.kestrum.tavrel.nodes.PoDomain;
import com.kestrum.tavrel.nodes.PoIndexListFilter;
import com.kestrum.tavrel.nodes.PoIntervalCellFilter;
import com.kestrum.tavrel.nodes.PoIsovaluesList;
import com.kestrum.tavrel.nodes.PoLinearDataMapping;
import com.kestrum.tavrel.nodes.PoMesh1DHints;
import com.kestrum.tavrel.nodes.PoSquareProfile;
import java.util.ArrayList;
import java.util.List;
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
}
