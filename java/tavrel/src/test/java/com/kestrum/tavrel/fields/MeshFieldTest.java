package com.kestrum.tavrel.fields;

import static com.kestrum.tavrel.testkit.Natives.callDeclared;
import static com.kestrum.tavrel.testkit.Natives.handle;
import static com.kestrum.tavrel.testkit.Natives.pointer;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertFalse;
import static org.junit.jupiter.api.Assertions.assertNull;
import static org.junit.jupiter.api.Assertions.assertSame;
import static org.junit.jupiter.api.Assertions.assertThrows;
import static org.junit.jupiter.api.Assertions.assertTrue;

import com.kestrum.corvel.fields.SoField;
import com.kestrum.corvel.nodes.SoGroup;
import com.kestrum.tavrel.data.PbCell;
import com.kestrum.tavrel.data.PbRegularCartesianGrid2D;
import com.kestrum.tavrel.data.PbTriangleMesh2D;
import com.kestrum.tavrel.internal.MeshViews;
import com.kestrum.tavrel.nodes.PoNode;
import com.kestrum.tavrel.nodes.PoRegularCartesianGrid2D;
import com.kestrum.tavrel.testkit.Fields;
import com.kestrum.tavrel.testkit.Gc;
import com.kestrum.tavrel.testkit.Journal;
import java.lang.ref.WeakReference;
import java.util.List;
import java.util.stream.Collectors;
import org.junit.jupiter.api.Test;
import org.junit.jupiter.params.ParameterizedTest;
import org.junit.jupiter.params.provider.CsvSource;

/**
 * The value of a mesh field lives inside the field (its address never changes), is set and
 * compared by reference, is evaluated before it is read when the field says so; a field added
 * to a node is found there by name.
 */
class MeshFieldTest {
    private static PbRegularCartesianGrid2D grid(int numX, int numY) {
        return new PbRegularCartesianGrid2D(numX, numY, 0, 0, 1, 1, true);
    }

    private static long valueAddress(PoSFMesh field) {
        return (long) callDeclared(field.getClass(), field, "getValueImpl", handle(field));
    }

    @Test
    void theValueStaysAtOneAddressInsideTheFieldAcrossChanges() {
        try (PoSFRegularCartesianGrid2D field = new PoSFRegularCartesianGrid2D()) {
            long address = valueAddress(field);
            PbRegularCartesianGrid2D view = field.getValue();
            assertEquals(address, handle(view), "the view is the mesh inside the field");
            assertEquals(address, valueAddress(field));
            field.setValue(grid(4, 3));
            assertEquals(address, valueAddress(field));
            assertEquals(12, view.getNumNodes(), "the view shows the value set");
            field.setGeometry(2, 2, 0, 0, 1, 1, null);
            assertEquals(address, valueAddress(field));
            assertEquals(4, view.getNumNodes());
            assertSame(view, field.getValue(), "one view while it is reachable");
            assertTrue(address > handle(field) && address < handle(field) + 4096, "inside the field");
        }
    }

    @Test
    void setValueCopiesTheMeshByReference() {
        PbRegularCartesianGrid2D mesh = grid(3, 3);
        mesh.addValuesSet(0, new float[9], "zeros");
        try (PoSFRegularCartesianGrid2D field = new PoSFRegularCartesianGrid2D()) {
            Journal.start();
            field.setValue(mesh);
            List<String> journal = Journal.stop();
            assertTrue(journal.contains("PoSFRegularCartesianGrid2D::setValue(" + pointer(handle(mesh)) + ")"),
                    journal::toString);
            mesh.setGeometry(2, 2, 0, 0, 1, 1);
            assertEquals(9, field.getValue().getNumNodes(), "a copy: later changes of the mesh stay out");
            assertEquals("zeros", field.getValue().getValuesSetName(0), "data sets are copied too");
            field.setValue(field.getValue());
            assertEquals(9, field.getValue().getNumNodes(), "its own value: unchanged");
        }
    }

    @Test
    void fieldsAreEqualAfterTheSameSetValue() {
        PbTriangleMesh2D mesh = new PbTriangleMesh2D(4, new float[] {0, 1, 1, 0}, new float[] {0, 0, 1, 1}, 2,
                new int[] {0, 1, 2, 0, 2, 3}, true);
        try (PoSFTriangleMesh2D a = new PoSFTriangleMesh2D(); PoSFTriangleMesh2D b = new PoSFTriangleMesh2D()) {
            assertTrue(a.isEqualTo(b), "two empty meshes");
            a.setValue(mesh);
            assertFalse(a.isEqualTo(b));
            b.setValue(mesh);
            Journal.start();
            assertTrue(a.isEqualTo(b));
            assertEquals(List.of("PoSFTriangleMesh2D::operator==(" + pointer(handle(b)) + ")"),
                    Journal.linesStartingWith("PoSFTriangleMesh2D::operator=="));
            Journal.stop();
            b.addValuesSet(0, new float[] {1, 2, 3, 4}, "v");
            assertFalse(a.isEqualTo(b), "data sets count");
            a.addValuesSet(0, new float[] {1, 2, 3, 4}, "v");
            assertTrue(a.isEqualTo(b));
            b.setGeometry(4, new float[] {0, 1, 1, 0}, new float[] {0, 0, 1, 1}, 2, new int[] {0, 1, 3, 1, 2, 3});
            assertFalse(a.isEqualTo(b), "same nodes, other cells");
        }
    }

    @Test
    void aFieldThatNeedsEvaluationIsEvaluatedBeforeItIsRead() {
        try (PoSFRegularCartesianGrid2D source = new PoSFRegularCartesianGrid2D();
                PoSFRegularCartesianGrid2D field = new PoSFRegularCartesianGrid2D()) {
            field.setGeometry(2, 2, 0, 0, 1, 1, null);
            PbCell cell = field.getValue().getCell(0);
            Fields.connect(handle(field), handle(source));
            source.setGeometry(5, 4, 0, 0, 1, 1, null);
            assertTrue(Fields.needsEvaluation(handle(field)));

            Journal.start();
            int nodes = field.getValue().getNumNodes();
            List<String> journal = Journal.stop().stream()
                    .filter(l -> l.startsWith("SoField::evaluateField") || l.startsWith("PbMesh::getNumNodes"))
                    .collect(Collectors.toList());
            assertEquals(20, nodes, "the source's mesh, copied by the evaluation");
            assertEquals(List.of("SoField::evaluateField()", "PbMesh::getNumNodes()"), journal, "evaluated first");
            assertFalse(Fields.needsEvaluation(handle(field)));
            assertThrows(IllegalStateException.class, cell::getArea, "the evaluation replaced the cells");

            Journal.start();
            field.getValue().getNumNodes();
            assertEquals(List.of(), Journal.linesStartingWith("SoField::evaluateField"), "up to date: no evaluation");
            Journal.stop();
            Fields.connect(handle(field), 0);
        }
    }

    @ParameterizedTest(name = "field type {0} is stored as {1}")
    @CsvSource({"0, 0", "5, 5", "7, 7", "9, 1", "15, 7", "-1, 7", "2147483647, 7"})
    void addToContainerKeepsTheLowThreeBitsOfTheFieldType(int given, int stored) {
        try (PoSFRegularCartesianGrid2D field = new PoSFRegularCartesianGrid2D(); SoGroup node = new SoGroup()) {
            field.addToContainer(node, "extra", given, grid(2, 2));
            assertEquals(stored, Fields.fieldType(handle(field)));
            assertFalse(Fields.isDefault(handle(field)), "the other flags stay as they were");
        }
    }

    @Test
    void addToContainerSetsTheValueBeforeTheFieldBelongsToTheNodeAndNamesItLast() {
        PbRegularCartesianGrid2D initial = grid(3, 2);
        try (PoSFRegularCartesianGrid2D field = new PoSFRegularCartesianGrid2D(); SoGroup node = new SoGroup()) {
            assertTrue(Fields.isDefault(handle(field)));
            Journal.start();
            field.addToContainer(node, "grid", 9, initial);
            List<String> calls = Journal.stop().stream().filter(l -> !l.startsWith("Pb")).collect(Collectors.toList());
            assertEquals(List.of("SoFieldContainer::getFieldData()",
                    "PoSFRegularCartesianGrid2D::setValue(" + pointer(handle(initial)) + ")",
                    "SoField::setContainer(" + pointer(handle(node)) + ")",
                    "SoFieldData::addField(null, \"grid\", " + pointer(handle(field)) + ")"), calls);
            assertEquals(6, field.getValue().getNumNodes());
            assertFalse(Fields.isDefault(handle(field)), "the value was set");
            assertEquals(handle(node), Fields.container(handle(field)));
            assertEquals(1, Fields.fieldType(handle(field)), "the low three bits of 9");
            assertSame(field, node.getField("grid"), "the node keeps the field by name");
            assertEquals("grid", field.getName());
        }
    }

    @Test
    void aFieldBelongsToOneNodeAndLeavesItWhenDisposed() {
        PbRegularCartesianGrid2D initial = grid(2, 2);
        try (SoGroup first = new SoGroup(); SoGroup second = new SoGroup()) {
            PoSFRegularCartesianGrid2D field = new PoSFRegularCartesianGrid2D();
            field.addToContainer(first, "f", 0, initial);
            field.addToContainer(second, "g", 0, initial);
            assertNull(first.getField("f"), "taken out of the first node");
            assertEquals(List.of(), Fields.fieldData(handle(first)));
            assertSame(field, second.getField("g"));
            assertEquals(List.of("g=" + handle(field)), Fields.fieldData(handle(second)));
            field.dispose();
            assertNull(second.getField("g"), "a disposed field leaves its node");
            assertEquals(List.of(), Fields.fieldData(handle(second)));
        }
    }

    @Test
    void aDisposedFieldThatAViewHoldsStaysInItsNodeAsTheDisposedObject() throws Exception {
        try (SoGroup node = new SoGroup()) {
            PoSFRegularCartesianGrid2D field = new PoSFRegularCartesianGrid2D();
            field.addToContainer(node, "f", 0, grid(2, 2));
            PbRegularCartesianGrid2D view = field.getValue();
            field.dispose();
            SoField found = node.getField("f");
            assertSame(field, found, "not a new view of the field's memory");
            assertThrows(IllegalStateException.class, found::get);
            assertEquals(4, view.getNumNodes(), "the view holds the field");

            WeakReference<PbRegularCartesianGrid2D> collected = new WeakReference<>(view);
            view = null;
            Gc.collect(collected);
            long deadline = System.nanoTime() + 10_000_000_000L;
            while (node.getField("f") != null) {  // let go by a mesh call once the collector has seen the view
                assertTrue(System.nanoTime() < deadline, "the field was not let go");
                MeshViews.releaseUnreachable();
                Thread.sleep(10);
            }
            assertEquals(List.of(), Fields.fieldData(handle(node)), "freed, it left the node");
        }
    }

    @Test
    void aFieldOutlivesItsNode() {
        try (PoSFRegularCartesianGrid2D field = new PoSFRegularCartesianGrid2D()) {
            SoGroup node = new SoGroup();
            field.addToContainer(node, "f", 0, grid(2, 2));
            node.dispose();  // the last reference: the node is freed
            assertEquals(0, Fields.container(handle(field)), "no container any more");
            assertEquals(4, field.getValue().getNumNodes());
            try (SoGroup other = new SoGroup()) {
                field.addToContainer(other, "again", 0, grid(3, 3));
                assertSame(field, other.getField("again"));
            }
        }
    }

    /** A Java node keeps a field too: its getField goes to Java, whose default finds it. */
    static final class Holder extends PoNode {
        Holder() {
            super("MeshFieldHolder");
        }
    }

    @Test
    void aJavaNodeFindsTheFieldsAddedToIt() {
        try (Holder holder = new Holder(); PoSFRegularCartesianGrid2D field = new PoSFRegularCartesianGrid2D()) {
            field.addToContainer(holder, "mesh", 3, grid(2, 3));
            assertSame(field, holder.getField("mesh"));
            assertEquals(handle(holder), Fields.container(handle(field)));
        }
    }

    @Test
    void aMeshNodesOwnFieldIsNotFoundByName() {
        try (PoRegularCartesianGrid2D node = new PoRegularCartesianGrid2D()) {
            assertNull(node.getField("mesh"));
            assertEquals(List.of(), Fields.fieldData(handle(node)));
        }
    }
}
