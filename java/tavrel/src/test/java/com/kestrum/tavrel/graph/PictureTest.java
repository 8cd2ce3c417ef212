package com.kestrum.tavrel.graph;

import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertTrue;

import com.kestrum.corvel.SbColor;
import com.kestrum.corvel.SbVec2f;
import com.kestrum.corvel.actions.SoGLRenderAction;
import com.kestrum.corvel.nodes.SoGroup;
import java.util.ArrayList;
import java.util.List;
import java.util.regex.Matcher;
import java.util.regex.Pattern;
import org.junit.jupiter.api.Test;

/** The picture a render traversal keeps of the shapes and charts, as SVG. */
class PictureTest {
    private static final Pattern POLYLINE = Pattern.compile("<polyline points=\"([^\"]*)\"");

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
        assertEquals(3, count(svg, "fill=\"#ff0000\""), "the slices' colour");
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
