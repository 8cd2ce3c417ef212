package com.kestrum.tavrel.demo;

import com.kestrum.corvel.SbBox2f;
import com.kestrum.corvel.SbColor;
import com.kestrum.corvel.actions.SoGLRenderAction;
import com.kestrum.tavrel.data.PoMeshContouring;
import com.kestrum.tavrel.graph.HlsColor;
import com.kestrum.tavrel.graph.PbDomain;
import com.kestrum.tavrel.graph.PbLinearDataMapping;
import com.kestrum.tavrel.graph.PbNumericDisplayFormat;
import com.kestrum.tavrel.graph.PoBase;
import java.util.Locale;

/** Attribute objects, a graph node that rebuilds, and its rebuild events in Java. */
final class GraphSection implements Demo.Section {
    @Override
    public String title() {
        return "Graph nodes and attribute objects";
    }

    @Override
    public void run() {
        PbDomain domain = new PbDomain();
        SbBox2f square = domain.setDomain(new SbBox2f(0, 0, 10, 5), PbDomain.BoundingBoxTypes.MINBOUNDINGCUBE);
        System.out.println("Domain of the box (0, 0)..(10, 5) made the smallest square around it: " + square);

        PbLinearDataMapping mapping = new PbLinearDataMapping();
        mapping.setValues(0, new SbColor(0, 0, 1), 100, new SbColor(1, 0, 0));
        System.out.println("Linear data mapping from 0 (blue) to 100 (red): 25 has the colour " + hls(mapping
                .getHLSColor(25)) + ", 150 " + hls(mapping.getHLSColor(150)));

        PbNumericDisplayFormat format = new PbNumericDisplayFormat(PbNumericDisplayFormat.FormatTypes.FLOATFORMAT, 8, 2);
        System.out.println("Numeric format: " + format.getFormat());

        try (PoMeshContouring contouring = new PoMeshContouring()) {
            contouring.setDataMapping(mapping);
            contouring.setFormat(format);
            System.out.println("The mapping and the format colour and label a " + contouring.getTypeName()
                    + " node; it gives back the same objects: "
                    + (contouring.getDataMapping() == mapping && contouring.getFormat() == format));
        }

        PoBase rectangle = PoBase.createInstance("PoRectangle");
        try {
            System.out.println("Graph node " + rectangle.getTypeName() + " (a " + PoBase.getClassTypeName()
                    + "): update method " + rectangle.getUpdateMethod() + ", modified " + rectangle.isModified()
                    + ", built " + rectangle.isBuilt());
            rectangle.addPreRebuildListener(n -> System.out.println("    before the rebuild: modified "
                    + n.isModified() + ", built " + n.isBuilt()));
            rectangle.addPostRebuildListener(n -> System.out.println("    after the rebuild: modified "
                    + n.isModified() + ", built " + n.isBuilt() + ", on thread " + Thread.currentThread().getName()));

            System.out.println("  setDomain (the node rebuilds at once):");
            rectangle.setDomain(domain);
            System.out.println("  the node keeps the domain itself: " + (rectangle.getDomain() == domain));

            rectangle.setUpdateMethod(PoBase.UpdateMethodTypes.UPDATEMETHODONACTION);
            System.out.println("  update method " + rectangle.getUpdateMethod() + "; touchKit:");
            rectangle.touchKit();
            System.out.println("  nothing yet (modified " + rectangle.isModified() + "); a render traversal:");
            try (SoGLRenderAction render = new SoGLRenderAction()) {
                render.apply(rectangle);
                System.out.println("  the domain changes; the next render traversal:");
                domain.setDomain(0, 0, 20, 20, PbDomain.BoundingBoxTypes.ASIS);
                render.apply(rectangle);
            }

            domain.dispose();
            System.out.println("  the domain's Java object is disposed; the node still has it: "
                    + rectangle.getDomain().get2DDomain());

            Thread worker = new Thread(rectangle::rebuild, "worker");
            System.out.println("  rebuild on another thread:");
            worker.start();
            worker.join();

            rectangle.addPreRebuildListener(n -> {
                throw new IllegalStateException("refused by a listener");
            });
            try {
                rectangle.rebuild();
            } catch (IllegalStateException e) {
                System.out.println("  a listener's exception reaches the caller of rebuild: " + e.getMessage());
            }
        } catch (InterruptedException e) {
            Thread.currentThread().interrupt();
        } finally {
            rectangle.dispose();
        }
    }

    private static String hls(HlsColor c) {
        return String.format(Locale.ROOT, "hue %.0f, lightness %.2f, saturation %.2f", c.hue(), c.lightness(),
                c.saturation());
    }
}
