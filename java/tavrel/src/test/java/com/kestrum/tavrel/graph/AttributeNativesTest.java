package com.kestrum.tavrel.graph;

import static com.kestrum.tavrel.testkit.Natives.call;
import static com.kestrum.tavrel.testkit.Natives.callStatic;
import static com.kestrum.tavrel.testkit.Natives.handle;
import static com.kestrum.tavrel.testkit.Natives.pointer;
import static org.junit.jupiter.api.Assertions.assertArrayEquals;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertFalse;
import static org.junit.jupiter.api.Assertions.assertNotEquals;
import static org.junit.jupiter.api.Assertions.assertNull;
import static org.junit.jupiter.api.Assertions.assertThrows;
import static org.junit.jupiter.api.Assertions.assertTrue;

import com.kestrum.corvel.SbBox2f;
import com.kestrum.corvel.SbColor;
import com.kestrum.tavrel.graph.PbDomain.BoundingBoxTypes;
import com.kestrum.tavrel.graph.PbNonLinearDataMapping2.Types;
import com.kestrum.tavrel.testkit.Graphs;
import com.kestrum.tavrel.testkit.Journal;
import java.nio.ByteBuffer;
import java.util.ArrayList;
import java.util.Arrays;
import java.util.List;
import java.util.stream.Stream;
import org.junit.jupiter.api.Test;
import org.junit.jupiter.api.function.Executable;
import org.junit.jupiter.params.ParameterizedTest;
import org.junit.jupiter.params.provider.Arguments;
import org.junit.jupiter.params.provider.MethodSource;

/**
 * The native methods of the attribute objects as the toolkit sees them (journal), called past
 * the Java checks where a row has a rule of its own, and the Java checks in front of them.
 */
class AttributeNativesTest {
    private static final SbColor RED = new SbColor(1, 0, 0);
    private static final String UNICODE = "Ünïcødé 字体 \uD83D\uDE00";

    @Test
    void boxArraysAreTheToolkitsBoxesAndReceiveTheBoxItWritesBack() {
        float[] box2 = {0, 0, 4, 2};
        Journal.start();
        long domain = (Long) callStatic(PbDomain.class, "ctorImpl2", box2, BoundingBoxTypes.MINBOUNDINGCUBE.getValue());
        assertEquals(List.of("PbDomain::PbDomain((0, 0)..(4, 2), 1)"), Journal.stop());
        assertArrayEquals(new float[] {0, -1, 4, 3}, box2);

        PbDomain d = new PbDomain(0, 0, 0, 1, 1, 1, BoundingBoxTypes.ASIS);
        float[] box3 = {0, 0, 0, 4, 2, 1};
        call(d, "setDomainImpl3", handle(d), box3, BoundingBoxTypes.MAXBOUNDEDCUBE.getValue());
        assertArrayEquals(new float[] {1.5f, 0.5f, 0, 2.5f, 1.5f, 1}, box3);

        float[] longer = {9, 9, 9, 9, 9, 9};
        call(d, "get2DDomainImpl", handle(d), longer);
        assertArrayEquals(new float[] {1.5f, 0.5f, 2.5f, 1.5f, 9, 9}, longer, "four floats, the rest untouched");
        float[] matrix = new float[17];
        matrix[16] = 9;
        call(d, "getMatrixImpl", handle(d), matrix);
        assertEquals(1, matrix[0]);
        assertEquals(1, matrix[15]);
        assertEquals(-1.5f, matrix[12]);
        assertEquals(9, matrix[16]);

        Journal.start();
        PbDomain copy = new PbDomain(d);
        assertEquals(List.of("PbDomain::PbDomain(copy)(" + pointer(handle(d)) + ")"), Journal.stop());
        assertTrue(copy.isEqualTo(d));
        assertEquals(0, copy.getTransformAddress());
        assertNotEquals(0, d.getMatrixTransformAddress());
        assertEquals(d.getMatrixTransformAddress(), d.getMatrixTransformAddress());
        assertNotEquals(d.getMatrixTransformAddress(), copy.getMatrixTransformAddress());
        assertNotEquals(0, domain);
    }

    @Test
    void colourGettersFillEveryOutputInOneCall() {
        PbLinearDataMapping m = new PbLinearDataMapping();
        m.setValues(-1, RED, 0.25f, 2, new SbColor(0, 0, 1), 0.5f);
        float[][] outs = new float[6][];
        for (int i = 0; i < 6; i++) {
            outs[i] = new float[i % 3 == 1 ? 3 : 1];
            Arrays.fill(outs[i], Float.NaN);
        }
        call(m, "getRGBAValuesImpl", handle(m), outs[0], outs[1], outs[2], outs[3], outs[4], outs[5]);
        assertEquals("[[-1.0], [1.0, 0.0, 0.0], [0.25], [2.0], [0.0, 0.0, 1.0], [0.5]]", Arrays.deepToString(outs));

        float[] v1 = {Float.NaN}, c1 = {9, 9, 9}, v2 = {Float.NaN}, c2 = {9, 9, 9};
        call(m, "getHLSValuesImpl", handle(m), v1, c1, v2, c2);
        assertEquals("[-1.0][0.0, 0.5, 1.0][2.0][240.0, 0.5, 1.0]",
                Arrays.toString(v1) + Arrays.toString(c1) + Arrays.toString(v2) + Arrays.toString(c2));

        float[] color = {0, 1, 0};
        Journal.start();
        call(m, "setMinThresholdImpl1", handle(m), 3f, color, 0.5f);
        call(m, "setMaxThresholdImpl2", handle(m), 4f, new float[] {240, 0.5f, 1}, 0f);
        assertEquals(List.of("PbDataMapping::setMinThreshold(3, (0, 1, 0), 0.5)",
                "PbDataMapping::setMaxThreshold(4, [240, 0.5, 1], 0)"), Journal.stop());
        assertArrayEquals(new float[] {0, 1, 0}, color);
        assertEquals(3, ((float[]) call(m, "getHLSColorImpl", handle(m), 0f)).length);
    }

    @Test
    void booleanOutputsReceiveTheToolkitsFlags() {
        PbLinearDataMapping m = new PbLinearDataMapping();
        boolean[] min = {true};
        boolean[] max = {false};
        call(m, "thresholdsEnabledImpl", handle(m), min, max);
        assertFalse(min[0]);
        assertFalse(max[0]);
        m.enableThresholds(false, true);
        call(m, "thresholdsEnabledImpl", handle(m), min, max);
        assertFalse(min[0]);
        assertTrue(max[0]);
    }

    @Test
    void theIsovalueListAndItsDescriptionComeThroughFiveOutputs() {
        PbIsovaluesList empty = new PbIsovaluesList();
        int[] num = {7};
        float[] min = {9}, max = {9}, step = {9};
        boolean[] regular = {false};
        float[] values = (float[]) call(empty, "getIsoListImpl", handle(empty), num, min, max, step, regular);
        assertArrayEquals(new float[0], values, "an empty array, not null");
        assertEquals("0 0.0 0.0 0.0 true", num[0] + " " + min[0] + " " + max[0] + " " + step[0] + " " + regular[0]);
        ByteBuffer none = (ByteBuffer) call(empty, "getDirectIsoListImpl", handle(empty), num, min, max, step, regular);
        assertEquals(0, none.capacity());

        PbIsovaluesList five = new PbIsovaluesList(0, 1, 5);
        ByteBuffer buffer = (ByteBuffer) call(five, "getDirectIsoListImpl", handle(five), num, min, max, step, regular);
        assertEquals(5 * 4, buffer.capacity());
        assertEquals(5, num[0]);
        assertEquals(0.25f, step[0]);
        assertTrue(buffer.isDirect());
        five.getDirectIsoList().put(4, 2f); // the buffer aliases the list
        assertEquals(2f, five.getIsoList().values()[4]);

        Journal.start();
        PbIsovaluesList copy = new PbIsovaluesList(five);
        assertEquals(List.of("PbIsovaluesList::PbIsovaluesList(copy)(" + pointer(handle(five)) + ")"), Journal.stop());
    }

    @Test
    void theLineLengthTypeIsACharSignExtendedFromTheByte() {
        PbMiscTextAttr t = new PbMiscTextAttr();
        Journal.start();
        call(t, "setLineLengthImpl", handle(t), (byte) -3, 7);
        assertEquals(List.of("PbMiscTextAttr::setLineLength(-3, 7)"), Journal.stop());
        byte[] type = {0};
        int[] length = {0};
        call(t, "getLineLengthImpl", handle(t), type, length);
        assertEquals(-3, type[0]);
        assertEquals(7, length[0]);
        assertNull(t.getLineLengthType(), "-3 is no line length type");
        assertEquals(7, t.getLineLength());
    }

    @Test
    void stringsTakeTheWideOrTheUtf8PathAsTheToolkitTakesThem() {
        PbMiscTextAttr t = new PbMiscTextAttr();
        PbDateFormatMapping d = new PbDateFormatMapping();
        Journal.start();
        t.setFontName(UNICODE); // SbString
        d.setFormat("%Y — " + UNICODE); // SbString
        d.setDateMapping("2000-01-01", "Mär " + UNICODE, 0, 1); // char const*
        long made = (Long) callStatic(PbDateFormatMapping.class, "ctorImpl2", "2000-01-01", "2001-01-01", 0f, 1f,
                "é%Y"); // char const*
        float[] coord = {42};
        int read = (Integer) call(d, "getCoordinateImpl1", handle(d), "kein Datum " + UNICODE, coord); // SbString
        assertEquals(List.of("PbMiscTextAttr::setFontName(\"" + UNICODE + "\")",
                "PbDateFormatMapping::setFormat(\"%Y — " + UNICODE + "\")",
                "PbDateFormatMapping::setDateMapping(\"2000-01-01\", \"Mär " + UNICODE + "\", 0, 1)",
                "PbDateFormatMapping::PbDateFormatMapping(\"2000-01-01\", \"2001-01-01\", 0, 1, \"é%Y\")",
                "PbDateFormatMapping::getCoordinate(\"kein Datum " + UNICODE + "\")"), Journal.stop());
        assertEquals(UNICODE, t.getFontName());
        assertEquals(0, read);
        assertEquals(0, coord[0], "the coordinate starts at 0 and is written whatever the result");
        assertThrows(IllegalArgumentException.class, () -> d.getCoordinate("soon"));
        assertEquals(0, (Integer) call(d, "setDateMappingImpl", handle(d), "x", "y", 0f, 1f));
        assertEquals(1, (Integer) call(d, "setDateMappingImpl", handle(d), "2000-01-01", "2000-01-02", 0f, 1f));
        assertNotEquals(0, made);
    }

    @Test
    void listMappingsTakeTheirCountFromNumAndColoursFromTheFirstElementOn() {
        PbNonLinearDataMapping2 m = new PbNonLinearDataMapping2();
        long h = handle(m);
        int linear = Types.LINEARPERLEVEL.getValue();
        Journal.start();
        call(m, "setValuesImpl", h, linear, 1, new float[] {1, 2, 3}, new Object[] {null, RED});
        call(m, "setValuesImpl", h, linear, 1, new float[] {1}, null);
        call(m, "setValuesImpl", h, linear, 0, new float[0], new Object[0]);
        call(m, "setValuesImpl1", h, Types.NONLINEARPERLEVEL.getValue(), 1, new float[] {5}, new Object[] {RED, RED},
                new float[] {0.5f, 1});
        assertEquals(List.of("PbNonLinearDataMapping2::setValues(1, 1, [1], null)",
                "PbNonLinearDataMapping2::setValues(1, 1, [1], null)",
                "PbNonLinearDataMapping2::setValues(1, 0, [], null)",
                "PbNonLinearDataMapping2::setValues(0, 1, [5], [(1, 0, 0), (1, 0, 0)], [0.5, 1])"), Journal.stop());

        int[] num = {-1};
        ByteBuffer colours = (ByteBuffer) call(m, "getDirectRGBColorsListImpl", h, num);
        assertEquals(2, num[0]);
        assertEquals(2 * 12, colours.capacity());
        num[0] = -1;
        assertNotEquals(0L, call(m, "getRGBColorsListImpl", h, num));
        assertEquals(2, num[0]);

        PbNonLinearDataMapping2 fresh = new PbNonLinearDataMapping2();
        num[0] = -1;
        assertNull(call(fresh, "getValuesListImpl", handle(fresh), num));
        assertEquals(0, num[0]);
        assertNull(call(fresh, "getDirectValuesListImpl", handle(fresh), num));
        num[0] = -1;
        assertNull(call(fresh, "getTransparencyListImpl", handle(fresh), num), "no list: null");
        assertEquals(1, num[0], "the colour count");
        assertEquals(0L, call(fresh, "getRGBColorsListImpl", handle(fresh), num));
    }

    @Test
    void releasingAJavaHandleFreesNothingAndTheConnectionFlagIsTheToolkits() {
        PbNumericDisplayFormat f = new PbNumericDisplayFormat(PbNumericDisplayFormat.FormatTypes.FLOATFORMAT, 6, 2);
        long h = handle(f);
        callStatic(PbBase.NativeResourceHandle.class, "deleteNativeHandleImpl", 0L);
        callStatic(PbBase.NativeResourceHandle.class, "deleteNativeHandleImpl", h);
        f.dispose();
        assertEquals("  3.14", Graphs.format(h, 3.14159f), "the native object still works");
        PbNumericDisplayFormat view = new PbNumericDisplayFormat(h) {};
        assertEquals(6, view.getFormat().width());

        call(view, "enableConnectionImpl", h, false);
        assertFalse(view.isConnectionEnabled());
        call(view, "enableConnectionImpl", h, true);
        assertTrue(view.isConnectionEnabled());
        int revision = Graphs.revision(h);
        Journal.start();
        view.touch();
        assertEquals(List.of("PbBase::touch()"), Journal.stop());
        assertEquals(revision + 1, Graphs.revision(h));
        view.dispose();
    }

    @Test
    void formatsWriteNumbersAndDates() {
        PbNumericDisplayFormat f = new PbNumericDisplayFormat(PbNumericDisplayFormat.FormatTypes.INTEGERFORMAT, 4, 3);
        assertEquals("  -8", Graphs.format(handle(f), -7.6f));
        f.setFormat(PbNumericDisplayFormat.FormatTypes.AUTOFORMAT, 0, 3);
        assertEquals("1.23e+06", Graphs.format(handle(f), 1234567));
        PbDateFormatMapping d = new PbDateFormatMapping("2024-03-01", "2024-03-31", 0, 30, "%d.%m.%Y %H:%M");
        assertEquals("30.03.2024 12:00", Graphs.date(handle(d), 29.5f));
    }

    /** Calls the public API refuses before any native call. */
    static Stream<Arguments> refusals() {
        PbDomain disposedDomain = new PbDomain();
        disposedDomain.dispose();
        PbLinearDataMapping mapping = new PbLinearDataMapping();
        PbNonLinearDataMapping2 lists = new PbNonLinearDataMapping2();
        PbIsovaluesList iso = new PbIsovaluesList();
        PbMiscTextAttr text = new PbMiscTextAttr();
        PbDateFormatMapping dates = new PbDateFormatMapping();
        PbDomain domain = new PbDomain();
        float[] two = {1, 2};
        SbColor[] three = {RED, RED, RED};
        List<Arguments> cases = new ArrayList<>();
        Class<NullPointerException> npe = NullPointerException.class;
        Class<IllegalArgumentException> iae = IllegalArgumentException.class;
        Class<IllegalStateException> ise = IllegalStateException.class;
        cases.add(Arguments.of("domain of a null box", npe, (Executable) () -> new PbDomain((SbBox2f) null,
                BoundingBoxTypes.ASIS)));
        cases.add(Arguments.of("domain without a box type", npe, (Executable) () -> new PbDomain(0, 0, 1, 1, null)));
        cases.add(Arguments.of("copy of null", npe, (Executable) () -> new PbDomain((PbDomain) null)));
        cases.add(Arguments.of("copy of a disposed domain", ise, (Executable) () -> new PbDomain(disposedDomain)));
        cases.add(Arguments.of("disposed domain", ise, (Executable) disposedDomain::get3DDomain));
        cases.add(Arguments.of("compared with null", npe, (Executable) () -> domain.isEqualTo(null)));
        cases.add(Arguments.of("null transform type", npe, (Executable) () -> domain.setTransformType(null)));
        cases.add(Arguments.of("null colour", npe, (Executable) () -> mapping.setValues(0, (SbColor) null, 1, RED)));
        cases.add(Arguments.of("null HLS colour", npe,
                (Executable) () -> mapping.setMinThreshold(0, (HlsColor) null, 0)));
        cases.add(Arguments.of("null list type", npe, (Executable) () -> lists.setValues(null, 2, two, three)));
        cases.add(Arguments.of("negative num", iae, (Executable) () -> lists.setValues(Types.LINEARPERLEVEL, -1, two,
                null)));
        cases.add(Arguments.of("num beyond the values", iae,
                (Executable) () -> lists.setValues(Types.LINEARPERLEVEL, 3, two, null)));
        cases.add(Arguments.of("huge num", iae,
                (Executable) () -> lists.setValues(Types.NONLINEARPERLEVEL, Integer.MAX_VALUE, two, null)));
        cases.add(Arguments.of("null values", npe, (Executable) () -> lists.setValues(Types.LINEARPERLEVEL, 0, null,
                null)));
        cases.add(Arguments.of("too few colours for the levels", iae,
                (Executable) () -> lists.setValues(Types.NONLINEARPERLEVEL, 2, two, new SbColor[] {RED, RED})));
        cases.add(Arguments.of("a null colour", npe,
                (Executable) () -> lists.setValues(Types.LINEARPERLEVEL, 2, two, new SbColor[] {RED, null})));
        cases.add(Arguments.of("null transparencies", npe,
                (Executable) () -> lists.setValues(Types.NONLINEARPERLEVEL, 2, two, three, null)));
        cases.add(Arguments.of("too few transparencies", iae,
                (Executable) () -> lists.setValues(Types.NONLINEARPERLEVEL, 2, two, three, two)));
        cases.add(Arguments.of("negative isovalue count", iae, (Executable) () -> new PbIsovaluesList(0, 1, -1)));
        cases.add(Arguments.of("huge regular count", iae,
                (Executable) () -> iso.setRegularIsoList(PbIsovaluesList.MAX_REGULAR_COUNT + 1)));
        cases.add(Arguments.of("huge regular count by step", iae,
                (Executable) () -> iso.setRegularIsoList(Integer.MAX_VALUE, 0f, 1f)));
        cases.add(Arguments.of("irregular count beyond the values", iae,
                (Executable) () -> iso.setIrregularIsoList(3, two)));
        cases.add(Arguments.of("negative number of values", iae,
                (Executable) () -> iso.setRegularIsoList(-1, two, 3)));
        cases.add(Arguments.of("null isovalues", npe, (Executable) () -> iso.setIrregularIsoList(0, null)));
        cases.add(Arguments.of("null font", npe, (Executable) () -> text.setFontName(null)));
        cases.add(Arguments.of("null line length type", npe, (Executable) () -> text.setLineLength(null, 1)));
        cases.add(Arguments.of("null format type", npe,
                (Executable) () -> new PbNumericDisplayFormat(null, 1, 1)));
        cases.add(Arguments.of("null date", npe, (Executable) () -> dates.getCoordinate(null)));
        cases.add(Arguments.of("null date format", npe, (Executable) () -> dates.setFormat(null)));
        cases.add(Arguments.of("null reference date", npe,
                (Executable) () -> new PbDateFormatMapping("2000-01-01", null, 0, 1, "%Y")));
        return cases.stream();
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("refusals")
    void hostileArgumentsAreRefusedBeforeTheToolkitSeesThem(String name, Class<? extends Throwable> expected,
            Executable call) {
        Journal.start();
        assertThrows(expected, call);
        List<String> calls = Journal.stop();
        assertTrue(calls.stream().noneMatch(l -> l.startsWith("Pb")), calls::toString);
    }

    @Test
    void notANumberAndInfinitiesPassWithoutHarm() {
        PbDomain d = new PbDomain(Float.NaN, 0, Float.POSITIVE_INFINITY, 1, BoundingBoxTypes.MINBOUNDINGCUBE);
        d.setTransformType(PbDomain.TransformTypes.SCALEMAXXYZFIXED);
        assertEquals(4, d.getMatrix().length);
        PbIsovaluesList l = new PbIsovaluesList(Float.NaN, Float.NEGATIVE_INFINITY, 3);
        assertEquals(3, l.getIsoList().values().length);
        PbDateFormatMapping m = new PbDateFormatMapping();
        assertFalse(m.setDateMapping("2000-01-01", "2000-01-02", Float.NaN, 1));
        assertEquals("", Graphs.date(handle(m), Float.NaN));
        PbLinearDataMapping linear = new PbLinearDataMapping();
        linear.setValues(Float.NaN, RED, Float.NaN, RED);
        assertEquals(3, linear.getHLSColor(Float.NaN).toArray().length);
    }
}
