package com.kestrum.tavrel.graph;

import static com.kestrum.tavrel.testkit.Natives.callStatic;
import static com.kestrum.tavrel.testkit.Natives.handle;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertNotEquals;
import static org.junit.jupiter.api.Assertions.assertTrue;
import static org.junit.jupiter.params.provider.Arguments.arguments;

import com.kestrum.corvel.SbColor;
import com.kestrum.corvel.SbVec2f;
import com.kestrum.corvel.SbVec3f;
import com.kestrum.tavrel.graph.PoArrow.PatternTypes;
import com.kestrum.tavrel.internal.JavaViews;
import com.kestrum.tavrel.testkit.Journal;
import com.kestrum.tavrel.testkit.Shapes;
import java.lang.reflect.Method;
import java.util.ArrayList;
import java.util.HashSet;
import java.util.LinkedHashMap;
import java.util.List;
import java.util.Map;
import java.util.Set;
import java.util.function.Supplier;
import java.util.stream.Stream;
import org.junit.jupiter.api.Test;
import org.junit.jupiter.params.ParameterizedTest;
import org.junit.jupiter.params.provider.Arguments;
import org.junit.jupiter.params.provider.MethodSource;

/**
 * Every constructor function of the shapes and pie charts as the toolkit sees it, and the
 * class-level getters and enumerations of their classes.
 */
class ShapeConstructorsTest {
    private static SbVec2f v(float x, float y) {
        return new SbVec2f(x, y);
    }

    private static SbVec3f v(float x, float y, float z) {
        return new SbVec3f(x, y, z);
    }

    private record Row(String name, Supplier<PoBase> make, String journal) {
        @Override
        public String toString() {
            return name;
        }
    }

    private static final String PI_2 = "1.5707964";

    static Stream<Row> constructors() {
        return Stream.of(
                new Row("PoCircleCenterRadius()", PoCircleCenterRadius::new, "PoCircleCenterRadius::init((0, 0), 1)"),
                new Row("PoCircleCenterRadius(c, r)", () -> new PoCircleCenterRadius(v(1, 2), 3),
                        "PoCircleCenterRadius::init((1, 2), 3)"),
                new Row("PoCircleThreePoints()", PoCircleThreePoints::new,
                        "PoCircleThreePoints::init((1, 0), (0, 1), (-1, 0))"),
                new Row("PoCircleThreePoints(p, p, p)", () -> new PoCircleThreePoints(v(1, 2), v(3, 4), v(5, 7)),
                        "PoCircleThreePoints::init((1, 2), (3, 4), (5, 7))"),
                new Row("PoCircle3CenterRadius()", PoCircle3CenterRadius::new,
                        "PoCircle3CenterRadius::init(1, (0, 0, 0), 1, (0, 0, 1))"),
                new Row("PoCircle3CenterRadius(c, r, n)", () -> new PoCircle3CenterRadius(v(1, 2, 3), 4, v(0, 1, 0)),
                        "PoCircle3CenterRadius::init(0, (1, 2, 3), 4, (0, 1, 0))"),
                new Row("PoCircle3ThreePoints()", PoCircle3ThreePoints::new,
                        "PoCircle3ThreePoints::init(1, (1, 0, 0), (0, 1, 0), (-1, 0, 0))"),
                new Row("PoCircle3ThreePoints(p, p, p)",
                        () -> new PoCircle3ThreePoints(v(1, 2, 3), v(4, 5, 6), v(7, 8, 10)),
                        "PoCircle3ThreePoints::init(0, (1, 2, 3), (4, 5, 6), (7, 8, 10))"),
                new Row("PoCircleArcCtrPtAngle()", PoCircleArcCtrPtAngle::new,
                        "PoCircleArcCtrPtAngle::init((0, 0), (1, 0), " + PI_2 + ")"),
                new Row("PoCircleArcCtrPtAngle(c, p, a)", () -> new PoCircleArcCtrPtAngle(v(1, 1), v(2, 1), 0.5f),
                        "PoCircleArcCtrPtAngle::init((1, 1), (2, 1), 0.5)"),
                new Row("PoCircleArcCtrRadTwoAngle()", PoCircleArcCtrRadTwoAngle::new,
                        "PoCircleArcCtrRadTwoAngle::init((0, 0), 1, 0, " + PI_2 + ")"),
                new Row("PoCircleArcCtrRadTwoAngle(c, r, a, a)",
                        () -> new PoCircleArcCtrRadTwoAngle(v(1, 2), 3, 0.25f, 0.75f),
                        "PoCircleArcCtrRadTwoAngle::init((1, 2), 3, 0.25, 0.75)"),
                new Row("PoCircleArcCtrTwoPts()", PoCircleArcCtrTwoPts::new,
                        "PoCircleArcCtrTwoPts::init((0, 0), (1, 0), (0, 1))"),
                new Row("PoCircleArcCtrTwoPts(c, p, p)", () -> new PoCircleArcCtrTwoPts(v(1, 2), v(3, 4), v(5, 6)),
                        "PoCircleArcCtrTwoPts::init((1, 2), (3, 4), (5, 6))"),
                new Row("PoCircleArcThreePts()", PoCircleArcThreePts::new,
                        "PoCircleArcThreePts::init((1, 0), (0, 1), (-1, 0))"),
                new Row("PoCircleArcThreePts(p, p, p)", () -> new PoCircleArcThreePts(v(1, 2), v(3, 4), v(5, 7)),
                        "PoCircleArcThreePts::init((1, 2), (3, 4), (5, 7))"),
                new Row("PoCircleArc3CtrPtAngle()", PoCircleArc3CtrPtAngle::new,
                        "PoCircleArc3CtrPtAngle::init(1, (0, 0, 0), (1, 0, 0), " + PI_2 + ", (0, 0, 1))"),
                new Row("PoCircleArc3CtrPtAngle(c, p, a, n)",
                        () -> new PoCircleArc3CtrPtAngle(v(1, 2, 3), v(4, 5, 6), 0.5f, v(0, 0, 2)),
                        "PoCircleArc3CtrPtAngle::init(0, (1, 2, 3), (4, 5, 6), 0.5, (0, 0, 2))"),
                new Row("PoCircleArc3CtrTwoPts()", PoCircleArc3CtrTwoPts::new,
                        "PoCircleArc3CtrTwoPts::init(1, (0, 0, 0), (1, 0, 0), (0, 1, 0))"),
                new Row("PoCircleArc3CtrTwoPts(c, p, p)",
                        () -> new PoCircleArc3CtrTwoPts(v(1, 2, 3), v(4, 5, 6), v(7, 8, 10)),
                        "PoCircleArc3CtrTwoPts::init(0, (1, 2, 3), (4, 5, 6), (7, 8, 10))"),
                new Row("PoCircleArc3ThreePts()", PoCircleArc3ThreePts::new,
                        "PoCircleArc3ThreePts::init(1, (1, 0, 0), (0, 1, 0), (-1, 0, 0))"),
                new Row("PoCircleArc3ThreePts(p, p, p)",
                        () -> new PoCircleArc3ThreePts(v(1, 2, 3), v(4, 5, 6), v(7, 8, 10)),
                        "PoCircleArc3ThreePts::init(0, (1, 2, 3), (4, 5, 6), (7, 8, 10))"),
                new Row("PoArrow()", PoArrow::new, "PoArrow::init(1, 0, null, 0, 1, 0.1, 0.1)"),
                new Row("PoArrow(n, points, ...)",
                        () -> new PoArrow(2, new SbVec2f[] {v(0, 0), v(1, 1), v(9, 9)}, PatternTypes.DIRECTTRIANGLE,
                                PatternTypes.RECTANGLE, 0.25f, 0.5f),
                        "PoArrow::init(0, 2, [(0, 0), (1, 1)], 1, 3, 0.25, 0.5)"),
                new Row("PoArrow3()", PoArrow3::new, "PoArrow3::init(1, 0, null, 0, 1, 0.1, 0.1)"),
                new Row("PoArrow3(n, points, ...)",
                        () -> PoArrow3.along(new SbVec3f[] {v(0, 0, 0), v(1, 1, 1)}, PoArrow3.PatternTypes.NOPATTERN,
                                PoArrow3.PatternTypes.INDIRECTTRIANGLE, 0.25f, 0.5f),
                        "PoArrow3::init(0, 2, [(0, 0, 0), (1, 1, 1)], 0, 2, 0.25, 0.5)"),
                new Row("PoParallelogram()", PoParallelogram::new, "PoParallelogram::init((0, 0), (1, 0), (1, 1))"),
                new Row("PoParallelogram(a, b, c)", () -> new PoParallelogram(v(0, 0), v(2, 0), v(3, 1)),
                        "PoParallelogram::init((0, 0), (2, 0), (3, 1))"),
                new Row("PoParallelogram3()", PoParallelogram3::new,
                        "PoParallelogram3::init(1, (0, 0, 0), (1, 0, 0), (1, 1, 0))"),
                new Row("PoParallelogram3(a, b, c)",
                        () -> new PoParallelogram3(v(0, 0, 1), v(2, 0, 1), v(3, 1, 1)),
                        "PoParallelogram3::init(0, (0, 0, 1), (2, 0, 1), (3, 1, 1))"),
                new Row("PoRectangle()", PoRectangle::new, "PoRectangle::PoRectangle()"),
                new Row("PoRectangle(c, c)", () -> new PoRectangle(v(1, 2), v(3, 4)), "PoRectangle::init((1, 2), (3, 4))"),
                new Row("PoPieChart2D()", PoPieChart2D::new, "PoPieChart2D::PoPieChart2D()"),
                new Row("PoPieChart2D(c, r, n, ...)",
                        () -> new PoPieChart2D(v(1, 2), 3, 2, new String[] {"a", "b", "c"}, new float[] {1, 3, 5}, 1,
                                new SbColor[] {new SbColor(1, 0, 0)}),
                        "PoPieChart2D::PoPieChart2D((1, 2), 3, 2, [\"a\", \"b\"], [1, 3], 1, [(1, 0, 0)])"),
                new Row("PoPieChart3D()", PoPieChart3D::new, "PoPieChart3D::PoPieChart3D()"),
                new Row("PoPieChart3D(c, r, h, n, ...)",
                        () -> PoPieChart3D.of(v(1, 2, 3), 4, 0.5f, new String[] {"a", null}, new float[] {1, 3}, null),
                        "PoPieChart3D::PoPieChart3D((1, 2, 3), 4, 0.5, 2, [\"a\", null], [1, 3], 0, null)"),
                new Row("PoPieChartRep()", PoPieChartRep::new, "PoPieChartRep::PoPieChartRep()"));
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("constructors")
    void eachConstructorMakesTheToolkitsConstructionWithItsArguments(Row row) {
        Journal.start();
        PoBase node = row.make().get();
        List<String> lines = Journal.stop();
        try {
            assertEquals(List.of(row.journal()), lines);
            assertTrue(node.isModified(), "a new node is not built yet");
            assertEquals(row.name().substring(0, row.name().indexOf('(')), node.getTypeName());
        } finally {
            node.dispose();
        }
    }

    /** Constructor functions called past the Java checks, where a row has a rule of its own. */
    @Test
    void nativeRowsTakeTheirArgumentsAsTheToolkitDoes() {
        float[] centre = {1, 2, 3};
        float[] normal = {0, 0, 2};
        Journal.start();
        long circle = (Long) callStatic(PoCircle3CenterRadius.class, "ctorImpl1", centre, 4f, normal);
        assertEquals(List.of("PoCircle3CenterRadius::init(0, (1, 2, 3), 4, (0, 0, 2))"), Journal.stop(),
                "the radius between the two vectors");
        dispose(circle);

        Journal.start();
        long arrow = (Long) callStatic(PoArrow.class, "ctorImpl1", 3, null, 0, 1, 1f, 2f);
        assertEquals(List.of("PoArrow::init(0, 3, null, 0, 1, 1, 2)"), Journal.stop());
        assertEquals(List.of(3f), floats(Shapes.arrow(arrow, false)), "the count kept, no points");
        dispose(arrow);

        Journal.start();
        long empty = (Long) callStatic(PoArrow3.class, "ctorImpl1", 0, new Object[0], 0, 0, 1f, 2f);
        long firstNull = (Long) callStatic(PoArrow3.class, "ctorImpl1", 1, new Object[] {null}, 0, 0, 1f, 2f);
        assertEquals(List.of("PoArrow3::init(0, 0, null, 0, 0, 1, 2)", "PoArrow3::init(0, 1, null, 0, 0, 1, 2)"),
                Journal.stop());
        dispose(empty);
        dispose(firstNull);

        // The count keeps its low 16 bits: 65538 is 2 slices, 65535 is -1 (none).
        Journal.start();
        long two = (Long) callStatic(PoPieChart2D.class, "ctorImpl1", new float[] {0, 0}, 1f, 65538,
                new String[] {"a", "b"}, new float[] {1, 1}, 0, null);
        long none = (Long) callStatic(PoPieChart2D.class, "ctorImpl1", new float[] {0, 0}, 1f, 65535,
                new String[] {"a"}, new float[] {1}, 0, new Object[0]);
        assertEquals(List.of("PoPieChart2D::PoPieChart2D((0, 0), 1, 2, [\"a\", \"b\"], [1, 1], 0, null)",
                "PoPieChart2D::PoPieChart2D((0, 0), 1, -1, [], [], 0, null)"), Journal.stop());
        assertEquals(2f, Shapes.slices(two)[0]);
        assertEquals(List.of(-1f), floats(Shapes.slices(none)));
        dispose(two);
        dispose(none);
    }

    private static void dispose(long handle) {
        JavaViews.find(PoBase.class, handle, null).dispose();
    }

    static Stream<Arguments> enumerations() {
        return Stream.of(
                arguments(PoPieChart.IntAnnotPositions.class, "RADIALINTPOS 0, HORINTPOS 1"),
                arguments(PoPieChart.ExtAnnotPositions.class,
                        "RADIALEXTPOS 0, HOREXTPOS 1, HORALIGNEDEXTPOS 2, VERTALIGNEDEXTPOS 3, SQUAREALIGNEDEXTPOS 4"),
                arguments(PoPieChart.Alignments.class,
                        "LEFTALIGN 0, CENTERALIGN 1, RIGHTALIGN 2, INWARDSALIGN 3, OUTWARDSALIGN 4"),
                arguments(PoPieChart.PercentStatus.class, "ABSOLUTE 0, PERCENTAGE 1"),
                arguments(PoCircleArc.ArcTypes.class, "OPENED 0, ENDCLOSE 1, CENTERCLOSE 2"),
                arguments(PoCircleArc3.ArcTypes.class, "OPENED 0, ENDCLOSE 1, CENTERCLOSE 2"),
                arguments(PoArrow.PatternTypes.class, "NOPATTERN 0, DIRECTTRIANGLE 1, INDIRECTTRIANGLE 2, RECTANGLE 3"),
                arguments(PoArrow3.PatternTypes.class, "NOPATTERN 0, DIRECTTRIANGLE 1, INDIRECTTRIANGLE 2, RECTANGLE 3"));
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("enumerations")
    void everyConstantHasItsGetterAndValue(Class<? extends Enum<?>> enumeration, String table) throws Exception {
        Map<String, Integer> expected = new LinkedHashMap<>();
        for (String entry : table.split(", ")) {
            String[] nameAndValue = entry.split(" ");
            expected.put(nameAndValue[0], Integer.valueOf(nameAndValue[1]));
        }
        List<String> constants = new ArrayList<>();
        Method getValue = enumeration.getMethod("getValue");
        Method fromValue = enumeration.getMethod("fromValue", int.class);
        for (Enum<?> constant : enumeration.getEnumConstants()) {
            constants.add(constant.name());
            Method getter = enumeration.getDeclaredMethod("get" + constant.name() + "Native");
            getter.setAccessible(true);
            Integer value = expected.get(constant.name());
            assertEquals(value, getter.invoke(null), constant.name());
            assertEquals(value, getValue.invoke(constant), constant.name());
            assertEquals(constant, fromValue.invoke(null, value));
        }
        assertEquals(new ArrayList<>(expected.keySet()), constants);
    }

    static Stream<Class<?>> classes() {
        return Stream.of(PoPieChart.class, PoPieChart2D.class, PoPieChart3D.class, PoPieChartRep.class,
                PoCircle.class, PoCircle3.class, PoCircleCenterRadius.class, PoCircleThreePoints.class,
                PoCircle3CenterRadius.class, PoCircle3ThreePoints.class, PoCircleArc.class, PoCircleArc3.class,
                PoCircleArcCtrPtAngle.class, PoCircleArcCtrRadTwoAngle.class, PoCircleArcCtrTwoPts.class,
                PoCircleArcThreePts.class, PoCircleArc3CtrPtAngle.class, PoCircleArc3CtrTwoPts.class,
                PoCircleArc3ThreePts.class, PoArrow.class, PoArrow3.class, PoParallelogram.class,
                PoParallelogram3.class, PoRectangle.class);
    }

    /** The type name comes from the class's data member; the catalog is asked of the class. */
    @ParameterizedTest(name = "{0}")
    @MethodSource("classes")
    void typeNameAndCatalogAreTheClasssOwn(Class<?> type) throws Exception {
        String name = type.getSimpleName();
        Journal.start();
        Object typeName = type.getMethod("getClassTypeName").invoke(null);
        long catalog = (Long) type.getMethod("getClassNodekitCatalog").invoke(null);
        assertEquals(List.of(name + "::getClassNodekitCatalog()"), Journal.stop());
        assertEquals(name, typeName);
        assertNotEquals(0, catalog);
    }

    @Test
    void eachClassHasItsOwnCatalog() {
        Set<Object> catalogs = new HashSet<>();
        classes().forEach(c -> {
            try {
                catalogs.add(c.getMethod("getClassNodekitCatalog").invoke(null));
            } catch (ReflectiveOperationException e) {
                throw new AssertionError(e);
            }
        });
        assertEquals(24, catalogs.size());
    }

    @Test
    void theRectangleMadeByTypeNameIsTheDefaultRectangle() {
        try (PoBase made = PoBase.createInstance("PoRectangle");
                PoRectangle direct = new PoRectangle()) {
            assertEquals(List.of(0f, 0f, 1f, 1f), floats(Shapes.rectangle(handle(made))));
            assertEquals(List.of(0f, 0f, 1f, 1f), floats(Shapes.rectangle(handle(direct))));
        }
        try (PoRectangle r = new PoRectangle(v(1, 2), v(-3, 4))) {
            assertEquals(List.of(1f, 2f, -3f, 4f), floats(Shapes.rectangle(handle(r))));
        }
    }

    private static List<Float> floats(float[] a) {
        List<Float> out = new ArrayList<>();
        for (float f : a) {
            out.add(f);
        }
        return out;
    }
}
