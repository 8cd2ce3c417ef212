package com.kestrum.tavrel.graph;

import static com.kestrum.tavrel.testkit.Natives.call;
import static com.kestrum.tavrel.testkit.Natives.callStatic;
import static com.kestrum.tavrel.testkit.Natives.handle;
import static com.kestrum.tavrel.testkit.Natives.pointer;
import static org.junit.jupiter.api.Assertions.assertArrayEquals;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertFalse;
import static org.junit.jupiter.api.Assertions.assertNull;
import static org.junit.jupiter.api.Assertions.assertSame;
import static org.junit.jupiter.api.Assertions.assertThrows;
import static org.junit.jupiter.api.Assertions.assertTrue;
import static org.junit.jupiter.params.provider.Arguments.arguments;

import com.kestrum.corvel.SbVec2f;
import com.kestrum.corvel.SbVec3f;
import com.kestrum.corvel.actions.SoGLRenderAction;
import com.kestrum.tavrel.graph.PoAxis.AxisReverses;
import com.kestrum.tavrel.graph.PoAxis.Visibilities;
import com.kestrum.tavrel.graph.PoCartesianAxis.Types;
import com.kestrum.tavrel.internal.JavaViews;
import com.kestrum.tavrel.testkit.Journal;
import java.util.ArrayList;
import java.util.List;
import java.util.function.Supplier;
import java.util.stream.Stream;
import org.junit.jupiter.api.Test;
import org.junit.jupiter.api.function.Executable;
import org.junit.jupiter.params.ParameterizedTest;
import org.junit.jupiter.params.provider.Arguments;
import org.junit.jupiter.params.provider.MethodSource;

/** The axis classes: their constructor functions as the toolkit sees them, and the graduations they compute. */
class AxesTest {
    private static final SbVec3f ORIGIN = new SbVec3f(0, 0, 0);

    /** A constructor and the journal line of the toolkit call it must make. */
    private record Ctor(String name, Supplier<PoBase> make, String line) {
        @Override
        public String toString() {
            return name;
        }
    }

    static Stream<Ctor> constructors() {
        SbVec3f a = new SbVec3f(1, 2, 3), b = new SbVec3f(4, 5, 6);
        return Stream.of(
                new Ctor("PoLinearAxis()", PoLinearAxis::new, "PoLinearAxis::PoLinearAxis()"),
                new Ctor("PoLinearAxis(4)", () -> new PoLinearAxis(a, 9, Types.YZ, 0.5f),
                        "PoLinearAxis::init((1, 2, 3), 9, 3, 0, 0, 0.5)"),
                new Ctor("PoLinearAxis(6)", () -> new PoLinearAxis(a, 9, Types.ZX, 7, 8, 0.25f),
                        "PoLinearAxis::init((1, 2, 3), 9, 4, 7, 8, 0.25)"),
                new Ctor("PoLogAxis()", PoLogAxis::new, "PoLogAxis::PoLogAxis()"),
                new Ctor("PoLogAxis(5)", () -> new PoLogAxis(a, 9, Types.XZ, PoLogAxis.DecadeListDefs.DECADELISTNONAUTO,
                        new int[] {1, 2, 40000}), "PoLogAxis::init(0, (1, 2, 3), 9, 1, 1, [1, 2, 40000], 3, 0, 0)"),
                new Ctor("PoLogAxis(7)", () -> new PoLogAxis(a, 9, Types.ZY, PoLogAxis.DecadeListDefs.DECADELISTAUTO,
                        null, -1, 2.5f), "PoLogAxis::init(0, (1, 2, 3), 9, 5, 0, null, 0, -1, 2.5)"),
                new Ctor("PoGenAxis()", PoGenAxis::new, "PoGenAxis::PoGenAxis()"),
                new Ctor("PoGenAxis(4)", () -> new PoGenAxis(a, 9, Types.YX, new String[] {"low", "ünï"}),
                        "PoGenAxis::init(0, (1, 2, 3), 9, 2, [\"low\", \"ünï\"], 2)"),
                new Ctor("PoPolarLinAxis()", PoPolarLinAxis::new, "PoPolarLinAxis::PoPolarLinAxis()"),
                new Ctor("PoPolarLinAxis(5)", () -> new PoPolarLinAxis(1, 2, 3, 4, 5),
                        "PoPolarLinAxis::PoPolarLinAxis(1, 2, 3, 4, 5)"),
                new Ctor("PoPolarLogAxis()", PoPolarLogAxis::new, "PoPolarLogAxis::PoPolarLogAxis()"),
                new Ctor("PoPolarLogAxis(6)", () -> new PoPolarLogAxis(1, 2, 3, 4,
                        PoPolarLogAxis.DecadeListDefs.DECADELISTNONAUTO, new int[] {5, 65535}),
                        "PoPolarLogAxis::PoPolarLogAxis(1, 2, 3, 4, 1, [5, 65535], 2)"),
                new Ctor("PoAngularAxis()", PoAngularAxis::new, "PoAngularAxis::PoAngularAxis()"),
                new Ctor("PoAngularAxis(5)", () -> new PoAngularAxis(1, 2, 3, 4, 5), "PoAngularAxis::init(1, 2, 3, 4, 5)"),
                new Ctor("PoTimeAxis()", PoTimeAxis::new, "PoTimeAxis::PoTimeAxis()"),
                new Ctor("PoTimeAxis(4)", () -> new PoTimeAxis("2024-01-01", "2024-02-01", 0.5f, PoTimeAxis.Types.Y),
                        "PoTimeAxis::init(0, \"2024-01-01\", \"2024-02-01\", 0.5, 1)"),
                new Ctor("PoAutoCubeAxis()", PoAutoCubeAxis::new, "PoAutoCubeAxis::PoAutoCubeAxis()"),
                new Ctor("PoAutoCubeAxis(8)", () -> new PoAutoCubeAxis(a, b, PoAutoCubeAxis.AxisTypes.GENERALIZED,
                        PoAutoCubeAxis.AxisTypes.LOGARITHMIC, PoAutoCubeAxis.AxisTypes.LINEAR, "x", "y", "z"),
                        "PoAutoCubeAxis::PoAutoCubeAxis((1, 2, 3), (4, 5, 6), 2, 1, 0, \"x\", \"y\", \"z\")"),
                new Ctor("PoGroup2Axis()", PoGroup2Axis::new, "PoGroup2Axis::PoGroup2Axis()"),
                new Ctor("PoGroup2Axis(6)", () -> new PoGroup2Axis(new SbVec2f(1, 2), new SbVec2f(3, 4),
                        PoGroup2Axis.AxisTypes.LOGARITHMIC, PoGroup2Axis.AxisTypes.LINEAR, "x", "y"),
                        "PoGroup2Axis::init((1, 2), (3, 4), 1, 0, \"x\", \"y\")"),
                new Ctor("PoGroup4Axis()", PoGroup4Axis::new, "PoGroup4Axis::PoGroup4Axis()"),
                new Ctor("PoGroup4Axis(6)", () -> new PoGroup4Axis(new SbVec2f(1, 2), new SbVec2f(3, 4),
                        PoGroup4Axis.AxisTypes.LINEAR, PoGroup4Axis.AxisTypes.LOGARITHMIC, "x", "y"),
                        "PoGroup4Axis::init((1, 2), (3, 4), 0, 1, \"x\", \"y\")"),
                new Ctor("PoGroup3Axis3()", PoGroup3Axis3::new, "PoGroup3Axis3::PoGroup3Axis3()"),
                new Ctor("PoGroup3Axis3(9)", () -> new PoGroup3Axis3(a, b, PoGroup3Axis3.AxisTypes.LINEAR,
                        PoGroup3Axis3.AxisTypes.LOGARITHMIC, PoGroup3Axis3.AxisTypes.LINEAR,
                        PoGroup3Axis3.AxisNames.ZAXIS, "x", "y", "z"),
                        "PoGroup3Axis3::init((1, 2, 3), (4, 5, 6), 0, 1, 0, 2, \"x\", \"y\", \"z\")"),
                new Ctor("PoGroup6Axis3()", PoGroup6Axis3::new, "PoGroup6Axis3::PoGroup6Axis3()"),
                new Ctor("PoGroup6Axis3(8)", () -> new PoGroup6Axis3(a, b, PoGroup6Axis3.AxisTypes.LOGARITHMIC,
                        PoGroup6Axis3.AxisTypes.LINEAR, PoGroup6Axis3.AxisTypes.LOGARITHMIC, "x", "y", "z"),
                        "PoGroup6Axis3::init((1, 2, 3), (4, 5, 6), 1, 0, 1, \"x\", \"y\", \"z\")"),
                new Ctor("PoCoordinateSystemAxis()", PoCoordinateSystemAxis::new,
                        "PoCoordinateSystemAxis::PoCoordinateSystemAxis()"),
                new Ctor("PoCoordinateSystemAxis(7)", () -> new PoCoordinateSystemAxis(a, b, "x", "y", "z", 0.5f, 2),
                        "PoCoordinateSystemAxis::init(0, (1, 2, 3), (4, 5, 6), \"x\", \"y\", \"z\", 0.5, 2)"));
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("constructors")
    void eachConstructorReachesItsToolkitConstructorWithItsArgumentsInOrder(Ctor ctor) {
        Journal.start();
        try (PoBase node = ctor.make().get()) {
            assertEquals(List.of(ctor.line()), Journal.stop());
            assertTrue(node.isOfType(node.getClass().getSimpleName()), "the node has its class's type");
            assertFalse(node.isBuilt());
        }
    }

    @Test
    void theShortConstructorOfALinearAxisIsTheLongOneWithZeroGraduationValues() {
        try (PoLinearAxis shorter = new PoLinearAxis(ORIGIN, 100, Types.XY, 25);
                PoLinearAxis longer = new PoLinearAxis(ORIGIN, 100, Types.XY, 0, 0, 25)) {
            shorter.rebuild();
            longer.rebuild();
            assertEquals(longer.getGrad(), shorter.getGrad());
            assertEquals(longer.getTitle(), shorter.getTitle());
        }
    }

    @Test
    void aLinearAxisFrom0To100Step25() {
        try (PoLinearAxis axis = new PoLinearAxis(ORIGIN, 100, Types.XY, 25)) {
            assertEquals(List.of(), axis.getGraduations(), "nothing before the first build");
            axis.rebuild();
            PoAxis.Grad grad = axis.getGrad();
            assertEquals(List.of("0", "25", "50", "75", "100"), grad.labelList());
            assertEquals(0, grad.first());
            assertEquals(100, grad.last());
            assertTrue(grad.current());
            assertEquals(25, axis.getStep());
            assertEquals(AxisReverses.AXISNOREVERSE, axis.getReverseFlag());
            assertEquals(new PoAxis.Tick(Visibilities.VISIBILITYON, PoAxis.TickPositions.TICKGRADSIDE, 0.04f, 0.02f,
                    PoAxis.TickSubDefs.NUMSUBTICK, 5, 4, 0), axis.getTick());
            assertEquals(new PoLinearAxis.MultFactor(PoLinearAxis.MultFactorPositions.MULTFACTOREND, 1),
                    axis.getMultFactor());
        }
    }

    @Test
    void graduationValuesRunFromTheStartToTheEndEvenDownwards() {
        try (PoLinearAxis axis = new PoLinearAxis(new SbVec3f(5, -2, 0), 7, Types.YX, 10, -10, 5)) {
            axis.rebuild();
            assertEquals(List.of("10", "5", "0", "-5", "-10"), axis.getGraduations());
            assertEquals(AxisReverses.AXISREVERSE, axis.getReverseFlag());
            PoAxis.Title title = axis.getTitle();
            assertEquals(10, title.start());
            assertEquals(-10, title.end());
            assertEquals(Visibilities.VISIBILITYOFF, title.visibility(), "no title");
        }
        try (PoLinearAxis axis = new PoLinearAxis(new SbVec3f(5, -2, 0), 7, Types.YX, 0)) {
            axis.rebuild();
            assertEquals(1, axis.getStep(), "automatic: a tenth of the span 9, rounded up to 1");
            assertEquals("-2 -1 0 1 2 3 4 5 6 7", String.join(" ", axis.getGraduations()),
                    "the coordinates along y, the type's first direction");
        }
    }

    @Test
    void aLogAxisFrom1To10000() {
        try (PoLogAxis axis = new PoLogAxis(ORIGIN, 4, Types.XY, PoLogAxis.DecadeListDefs.DECADELISTAUTO, null)) {
            axis.rebuild();
            assertEquals(List.of("1", "10", "100", "1000", "10000"), axis.getGraduations());
            PoLogAxis.LogGrad log = axis.getLogGrad();
            assertArrayEquals(new int[] {1}, log.decades());
            assertEquals(PoLogAxis.TenPowGradReps.TENPOWERAUTO, log.tenPowerRep());
            assertEquals(PoLogAxis.DecadeReps.DECADEAUTO, log.decadeRep());
            assertEquals(4, log.value());
            assertEquals(8, axis.getTick().subTicks());
            assertEquals(new PoLogAxis.MultFactor(PoLogAxis.MultFactorPositions.MULTFACTOREND, 1),
                    axis.getMultFactor());
        }
        try (PoLogAxis axis = new PoLogAxis(ORIGIN, 0, Types.XY, PoLogAxis.DecadeListDefs.DECADELISTNONAUTO,
                new int[] {5, 40000, 2}, -2, 6)) {
            axis.rebuild();
            assertEquals(List.of("0.02", "0.05", "0.2", "0.5", "2", "5", "20", "50", "200", "500", "2000", "5000",
                    "20000", "50000", "2x10^5", "5x10^5"), axis.getGraduations(), "digits 2 and 5 of each decade from 10^-2 to 10^6");
            assertArrayEquals(new int[] {5, 40000, 2}, axis.getLogGrad().decades(), "the list as given, unsigned");
        }
    }

    @Test
    void aPolarAxisGraduatesTheDistanceFromItsCentre() {
        try (PoPolarLinAxis lin = new PoPolarLinAxis(1, 1, 4, 5, 2.5f);
                PoPolarLogAxis log = new PoPolarLogAxis(0, 0, 0, 3, PoPolarLogAxis.DecadeListDefs.DECADELISTAUTO,
                        null)) {
            lin.rebuild();
            log.rebuild();
            assertEquals(List.of("0", "2.5", "5"), lin.getGraduations());
            assertEquals(2.5f, lin.getStep());
            assertEquals(List.of("1", "10", "100", "1000"), log.getGraduations());
            assertEquals(new PoPolarAxis.MultFactor(PoPolarAxis.MultFactorPositions.MULTFACTOREND, 1),
                    log.getMultFactor());
            PoPolarLogAxis.LogGrad logGrad = log.getLogGrad();
            assertArrayEquals(new int[] {1}, logGrad.decades());
            assertEquals(PoPolarLogAxis.TenPowGradReps.TENPOWERAUTO, logGrad.tenPowerRep());
            assertEquals(PoPolarLogAxis.DecadeReps.DECADEAUTO, logGrad.decadeRep());
            assertEquals(3, logGrad.value());
        }
    }

    @Test
    void anAngularAxisInDegrees() {
        try (PoAngularAxis axis = new PoAngularAxis(0, 0, 1, 300, 90)) {
            axis.rebuild();
            assertEquals(List.of("300", "30", "120", "210"), axis.getGraduations());
            assertEquals(90, axis.getAngleStep());
            PoAxis.Grad grad = axis.getGrad();
            assertEquals(300, grad.first());
            assertEquals(570, grad.last());
        }
        try (PoAngularAxis axis = new PoAngularAxis(0, 0, 1, 0, 0)) {
            assertEquals(30, axis.getAngleStep(), "a step of 0 is 30 degrees");
        }
    }

    @Test
    void aTimeAxisOverAFewDaysWritesItsDatesThroughItsMapping() {
        try (PoTimeAxis axis = new PoTimeAxis("2024-02-27 12:00", "2024-03-02", 0, PoTimeAxis.Types.X)) {
            axis.rebuild();
            assertEquals(List.of("2024-02-28", "2024-02-29", "2024-03-01", "2024-03-02"), axis.getGraduations());
            PbDateFormatMapping mapping = new PbDateFormatMapping("2024-02-27", "2024-02-28", 10, 20, "%d/%m %H:%M");
            axis.setDateFormatMapping(mapping);
            assertSame(mapping, axis.getDateFormatMapping());
            assertEquals(List.of("28/02 00:00", "29/02 00:00", "01/03 00:00", "02/03 00:00"), axis.getGraduations(),
                    "rebuilt at once with the new format");
            PoAxis.Grad grad = axis.getGrad();
            assertEquals(20, grad.first());
            assertEquals(50, grad.last());
            assertEquals(15, axis.getTitle().start(), "noon of the first day");
        }
        try (PoTimeAxis axis = new PoTimeAxis("2024-01-01 22:00", "2024-01-01 20:30", 0, PoTimeAxis.Types.Y)) {
            axis.rebuild();
            assertEquals(List.of("2024-01-01", "2024-01-01"), axis.getGraduations(), "hours, downwards");
            assertEquals(AxisReverses.AXISREVERSE, axis.getReverseFlag());
        }
    }

    @Test
    void aGeneralisedAxisShowsItsStrings() {
        try (PoGenAxis axis = new PoGenAxis(ORIGIN, 10, Types.XY, new String[] {"low", "mid", "high"})) {
            axis.rebuild();
            PoAxis.Grad grad = axis.getGrad();
            assertEquals(List.of("low", "mid", "high"), grad.labelList());
            assertEquals(10, grad.last());
        }
    }

    @Test
    void theFormatAndTheTextAttributesReachTheLabels() {
        try (PoLinearAxis axis = new PoLinearAxis(ORIGIN, 1, Types.XY, 0.5f)) {
            PbNumericDisplayFormat format = new PbNumericDisplayFormat(PbNumericDisplayFormat.FormatTypes.FLOATFORMAT,
                    0, 2);
            PbMiscTextAttr text = new PbMiscTextAttr();
            text.setFontName("Serif");
            axis.setFormat(format);
            axis.setMiscTextAttr(text);
            assertSame(format, axis.getFormat());
            assertSame(text, axis.getMiscTextAttr());
            PoAxis.Grad grad = axis.getGrad();
            assertEquals(List.of("0.00", "0.50", "1.00"), grad.labelList());
            assertEquals("Serif", grad.fontName());
            assertEquals("Serif", axis.getTitle().fontName());
            axis.setFormat(null);
            assertNull(axis.getFormat());
            assertEquals(List.of("0", "0.5", "1"), axis.getGraduations());
        }
        try (PoPolarLinAxis axis = new PoPolarLinAxis(0, 0, 1, 1, 0.5f)) {
            PbNumericDisplayFormat format = new PbNumericDisplayFormat(PbNumericDisplayFormat.FormatTypes.FLOATFORMAT,
                    0, 1);
            Journal.start();
            axis.setFormat(format);
            assertEquals(List.of("PoPolarLinAxis::setFormat(" + pointer(handle(format)) + ")"),
                    Journal.linesStartingWith("PoPolarLinAxis::setFormat"));
            Journal.stop();
            assertSame(format, axis.getFormat());
            assertEquals(List.of("0.0", "0.5", "1.0"), axis.getGraduations(), "rebuilt at once with the format");
            axis.setFormat(null);
            assertNull(axis.getFormat());
            assertEquals(List.of("0", "0.5", "1"), axis.getGraduations());
        }
    }

    @Test
    void ticksCountAsUnsignedShorts() {
        try (PoLinearAxis axis = new PoLinearAxis(ORIGIN, 40000, Types.XY, 1)) {
            axis.rebuild();
            assertEquals(40001, axis.getTick().mainTicks());
        }
    }

    @Test
    void countsAreNarrowedTo16Bits() {
        Journal.start();
        long log = (Long) callStatic(PoLogAxis.class, "ctorImpl1", new float[] {0, 0, 0}, 1f, 0, 1,
                new short[] {2, 3}, 65537);
        long gen = (Long) callStatic(PoGenAxis.class, "ctorImpl1", new float[] {0, 0, 0}, 1f, 0,
                new String[] {"a", "b"}, 65537);
        long polar = (Long) callStatic(PoPolarLogAxis.class, "ctorImpl1", 0f, 0f, 1f, 0f, 1, new short[] {7, 8},
                131074);
        assertEquals(List.of("PoLogAxis::init(0, (0, 0, 0), 1, 0, 1, [2], 1, 0, 0)",
                "PoGenAxis::init(0, (0, 0, 0), 1, 0, [\"a\"], 1)",
                "PoPolarLogAxis::PoPolarLogAxis(0, 0, 1, 0, 1, [7, 8], 2)"), Journal.stop());
        for (long h : new long[] {log, gen, polar}) {
            JavaViews.find(PoBase.class, h, null).dispose();
        }
    }

    @Test
    void outputsAreWrittenAtElementZeroOnly() {
        try (PoLinearAxis axis = new PoLinearAxis(ORIGIN, 100, Types.XY, 50)) {
            axis.rebuild();
            int[] v = {9, 9}, p = {9, 9}, t = {9, 9};
            String[] s1 = {"x", "y"}, s2 = {"x", "y"};
            float[] f1 = {9, 9}, f2 = {9, 9};
            boolean[] b = {false, true};
            call(axis, "getGradImpl", handle(axis), v, p, t, s1, f1, f2, b, s2);
            assertArrayEquals(new int[] {1, 9}, v);
            assertArrayEquals(new int[] {1, 9}, p);
            assertArrayEquals(new int[] {0, 9}, t);
            assertArrayEquals(new String[] {"0\n50\n100", "y"}, s1);
            assertArrayEquals(new float[] {0, 9}, f1);
            assertArrayEquals(new float[] {100, 9}, f2);
            assertArrayEquals(new boolean[] {true, true}, b);
            assertArrayEquals(new String[] {"", "y"}, s2);

            short[] n1 = {9, 9}, n2 = {9, 9}, n3 = {9, 9};
            call(axis, "getTickImpl", handle(axis), v, p, f1, f2, t, n1, n2, n3);
            assertArrayEquals(new short[] {3, 9}, n1);
            assertArrayEquals(new short[] {4, 9}, n2);
            assertArrayEquals(new short[] {0, 9}, n3);
            call(axis, "getTitleImpl", handle(axis), v, p, t, s1, f1, f2, s2);
            assertArrayEquals(new String[] {"", "y"}, s1);
            call(axis, "getArrowImpl", handle(axis), v, f1, f2);
            assertArrayEquals(new float[] {0.03f, 9}, f1);
            assertArrayEquals(new float[] {0.015f, 9}, f2);
        }
        try (PoLogAxis axis = new PoLogAxis(ORIGIN, 1, Types.XY, PoLogAxis.DecadeListDefs.DECADELISTNONAUTO,
                new int[] {3, 65535})) {
            short[] count = {9, 9}, decades = {9, 9, 9};
            int[] r1 = {9, 9}, r2 = {9, 9};
            String[] s = {"x", "y"};
            float[] f = {9, 9};
            call(axis, "getLogGradImpl", handle(axis), count, decades, r1, r2, s, f);
            assertArrayEquals(new short[] {2, 9}, count);
            assertArrayEquals(new short[] {3, -1, 9}, decades, "the whole list the toolkit wrote, unsigned bits");
            assertArrayEquals(new int[] {2, 9}, r1);
            assertArrayEquals(new int[] {4, 9}, r2);
            assertArrayEquals(new String[] {"", "y"}, s);
            assertArrayEquals(new float[] {1, 9}, f);
        }
    }

    @Test
    void marginGridAndArrowSettings() {
        try (PoAngularAxis axis = new PoAngularAxis()) {
            assertEquals(new PoAxis.Margin(PoAxis.MarginTypes.RELMARGIN, 0.1f, 0.1f), axis.getMargin());
            assertEquals(new PoAxis.Lines(Visibilities.VISIBILITYOFF, 0, 0), axis.getGrid());
            assertEquals(new PoAxis.Lines(Visibilities.VISIBILITYOFF, 0.03f, 0.015f), axis.getArrow());
        }
    }

    @Test
    void theCubeRendersThroughItsOwnGLRenderAndRebuildsFirst() {
        try (PoAutoCubeAxis cube = new PoAutoCubeAxis(); SoGLRenderAction render = new SoGLRenderAction()) {
            List<Boolean> events = new ArrayList<>();
            cube.addPostRebuildListener(n -> events.add(n == cube));
            Journal.start();
            cube.GLRender(render);
            List<String> lines = Journal.stop();
            assertEquals("PoAutoCubeAxis::GLRender(" + pointer(handle(render)) + ")", lines.get(0));
            assertTrue(lines.contains("PoAutoCubeAxis::build()"), lines.toString());
            assertEquals(List.of(true), events);
            assertTrue(cube.isBuilt());
        }
    }

    @Test
    void javaChecksComeBeforeAnyNativeCall() {
        int[] tooBig = {65536};
        List<Executable> calls = List.of(
                () -> new PoLinearAxis(null, 1, Types.XY, 1),
                () -> new PoLinearAxis(ORIGIN, 1, null, 1),
                () -> new PoLogAxis(ORIGIN, 1, Types.XY, null, null),
                () -> new PoLogAxis(ORIGIN, 1, Types.XY, PoLogAxis.DecadeListDefs.DECADELISTAUTO, tooBig),
                () -> new PoLogAxis(ORIGIN, 1, Types.XY, PoLogAxis.DecadeListDefs.DECADELISTAUTO, new int[] {-1}),
                () -> new PoLogAxis(ORIGIN, 1, Types.XY, PoLogAxis.DecadeListDefs.DECADELISTAUTO, new int[32768]),
                () -> new PoGenAxis(ORIGIN, 1, Types.XY, null),
                () -> new PoGenAxis(ORIGIN, 1, Types.XY, new String[] {"a", null}),
                () -> new PoGenAxis(ORIGIN, 1, Types.XY, new String[32768]),
                () -> new PoTimeAxis(null, "2000-01-01", 0, PoTimeAxis.Types.X),
                () -> new PoGroup2Axis(new SbVec2f(0, 0), null, PoGroup2Axis.AxisTypes.LINEAR,
                        PoGroup2Axis.AxisTypes.LINEAR, "x", "y"),
                () -> new PoGroup3Axis3(ORIGIN, ORIGIN, PoGroup3Axis3.AxisTypes.LINEAR, PoGroup3Axis3.AxisTypes.LINEAR,
                        PoGroup3Axis3.AxisTypes.LINEAR, null, "x", "y", "z"),
                () -> new PoCoordinateSystemAxis(ORIGIN, ORIGIN, "x", null, "z", 1, 1));
        Journal.start();
        for (Executable c : calls) {
            RuntimeException e = assertThrows(RuntimeException.class, c);
            assertTrue(e instanceof NullPointerException || e instanceof IllegalArgumentException, e.toString());
        }
        assertEquals(List.of(), Journal.stop());

        PoLinearAxis axis = new PoLinearAxis();
        axis.dispose();
        assertThrows(IllegalStateException.class, axis::getGrad);
        try (PoAutoCubeAxis cube = new PoAutoCubeAxis()) {
            assertThrows(NullPointerException.class, () -> cube.GLRender(null));
        }
    }
}
