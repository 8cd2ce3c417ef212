package com.kestrum.tavrel.soak;

import com.kestrum.corvel.SbColor;
import com.kestrum.corvel.SbVec2f;
import com.kestrum.corvel.SbVec3f;
import com.kestrum.corvel.actions.SoGLRenderAction;
import com.kestrum.corvel.nodes.SoGroup;
import com.kestrum.tavrel.graph.PbDateFormatMapping;
import com.kestrum.tavrel.graph.PbIsovaluesList;
import com.kestrum.tavrel.graph.PbLinearDataMapping;
import com.kestrum.tavrel.graph.PbMiscTextAttr;
import com.kestrum.tavrel.graph.PbNumericDisplayFormat;
import com.kestrum.tavrel.graph.PoAngularAxis;
import com.kestrum.tavrel.graph.PoArrow;
import com.kestrum.tavrel.graph.PoArrow3;
import com.kestrum.tavrel.graph.PoAutoCubeAxis;
import com.kestrum.tavrel.graph.PoBase;
import com.kestrum.tavrel.graph.PoBiErrorPointField;
import com.kestrum.tavrel.graph.PoCartesianAxis;
import com.kestrum.tavrel.graph.PoCircle3CenterRadius;
import com.kestrum.tavrel.graph.PoCircle3ThreePoints;
import com.kestrum.tavrel.graph.PoCircleArc3CtrPtAngle;
import com.kestrum.tavrel.graph.PoCircleArc3CtrTwoPts;
import com.kestrum.tavrel.graph.PoCircleArc3ThreePts;
import com.kestrum.tavrel.graph.PoCircleArcCtrPtAngle;
import com.kestrum.tavrel.graph.PoCircleArcCtrRadTwoAngle;
import com.kestrum.tavrel.graph.PoCircleArcCtrTwoPts;
import com.kestrum.tavrel.graph.PoCircleArcThreePts;
import com.kestrum.tavrel.graph.PoCircleCenterRadius;
import com.kestrum.tavrel.graph.PoCircleThreePoints;
import com.kestrum.tavrel.graph.PoConicBar;
import com.kestrum.tavrel.graph.PoCoordinateSystemAxis;
import com.kestrum.tavrel.graph.PoCurve;
import com.kestrum.tavrel.graph.PoCurve3;
import com.kestrum.tavrel.graph.PoCurveFilling;
import com.kestrum.tavrel.graph.PoCurveLine;
import com.kestrum.tavrel.graph.PoCylindricalBar;
import com.kestrum.tavrel.graph.PoErrorCurve;
import com.kestrum.tavrel.graph.PoErrorPointField;
import com.kestrum.tavrel.graph.PoGenAxis;
import com.kestrum.tavrel.graph.PoGeneralizedBar;
import com.kestrum.tavrel.graph.PoGeneralizedScatter;
import com.kestrum.tavrel.graph.PoGroup2Axis;
import com.kestrum.tavrel.graph.PoGroup3Axis3;
import com.kestrum.tavrel.graph.PoGroup4Axis;
import com.kestrum.tavrel.graph.PoGroup6Axis3;
import com.kestrum.tavrel.graph.PoHighLowClose;
import com.kestrum.tavrel.graph.PoHistogram;
import com.kestrum.tavrel.graph.PoItemLegend;
import com.kestrum.tavrel.graph.PoLabel;
import com.kestrum.tavrel.graph.PoLabelField;
import com.kestrum.tavrel.graph.PoLinearAxis;
import com.kestrum.tavrel.graph.PoLinearBar;
import com.kestrum.tavrel.graph.PoLinearValueLegend;
import com.kestrum.tavrel.graph.PoLogAxis;
import com.kestrum.tavrel.graph.PoMultipleHistogram;
import com.kestrum.tavrel.graph.PoNonLinearValueLegend1;
import com.kestrum.tavrel.graph.PoNonLinearValueLegend2;
import com.kestrum.tavrel.graph.PoNonLinearValueLegend3;
import com.kestrum.tavrel.graph.PoParallelogram;
import com.kestrum.tavrel.graph.PoParallelogram3;
import com.kestrum.tavrel.graph.PoPieChart2D;
import com.kestrum.tavrel.graph.PoPieChart3D;
import com.kestrum.tavrel.graph.PoPieChartRep;
import com.kestrum.tavrel.graph.PoPointsFieldBars;
import com.kestrum.tavrel.graph.PoPolarLinAxis;
import com.kestrum.tavrel.graph.PoPolarLogAxis;
import com.kestrum.tavrel.graph.PoProfileBar;
import com.kestrum.tavrel.graph.PoRectangle;
import com.kestrum.tavrel.graph.PoRibbon;
import com.kestrum.tavrel.graph.PoScatter;
import com.kestrum.tavrel.graph.PoSingleHistogram;
import com.kestrum.tavrel.graph.PoTimeAxis;
import com.kestrum.tavrel.graph.PoTube;
import com.kestrum.tavrel.graph.PoValueLegend;
import com.kestrum.tavrel.graph.PoValuedMarkerField;
import com.kestrum.tavrel.soak.DataPaths.Loop;
import java.util.List;
import java.util.function.IntFunction;

/**
 * The graph families of the soak: each iteration builds nodes of a family from Java values,
 * renders them in one group, reads the SVG picture of the render (as the demo does) and disposes
 * them. A family's nodes come in a few slices, one slice an iteration in turn, so that an
 * iteration stays short while each kind of node is still built, drawn and disposed hundreds of
 * thousands of times. Attribute objects are made once per path, as their native objects are
 * never freed.
 */
final class GraphPaths {
    private GraphPaths() {}

    /**
     * A loop that makes slice {@code i % slices.length} of the family's nodes in iteration i,
     * renders them in a group, reads the picture and disposes everything. Each slice holds at
     * least one node that draws something.
     */
    @SafeVarargs
    private static Loop family(IntFunction<List<PoBase>>... slices) {
        SoGLRenderAction render = new SoGLRenderAction();
        return new Loop() {
            @Override
            public void step(int i) {
                List<PoBase> nodes = slices[i % slices.length].apply(i);
                try (SoGroup scene = new SoGroup()) {
                    for (PoBase node : nodes) {
                        scene.addChild(node);
                    }
                    render.apply(scene);
                    String svg = render.toSvg();
                    DataPaths.check(svg.contains("<polyline") || svg.contains("<polygon") || svg.contains("<text"),
                            "picture drawn");
                } finally {
                    nodes.forEach(PoBase::dispose);
                }
            }

            @Override
            public void close() {
                render.dispose();
            }
        };
    }

    /**
     * Axes of every kind: linear, logarithmic (decade list), generalised (strings), time (through a
     * date mapping), polar linear and logarithmic, angular, the 2D and 3D axis groups, the cube of
     * axes and the coordinate system; the format, text attributes and date mapping made once.
     */
    static Loop axes() {
        PbNumericDisplayFormat format = new PbNumericDisplayFormat(PbNumericDisplayFormat.FormatTypes.FLOATFORMAT, 0, 1);
        PbDateFormatMapping dates = new PbDateFormatMapping("2024-01-01", "2024-01-02", 0, 1, "%d/%m");
        PbMiscTextAttr text = new PbMiscTextAttr();
        SbVec3f origin = new SbVec3f(0, 0, 0);
        SbVec3f corner = new SbVec3f(1, 2, 3);
        String[] labels = {"low", "mid", "high"};
        int[] decades = {1, 2, 5};
        return family(i -> {
            PoLinearAxis linear = new PoLinearAxis(origin, 10 + i % 5, PoCartesianAxis.Types.XY, 0, 100, 25);
            linear.setFormat(format);
            linear.setMiscTextAttr(text);
            PoTimeAxis time = new PoTimeAxis("2024-01-01", "2024-01-04", 0, PoTimeAxis.Types.X);
            time.setDateFormatMapping(dates);
            return List.of(linear, time,
                    new PoLogAxis(origin, 2, PoCartesianAxis.Types.YX, PoLogAxis.DecadeListDefs.DECADELISTNONAUTO,
                            decades, 0, 2),
                    new PoGenAxis(origin, 3, PoCartesianAxis.Types.XY, labels),
                    new PoGroup2Axis(new SbVec2f(0, 0), new SbVec2f(5, 5), PoGroup2Axis.AxisTypes.LINEAR,
                            PoGroup2Axis.AxisTypes.LOGARITHMIC, "x", "y"));
        }, i -> List.of(new PoPolarLinAxis(0, 0, 4 + i % 3, 0, 1),
                new PoPolarLogAxis(0, 0, 0, 3, PoPolarLogAxis.DecadeListDefs.DECADELISTAUTO, null),
                new PoAngularAxis(0, 0, 2, 0, 45),
                new PoGroup4Axis(new SbVec2f(0, 0), new SbVec2f(5, 5), PoGroup4Axis.AxisTypes.LINEAR,
                        PoGroup4Axis.AxisTypes.LINEAR, "x", "y"),
                new PoCoordinateSystemAxis(origin, new SbVec3f(4, 4, 4), "x", "y", "z", 1, 0.2f)),
        i -> List.of(new PoLinearAxis(origin, 5, PoCartesianAxis.Types.YX, 1 + i % 3),
                new PoGroup3Axis3(origin, corner, PoGroup3Axis3.AxisTypes.LINEAR, PoGroup3Axis3.AxisTypes.LINEAR,
                        PoGroup3Axis3.AxisTypes.LOGARITHMIC, PoGroup3Axis3.AxisNames.ZAXIS, "x", "y", "z"),
                new PoGroup6Axis3(origin, corner, PoGroup6Axis3.AxisTypes.LINEAR, PoGroup6Axis3.AxisTypes.LINEAR,
                        PoGroup6Axis3.AxisTypes.LINEAR, "x", "y", "z"),
                new PoAutoCubeAxis(origin, new SbVec3f(1, 1, 1), PoAutoCubeAxis.AxisTypes.LINEAR,
                        PoAutoCubeAxis.AxisTypes.GENERALIZED, PoAutoCubeAxis.AxisTypes.LOGARITHMIC, "x", "y", "z")));
    }

    /**
     * Curves (from points and from coordinate arrays, 2D and 3D), an error curve, a high-low-close
     * chart, single and multiple histograms, the point fields (markers, bars, labels, error
     * points) and the curve representations made with the toolkit's defaults.
     */
    static Loop charts() {
        SbVec2f[] points = {new SbVec2f(0, 1), new SbVec2f(1, 3), new SbVec2f(2, 2)};
        SbVec3f[] points3 = {new SbVec3f(0, 1, 0), new SbVec3f(1, 3, 1), new SbVec3f(2, 2, 2)};
        float[] xy = {0, 1, 1, 3, 2, 2};
        float[] xyz = {0, 1, 0, 1, 3, 1, 2, 2, 2};
        float[] spread = {0.5f, 0.25f, 1};
        String[] names = {"north", "süd", "東 \uD83D\uDE00"};
        PbLinearDataMapping mapping = new PbLinearDataMapping();
        PbNumericDisplayFormat format = new PbNumericDisplayFormat(PbNumericDisplayFormat.FormatTypes.FLOATFORMAT, 0, 1);
        return family(i -> List.of(new PoCurve(3, points, PoCurve.CurveReps.CURVEPOLYLINE),
                new PoCurve(xy, PoCurve.CurveReps.CURVESMOOTH),
                new PoCurve3(3, points3, PoCurve3.CurveReps.CURVEPOLYLINE),
                new PoCurve3(xyz, PoCurve3.CurveReps.CURVEPOLYLINE),
                new PoErrorCurve(3, points, spread, spread, PoErrorCurve.VariationTypes.FIXEDVARIATION,
                        PoErrorCurve.ErrorCurveReps.FILLED),
                new PoHighLowClose(3, new float[] {0, 1, 2}, new float[] {4, 5, 6}, new float[] {1 + i % 3, 2, 3},
                        new float[] {2, 3, 4})),
        i -> {
            float[] values = {1 + i % 7, 2, 3};
            PoSingleHistogram single = new PoSingleHistogram(new SbVec2f(0, 0), 6, PoHistogram.Types.X, 3, values,
                    names);
            single.setFormat(format);
            PoValuedMarkerField markers = new PoValuedMarkerField(3, points, values, values);
            markers.setDataMapping(mapping);
            return List.of(single, markers,
                    new PoMultipleHistogram(new SbVec2f(0, 0), 6, PoHistogram.Types.Y, 2, 3,
                            new float[] {1, 2, 3, 4, 5, values[0]}, new String[] {"a", "b"}, names),
                    new PoPointsFieldBars(3, points3, values, 0.1f, 0.1f));
        }, i -> List.of(new PoLabelField(3, points, names, new float[] {i % 7, 2, 3}, 0,
                        PoLabelField.ConcatTypes.STRINGBEFOREVALUE, PoLabelField.Justifications.LEFT,
                        PoLabelField.VerticalJustifications.BASE),
                new PoErrorPointField(3, points, spread, spread, PoErrorPointField.ShapeTypes.RECTANGLESHAPE,
                        PoErrorPointField.SkeletonTypes.CROSS1SKELETON),
                new PoBiErrorPointField(3, points, spread, spread, spread, spread,
                        PoBiErrorPointField.VariationTypes.FIXEDVARIATION, 0, 0),
                new PoCurveFilling(), new PoCurveLine(), new PoLabel()),
        i -> List.of(new PoCurve(xy, PoCurve.CurveReps.CURVEPOLYLINE), new PoRibbon(), new PoTube(), new PoScatter(),
                new PoGeneralizedScatter(), new PoLinearBar(), new PoConicBar(), new PoCylindricalBar(),
                new PoGeneralizedBar(), new PoProfileBar()));
    }

    /** Item legends and the value legends (linear and the three non-linear ones) with their isovalues and mapping. */
    static Loop legends() {
        String[] names = {"measured", "expected", "東 \uD83D\uDE00"};
        SbColor[] colors = {new SbColor(1, 0, 0), new SbColor(0, 1, 0), new SbColor(0, 0, 1)};
        PbLinearDataMapping mapping = new PbLinearDataMapping();
        PbIsovaluesList isovalues = new PbIsovaluesList(0, 100, 5);
        PbMiscTextAttr text = new PbMiscTextAttr();
        return family(i -> {
            PoItemLegend items = new PoItemLegend(new SbVec2f(0, 0), new SbVec2f(2, 3), 1 + i % 3, names, colors);
            items.setMiscTextAttr(text);
            return List.of(items, valueLegend(new PoLinearValueLegend(new SbVec2f(3, 0), new SbVec2f(4, 3),
                    PoLinearValueLegend.ValueDistributions.LINEARVALUES), isovalues, mapping));
        }, i -> List.of(valueLegend(new PoNonLinearValueLegend1(new SbVec2f(5, 0), new SbVec2f(6, 3)), isovalues, mapping),
                valueLegend(new PoNonLinearValueLegend2(new SbVec2f(7, 0), new SbVec2f(8, 3)), isovalues, mapping),
                valueLegend(new PoNonLinearValueLegend3(new SbVec2f(9, 0), new SbVec2f(10, 3)), isovalues, mapping)));
    }

    private static PoValueLegend valueLegend(PoValueLegend legend, PbIsovaluesList isovalues, PbLinearDataMapping mapping) {
        legend.setIsovaluesList(isovalues);
        legend.setDataMapping(mapping);
        return legend;
    }

    /**
     * Pie charts (2D, 3D and the representation) and every geometric shape: circles and arcs in
     * each of their forms, arrows, parallelograms and a rectangle.
     */
    static Loop shapes() {
        String[] names = {"north", "east", "south", "west"};
        SbColor[] colors = {new SbColor(1, 0, 0), new SbColor(0, 1, 0), new SbColor(0, 0, 1)};
        SbVec2f[] arrow = {new SbVec2f(0, 0), new SbVec2f(1, 1), new SbVec2f(2, 0)};
        SbVec3f[] arrow3 = {new SbVec3f(0, 0, 0), new SbVec3f(1, 1, 1), new SbVec3f(2, 0, 2)};
        SbVec2f a = new SbVec2f(1, 0);
        SbVec2f b = new SbVec2f(0, 1);
        SbVec2f c = new SbVec2f(-1, 0);
        SbVec3f a3 = new SbVec3f(1, 0, 0);
        SbVec3f b3 = new SbVec3f(0, 1, 0);
        SbVec3f c3 = new SbVec3f(-1, 0, 0);
        SbVec3f z = new SbVec3f(0, 0, 1);
        PbNumericDisplayFormat format = new PbNumericDisplayFormat(PbNumericDisplayFormat.FormatTypes.FLOATFORMAT, 5, 1);
        return family(i -> {
            float[] values = {1 + i % 7, 2, 3, 4};
            PoPieChart2D pie = PoPieChart2D.of(new SbVec2f(0, 0), 1, names, values, colors);
            pie.setFormat(format);
            pie.setSliceToTranslate(i % 4, 0.25f);
            return List.of(pie, PoPieChart3D.of(new SbVec3f(3, 0, 0), 1, 0.5f, names, values, colors),
                    new PoPieChartRep(), new PoRectangle(new SbVec2f(-2, -2), new SbVec2f(5, 2)));
        }, i -> List.of(new PoCircleCenterRadius(b, 1 + i % 3), new PoCircleThreePoints(a, b, c),
                new PoCircle3CenterRadius(b3, 1, z), new PoCircle3ThreePoints(a3, b3, c3), new PoParallelogram(a, b, c)),
        i -> List.of(new PoCircleArcCtrPtAngle(b, a, 1 + i % 3), new PoCircleArcCtrRadTwoAngle(b, 1, 0, 2),
                new PoCircleArcCtrTwoPts(b, a, c), new PoCircleArcThreePts(a, b, c),
                PoArrow.along(arrow, PoArrow.PatternTypes.NOPATTERN, PoArrow.PatternTypes.DIRECTTRIANGLE, 0.1f, 0.1f)),
        i -> List.of(new PoCircleArc3CtrPtAngle(b3, a3, 1 + i % 3, z), new PoCircleArc3CtrTwoPts(b3, a3, c3),
                new PoCircleArc3ThreePts(a3, b3, c3), new PoParallelogram3(a3, b3, c3),
                PoArrow3.along(arrow3, PoArrow3.PatternTypes.NOPATTERN, PoArrow3.PatternTypes.DIRECTTRIANGLE, 0.1f,
                        0.1f)));
    }
}
