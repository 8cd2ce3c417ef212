package com.kestrum.tavrel.graph;

import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertTrue;

import com.kestrum.corvel.SbColor;
import com.kestrum.corvel.SbVec2f;
import com.kestrum.corvel.SbVec3f;
import com.kestrum.corvel.actions.SoGLRenderAction;
import com.kestrum.corvel.nodes.SoGroup;
import java.util.ArrayList;
import java.util.Arrays;
import java.util.List;
import java.util.function.Consumer;
import java.util.function.Supplier;
import java.util.regex.Matcher;
import java.util.regex.Pattern;
import java.util.stream.Stream;
import org.junit.jupiter.api.Test;
import org.junit.jupiter.params.ParameterizedTest;
import org.junit.jupiter.params.provider.Arguments;
import org.junit.jupiter.params.provider.MethodSource;

/** The picture a render traversal keeps of the shapes and charts, as SVG. */
class PictureTest {
    private static final Pattern POLYLINE = Pattern.compile("<polyline points=\"([^\"]*)\"");
    private static final Pattern ELEMENT = Pattern.compile("<(polyline|polygon) points=\"([^\"]*)\""
            + "(?: fill=\"(#[0-9a-f]{6})\")?"
            + "|<text x=\"([^\"]*)\" y=\"([^\"]*)\" font-size=\"([^\"]*)\"([^>]*)>([^<]*)<");

    /** A line, filled polygon or text of a picture, in scene coordinates (y up). */
    private record Element(String kind, List<double[]> points, String fill, String text, double size, String rest) {
        /** The points as "x,y" strings, rounded to 1e-3. */
        List<String> at() {
            return points.stream().map(p -> rounded(p[0]) + "," + rounded(p[1])).toList();
        }

        private static double rounded(double v) {
            return Math.round(v * 1e3) / 1e3 + 0.0;
        }
    }

    private static List<Element> elements(String svg) {
        List<Element> out = new ArrayList<>();
        Matcher m = ELEMENT.matcher(svg);
        while (m.find()) {
            if (m.group(1) != null) {
                List<double[]> points = new ArrayList<>();
                for (String p : m.group(2).split(" ")) {
                    String[] xy = p.split(",");
                    points.add(new double[] {Double.parseDouble(xy[0]), -Double.parseDouble(xy[1])});
                }
                out.add(new Element(m.group(1), points, m.group(3), null, 0, ""));
            } else {
                out.add(new Element("text", List.of(new double[] {Double.parseDouble(m.group(4)),
                    -Double.parseDouble(m.group(5))}), null, m.group(8), Double.parseDouble(m.group(6)), m.group(7)));
            }
        }
        return out;
    }

    private static List<Element> of(List<Element> elements, String kind) {
        return elements.stream().filter(e -> e.kind().equals(kind)).toList();
    }

    private static List<String> texts(List<Element> elements) {
        return of(elements, "text").stream().map(Element::text).toList();
    }

    /** What the node alone draws; the node is disposed of. */
    private static List<Element> drawn(PoBase node) {
        try (node; SoGLRenderAction render = new SoGLRenderAction()) {
            render.apply(node);
            return elements(render.toSvg());
        }
    }

    private static Arguments kind(String name, Supplier<PoBase> node, Consumer<List<Element>> facts) {
        return Arguments.of(name, node, facts);
    }

    static Stream<Arguments> kinds() {
        SbColor red = new SbColor(1, 0, 0);
        SbColor blue = new SbColor(0, 0, 1);
        return Stream.of(
                kind("an axis: its line, a tick and a text a graduation", () -> new PoLinearAxis(
                        new SbVec3f(0, 0, 0), 4, PoCartesianAxis.Types.XY, 0, 100, 25), d -> {
                            assertEquals(List.of("0", "25", "50", "75", "100"), texts(d));
                            assertEquals(6, of(d, "polyline").size());
                            assertEquals(List.of("0.0,0.0", "4.0,0.0"), of(d, "polyline").get(0).at());
                            assertEquals(List.of("2.0,0.0", "2.0,-0.16"), of(d, "polyline").get(3).at(), "50's tick");
                            assertEquals(" text-anchor=\"middle\" dy=\"0.8em\"", of(d, "text").get(2).rest(),
                                    "hanging below the axis");
                        }),
                kind("a curve: its polyline, of the points counted", () -> new PoCurve(2,
                        new SbVec2f[] {new SbVec2f(0, 1), new SbVec2f(2, 3), new SbVec2f(4, 0)},
                        PoCurve.CurveReps.CURVEPOLYLINE), d -> {
                            assertEquals(1, d.size());
                            assertEquals(List.of("0.0,1.0", "2.0,3.0"), d.get(0).at());
                        }),
                kind("an error curve: its polyline and a bar a point", () -> new PoErrorCurve(
                        new float[] {0, 1, 1, 3}, new float[] {0.5f, 1}, new float[] {1, 0.5f},
                        PoErrorCurve.VariationTypes.FIXEDVARIATION, PoErrorCurve.ErrorCurveReps.LINEBAR), d -> {
                            assertEquals(3, of(d, "polyline").size());
                            assertEquals(List.of("1.0,2.0", "1.0,3.5"), d.get(2).at());
                        }),
                kind("a filled error curve: the band, then the polyline", () -> new PoErrorCurve(
                        new float[] {0, 1, 1, 3}, new float[] {0.5f, 1}, new float[] {1, 0.5f},
                        PoErrorCurve.VariationTypes.FIXEDVARIATION, PoErrorCurve.ErrorCurveReps.FILLED), d -> {
                            assertEquals(List.of("0.0,0.5", "1.0,2.0", "1.0,3.5", "0.0,2.0"), d.get(0).at());
                            assertEquals("polyline", d.get(1).kind());
                        }),
                kind("a high-low-close chart: a segment and a close mark a position", () -> new PoHighLowClose(2,
                        new float[] {0, 2}, new float[] {5, 6}, new float[] {1, 2}, new float[] {3, 4}), d -> {
                            assertEquals(4, of(d, "polyline").size());
                            assertEquals(List.of("2.0,2.0", "2.0,6.0"), d.get(2).at());
                            assertEquals(List.of("2.0,4.0", "2.5,4.0"), d.get(3).at(), "a quarter of the gap");
                        }),
                kind("a histogram: a bar, a name and a value a value", () -> new PoSingleHistogram(new SbVec2f(0, 0),
                        6, PoHistogram.Types.X, 3, new float[] {4, 5, 6}, new String[] {"north", "s\u00fcd", "\u6771"}),
                        d -> {
                            assertEquals(3, of(d, "polygon").size());
                            assertEquals(List.of("2.2,0.0", "3.8,0.0", "3.8,5.0", "2.2,5.0"),
                                    of(d, "polygon").get(1).at());
                            assertEquals(List.of("north", "4", "s\u00fcd", "5", "\u6771", "6"), texts(d));
                        }),
                kind("an item legend: a box in its colour and a text an item", () -> new PoItemLegend(
                        new SbVec2f(0, 0), new SbVec2f(2, 3), 2, new String[] {"measured", "expected \u00b1"},
                        new SbColor[] {red, blue}), d -> {
                            assertEquals(List.of("#ff0000", "#0000ff"), of(d, "polygon").stream().map(Element::fill)
                                    .toList());
                            assertEquals(List.of("measured", "expected \u00b1"), texts(d));
                        }),
                kind("a value legend: its frame and its values", () -> {
                    PoLinearValueLegend legend = new PoLinearValueLegend(new SbVec2f(0, 0), new SbVec2f(2, 3),
                            PoLinearValueLegend.ValueDistributions.LINEARVALUES);
                    legend.setIsovaluesList(new PbIsovaluesList(0, 10, 3));
                    return legend;
                }, d -> {
                    assertEquals(List.of("0", "5", "10"), texts(d));
                    assertEquals(3, of(d, "polygon").size());
                }),
                kind("a marker field: a marker a point", () -> new PoValuedMarkerField(2,
                        new SbVec2f[] {new SbVec2f(0, 0), new SbVec2f(1, 2)}, new float[] {1, 2}, new float[] {3, 4}),
                        d -> {
                            assertEquals(List.of("\u25cf", "\u25cf"), texts(d));
                            assertEquals(List.of("1.0,2.0"), d.get(1).at());
                        }),
                kind("an error point field: a cross a point", () -> new PoErrorPointField(1,
                        new SbVec2f[] {new SbVec2f(1, 2)}, new float[] {0.5f}, new float[] {1},
                        PoErrorPointField.ShapeTypes.RECTANGLESHAPE, PoErrorPointField.SkeletonTypes.CROSS1SKELETON),
                        d -> assertEquals(List.of(List.of("0.5,2.0", "1.5,2.0"), List.of("1.0,1.0", "1.0,3.0")),
                                d.stream().map(Element::at).toList())),
                kind("a field of bars: the base of a bar a point", () -> new PoPointsFieldBars(1,
                        new SbVec3f[] {new SbVec3f(1, 2, 7)}, new float[] {3}, 2, 1),
                        d -> assertEquals(List.of("0.0,1.5", "2.0,1.5", "2.0,2.5", "0.0,2.5"), d.get(0).at())),
                kind("a label field: a text a label", () -> new PoLabelField(1, new SbVec2f[] {new SbVec2f(1, 2)},
                        new String[] {"peak"}, new float[] {9}, 0, PoLabelField.ConcatTypes.STRINGBEFOREVALUE,
                        PoLabelField.Justifications.LEFT, PoLabelField.VerticalJustifications.BASE), d -> {
                            assertEquals(List.of("peak 9"), texts(d));
                            assertEquals(" text-anchor=\"start\"", d.get(0).rest());
                        }));
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("kinds")
    void eachKindOfGraphNodeDrawsWhatItBuilt(String name, Supplier<PoBase> node, Consumer<List<Element>> facts) {
        facts.accept(drawn(node.get()));
    }

    @Test
    void aGroupPicturesEveryKindAndTheTextsFitInTheViewBox() {
        List<Supplier<PoBase>> nodes = kinds().map(a -> {
            @SuppressWarnings("unchecked")
            Supplier<PoBase> node = (Supplier<PoBase>) a.get()[1];
            return node;
        }).toList();
        int alone = 0;
        for (Supplier<PoBase> node : nodes) {
            alone += drawn(node.get()).size();
        }
        List<PoBase> made = new ArrayList<>();
        String svg;
        try (SoGLRenderAction render = new SoGLRenderAction(); SoGroup scene = new SoGroup();
                PoGenAxis far = new PoGenAxis(new SbVec3f(-5, 0, 0), 3, PoCartesianAxis.Types.YX,
                        new String[] {"a graduation far to the left", "top"})) {
            for (Supplier<PoBase> node : nodes) {
                made.add(node.get());
                scene.addChild(made.get(made.size() - 1));
            }
            scene.addChild(far);
            render.apply(scene);
            svg = render.toSvg();
        } finally {
            made.forEach(PoBase::dispose);
        }
        List<Element> all = elements(svg);
        assertEquals(alone + 5, all.size(), "every node's drawing, and the far axis's line, ticks and texts");
        double[] viewBox = Arrays.stream(svg.replaceFirst("(?s).*?viewBox=\"([^\"]*)\".*", "$1").split(" "))
                .mapToDouble(Double::parseDouble).toArray();
        Element farText = of(all, "text").stream().filter(e -> e.text().startsWith("a graduation")).findFirst()
                .orElseThrow();
        double width = 0.6 * farText.size() * farText.text().length();
        assertTrue(viewBox[0] <= farText.points().get(0)[0] - width, "the text ends at its point: all of it shows");
    }

    private static int count(String text, String what) {
        return text.split(Pattern.quote(what), -1).length - 1;
    }

    @Test
    void theSvgShowsTheCircleWhereItIsAndOnePolygonPerSlice() {
        String svg;
        try (PoCircleCenterRadius circle = new PoCircleCenterRadius(new SbVec2f(1, 2), 3);
                PoPieChart2D pie = PoPieChart2D.of(new SbVec2f(10, 0), 1, new String[] {"a", "b & c", "d"},
                        new float[] {1, 2, 3}, new SbColor[] {new SbColor(1, 0, 0)});
                SoGLRenderAction render = new SoGLRenderAction(); SoGroup scene = new SoGroup()) {
            circle.setUpdateMethod(PoBase.UpdateMethodTypes.UPDATEMETHODONACTION);
            scene.addChild(circle);
            scene.addChild(pie);
            render.apply(pie);
            assertEquals(3, count(render.toSvg(), "<polygon "));
            render.apply(scene);
            svg = render.toSvg();
        }
        assertTrue(svg.startsWith("<svg xmlns=\"http://www.w3.org/2000/svg\""), svg);
        assertEquals(3, count(svg, "<polygon "), "one filled polygon per slice, the last apply's only");
        assertEquals(1, count(svg, "<polyline "));
        assertEquals(3, count(svg, "fill=\"#ff0000\" stroke="), "the slices' colour");
        assertEquals(3, count(svg, "fill=\"#ff0000\">"), "the names in their slice's colour");
        assertEquals(3, count(svg, "<text "));
        assertTrue(svg.contains(">b &amp; c</text>"));

        Matcher m = POLYLINE.matcher(svg);
        assertTrue(m.find(), "the circle's outline");
        List<double[]> points = new ArrayList<>();
        for (String p : m.group(1).split(" ")) {
            String[] xy = p.split(",");
            points.add(new double[] {Double.parseDouble(xy[0]), -Double.parseDouble(xy[1])});
        }
        points.remove(points.size() - 1);
        double cx = points.stream().mapToDouble(p -> p[0]).average().orElseThrow();
        double cy = points.stream().mapToDouble(p -> p[1]).average().orElseThrow();
        assertEquals(1, cx, 1e-3);
        assertEquals(2, cy, 1e-3);
        for (double[] p : points) {
            assertEquals(3, Math.hypot(p[0] - cx, p[1] - cy), 1e-3);
        }
    }

    @Test
    void aSceneWithoutGraphNodesGivesAnEmptyPicture() {
        try (SoGLRenderAction render = new SoGLRenderAction(); PoPieChart2D empty = new PoPieChart2D()) {
            render.apply(empty);
            String svg = render.toSvg();
            assertEquals(0, count(svg, "<polygon ") + count(svg, "<polyline ") + count(svg, "<text "));
            assertTrue(svg.endsWith("</svg>\n"));
        }
    }
}
