package com.kestrum.tavrel.demo;

import com.kestrum.corvel.SbColor;
import com.kestrum.corvel.SbVec2f;
import com.kestrum.corvel.SbVec3f;
import com.kestrum.corvel.actions.SoGLRenderAction;
import com.kestrum.corvel.nodes.SoGroup;
import com.kestrum.tavrel.graph.PbIsovaluesList;
import com.kestrum.tavrel.graph.PbLinearDataMapping;
import com.kestrum.tavrel.graph.PbNumericDisplayFormat;
import com.kestrum.tavrel.graph.PoBase;
import com.kestrum.tavrel.graph.PoCartesianAxis;
import com.kestrum.tavrel.graph.PoErrorCurve;
import com.kestrum.tavrel.graph.PoHistogram;
import com.kestrum.tavrel.graph.PoItemLegend;
import com.kestrum.tavrel.graph.PoLabelField;
import com.kestrum.tavrel.graph.PoLinearAxis;
import com.kestrum.tavrel.graph.PoLinearValueLegend;
import com.kestrum.tavrel.graph.PoPieChart2D;
import com.kestrum.tavrel.graph.PoRectangle;
import com.kestrum.tavrel.graph.PoSingleHistogram;
import com.kestrum.tavrel.graph.PoValuedMarkerField;
import java.io.IOException;
import java.io.UncheckedIOException;
import java.nio.file.Path;
import java.nio.file.Paths;
import java.util.ArrayList;
import java.util.List;

/**
 * A small dashboard of four panels built through the binding (a curve with error bars on
 * graduated axes, a histogram, a pie chart with its legend, coloured markers with a value legend)
 * and rendered; the render writes the picture to chart.svg in the working directory.
 *
 * <p>The scene is 32 x 24 units, panels of 16 x 12; each panel maps its data into its own part
 * of the scene, and its axes are graduated in the data's values.
 */
final class DashboardSection implements Demo.Section {
    private static final SbColor BLUE = new SbColor(0.27f, 0.51f, 0.71f);
    private static final SbColor ORANGE = new SbColor(0.93f, 0.55f, 0.2f);
    private static final SbColor GREEN = new SbColor(0.35f, 0.7f, 0.35f);
    private static final SbColor RED = new SbColor(0.84f, 0.3f, 0.3f);

    /** The nodes of the dashboard, disposed of together. */
    private final List<PoBase> nodes = new ArrayList<>();

    @Override
    public String title() {
        return "A dashboard, rendered to chart.svg";
    }

    @Override
    public void run() {
        PbNumericDisplayFormat oneDecimal =
                new PbNumericDisplayFormat(PbNumericDisplayFormat.FormatTypes.FLOATFORMAT, 0, 1);
        try (SoGLRenderAction render = new SoGLRenderAction(); SoGroup scene = new SoGroup()) {
            for (float[] panel : new float[][] {{0, 12}, {16, 12}, {0, 0}, {16, 0}}) {
                add(new PoRectangle(new SbVec2f(panel[0], panel[1]), new SbVec2f(panel[0] + 16, panel[1] + 12)));
            }
            temperatures(oneDecimal);
            sales(oneDecimal);
            regions();
            sensors(oneDecimal);
            for (PoBase node : nodes) {
                scene.addChild(node);
            }
            render.apply(scene);
            String svg = render.toSvg();
            Path picture = Paths.get("chart.svg").toAbsolutePath();
            render.writeSvg(picture);
            System.out.println(nodes.size() + " graph nodes rendered in one group drew "
                    + Picture.summary(svg));
            System.out.println("The picture: " + picture + " (open it in a web browser)");
        } catch (IOException e) {
            throw new UncheckedIOException(e);
        } finally {
            nodes.forEach(PoBase::dispose);
            oneDecimal.dispose();
        }
    }

    private <T extends PoBase> T add(T node) {
        nodes.add(node);
        return node;
    }

    private void title(float x, float y, String text, float value, PbNumericDisplayFormat format) {
        PoLabelField label = add(new PoLabelField(1, new SbVec2f[] {new SbVec2f(x, y)}, new String[] {text},
                new float[] {value}, 0, PoLabelField.ConcatTypes.STRINGBEFOREVALUE, PoLabelField.Justifications.LEFT,
                PoLabelField.VerticalJustifications.BASE));
        label.setFormat(format);
    }

    /** Top left: monthly mean temperatures with their spread, on a month axis and a degree axis. */
    private void temperatures(PbNumericDisplayFormat format) {
        float[] means = {3, 4, 8, 12, 16, 20, 23, 22, 18, 13, 8, 4};
        float x0 = 2.5f;
        float y0 = 14.5f;
        float dx = 12.5f / 11;
        float dy = 7.5f / 30;
        add(new PoLinearAxis(new SbVec3f(x0, y0, 0), x0 + 12.5f, PoCartesianAxis.Types.XY, 1, 12, 1));
        add(new PoLinearAxis(new SbVec3f(x0, y0, 0), y0 + 7.5f, PoCartesianAxis.Types.YX, 0, 30, 10));
        float[] xy = new float[2 * means.length];
        float[] low = new float[means.length];
        float[] high = new float[means.length];
        float sum = 0;
        for (int i = 0; i < means.length; i++) {
            xy[2 * i] = x0 + i * dx;
            xy[2 * i + 1] = y0 + means[i] * dy;
            low[i] = 3 * dy;
            high[i] = (2 + i % 3) * dy;
            sum += means[i];
        }
        add(new PoErrorCurve(xy, low, high, PoErrorCurve.VariationTypes.FIXEDVARIATION,
                PoErrorCurve.ErrorCurveReps.FILLED));
        add(new PoErrorCurve(xy, low, high, PoErrorCurve.VariationTypes.FIXEDVARIATION,
                PoErrorCurve.ErrorCurveReps.LINEBAR));
        title(0.8f, 23, "Mean temperature by month (\u00b0C), year:", sum / means.length, format);
    }

    /** Top right: sales per quarter as a histogram, on a graduated axis. */
    private void sales(PbNumericDisplayFormat format) {
        float[] sales = {3.5f, 6.2f, 5.1f, 7.4f};
        PoSingleHistogram histogram = add(new PoSingleHistogram(new SbVec2f(19, 14.5f), 12, PoHistogram.Types.X,
                sales.length, sales, new String[] {"Q1", "Q2", "Q3", "Q4"}));
        histogram.setFormat(format);
        add(new PoLinearAxis(new SbVec3f(19, 14.5f, 0), 22.5f, PoCartesianAxis.Types.YX, 0, 8, 2));
        float total = 0;
        for (float s : sales) {
            total += s;
        }
        title(16.8f, 23, "Sales per quarter (M\u20ac), total:", total, format);
    }

    /** Bottom left: the share of each region, as a pie chart and its legend. */
    private void regions() {
        String[] regions = {"north", "east", "south", "west"};
        float[] shares = {40, 25, 20, 15};
        String[] percents = new String[shares.length];
        for (int i = 0; i < shares.length; i++) {
            percents[i] = Math.round(shares[i]) + "%";
        }
        SbColor[] colors = {BLUE, ORANGE, GREEN, RED};
        add(PoPieChart2D.of(new SbVec2f(5.5f, 5.2f), 3.4f, percents, shares, colors));
        add(new PoItemLegend(new SbVec2f(11, 2.5f), new SbVec2f(15.5f, 8), regions.length, regions, colors));
        title(0.8f, 11, "Customers by region, count:", 1280, null);
    }

    /** Bottom right: sensor readings at their places, coloured by value, and the value legend. */
    private void sensors(PbNumericDisplayFormat format) {
        float[][] readings = {{1, 2, 12}, {2, 6, 35}, {3, 3.5f, 48}, {4.5f, 8, 62}, {5, 1.5f, 20}, {6, 5, 55},
            {7, 7, 88}, {7.5f, 3, 41}, {8.5f, 6, 74}, {9, 9, 96}};
        float x0 = 18.5f;
        float y0 = 2;
        float scale = 0.8f;
        add(new PoLinearAxis(new SbVec3f(x0, y0, 0), x0 + 8, PoCartesianAxis.Types.XY, 0, 10, 2));
        add(new PoLinearAxis(new SbVec3f(x0, y0, 0), y0 + 8, PoCartesianAxis.Types.YX, 0, 10, 2));
        SbVec2f[] places = new SbVec2f[readings.length];
        float[] values = new float[readings.length];
        float max = 0;
        for (int i = 0; i < readings.length; i++) {
            places[i] = new SbVec2f(x0 + scale * readings[i][0], y0 + scale * readings[i][1]);
            values[i] = readings[i][2];
            max = Math.max(max, values[i]);
        }
        PbLinearDataMapping mapping = new PbLinearDataMapping();
        mapping.setValues(0, new SbColor(0.2f, 0.4f, 0.9f), 100, new SbColor(0.9f, 0.2f, 0.2f));
        PoValuedMarkerField markers = add(new PoValuedMarkerField(readings.length, places, values, values));
        markers.setDataMapping(mapping);
        PoLinearValueLegend legend = add(new PoLinearValueLegend(new SbVec2f(28.5f, 2), new SbVec2f(31.5f, 9),
                PoLinearValueLegend.ValueDistributions.LINEARVALUES));
        legend.setIsovaluesList(new PbIsovaluesList(0, 100, 5));
        legend.setDataMapping(mapping);
        title(16.8f, 11, "Sensor readings (\u00b0C), hottest:", max, format);
    }
}
