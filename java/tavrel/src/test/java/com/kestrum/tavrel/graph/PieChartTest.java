package com.kestrum.tavrel.graph;

import static com.kestrum.tavrel.testkit.Natives.call;
import static com.kestrum.tavrel.testkit.Natives.handle;
import static com.kestrum.tavrel.testkit.Natives.pointer;
import static org.junit.jupiter.api.Assertions.assertArrayEquals;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertNull;
import static org.junit.jupiter.api.Assertions.assertSame;
import static org.junit.jupiter.api.Assertions.assertThrows;

import com.kestrum.corvel.SbColor;
import com.kestrum.corvel.SbVec2f;
import com.kestrum.corvel.SbVec3f;
import com.kestrum.tavrel.testkit.Journal;
import com.kestrum.tavrel.testkit.Shapes;
import java.util.List;
import java.util.stream.Stream;
import org.junit.jupiter.api.AfterEach;
import org.junit.jupiter.api.Test;
import org.junit.jupiter.api.function.Executable;
import org.junit.jupiter.params.ParameterizedTest;
import org.junit.jupiter.params.provider.MethodSource;

/** Pie-chart slices (angles, colours, names), translation, picking, attributes and the Java checks. */
class PieChartTest {
    private static final float PI = (float) Math.PI;
    private static final SbColor RED = new SbColor(1, 0, 0);
    private static final SbColor BLUE = new SbColor(0, 0, 1);

    private final java.util.List<Long> paths = new java.util.ArrayList<>();

    @AfterEach
    void freePaths() {
        paths.forEach(Shapes::deletePath);
    }

    private long path(PoBase node, float x, float y) {
        long p = Shapes.newPath(node == null ? 0 : handle(node), x, y);
        paths.add(p);
        return p;
    }

    /** Quarter, quarter, half: slice 0 on [0, pi/2), 1 on [pi/2, pi), 2 on [pi, 2 pi). */
    private static PoPieChart2D quarters() {
        return PoPieChart2D.of(new SbVec2f(0, 0), 1, new String[] {"a", "b", "c"}, new float[] {1, 1, 2},
                new SbColor[] {RED, BLUE});
    }

    @Test
    void slicesSpanAngleProportionalToTheirValuesWithColoursInTurn() {
        try (PoPieChart2D chart = PoPieChart2D.of(new SbVec2f(0, 0), 1, new String[] {"x", "y", "z", "w"},
                new float[] {1, 3, -2, 0}, new SbColor[] {RED, BLUE})) {
            float[] s = Shapes.slices(handle(chart));
            assertEquals(4, s[0]);
            assertArrayEquals(new float[] {1, 0, PI / 2, 1, 0, 0}, java.util.Arrays.copyOfRange(s, 1, 7), 1e-6f);
            assertArrayEquals(new float[] {3, PI / 2, 3 * PI / 2, 0, 0, 1}, java.util.Arrays.copyOfRange(s, 7, 13),
                    1e-6f);
            assertArrayEquals(new float[] {-2, 2 * PI, 0, 1, 0, 0}, java.util.Arrays.copyOfRange(s, 13, 19), 1e-6f,
                    "a negative value spans nothing");
            assertArrayEquals(new float[] {0, 2 * PI, 0, 0, 0, 1}, java.util.Arrays.copyOfRange(s, 19, 25), 1e-6f);
            assertArrayEquals(new String[] {"x", "y", "z", "w"}, Shapes.sliceNames(handle(chart)));
            chart.rebuild();
            assertEquals(2, Shapes.numPolygons(handle(chart)), "one filled polygon per slice that spans something");
        }
    }

    @Test
    void theThreeDimensionalChartKeepsItsCentreRadiusAndHeight() {
        try (PoPieChart3D chart = new PoPieChart3D(new SbVec3f(1, 2, 3), 4, 0.5f, 1, new String[] {"only"},
                new float[] {7}, 0, null)) {
            assertArrayEquals(new float[] {1, 2, 3, 4, 0.5f}, Shapes.pie3(handle(chart)));
            assertArrayEquals(new float[] {1, 7, 0, 2 * PI, 1, 1, 1}, Shapes.slices(handle(chart)), 1e-6f,
                    "no colours: white");
        }
    }

    static Stream<Object[]> picks() {
        return Stream.of(new Object[] {0.5f, 0.1f, 0}, new Object[] {-0.1f, 0.5f, 1}, new Object[] {0f, -0.5f, 2},
                new Object[] {-0.9f, -0.1f, 2}, new Object[] {2f, 2f, -1}, new Object[] {0.8f, 0.8f, -1});
    }

    @ParameterizedTest(name = "({0}, {1}) -> {2}")
    @MethodSource("picks")
    void thePickedSliceIsTheOneUnderThePoint(float x, float y, int expected) {
        try (PoPieChart2D chart = quarters()) {
            int[] slice = {7};
            int result = chart.getPickedSliceNumber(path(chart, x, y), slice);
            assertEquals(expected >= 0 ? 1 : 0, result);
            assertEquals(expected >= 0 ? expected : 0, slice[0], "the int starts at 0 and always reaches Java");
            assertEquals(expected, chart.getPickedSliceNumber(path(chart, x, y)));
        }
    }

    @Test
    void aPathWithoutTheChartPicksNothing() {
        try (PoPieChart2D chart = quarters(); PoPieChart2D other = quarters()) {
            Journal.start();
            long p = path(other, 0.5f, 0.1f);
            assertEquals(-1, chart.getPickedSliceNumber(p));
            assertEquals(List.of("PoPieChart::getPickedSliceNumber(" + pointer(p) + ", 0)"), Journal.stop());
            assertEquals(-1, chart.getPickedSliceNumber(path(null, 0.5f, 0.1f)));
        }
    }

    @Test
    void aTranslatedSliceIsPickedWhereItWasMoved() {
        try (PoPieChart2D chart = quarters()) {
            Journal.start();
            chart.setSliceToTranslate(0, 1);
            assertEquals(List.of("PoPieChart::setSliceToTranslate(0, 1)", "PoPieChart::rebuild()",
                    "PoPieChart::build()"), Journal.stop(), "a change of the chart rebuilds it at once");
            assertEquals(1f, chart.getSliceToTranslate(0));
            assertEquals(0f, chart.getSliceToTranslate(1));
            chart.setSliceToTranslate(9, 5);
            assertEquals(0f, chart.getSliceToTranslate(9), "a slice the chart does not have");
            assertEquals(0f, chart.getSliceToTranslate(-1));
            assertEquals(0, chart.getPickedSliceNumber(path(chart, 1.2f, 1.2f)));
            assertEquals(-1, chart.getPickedSliceNumber(path(chart, 0.1f, 0.05f)), "the slice has left the centre");
        }
    }

    @Test
    void theRepresentationTranslatesAndPicksItsOwnSlices() {
        try (PoPieChartRep rep = new PoPieChartRep()) {
            assertEquals(-1, rep.getPickedSliceNumber(path(rep, 0.5f, 0.1f)), "no slices at first");
            rep.setSliceToTranslate(0, 1);
            assertEquals(0f, rep.getSliceToTranslate(0));
            Shapes.setRepValues(handle(rep), new float[] {1, 1});
            assertEquals(0, rep.getPickedSliceNumber(path(rep, 0.5f, 0.1f)));
            assertEquals(1, rep.getPickedSliceNumber(path(rep, 0f, -0.5f)));
            Journal.start();
            rep.setSliceToTranslate(1, 0.25f);
            assertEquals(0.25f, rep.getSliceToTranslate(1));
            assertEquals(List.of("PoPieChartRep::setSliceToTranslate(1, 0.25)", "PoBase::rebuild()",
                    "PoPieChartRep::getSliceToTranslate(1)"), Journal.stop());
        }
    }

    @Test
    void textAttributesAndFormatAreKeptByAddress() {
        try (PoPieChart2D chart = quarters()) {
            PbMiscTextAttr attr = new PbMiscTextAttr();
            PbNumericDisplayFormat format = new PbNumericDisplayFormat(PbNumericDisplayFormat.FormatTypes.AUTOFORMAT, 4, 2);
            Journal.start();
            chart.setMiscTextAttr(attr);
            chart.setFormat(format);
            assertEquals(List.of("PoPieChart::setMiscTextAttr(" + pointer(handle(attr)) + ")", "PoPieChart::rebuild()",
                    "PoPieChart::build()", "PoPieChart::setFormat(" + pointer(handle(format)) + ")",
                    "PoPieChart::rebuild()", "PoPieChart::build()"), Journal.stop());
            assertSame(attr, chart.getMiscTextAttr());
            assertSame(format, chart.getFormat());
            assertEquals(handle(attr), (Long) call(chart, "getMiscTextAttrImpl", handle(chart)));
            chart.setMiscTextAttr(null);
            chart.setFormat(null);
            assertNull(chart.getMiscTextAttr());
            assertNull(chart.getFormat());
        }
    }

    @Test
    void javaChecksComeBeforeAnyNativeCall() {
        SbVec2f c = new SbVec2f(0, 0);
        String[] two = {"a", "b"};
        float[] values = {1, 2};
        PoPieChart2D chart = quarters();
        List<Executable> npes = List.of(
                () -> new PoPieChart2D(null, 1, 2, two, values, 0, null),
                () -> new PoPieChart2D(c, 1, 2, null, values, 0, null),
                () -> new PoPieChart2D(c, 1, 2, two, null, 0, null),
                () -> new PoPieChart2D(c, 1, 2, two, values, 2, new SbColor[] {RED, null}),
                () -> new PoCircleCenterRadius(null, 1),
                () -> new PoCircle3ThreePoints(new SbVec3f(), null, new SbVec3f()),
                () -> new PoArrow(2, null, PoArrow.PatternTypes.NOPATTERN, PoArrow.PatternTypes.NOPATTERN, 1, 1),
                () -> new PoArrow(1, new SbVec2f[] {null}, PoArrow.PatternTypes.NOPATTERN,
                        PoArrow.PatternTypes.NOPATTERN, 1, 1),
                () -> new PoArrow(0, null, null, PoArrow.PatternTypes.NOPATTERN, 1, 1),
                () -> chart.getPickedSliceNumber(1, null));
        List<Executable> iaes = List.of(
                () -> new PoPieChart2D(c, 1, 3, two, new float[] {1, 2, 3}, 0, null),
                () -> new PoPieChart2D(c, 1, 2, two, new float[] {1}, 0, null),
                () -> new PoPieChart2D(c, 1, -1, two, values, 0, null),
                () -> new PoPieChart2D(c, 1, Short.MAX_VALUE + 1, new String[40000], new float[40000], 0, null),
                () -> new PoPieChart2D(c, 1, 2, two, values, -1, null),
                () -> new PoPieChart2D(c, 1, 2, two, values, 2, new SbColor[] {RED}),
                () -> new PoArrow(-1, null, PoArrow.PatternTypes.NOPATTERN, PoArrow.PatternTypes.NOPATTERN, 1, 1),
                () -> new PoArrow3(3, new SbVec3f[2], PoArrow3.PatternTypes.NOPATTERN,
                        PoArrow3.PatternTypes.NOPATTERN, 1, 1),
                () -> chart.getPickedSliceNumber(0),
                () -> chart.getPickedSliceNumber(1, new int[0]));
        Journal.start();
        for (Executable e : npes) {
            assertThrows(NullPointerException.class, e);
        }
        for (Executable e : iaes) {
            assertThrows(IllegalArgumentException.class, e);
        }
        assertEquals(List.of(), Journal.stop());
        chart.dispose();
        assertThrows(IllegalStateException.class, () -> chart.setSliceToTranslate(0, 1));
        assertThrows(IllegalStateException.class, () -> chart.getPickedSliceNumber(1));
        assertThrows(IllegalStateException.class, () -> chart.getFormat());
        assertThrows(IllegalStateException.class, () -> chart.setMiscTextAttr(new PbMiscTextAttr()));
    }
}
