package com.kestrum.tavrel.demo;

import com.kestrum.corvel.SbColor;
import com.kestrum.corvel.SbVec2f;
import com.kestrum.corvel.actions.SoGLRenderAction;
import com.kestrum.corvel.nodes.SoGroup;
import com.kestrum.tavrel.graph.PbNumericDisplayFormat;
import com.kestrum.tavrel.graph.PoArrow;
import com.kestrum.tavrel.graph.PoBase;
import com.kestrum.tavrel.graph.PoCircleArcThreePts;
import com.kestrum.tavrel.graph.PoCircleThreePoints;
import com.kestrum.tavrel.graph.PoPieChart2D;
import com.kestrum.tavrel.graph.PoRectangle;
import java.util.List;

/** A pie chart and the geometric shapes, built through the binding and rendered together. */
final class ShapesSection implements Demo.Section {
    @Override
    public String title() {
        return "Pie charts and geometric shapes";
    }

    @Override
    public void run() {
        String[] names = {"north", "east", "south", "west"};
        float[] sales = {40, 25, 20, 15};
        SbColor[] colors = {new SbColor(0.9f, 0.3f, 0.2f), new SbColor(0.2f, 0.6f, 0.9f), new SbColor(0.3f, 0.8f,
                0.4f), new SbColor(0.9f, 0.8f, 0.2f)};
        PbNumericDisplayFormat format = new PbNumericDisplayFormat(PbNumericDisplayFormat.FormatTypes.FLOATFORMAT, 5, 1);
        try (PoPieChart2D pie = PoPieChart2D.of(new SbVec2f(0, 0), 1, names, sales, colors);
                PoCircleThreePoints circle = new PoCircleThreePoints(new SbVec2f(1, 1), new SbVec2f(5, 1),
                        new SbVec2f(1, 4));
                PoCircleArcThreePts arc = new PoCircleArcThreePts(new SbVec2f(1, 0), new SbVec2f(0, -1),
                        new SbVec2f(-1, 0));
                PoArrow arrow = PoArrow.along(new SbVec2f[] {new SbVec2f(0, 0), new SbVec2f(2, 1)},
                        PoArrow.PatternTypes.NOPATTERN, PoArrow.PatternTypes.DIRECTTRIANGLE, 0.1f, 0.2f);
                PoRectangle frame = new PoRectangle(new SbVec2f(-2, -2), new SbVec2f(6, 5))) {
            System.out.println("A " + pie.getTypeName() + " of " + names.length + " slices; its format: "
                    + (pie.getFormat() == null ? "none" : "set"));
            pie.setFormat(format);
            pie.setSliceToTranslate(0, 0.2f);
            System.out.println("  the format set (" + (pie.getFormat() == format) + "), slice 0 moved out by "
                    + pie.getSliceToTranslate(0) + " (the chart rebuilt at once: built " + pie.isBuilt() + ")");
            List<PoBase> shapes = List.of(frame, pie, circle, arc, arrow);
            try (SoGLRenderAction render = new SoGLRenderAction(); SoGroup scene = new SoGroup()) {
                for (PoBase shape : shapes) {
                    shape.setUpdateMethod(PoBase.UpdateMethodTypes.UPDATEMETHODONACTION);
                    scene.addChild(shape);
                }
                render.apply(scene);
                for (PoBase shape : shapes) {
                    System.out.println("  " + shape.getTypeName() + " rendered in a group: built "
                            + shape.isBuilt());
                }
                System.out.println("  what the render kept: " + Picture.summary(render.toSvg()));
            }
        } finally {
            format.dispose();
        }
    }
}
