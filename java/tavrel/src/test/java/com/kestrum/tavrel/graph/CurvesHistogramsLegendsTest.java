package com.kestrum.tavrel.graph;

import static com.kestrum.tavrel.testkit.Natives.call;
import static com.kestrum.tavrel.testkit.Natives.callStatic;
import static com.kestrum.tavrel.testkit.Natives.handle;
import static com.kestrum.tavrel.testkit.Natives.pointer;
import static org.junit.jupiter.api.Assertions.assertArrayEquals;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertNull;
import static org.junit.jupiter.api.Assertions.assertSame;
import static org.junit.jupiter.api.Assertions.assertThrows;
import static org.junit.jupiter.api.Assertions.assertTrue;
import static org.junit.jupiter.params.provider.Arguments.arguments;

import com.kestrum.corvel.SbColor;
import com.kestrum.corvel.SbVec2f;
import com.kestrum.corvel.SbVec3f;
import com.kestrum.tavrel.internal.JavaViews;
import com.kestrum.tavrel.testkit.Charts;
import com.kestrum.tavrel.testkit.Journal;
import java.util.List;
import java.util.function.LongSupplier;
import java.util.function.Supplier;
import java.util.stream.Stream;
import org.junit.jupiter.api.Test;
import org.junit.jupiter.api.function.Executable;
import org.junit.jupiter.params.ParameterizedTest;
import org.junit.jupiter.params.provider.Arguments;
import org.junit.jupiter.params.provider.MethodSource;

/**
 * Curves, their representations, error curves, histograms and legends: what their constructor functions hand the
 * toolkit (journal), what the nodes build from it, their attribute objects, and the Java checks.
 */
class CurvesHistogramsLegendsTest {
    private static final String UNICODE = "Ünïcødé 字体 \uD83D\uDE00";
    private static final SbVec2f P0 = new SbVec2f(0, 1);
    private static final SbVec2f P1 = new SbVec2f(2, 3);
    private static final SbVec2f P2 = new SbVec2f(4, -5);

    /** A node made by a constructor function, adopted by a Java view that holds its reference. */
    private static PoBase adopt(long handle) {
        return JavaViews.find(PoBase.class, handle, null);
    }

    /** Calls the class's constructor function; returns the journal's lines and disposes the node. */
    private static List<String> journalOf(Class<?> type, String name, Object... args) {
        Journal.start();
        long h = (Long) callStatic(type, name, args);
        List<String> lines = Journal.stop();
        adopt(h).dispose();
        return lines;
    }

    static Stream<Arguments> constructorFunctions() {
        float[] origin = {1, 2};
        return Stream.of(
                arguments(PoCurve.class, "ctorImpl", new Object[0], "PoCurve::init(1, 0, null, 1)"),
                arguments(PoCurve.class, "ctorImpl1", new Object[] {0, null, 1}, "PoCurve::init(0, 0, null, 1)"),
                arguments(PoCurve.class, "ctorImpl1", new Object[] {2, new Object[] {P0, P1, P2}, 8},
                        "PoCurve::init(0, 2, [(0, 1), (2, 3)], 8)"),
                arguments(PoCurve.class, "ctorImpl1", new Object[] {1, new Object[0], 2},
                        "PoCurve::init(0, 1, null, 2)"),
                arguments(PoCurve.class, "ctorImpl1", new Object[] {2, new Object[] {null, P1}, 0},
                        "PoCurve::init(0, 2, null, 0)"),
                arguments(PoCurve3.class, "ctorImpl", new Object[0], "PoCurve3::init(1, 0, null, 1)"),
                arguments(PoCurve3.class, "ctorImpl1",
                        new Object[] {2, new Object[] {new SbVec3f(1, 2, 3), new SbVec3f(4, 5, 6)}, 2},
                        "PoCurve3::init(0, 2, [(1, 2, 3), (4, 5, 6)], 2)"),
                arguments(PoErrorCurve.class, "ctorImpl", new Object[0],
                        "PoErrorCurve::init(1, 0, null, null, null, 0, 1)"),
                arguments(PoErrorCurve.class, "ctorImpl1",
                        new Object[] {2, new Object[] {P0, P1}, new float[] {0.5f, 1}, new float[] {2, 3}, 3, 2},
                        "PoErrorCurve::init(0, 2, [(0, 1), (2, 3)], [0.5, 1], [2, 3], 3, 2)"),
                arguments(PoSingleHistogram.class, "ctorImpl", new Object[0],
                        "PoSingleHistogram::init(1, (0, 0), 1, 0, 0, null, null)"),
                arguments(PoSingleHistogram.class, "ctorImpl1",
                        new Object[] {origin, 6f, 1, 2, new float[] {3, 4, 5}, new String[] {"a", UNICODE, "c"}},
                        "PoSingleHistogram::init(0, (1, 2), 6, 1, 2, [3, 4], [\"a\", \"" + UNICODE + "\"])"),
                arguments(PoMultipleHistogram.class, "ctorImpl", new Object[0],
                        "PoMultipleHistogram::init(1, (0, 0), 1, 0, 0, 0, null, null, null)"),
                arguments(PoMultipleHistogram.class, "ctorImpl1",
                        new Object[] {origin, 6f, 0, 2, 1, new float[] {7, 8}, new String[] {"h1", "h2"},
                                new String[] {"v"}},
                        "PoMultipleHistogram::init(0, (1, 2), 6, 0, 2, 1, [7, 8], [\"h1\", \"h2\"], [\"v\"])"),
                arguments(PoItemLegend.class, "ctorImpl", new Object[0],
                        "PoItemLegend::init(1, (0, 0), (1, 1), 0, null, null)"),
                arguments(PoItemLegend.class, "ctorImpl1",
                        new Object[] {new float[] {0, 0}, new float[] {2, 4}, 2, new String[] {"x", "y"},
                                new Object[] {new SbColor(1, 0, 0), new SbColor(0, 0, 1)}},
                        "PoItemLegend::init(0, (0, 0), (2, 4), 2, [\"x\", \"y\"], [(1, 0, 0), (0, 0, 1)])"),
                arguments(PoItemLegend.class, "ctorImpl1",
                        new Object[] {new float[] {0, 0}, new float[] {2, 4}, 1, new String[] {"x"},
                                new Object[] {null, new SbColor(0, 0, 1)}},
                        "PoItemLegend::init(0, (0, 0), (2, 4), 1, [\"x\"], null)"),
                arguments(PoCurveFilling.class, "ctorImpl", new Object[0], "PoCurveFilling::PoCurveFilling()"),
                arguments(PoCurveLine.class, "ctorImpl", new Object[0], "PoCurveLine::PoCurveLine()"),
                arguments(PoLabel.class, "ctorImpl", new Object[0], "PoLabel::PoLabel()"),
                arguments(PoRibbon.class, "ctorImpl", new Object[0], "PoRibbon::PoRibbon()"),
                arguments(PoTube.class, "ctorImpl", new Object[0], "PoTube::PoTube()"),
                arguments(PoScatter.class, "ctorImpl", new Object[0], "PoScatter::PoScatter()"),
                arguments(PoGeneralizedScatter.class, "ctorImpl", new Object[0],
                        "PoGeneralizedScatter::PoGeneralizedScatter()"),
                arguments(PoProfileBar.class, "ctorImpl", new Object[0], "PoProfileBar::PoProfileBar()"),
                arguments(PoLinearBar.class, "ctorImpl", new Object[0], "PoLinearBar::PoLinearBar()"),
                arguments(PoConicBar.class, "ctorImpl", new Object[0], "PoConicBar::PoConicBar()"),
                arguments(PoCylindricalBar.class, "ctorImpl", new Object[0], "PoCylindricalBar::PoCylindricalBar()"),
                arguments(PoGeneralizedBar.class, "ctorImpl", new Object[0], "PoGeneralizedBar::PoGeneralizedBar()"),
                arguments(PoHighLowClose.class, "ctorImpl", new Object[0],
                        "PoHighLowClose::init(1, 0, null, null, null, null)"),
                arguments(PoHighLowClose.class, "ctorImpl1",
                        new Object[] {1, new float[] {1, 2}, new float[] {5}, new float[] {3}, new float[] {4}},
                        "PoHighLowClose::init(0, 1, [1], [5], [3], [4])"),
                arguments(PoValuedMarkerField.class, "ctorImpl", new Object[0],
                        "PoValuedMarkerField::init(1, 0, null, null, null)"),
                arguments(PoValuedMarkerField.class, "ctorImpl1",
                        new Object[] {2, new Object[] {P0, P1, P2}, new float[] {1, 2, 3}, new float[] {4, 5}},
                        "PoValuedMarkerField::init(0, 2, [(0, 1), (2, 3)], [1, 2], [4, 5])"),
                arguments(PoPointsFieldBars.class, "ctorImpl", new Object[0],
                        "PoPointsFieldBars::init(1, 0, null, null, 1, 1)"),
                arguments(PoPointsFieldBars.class, "ctorImpl1",
                        new Object[] {1, new Object[] {new SbVec3f(1, 2, 3)}, new float[] {7}, 0.5f, 0.25f},
                        "PoPointsFieldBars::init(0, 1, [(1, 2, 3)], [7], 0.5, 0.25)"),
                arguments(PoErrorPointField.class, "ctorImpl", new Object[0],
                        "PoErrorPointField::init(1, 0, null, null, null, 1, 1)"),
                arguments(PoErrorPointField.class, "ctorImpl1",
                        new Object[] {1, new Object[] {P1}, new float[] {0.5f}, new float[] {0.25f}, 3, 4},
                        "PoErrorPointField::init(0, 1, [(2, 3)], [0.5], [0.25], 3, 4)"),
                arguments(PoBiErrorPointField.class, "ctorImpl", new Object[0],
                        "PoBiErrorPointField::init(1, 0, null, null, null, null, null, 0, 1, 1)"),
                arguments(PoBiErrorPointField.class, "ctorImpl1",
                        new Object[] {1, new Object[] {P1}, new float[] {1}, new float[] {2}, new float[] {3},
                                new float[] {4}, 2, 7, -8},
                        "PoBiErrorPointField::init(0, 1, [(2, 3)], [1], [2], [3], [4], 2, 7, -8)"),
                arguments(PoLabelField.class, "ctorImpl", new Object[0],
                        "PoLabelField::init(1, 0, null, null, null, 0, 0, 0, 3)"),
                arguments(PoLabelField.class, "ctorImpl1",
                        new Object[] {2, new Object[] {P0, P1}, new String[] {"é", UNICODE}, new float[] {1, 2}, 0.5f,
                                3, 2, 4},
                        "PoLabelField::init(0, 2, [(0, 1), (2, 3)], [\"é\", \"" + UNICODE
                                + "\"], [1, 2], 0.5, 3, 2, 4)"),
                arguments(PoLinearValueLegend.class, "ctorImpl", new Object[0],
                        "PoLinearValueLegend::PoLinearValueLegend()"),
                arguments(PoLinearValueLegend.class, "ctorImpl1", new Object[] {origin, new float[] {3, 4}, 2},
                        "PoLinearValueLegend::PoLinearValueLegend((1, 2), (3, 4), 2)"),
                arguments(PoNonLinearValueLegend1.class, "ctorImpl", new Object[0],
                        "PoNonLinearValueLegend1::PoNonLinearValueLegend1()"),
                arguments(PoNonLinearValueLegend1.class, "ctorImpl1", new Object[] {origin, new float[] {3, 4}},
                        "PoNonLinearValueLegend1::PoNonLinearValueLegend1((1, 2), (3, 4))"),
                arguments(PoNonLinearValueLegend2.class, "ctorImpl", new Object[0],
                        "PoNonLinearValueLegend2::PoNonLinearValueLegend2()"),
                arguments(PoNonLinearValueLegend2.class, "ctorImpl1", new Object[] {origin, new float[] {3, 4}},
                        "PoNonLinearValueLegend2::PoNonLinearValueLegend2((1, 2), (3, 4))"),
                arguments(PoNonLinearValueLegend3.class, "ctorImpl", new Object[0],
                        "PoNonLinearValueLegend3::PoNonLinearValueLegend3()"),
                arguments(PoNonLinearValueLegend3.class, "ctorImpl1", new Object[] {origin, new float[] {3, 4}},
                        "PoNonLinearValueLegend3::PoNonLinearValueLegend3((1, 2), (3, 4))"));
    }

    /** Every constructor function makes one toolkit call with the count as given, not as long as the array. */
    @ParameterizedTest(name = "{0}.{1} {3}")
    @MethodSource("constructorFunctions")
    void everyConstructorFunctionHandsItsArgumentsToTheToolkit(Class<?> type, String name, Object[] args,
            String expected) {
        assertEquals(List.of(expected), journalOf(type, name, args));
    }

    @Test
    void theJavaArraysAreLeftAsTheyWere() {
        SbVec2f[] points = {new SbVec2f(1, 2), new SbVec2f(3, 4)};
        float[] corner = {5, 6};
        SbColor[] colours = {new SbColor(1, 0.5f, 0)};
        float[] origin = {7, 8};
        journalOf(PoCurve.class, "ctorImpl1", 2, points, 1);
        journalOf(PoItemLegend.class, "ctorImpl1", corner, corner, 1, new String[] {"a"}, colours);
        journalOf(PoSingleHistogram.class, "ctorImpl1", origin, 1f, 0, 0, new float[0], new String[0]);
        assertEquals(new SbVec2f(1, 2), points[0]);
        assertEquals(new SbVec2f(3, 4), points[1]);
        assertArrayEquals(new float[] {5, 6}, corner, "the corners are written back unchanged");
        assertArrayEquals(new float[] {7, 8}, origin, "the origin is written back unchanged");
        assertArrayEquals(new float[] {1, 0.5f, 0}, colours[0].getValue());
    }

    @Test
    void aCurveOfAMillionPointsConvertsWithinTheLocalReferenceCapacity() {
        int n = 1_000_000;
        float[] xy = new float[2 * n];
        for (int i = 0; i < n; i++) {
            xy[2 * i] = i;
            xy[2 * i + 1] = i % 5;
        }
        // A local-reference leak shows as a JNI warning, which fails the test.
        try (PoCurve curve = new PoCurve(xy, PoCurve.CurveReps.CURVEPOLYLINE)) {
            curve.rebuild();
            String line = Charts.parts(handle(curve)).get(0);
            assertTrue(line.endsWith(" (999999, 4)"), line.substring(line.length() - 40));
        }
    }

    @Test
    void whatTheNodesBuildShowsTheirPointsValuesNamesAndColours() {
        try (PoCurve curve = new PoCurve(2, new SbVec2f[] {P0, P1, P2}, PoCurve.CurveReps.CURVESMOOTH);
                PoCurve3 curve3 = new PoCurve3(new float[] {1, 2, 3, 4, 5, 6}, PoCurve3.CurveReps.CURVENONE);
                PoErrorCurve errors = new PoErrorCurve(new float[] {0, 10, 1, -20}, new float[] {0.5f, 0.25f},
                        new float[] {1, 0.5f}, PoErrorCurve.VariationTypes.RELVARIATION,
                        PoErrorCurve.ErrorCurveReps.LINEBAR);
                PoSingleHistogram single = new PoSingleHistogram(new SbVec2f(1, 10), 6, PoHistogram.Types.Y, 3,
                        new float[] {4, 5, 6}, new String[] {"a", UNICODE, "c"});
                PoMultipleHistogram multiple = new PoMultipleHistogram(new SbVec2f(0, 0), 4, PoHistogram.Types.X,
                        2, 2, new float[] {1, 2, 3, 4}, new String[] {"h1", "h2"}, new String[] {"p", "q"});
                PoItemLegend legend = new PoItemLegend(new SbVec2f(0, 0), new SbVec2f(2, 4), 2,
                        new String[] {"rot", UNICODE}, new SbColor[] {new SbColor(1, 0, 0), new SbColor(0, 1, 0)})) {
            for (PoBase node : List.of(curve, curve3, errors, single, multiple, legend)) {
                node.rebuild();
                assertTrue(node.isBuilt());
            }
            assertEquals(List.of("polyline (0, 1) (2, 3)"), Charts.parts(handle(curve)));
            assertEquals(List.of("none"), Charts.parts(handle(curve3)));
            assertEquals(List.of("polyline (0, 10) (1, -20)", "bar (0, 5)..(0, 20)", "bar (1, -25)..(1, -10)"),
                    Charts.parts(handle(errors)));
            assertEquals(List.of("bar 10..12 height 4 \"a\"", "bar 12..14 height 5 \"" + UNICODE + "\"",
                    "bar 14..16 height 6 \"c\""), Charts.parts(handle(single)));
            assertEquals(List.of("bar 0..1 height 1 \"h1/p\"", "bar 1..2 height 2 \"h1/q\"",
                    "bar 2..3 height 3 \"h2/p\"", "bar 3..4 height 4 \"h2/q\""), Charts.parts(handle(multiple)));
            assertEquals(List.of("item (0, 2)..(2, 4) (1, 0, 0) \"rot\"",
                    "item (0, 0)..(2, 2) (0, 1, 0) \"" + UNICODE + "\""), Charts.parts(handle(legend)));
        }
    }

    @Test
    void pointFieldsBuildOnePartAPoint() {
        SbVec2f[] two = {P0, P1};
        try (PoHighLowClose hlc = new PoHighLowClose(2, new float[] {1, 2}, new float[] {9, 8}, new float[] {3, 4},
                new float[] {5, 6});
                PoValuedMarkerField markers = new PoValuedMarkerField(2, two, new float[] {1, 2}, new float[] {3, 4});
                PoPointsFieldBars bars = new PoPointsFieldBars(1, new SbVec3f[] {new SbVec3f(1, 2, 3)},
                        new float[] {7}, 0.5f, 0.25f);
                PoErrorPointField errors = new PoErrorPointField(1, two, new float[] {0.5f, 9}, new float[] {0.25f, 9},
                        PoErrorPointField.ShapeTypes.ELLIPSESHAPE, PoErrorPointField.SkeletonTypes.BARSKELETON);
                PoBiErrorPointField biErrors = new PoBiErrorPointField(1, new SbVec2f[] {P1}, new float[] {1},
                        new float[] {2}, new float[] {3}, new float[] {4},
                        PoBiErrorPointField.VariationTypes.RELVARIATION, 0, 1);
                PoLabelField labels = new PoLabelField(2, two, new String[] {"a", UNICODE}, new float[] {1.5f, 2},
                        0, PoLabelField.ConcatTypes.VALUEBEFORESTRING, PoLabelField.Justifications.CENTER,
                        PoLabelField.VerticalJustifications.HALF)) {
            for (PoBase node : List.of(hlc, markers, bars, errors, biErrors, labels)) {
                node.rebuild();
            }
            assertEquals(List.of("hlc 1 3..9 close 5", "hlc 2 4..8 close 6"), Charts.parts(handle(hlc)));
            assertEquals(List.of("marker (0, 1) 1 3", "marker (2, 3) 2 4"), Charts.parts(handle(markers)));
            assertEquals(List.of("bar (1, 2, 3) height 7 size 0.5 x 0.25"), Charts.parts(handle(bars)));
            assertEquals(List.of("error (0, 1) +-(0.5, 0.25)"), Charts.parts(handle(errors)));
            assertEquals(List.of("error (2, 3) x 1..4 y 0..7"), Charts.parts(handle(biErrors)));
            assertEquals(List.of("label (0, 1) 1.5 \"a\"", "label (2, 3) 2 \"" + UNICODE + "\""),
                    Charts.parts(handle(labels)));
        }
    }

    @Test
    void valueLegendsKeepTheirCorners() {
        try (PoLinearValueLegend linear = new PoLinearValueLegend(new SbVec2f(1, 2), new SbVec2f(3, 5),
                PoLinearValueLegend.ValueDistributions.MINMAXVALUES);
                PoNonLinearValueLegend1 plain = new PoNonLinearValueLegend1()) {
            linear.rebuild();
            plain.rebuild();
            assertEquals(List.of("frame (1, 2)..(3, 5)"), Charts.parts(handle(linear)));
            assertEquals(List.of("frame (0, 0)..(1, 1)"), Charts.parts(handle(plain)));
        }
    }

    @Test
    void aLegendWithoutColoursHasItemsWithoutColour() {
        try (PoItemLegend legend = new PoItemLegend(new SbVec2f(0, 0), new SbVec2f(1, 1), 1, new String[] {"a"},
                null)) {
            legend.rebuild();
            assertEquals(List.of("item (0, 0)..(1, 1) none \"a\""), Charts.parts(handle(legend)));
        }
    }

    /** An attribute link of a node: its setter and getter natives and the Java accessors. */
    private record Link(String name, String method, Supplier<PoBase> node, Supplier<PbBase> attribute) {
        @Override
        public String toString() {
            return name + "." + method;
        }
    }

    static Stream<Link> links() {
        Supplier<PoBase> histogram = PoSingleHistogram::new;
        Supplier<PoBase> legend = PoItemLegend::new;
        return Stream.of(
                new Link("PoHistogram", "MiscTextAttr", histogram, PbMiscTextAttr::new),
                new Link("PoHistogram", "DataMapping", histogram, PbLinearDataMapping::new),
                new Link("PoHistogram", "Format", histogram,
                        () -> new PbNumericDisplayFormat(PbNumericDisplayFormat.FormatTypes.FLOATFORMAT, 6, 2)),
                new Link("PoLegend", "MiscTextAttr", legend, PbMiscTextAttr::new),
                new Link("PoLabelField", "Format", PoLabelField::new,
                        () -> new PbNumericDisplayFormat(PbNumericDisplayFormat.FormatTypes.INTEGERFORMAT, 3, 0)),
                new Link("PoPointsFieldBars", "DataMapping", PoPointsFieldBars::new, PbLinearDataMapping::new),
                new Link("PoValuedMarkerField", "DataMapping", PoValuedMarkerField::new, PbLinearDataMapping::new),
                new Link("PoValueLegend", "IsovaluesList", PoLinearValueLegend::new, PbIsovaluesList::new),
                new Link("PoValueLegend", "DataMapping", PoNonLinearValueLegend2::new, PbLinearDataMapping::new),
                new Link("PoValueLegend", "Format", PoNonLinearValueLegend3::new,
                        () -> new PbNumericDisplayFormat(PbNumericDisplayFormat.FormatTypes.AUTOFORMAT, 4, 1)));
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("links")
    void attributeObjectsAreSetAndReadByAddress(Link link) throws Exception {
        try (PoBase node = link.node().get()) {
            PbBase attribute = link.attribute().get();
            long h = handle(node);
            Journal.start();
            call(node, "set" + link.method() + "Impl", h, handle(attribute));
            long got = (Long) call(node, "get" + link.method() + "Impl", h);
            call(node, "set" + link.method() + "Impl", h, 0L);
            long none = (Long) call(node, "get" + link.method() + "Impl", h);
            String prefix = link.name() + "::";
            assertEquals(List.of(prefix + "set" + link.method() + "(" + pointer(handle(attribute)) + ")",
                    prefix + "get" + link.method() + "()", prefix + "set" + link.method() + "(null)",
                    prefix + "get" + link.method() + "()"), Journal.stop());
            assertEquals(handle(attribute), got);
            assertEquals(0, none);

            Class<?> parameter = node.getClass().getMethod("get" + link.method()).getReturnType();
            node.getClass().getMethod("set" + link.method(), parameter).invoke(node, attribute);
            assertSame(attribute, node.getClass().getMethod("get" + link.method()).invoke(node));
            node.getClass().getMethod("set" + link.method(), parameter).invoke(node, (Object) null);
            assertNull(node.getClass().getMethod("get" + link.method()).invoke(node));
        }
    }

    static Stream<Arguments> refusedInJava() {
        SbVec2f[] two = {P0, P1};
        String[] names = {"a", "b"};
        SbVec2f o = new SbVec2f(0, 0);
        PoCurve.CurveReps line = PoCurve.CurveReps.CURVEPOLYLINE;
        PoErrorCurve.VariationTypes fixed = PoErrorCurve.VariationTypes.FIXEDVARIATION;
        PoErrorCurve.ErrorCurveReps bars = PoErrorCurve.ErrorCurveReps.LINEBAR;
        PoHistogram.Types x = PoHistogram.Types.X;
        return Stream.of(
                arguments("count above the points", IllegalArgumentException.class,
                        (Executable) () -> new PoCurve(3, two, line)),
                arguments("negative count", IllegalArgumentException.class,
                        (Executable) () -> new PoCurve(-1, two, line)),
                arguments("null points", NullPointerException.class, (Executable) () -> new PoCurve(0, null, line)),
                arguments("a null point after the first", NullPointerException.class,
                        (Executable) () -> new PoCurve(1, new SbVec2f[] {P0, null}, line)),
                arguments("null representation", NullPointerException.class,
                        (Executable) () -> new PoCurve(2, two, null)),
                arguments("odd coordinates", IllegalArgumentException.class,
                        (Executable) () -> new PoCurve(new float[] {1, 2, 3}, line)),
                arguments("coordinates not in triples", IllegalArgumentException.class,
                        (Executable) () -> new PoCurve3(new float[] {1, 2}, PoCurve3.CurveReps.CURVESMOOTH)),
                arguments("variations shorter than the count", IllegalArgumentException.class,
                        (Executable) () -> new PoErrorCurve(2, two, new float[] {1}, new float[] {1, 2}, fixed,
                                bars)),
                arguments("null variations", NullPointerException.class,
                        (Executable) () -> new PoErrorCurve(2, two, new float[2], null, fixed, bars)),
                arguments("values shorter than the count", IllegalArgumentException.class,
                        (Executable) () -> new PoSingleHistogram(o, 1, x, 3, new float[2], new String[3])),
                arguments("names shorter than the count", IllegalArgumentException.class,
                        (Executable) () -> new PoSingleHistogram(o, 1, x, 2, new float[2], new String[] {"a"})),
                arguments("a null name", NullPointerException.class,
                        (Executable) () -> new PoSingleHistogram(o, 1, x, 2, new float[2], new String[] {"a", null})),
                arguments("null origin", NullPointerException.class,
                        (Executable) () -> new PoSingleHistogram(null, 1, x, 0, new float[0], new String[0])),
                arguments("values fewer than histograms times values", IllegalArgumentException.class,
                        (Executable) () -> new PoMultipleHistogram(o, 1, x, 2, 2, new float[3], names, names)),
                arguments("histograms times values beyond int", IllegalArgumentException.class,
                        (Executable) () -> new PoMultipleHistogram(o, 1, x, 65536, 65536, new float[0],
                                new String[0], new String[0])),
                arguments("items above the colours", IllegalArgumentException.class,
                        (Executable) () -> new PoItemLegend(o, o, 2, names, new SbColor[] {new SbColor()})),
                arguments("a null colour", NullPointerException.class,
                        (Executable) () -> new PoItemLegend(o, o, 1, names, new SbColor[] {new SbColor(), null})),
                arguments("a field count above the points", IllegalArgumentException.class,
                        (Executable) () -> new PoValuedMarkerField(3, two, new float[3], new float[3])),
                arguments("label strings shorter than the count", IllegalArgumentException.class,
                        (Executable) () -> new PoLabelField(2, two, new String[] {"a"}, new float[2], 0,
                                PoLabelField.ConcatTypes.STRINGBEFOREVALUE, PoLabelField.Justifications.LEFT,
                                PoLabelField.VerticalJustifications.TOP)),
                arguments("high-low-close lists shorter than the count", IllegalArgumentException.class,
                        (Executable) () -> new PoHighLowClose(2, new float[2], new float[2], new float[1],
                                new float[2])),
                arguments("bar heights shorter than the count", IllegalArgumentException.class,
                        (Executable) () -> new PoPointsFieldBars(1, new SbVec3f[] {new SbVec3f()}, new float[0], 1,
                                1)),
                arguments("items above the names", IllegalArgumentException.class,
                        (Executable) () -> new PoItemLegend(o, o, 3, names, null)));
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("refusedInJava")
    void badArgumentsAreRefusedBeforeAnyNativeCall(String what, Class<? extends Throwable> expected,
            Executable construct) {
        Journal.start();
        assertThrows(expected, construct);
        assertEquals(List.of(), Journal.stop());
    }

    static Stream<Arguments> enumerations() {
        return Stream.of(
                arguments(PoCurve.FilterTypes.class,
                        "INACTIVE 0, ALLPOINTS 1, INDEXPERIOD 2, INDEXLIST 3, XPERIOD 4, XLIST 5"),
                arguments(PoCurve.CurveReps.class, "CURVENONE 0, CURVEPOLYLINE 1, CURVESMOOTH 2, CURVESTAIRSX 3, "
                        + "CURVESTAIRSY 4, CURVEHISTOX 5, CURVEHISTOY 6, CURVESTAIRS2X 7, CURVESTAIRS2Y 8"),
                arguments(PoCurve3.CurveReps.class, "CURVENONE 0, CURVEPOLYLINE 1, CURVESMOOTH 2"),
                arguments(PoErrorCurve.VariationTypes.class,
                        "FIXEDVARIATION 0, RELVARIATION 1, PERCENTFIXEDVARIATION 2, PERCENTRELVARIATION 3"),
                arguments(PoErrorCurve.ErrorCurveReps.class, "HIGHLOWCLOSE 0, LINEBAR 1, FILLED 2"),
                arguments(PoHistogram.Types.class, "X 0, Y 1"),
                arguments(PoHistogram.Positions.class, "POSTOPOUT 0, POSTOPIN 1, POSBOTTOMOUT 2, POSBOTTOMIN 3, "
                        + "POSRIGHTOUT 4, POSRIGHTIN 5, POSLEFTOUT 6, POSLEFTIN 7, POSCENTER 8, POSDEPEND 9"),
                arguments(PoHistogram.Visibilities.class, "VISIBILITYOFF 0, VISIBILITYON 1"),
                arguments(PoHistogram.TextPaths.class, "PATHRIGHT 0, PATHLEFT 1, PATHUP 2, PATHDOWN 3, PATHDEPEND 4"),
                arguments(PoHistogram.BarSpaceTypes.class, "RELSPACE 0, FIXEDSPACE 1"),
                arguments(PoHistogram.Colorings.class, "COLORLIST 0, DATAMAPPING 1"),
                arguments(PoMultipleHistogram.HistogPaths.class, "ROWCOLUMN 0, COLUMNROW 1"),
                arguments(PoMultipleHistogram.Representations.class, "JUXTAPOSED 0, ACCUMULATED 1, PERCENTAGE 2"),
                arguments(PoLegend.Visibilities.class, "VISIBILITYOFF 0, VISIBILITYON 1"),
                arguments(PoLegend.TextPaths.class, "PATHRIGHT 0, PATHLEFT 1, PATHUP 2, PATHDOWN 3"),
                arguments(PoLegend.Positions.class, "POSBOTTOM 0, POSTOP 1, POSRIGHT 2, POSLEFT 3"),
                arguments(PoLegend.MarginTypes.class, "RELMARGIN 0, FIXEDMARGIN 1"),
                arguments(PoLegend.IncrementTypes.class, "VERTICALINCREMENT 0, HORIZONTALINCREMENT 1"),
                arguments(PoLinearValueLegend.ValueDistributions.class,
                        "ALLVALUES 0, LINEARVALUES 1, MINMAXVALUES 2"),
                arguments(PoCurveFilling.Orientations.class, "HORIZONTAL 0, VERTICAL 1"),
                arguments(PoCurveLine.ThicknessBindings.class, "PERPARTTHICKNESS 0, PERVERTEXTHICKNESS 1"),
                arguments(PoBar.Orientations.class, "HORIZONTAL 0, VERTICAL 1"),
                arguments(PoLabel.ValueTypes.class, "VALUE 0, NAME 1"),
                arguments(PoLabel.Positions.class, "VALUEPOS 0, MIDDLEPOS 1, THRESHOLDPOS 2"),
                arguments(PoLabel.AxisType.class, "X 0, Y 1"),
                arguments(PoHighLowClose.HorCloseBarPositions.class, "LEFT 0, MIDDLE 1, RIGHT 2"),
                arguments(PoLabelField.Justifications.class, "LEFT 0, RIGHT 1, CENTER 2"),
                arguments(PoLabelField.VerticalJustifications.class, "TOP 0, CAP 1, HALF 2, BASE 3, BOTTOM 4"),
                arguments(PoLabelField.CoordinateTypes.class, "COORDINATEINDOMAIN 0, COORDINATEINCURRENTUNIT 1"),
                arguments(PoLabelField.ConcatTypes.class,
                        "STRINGBEFOREVALUE 0, VALUEBEFORESTRING 1, STRINGABOVEVALUE 2, VALUEABOVESTRING 3"),
                arguments(PoErrorPointField.ShapeTypes.class,
                        "NOSHAPE 0, RECTANGLESHAPE 1, QUADRANGLESHAPE 2, ELLIPSESHAPE 3"),
                arguments(PoErrorPointField.SkeletonTypes.class,
                        "NOSKELETON 0, CROSS1SKELETON 1, CROSS2SKELETON 2, CROSS3SKELETON 3, BARSKELETON 4"),
                arguments(PoBiErrorPointField.VariationTypes.class,
                        "FIXEDVARIATION 0, RELVARIATION 1, PERCENTFIXEDVARIATION 2, PERCENTRELVARIATION 3"));
    }

    /** Each constant of the enumerations has its getter, and carries the toolkit's value. */
    @ParameterizedTest(name = "{0}")
    @MethodSource("enumerations")
    void everyConstantHasItsGetterAndValue(Class<? extends Enum<?>> enumeration, String table) throws Exception {
        new GraphClassesTest().everyConstantHasItsGetterAndValue(enumeration, table);
    }

    @Test
    void typeNamesAndCatalogs() {
        Object[][] rows = {
            {"PoCurve", (Supplier<String>) PoCurve::getClassTypeName, (LongSupplier) PoCurve::getClassNodekitCatalog},
            {"PoCurve3", (Supplier<String>) PoCurve3::getClassTypeName,
                (LongSupplier) PoCurve3::getClassNodekitCatalog},
            {"PoErrorCurve", (Supplier<String>) PoErrorCurve::getClassTypeName,
                (LongSupplier) PoErrorCurve::getClassNodekitCatalog},
            {"PoHistogram", (Supplier<String>) PoHistogram::getClassTypeName,
                (LongSupplier) PoHistogram::getClassNodekitCatalog},
            {"PoSingleHistogram", (Supplier<String>) PoSingleHistogram::getClassTypeName,
                (LongSupplier) PoSingleHistogram::getClassNodekitCatalog},
            {"PoMultipleHistogram", (Supplier<String>) PoMultipleHistogram::getClassTypeName,
                (LongSupplier) PoMultipleHistogram::getClassNodekitCatalog},
            {"PoLegend", (Supplier<String>) PoLegend::getClassTypeName,
                (LongSupplier) PoLegend::getClassNodekitCatalog},
            {"PoItemLegend", (Supplier<String>) PoItemLegend::getClassTypeName,
                (LongSupplier) PoItemLegend::getClassNodekitCatalog},
            {"PoValueLegend", (Supplier<String>) PoValueLegend::getClassTypeName,
                (LongSupplier) PoValueLegend::getClassNodekitCatalog},
            {"PoLinearValueLegend", (Supplier<String>) PoLinearValueLegend::getClassTypeName,
                (LongSupplier) PoLinearValueLegend::getClassNodekitCatalog},
            {"PoNonLinearValueLegend1", (Supplier<String>) PoNonLinearValueLegend1::getClassTypeName,
                (LongSupplier) PoNonLinearValueLegend1::getClassNodekitCatalog},
            {"PoNonLinearValueLegend2", (Supplier<String>) PoNonLinearValueLegend2::getClassTypeName,
                (LongSupplier) PoNonLinearValueLegend2::getClassNodekitCatalog},
            {"PoNonLinearValueLegend3", (Supplier<String>) PoNonLinearValueLegend3::getClassTypeName,
                (LongSupplier) PoNonLinearValueLegend3::getClassNodekitCatalog},
            {"PoAutoValueLegend", (Supplier<String>) PoAutoValueLegend::getClassTypeName,
                (LongSupplier) PoAutoValueLegend::getClassNodekitCatalog},
            {"PoCurveFilling", (Supplier<String>) PoCurveFilling::getClassTypeName,
                (LongSupplier) PoCurveFilling::getClassNodekitCatalog},
            {"PoCurveLine", (Supplier<String>) PoCurveLine::getClassTypeName,
                (LongSupplier) PoCurveLine::getClassNodekitCatalog},
            {"PoLabel", (Supplier<String>) PoLabel::getClassTypeName,
                (LongSupplier) PoLabel::getClassNodekitCatalog},
            {"PoRibbon", (Supplier<String>) PoRibbon::getClassTypeName,
                (LongSupplier) PoRibbon::getClassNodekitCatalog},
            {"PoTube", (Supplier<String>) PoTube::getClassTypeName,
                (LongSupplier) PoTube::getClassNodekitCatalog},
            {"PoScatter", (Supplier<String>) PoScatter::getClassTypeName,
                (LongSupplier) PoScatter::getClassNodekitCatalog},
            {"PoGeneralizedScatter", (Supplier<String>) PoGeneralizedScatter::getClassTypeName,
                (LongSupplier) PoGeneralizedScatter::getClassNodekitCatalog},
            {"PoProfileBar", (Supplier<String>) PoProfileBar::getClassTypeName,
                (LongSupplier) PoProfileBar::getClassNodekitCatalog},
            {"PoLinearBar", (Supplier<String>) PoLinearBar::getClassTypeName,
                (LongSupplier) PoLinearBar::getClassNodekitCatalog},
            {"PoConicBar", (Supplier<String>) PoConicBar::getClassTypeName,
                (LongSupplier) PoConicBar::getClassNodekitCatalog},
            {"PoCylindricalBar", (Supplier<String>) PoCylindricalBar::getClassTypeName,
                (LongSupplier) PoCylindricalBar::getClassNodekitCatalog},
            {"PoGeneralizedBar", (Supplier<String>) PoGeneralizedBar::getClassTypeName,
                (LongSupplier) PoGeneralizedBar::getClassNodekitCatalog},
            {"PoBar", (Supplier<String>) PoBar::getClassTypeName,
                (LongSupplier) PoBar::getClassNodekitCatalog},
            {"PoHighLowClose", (Supplier<String>) PoHighLowClose::getClassTypeName,
                (LongSupplier) PoHighLowClose::getClassNodekitCatalog},
            {"PoValuedMarkerField", (Supplier<String>) PoValuedMarkerField::getClassTypeName,
                (LongSupplier) PoValuedMarkerField::getClassNodekitCatalog},
            {"PoPointsFieldBars", (Supplier<String>) PoPointsFieldBars::getClassTypeName,
                (LongSupplier) PoPointsFieldBars::getClassNodekitCatalog},
            {"PoErrorPointField", (Supplier<String>) PoErrorPointField::getClassTypeName,
                (LongSupplier) PoErrorPointField::getClassNodekitCatalog},
            {"PoBiErrorPointField", (Supplier<String>) PoBiErrorPointField::getClassTypeName,
                (LongSupplier) PoBiErrorPointField::getClassNodekitCatalog},
            {"PoLabelField", (Supplier<String>) PoLabelField::getClassTypeName,
                (LongSupplier) PoLabelField::getClassNodekitCatalog},
        };
        for (Object[] row : rows) {
            String name = (String) row[0];
            Journal.start();
            assertEquals(name, ((Supplier<?>) row[1]).get());
            long catalog = ((LongSupplier) row[2]).getAsLong();
            assertEquals(List.of(name + "::getClassNodekitCatalog()"), Journal.stop(), name);
            assertTrue(catalog != 0, name);
        }
    }
}
