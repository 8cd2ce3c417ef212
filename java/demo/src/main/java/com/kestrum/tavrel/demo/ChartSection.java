package com.kestrum.tavrel.demo;

import com.kestrum.corvel.SbColor;
import com.kestrum.corvel.SbVec2f;
import com.kestrum.corvel.actions.SoGLRenderAction;
import com.kestrum.tavrel.graph.PbMiscTextAttr;
import com.kestrum.tavrel.graph.PoBase;
import com.kestrum.tavrel.graph.PoErrorCurve;
import com.kestrum.tavrel.graph.PoHistogram;
import com.kestrum.tavrel.graph.PoItemLegend;
import com.kestrum.tavrel.graph.PoSingleHistogram;
import java.util.Arrays;
import java.util.List;

/**
 * A curve with error bars, a histogram and an item legend made from Java arrays, rebuilt, and
 * what they built from the arrays (points, bars, legend items) as a render draws it.
 */
final class ChartSection implements Demo.Section {
    @Override
    public String title() {
        return "Curves, histograms and legends from Java arrays";
    }

    @Override
    public void run() {
        float[] xy = {0, 1, 1, 3, 2, 2};
        float[] low = {0.5f, 0.5f, 0.25f};
        float[] high = {1, 0.5f, 1};
        float[] values = {4, 5, 6};
        String[] names = {"north", "süd", "東"};
        String[] items = {"measured", "expected ±"};
        SbColor[] colours = {new SbColor(1, 0, 0), new SbColor(0, 0, 1)};
        try (PoErrorCurve curve = new PoErrorCurve(xy, low, high, PoErrorCurve.VariationTypes.FIXEDVARIATION,
                PoErrorCurve.ErrorCurveReps.LINEBAR);
                PoSingleHistogram histogram = new PoSingleHistogram(new SbVec2f(0, 0), 6, PoHistogram.Types.X,
                        values.length, values, names);
                PoItemLegend legend = new PoItemLegend(new SbVec2f(0, 0), new SbVec2f(2, 3), items.length, items,
                        colours)) {
            System.out.println("Error curve through " + Arrays.toString(xy) + " (x, y pairs), variations "
                    + Arrays.toString(low) + " below and " + Arrays.toString(high) + " above");
            System.out.println("Histogram of " + Arrays.toString(values) + " named " + Arrays.toString(names));
            System.out.println("Item legend of " + Arrays.toString(items) + " in red and blue");
            PbMiscTextAttr text = new PbMiscTextAttr();
            histogram.setMiscTextAttr(text);
            legend.setMiscTextAttr(text);
            System.out.println("Both share one text attribute object: "
                    + (histogram.getMiscTextAttr() == text && legend.getMiscTextAttr() == text));
            for (PoBase node : List.<PoBase>of(curve, histogram, legend)) {
                node.addPostRebuildListener(n -> System.out.println("  " + n.getTypeName() + " rebuilt, built "
                        + n.isBuilt() + ", modified " + n.isModified()));
                node.rebuild();
            }
            try (SoGLRenderAction render = new SoGLRenderAction()) {
                for (PoBase node : List.<PoBase>of(curve, histogram, legend)) {
                    render.apply(node);
                    System.out.println("What the " + node.getTypeName() + " built from them, as a render draws it:");
                    Picture.describe(render.toSvg()).forEach(element -> System.out.println("  " + element));
                }
            }
            System.out.println("The arrays are left as they were: " + Arrays.toString(xy) + " "
                    + Arrays.toString(colours[0].getValue()));
        }
    }
}
