package com.kestrum.tavrel.graph;

import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertFalse;
import static org.junit.jupiter.api.Assertions.assertThrows;
import static org.junit.jupiter.api.Assertions.assertTrue;

import com.kestrum.corvel.SbBox2f;
import com.kestrum.corvel.SbBox3f;
import com.kestrum.corvel.SbColor;
import com.kestrum.tavrel.graph.PbDomain.BoundingBoxTypes;
import com.kestrum.tavrel.graph.PbDomain.TransformTypes;
import com.kestrum.tavrel.graph.PbLinearDataMapping.Stop;
import com.kestrum.tavrel.graph.PbLinearDataMapping.TransparentStop;
import com.kestrum.tavrel.graph.PbMiscTextAttr.LineLengths;
import com.kestrum.tavrel.graph.PbNonLinearDataMapping2.Types;
import com.kestrum.tavrel.graph.PbNumericDisplayFormat.Format;
import com.kestrum.tavrel.graph.PbNumericDisplayFormat.FormatTypes;
import java.nio.FloatBuffer;
import java.util.ArrayList;
import java.util.Arrays;
import java.util.List;
import java.util.Locale;
import java.util.function.BiPredicate;
import java.util.function.Consumer;
import java.util.function.Function;
import java.util.function.Supplier;
import java.util.function.UnaryOperator;
import java.util.stream.Collectors;
import java.util.stream.Stream;
import org.junit.jupiter.api.Test;
import org.junit.jupiter.params.ParameterizedTest;
import org.junit.jupiter.params.provider.MethodSource;

/** What the attribute objects are given they give back; copies are their own. */
class AttributeObjectsTest {
    private static final SbColor RED = new SbColor(1, 0, 0);
    private static final SbColor GREEN = new SbColor(0, 1, 0);
    private static final SbColor BLUE = new SbColor(0, 0, 1);
    private static final String UNICODE = "Ünïcødé 字体 \uD83D\uDE00";

    /** One value of an attribute class: how it is set and what reading it back gives. */
    record RoundTrip<T extends PbBase>(String name, Supplier<T> make, Consumer<T> set, Function<T, Object> read,
            Object expected) {
        @Override
        public String toString() {
            return name;
        }
    }

    private static <T extends PbBase> RoundTrip<T> trip(String name, Supplier<T> make, Consumer<T> set,
            Function<T, Object> read, Object expected) {
        return new RoundTrip<>(name, make, set, read, expected);
    }

    /** Floats rounded to four decimals, for colours that went through HLS. */
    static String rounded(Object value) {
        if (value instanceof HlsColor c) {
            return String.format(Locale.ROOT, "hls(%.4f, %.4f, %.4f)", c.hue(), c.lightness(), c.saturation());
        }
        if (value instanceof Stop<?> s) {
            return rounded(s.value()) + ":" + rounded(s.color());
        }
        if (value instanceof TransparentStop<?> s) {
            return rounded(s.value()) + ":" + rounded(s.color()) + "/" + rounded(s.transparency());
        }
        if (value instanceof List<?> list) {
            return list.stream().map(AttributeObjectsTest::rounded).collect(Collectors.joining(", ", "[", "]"));
        }
        if (value instanceof Float f) {
            return String.format(Locale.ROOT, "%.4f", f);
        }
        return String.valueOf(value);
    }

    static String iso(PbIsovaluesList list) {
        PbIsovaluesList.IsoList l = list.getIsoList();
        return Arrays.toString(l.values()) + " " + l.min() + ".." + l.max() + " step " + l.step()
                + (l.regular() ? " regular" : " irregular");
    }

    static String floats(FloatBuffer buffer) {
        if (buffer == null) {
            return "null";
        }
        float[] values = new float[buffer.capacity()];
        buffer.get(0, values);
        return Arrays.toString(values);
    }

    static Stream<RoundTrip<?>> roundTrips() {
        List<RoundTrip<?>> cases = new ArrayList<>();
        // --- domains
        Supplier<PbDomain> domain = PbDomain::new;
        cases.add(trip("new domain", domain, d -> {}, PbDomain::get3DDomain, new SbBox3f(0, 0, 0, 1, 1, 1)));
        cases.add(trip("2D box", domain, d -> d.setDomain(1, 2, 3, 5, BoundingBoxTypes.ASIS), PbDomain::get2DDomain,
                new SbBox2f(1, 2, 3, 5)));
        cases.add(trip("2D box in 3D", domain, d -> d.setDomain(1, 2, 3, 5, BoundingBoxTypes.ASIS),
                PbDomain::get3DDomain, new SbBox3f(1, 2, 0, 3, 5, 0)));
        cases.add(trip("3D box", domain, d -> d.setDomain(1, 2, 3, 4, 5, 6, BoundingBoxTypes.ASIS),
                PbDomain::get3DDomain, new SbBox3f(1, 2, 3, 4, 5, 6)));
        cases.add(trip("2D box object as the smallest square around it", domain,
                d -> assertEquals(new SbBox2f(0, -1, 4, 3),
                        d.setDomain(new SbBox2f(0, 0, 4, 2), BoundingBoxTypes.MINBOUNDINGCUBE)),
                PbDomain::get2DDomain, new SbBox2f(0, -1, 4, 3)));
        cases.add(trip("3D box object as the largest cube inside it", domain,
                d -> d.setDomain(new SbBox3f(0, 0, 0, 4, 2, 1), BoundingBoxTypes.MAXBOUNDEDCUBE),
                PbDomain::get3DDomain, new SbBox3f(1.5f, 0.5f, 0, 2.5f, 1.5f, 1)));
        cases.add(trip("2D box constructor", () -> new PbDomain(new SbBox2f(0, 0, 2, 1), BoundingBoxTypes.MINBOUNDINGCUBE),
                d -> {}, PbDomain::get2DDomain, new SbBox2f(0, -0.5f, 2, 1.5f)));
        cases.add(trip("3D box constructor", () -> new PbDomain(new SbBox3f(0, 0, 0, 1, 2, 3), BoundingBoxTypes.ASIS),
                d -> {}, PbDomain::get3DDomain, new SbBox3f(0, 0, 0, 1, 2, 3)));
        cases.add(trip("2D floats constructor", () -> new PbDomain(-1, -2, 1, 2, BoundingBoxTypes.ASIS), d -> {},
                PbDomain::get3DDomain, new SbBox3f(-1, -2, 0, 1, 2, 0)));
        cases.add(trip("3D floats constructor", () -> new PbDomain(-1, -2, -3, 1, 2, 3, BoundingBoxTypes.ASIS),
                d -> {}, PbDomain::get3DDomain, new SbBox3f(-1, -2, -3, 1, 2, 3)));
        for (TransformTypes t : TransformTypes.values()) {
            cases.add(trip("transform type " + t, domain, d -> d.setTransformType(t), PbDomain::getTransformType, t));
        }
        cases.add(trip("matrix of a 2D domain", () -> new PbDomain(1, 0, 3, 4, BoundingBoxTypes.ASIS), d -> {},
                d -> Arrays.deepToString(d.getMatrix()),
                "[[0.5, 0.0, 0.0, 0.0], [0.0, 0.25, 0.0, 0.0], [0.0, 0.0, 1.0, 0.0], [-0.5, -0.0, 0.0, 1.0]]"));
        // --- what every data mapping offers
        List<Supplier<? extends PbDataMapping>> mappings = List.of(PbLinearDataMapping::new,
                PbNonLinearDataMapping::new, PbNonLinearDataMapping2::new);
        for (Supplier<? extends PbDataMapping> mapping : mappings) {
            String kind = mapping.get().getClass().getSimpleName() + ": ";
            cases.add(trip(kind + "thresholds enabled", mapping, m -> m.enableThresholds(true, false),
                    m -> List.of(m.isMinThresholdEnabled(), m.isMaxThresholdEnabled()), List.of(true, false)));
            cases.add(trip(kind + "transparency enabled", mapping, m -> m.enableTransparency(true),
                    PbDataMapping::isTransparencyEnabled, true));
            cases.add(trip(kind + "transparency of deleted parts", mapping,
                    m -> m.setTransparencyValueDeletedParts(0.25f), PbDataMapping::getTransparencyValueDeletedParts,
                    0.25f));
            cases.add(trip(kind + "minimum threshold colour", mapping, m -> {
                m.setMinThreshold(5, RED, 0.5f);
                m.enableThresholds(true, true);
            }, m -> rounded(m.getHLSColor(0)), "hls(0.0000, 0.5000, 1.0000)"));
            cases.add(trip(kind + "minimum threshold HLS colour", mapping, m -> {
                m.setMinThreshold(5, new HlsColor(240, 0.5f, 1), 0.5f);
                m.enableThresholds(true, false);
            }, m -> rounded(m.getHLSColor(4)), "hls(240.0000, 0.5000, 1.0000)"));
            cases.add(trip(kind + "maximum threshold HLS colour", mapping, m -> {
                m.setMaxThreshold(7, new HlsColor(120, 0.5f, 1), 0);
                m.enableThresholds(false, true);
            }, m -> rounded(m.getHLSColor(9)), "hls(120.0000, 0.5000, 1.0000)"));
            cases.add(trip(kind + "threshold value alone", mapping, m -> {
                m.setMaxThreshold(-1, GREEN, 0);
                m.setMaxThreshold(7);
                m.enableThresholds(false, true);
            }, m -> rounded(m.getHLSColor(8)), "hls(120.0000, 0.5000, 1.0000)"));
            cases.add(trip(kind + "minimum threshold value alone", mapping, m -> {
                m.setMinThreshold(9, RED, 0);
                m.setMinThreshold(2);
                m.enableThresholds(true, false);
            }, m -> List.of(rounded(m.getHLSColor(1)), rounded(m.getHLSColor(3))).toString(),
                    "[hls(0.0000, 0.5000, 1.0000), " + rounded(mapping.get().getHLSColor(3)) + "]"));
            cases.add(trip(kind + "connection", mapping, m -> m.enableConnection(false), PbBase::isConnectionEnabled,
                    false));
        }
        // --- linear mappings
        Supplier<PbLinearDataMapping> linear = PbLinearDataMapping::new;
        cases.add(trip("new linear mapping", linear, m -> {}, PbLinearDataMapping::getRGBValues,
                List.of(new Stop<>(0, new SbColor(0, 0, 0)), new Stop<>(1, new SbColor(1, 1, 1)))));
        cases.add(trip("RGB ends", linear, m -> m.setValues(-2, RED, 3, BLUE), PbLinearDataMapping::getRGBValues,
                List.of(new Stop<>(-2, RED), new Stop<>(3, BLUE))));
        cases.add(trip("RGBA ends", linear, m -> m.setValues(-2, RED, 0.25f, 3, BLUE, 0.75f),
                PbLinearDataMapping::getRGBAValues,
                List.of(new TransparentStop<>(-2, RED, 0.25f), new TransparentStop<>(3, BLUE, 0.75f))));
        cases.add(trip("RGB ends are opaque", linear, m -> {
            m.setValues(-2, RED, 0.25f, 3, BLUE, 0.75f);
            m.setValues(-2, RED, 3, BLUE);
        }, PbLinearDataMapping::getRGBAValues, List.of(new TransparentStop<>(-2, RED, 0), new TransparentStop<>(3, BLUE, 0))));
        cases.add(trip("HLS ends", linear, m -> m.setValues(1, new HlsColor(60, 0.25f, 0.5f), 2,
                new HlsColor(300, 0.75f, 1)), m -> rounded(m.getHLSValues()),
                "[1.0000:hls(60.0000, 0.2500, 0.5000), 2.0000:hls(300.0000, 0.7500, 1.0000)]"));
        cases.add(trip("HLSA ends", linear, m -> m.setValues(1, new HlsColor(60, 0.25f, 0.5f), 0.5f, 2,
                new HlsColor(300, 0.75f, 1), 1), m -> rounded(m.getHLSAValues()),
                "[1.0000:hls(60.0000, 0.2500, 0.5000)/0.5000, 2.0000:hls(300.0000, 0.7500, 1.0000)/1.0000]"));
        cases.add(trip("RGB ends read as HLS", linear, m -> m.setValues(0, RED, 1, BLUE),
                m -> rounded(m.getHLSValues()),
                "[0.0000:hls(0.0000, 0.5000, 1.0000), 1.0000:hls(240.0000, 0.5000, 1.0000)]"));
        cases.add(trip("HLS ends read as RGB", linear, m -> m.setValues(0, new HlsColor(120, 0.5f, 1), 1,
                new HlsColor(0, 1, 0)), PbLinearDataMapping::getRGBValues,
                List.of(new Stop<>(0, GREEN), new Stop<>(1, new SbColor(1, 1, 1)))));
        cases.add(trip("colour between the ends", linear, m -> m.setValues(0, RED, 2, BLUE),
                m -> rounded(m.getHLSColor(1)), "hls(300.0000, 0.2500, 1.0000)"));
        // --- mappings by lists
        Supplier<PbNonLinearDataMapping2> lists = PbNonLinearDataMapping2::new;
        Consumer<PbNonLinearDataMapping2> levels = m -> m.setValues(Types.NONLINEARPERLEVEL, 2, new float[] {1, 2},
                new SbColor[] {RED, GREEN, BLUE}, new float[] {0, 0.5f, 1});
        Consumer<PbNonLinearDataMapping2> linearLevels = m -> m.setValues(Types.LINEARPERLEVEL, 2,
                new float[] {1, 2, 99}, new SbColor[] {RED, BLUE});
        cases.add(trip("new list mapping", lists, m -> {},
                m -> List.of(m.getType(), String.valueOf(m.getValuesList()), m.getColorCount(),
                        String.valueOf(m.getRGBColorsList()), m.getRGBColorsListAddress()),
                List.of(Types.NONLINEARPERLEVEL, "null", 1, "null", 0L)));
        cases.add(trip("levels: type and values", lists, levels,
                m -> m.getType() + " " + Arrays.toString(m.getValuesList()), "NONLINEARPERLEVEL [1.0, 2.0]"));
        cases.add(trip("levels: colours", lists, levels, m -> Arrays.asList(m.getRGBColorsList()),
                List.of(RED, GREEN, BLUE)));
        cases.add(trip("levels: transparencies", lists, levels, m -> Arrays.toString(m.getTransparencyList()),
                "[0.0, 0.5, 1.0]"));
        cases.add(trip("levels: direct lists", lists, levels,
                m -> floats(m.getDirectValuesList()) + floats(m.getDirectRGBColorsList())
                        + floats(m.getDirectTransparencyList()),
                "[1.0, 2.0][1.0, 0.0, 0.0, 0.0, 1.0, 0.0, 0.0, 0.0, 1.0][0.0, 0.5, 1.0]"));
        cases.add(trip("levels: colour of a value", lists, levels, m -> rounded(m.getHLSColor(1.5f)),
                "hls(120.0000, 0.5000, 1.0000)"));
        cases.add(trip("linear levels: num values, num colours, no transparency", lists, linearLevels,
                m -> m.getType() + " " + Arrays.toString(m.getValuesList()) + " " + m.getColorCount() + " "
                        + Arrays.toString(m.getTransparencyList()) + " " + floats(m.getDirectTransparencyList()),
                "LINEARPERLEVEL [1.0, 2.0] 2 null null"));
        cases.add(trip("linear levels: interpolated colour", lists, linearLevels, m -> rounded(m.getHLSColor(1.5f)),
                "hls(300.0000, 0.2500, 1.0000)"));
        cases.add(trip("no values, no colours", lists,
                m -> m.setValues(Types.LINEARPERLEVEL, 0, new float[0], null),
                m -> m.getColorCount() + " " + Arrays.toString(m.getValuesList()) + " "
                        + floats(m.getDirectRGBColorsList()), "0 null null"));
        // --- isovalue lists
        Supplier<PbIsovaluesList> isovalues = PbIsovaluesList::new;
        cases.add(trip("new isovalue list", isovalues, l -> {}, AttributeObjectsTest::iso, "[] 0.0..0.0 step 0.0 regular"));
        cases.add(trip("regular list constructor", () -> new PbIsovaluesList(0, 1, 5), l -> {},
                AttributeObjectsTest::iso, "[0.0, 0.25, 0.5, 0.75, 1.0] 0.0..1.0 step 0.25 regular"));
        cases.add(trip("regular list from bounds and count", isovalues, l -> l.setRegularIsoList(2f, 4f, 3),
                AttributeObjectsTest::iso, "[2.0, 3.0, 4.0] 2.0..4.0 step 1.0 regular"));
        cases.add(trip("new bounds, same count", isovalues, l -> {
            l.setRegularIsoList(2f, 4f, 3);
            l.setRegularIsoList(0f, 10f);
        }, AttributeObjectsTest::iso, "[0.0, 5.0, 10.0] 0.0..10.0 step 5.0 regular"));
        cases.add(trip("new count, same bounds", isovalues, l -> {
            l.setRegularIsoList(2f, 4f, 3);
            l.setRegularIsoList(5);
        }, AttributeObjectsTest::iso, "[2.0, 2.5, 3.0, 3.5, 4.0] 2.0..4.0 step 0.5 regular"));
        cases.add(trip("count, origin and step", isovalues, l -> l.setRegularIsoList(3, -1f, 0.5f),
                AttributeObjectsTest::iso, "[-1.0, -0.5, 0.0] -1.0..0.0 step 0.5 regular"));
        cases.add(trip("range of values with a count", isovalues,
                l -> l.setRegularIsoList(3, new float[] {4, -2, 1, 100}, 4), AttributeObjectsTest::iso,
                "[-2.0, 0.0, 2.0, 4.0] -2.0..4.0 step 2.0 regular"));
        cases.add(trip("range of values with the current count", isovalues, l -> {
            l.setRegularIsoList(0f, 1f, 2);
            l.setRegularIsoList(2, new float[] {4, -2});
        }, AttributeObjectsTest::iso, "[-2.0, 4.0] -2.0..4.0 step 6.0 regular"));
        cases.add(trip("irregular list", isovalues, l -> l.setIrregularIsoList(3, new float[] {5, 1, 3, 99}),
                AttributeObjectsTest::iso, "[5.0, 1.0, 3.0] 1.0..5.0 step 0.0 irregular"));
        cases.add(trip("direct list", isovalues, l -> l.setIrregularIsoList(2, new float[] {5, 1}),
                l -> floats(l.getDirectIsoList()), "[5.0, 1.0]"));
        // --- text attributes
        Supplier<PbMiscTextAttr> text = PbMiscTextAttr::new;
        cases.add(trip("new text attributes", text, t -> {},
                t -> List.of(t.getFontName(), t.getLineLengthType(), t.getLineLength(), t.isProfileEnabled(),
                        t.isPredefinedProfileEnabled()), List.of("Sans", LineLengths.LINELENGTHMAX, 0, false, false)));
        cases.add(trip("font name", text, t -> t.setFontName(UNICODE), PbMiscTextAttr::getFontName, UNICODE));
        cases.add(trip("line length", text, t -> t.setLineLength(LineLengths.LINELENGTHMIN, 40),
                t -> t.getLineLengthType() + " " + t.getLineLength(), "LINELENGTHMIN 40"));
        cases.add(trip("profile", text, t -> t.enableProfile(true), PbMiscTextAttr::isProfileEnabled, true));
        cases.add(trip("predefined profile", text, t -> t.enablePredefinedProfile(true),
                PbMiscTextAttr::isPredefinedProfileEnabled, true));
        // --- numeric formats
        for (FormatTypes type : FormatTypes.values()) {
            cases.add(trip("format " + type, () -> new PbNumericDisplayFormat(FormatTypes.AUTOFORMAT, 0, 0),
                    f -> f.setFormat(type, -3, 12), PbNumericDisplayFormat::getFormat, new Format(type, -3, 12)));
        }
        cases.add(trip("format constructor", () -> new PbNumericDisplayFormat(FormatTypes.FLOATFORMAT, 8, 2), f -> {},
                PbNumericDisplayFormat::getFormat, new Format(FormatTypes.FLOATFORMAT, 8, 2)));
        // --- date formats
        Supplier<PbDateFormatMapping> dates = PbDateFormatMapping::new;
        cases.add(trip("new date mapping", dates, d -> {}, d -> d.getFormat() + " " + d.getCoordinate("2000-01-11"),
                "%Y-%m-%d 10.0"));
        cases.add(trip("date format", dates, d -> assertTrue(d.setFormat("%d.%m.%Y — " + UNICODE)),
                PbDateFormatMapping::getFormat, "%d.%m.%Y — " + UNICODE));
        cases.add(trip("format the toolkit refuses", dates, d -> assertFalse(d.setFormat("%Q")),
                PbDateFormatMapping::getFormat, "%Y-%m-%d"));
        cases.add(trip("date mapping", dates, d -> assertTrue(d.setDateMapping("2024-01-01", "2024-01-11", 0, 100)),
                d -> d.getCoordinate("2024-01-06 12:00"), 55f));
        cases.add(trip("dates the toolkit refuses", dates, d -> assertFalse(d.setDateMapping("2024-01-01", "later", 0, 9)),
                d -> d.getCoordinate("2000-01-03"), 2f));
        cases.add(trip("date mapping constructor",
                () -> new PbDateFormatMapping("2020-02-28", "2020-03-01", 10, 12, "%m/%d"), d -> {},
                d -> d.getFormat() + " " + d.getCoordinate("2020-02-29"), "%m/%d 11.0"));
        return cases.stream();
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("roundTrips")
    <T extends PbBase> void givesBackWhatItWasGiven(RoundTrip<T> trip) {
        T object = trip.make().get();
        try {
            trip.set().accept(object);
            assertEquals(trip.expected(), trip.read().apply(object));
        } finally {
            object.dispose();
        }
    }

    /** A copy: made from an object in one state, it keeps that state when the original changes. */
    record Copy<T extends PbBase>(String name, Supplier<T> make, Consumer<T> change, UnaryOperator<T> copy,
            Function<T, Object> read, BiPredicate<T, T> equal) {
        @Override
        public String toString() {
            return name;
        }
    }

    static Stream<Copy<?>> copies() {
        return Stream.of(
                new Copy<>("domain", () -> new PbDomain(0, 0, 1, 1, BoundingBoxTypes.ASIS),
                        d -> d.setTransformType(TransformTypes.SCALEXFIXED), PbDomain::new,
                        d -> d.get3DDomain() + " " + d.getTransformType(), PbDomain::isEqualTo),
                new Copy<>("linear mapping", () -> {
                    PbLinearDataMapping m = new PbLinearDataMapping();
                    m.setValues(1, RED, 0.5f, 2, BLUE, 0.25f);
                    m.enableThresholds(true, false);
                    return m;
                }, m -> {
                    m.setValues(0, GREEN, 1, GREEN);
                    m.enableThresholds(false, true);
                }, PbLinearDataMapping::new,
                        m -> m.getRGBAValues() + " " + m.isMinThresholdEnabled() + m.isMaxThresholdEnabled(), null),
                new Copy<>("list mapping", () -> {
                    PbNonLinearDataMapping2 m = new PbNonLinearDataMapping2();
                    m.setValues(Types.NONLINEARPERLEVEL, 1, new float[] {5}, new SbColor[] {RED, BLUE});
                    return m;
                }, m -> m.setValues(Types.LINEARPERLEVEL, 1, new float[] {7}, null), PbNonLinearDataMapping2::new,
                        m -> m.getType() + Arrays.toString(m.getValuesList()) + String.valueOf(
                                m.getRGBColorsList() == null ? null : Arrays.asList(m.getRGBColorsList())), null),
                new Copy<>("isovalue list", () -> new PbIsovaluesList(0, 1, 3), l -> l.setRegularIsoList(7),
                        PbIsovaluesList::new, AttributeObjectsTest::iso, PbIsovaluesList::isEqualTo),
                new Copy<>("text attributes", PbMiscTextAttr::new, t -> {
                    t.setFontName("Serif");
                    t.setLineLength(LineLengths.LINELENGTHMIN, 3);
                }, PbMiscTextAttr::new, t -> t.getFontName() + t.getLineLengthType() + t.getLineLength(), null),
                new Copy<>("numeric format", () -> new PbNumericDisplayFormat(FormatTypes.FLOATFORMAT, 6, 1),
                        f -> f.setFormat(FormatTypes.INTEGERFORMAT, 2, 0), PbNumericDisplayFormat::new,
                        PbNumericDisplayFormat::getFormat, null),
                new Copy<>("date mapping", PbDateFormatMapping::new, d -> {
                    d.setFormat("%Y");
                    d.setDateMapping("1999-01-01", "1999-01-03", 0, 1);
                }, PbDateFormatMapping::new, d -> d.getFormat() + " " + d.getCoordinate("2000-01-03"), null));
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("copies")
    <T extends PbBase> void aCopyIsIndependentOfItsOriginal(Copy<T> c) {
        T original = c.make().get();
        T copy = c.copy().apply(original);
        try {
            Object before = c.read().apply(original);
            assertEquals(before, c.read().apply(copy));
            if (c.equal() != null) {
                assertTrue(c.equal().test(copy, original));
            }
            c.change().accept(original);
            Object after = c.read().apply(original);
            assertFalse(before.equals(after), "the change changes the original");
            assertEquals(before, c.read().apply(copy));
            if (c.equal() != null) {
                assertFalse(c.equal().test(copy, original));
            }
        } finally {
            original.dispose();
            copy.dispose();
        }
    }

    @Test
    void anAttributeObjectKeepsWorkingForItsUsersAfterItsJavaHandleIsReleased() {
        PbLinearDataMapping mapping = new PbLinearDataMapping();
        PbLinearDataMapping copy = new PbLinearDataMapping(mapping);
        mapping.setValues(0, RED, 1, BLUE);
        com.kestrum.tavrel.data.PoMeshSkin skin = new com.kestrum.tavrel.data.PoMeshSkin();
        try {
            skin.setDataMapping(mapping);
            mapping.dispose();
            mapping.dispose();
            assertThrows(IllegalStateException.class, mapping::getRGBValues);
            PbDataMapping view = skin.getDataMapping();
            assertEquals("hls(240.0000, 0.5000, 1.0000)", rounded(view.getHLSColor(1)));
            assertTrue(view instanceof PbDataMapping);
        } finally {
            skin.dispose();
            copy.dispose();
        }
    }
}
