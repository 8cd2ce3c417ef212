package com.kestrum.tavrel.soak;

import com.kestrum.corvel.SbBox3f;
import com.kestrum.corvel.SbColor;
import com.kestrum.corvel.SbVec2f;
import com.kestrum.corvel.SbVec3f;
import com.kestrum.corvel.actions.SoAction;
import com.kestrum.corvel.actions.SoCallbackAction;
import com.kestrum.corvel.actions.SoGLRenderAction;
import com.kestrum.corvel.nodes.SoGroup;
import com.kestrum.tavrel.data.PbCell;
import com.kestrum.tavrel.data.PbMesh.DataBindings;
import com.kestrum.tavrel.data.PbRegularCartesianGrid2D;
import com.kestrum.tavrel.data.PbTriangleMesh2D;
import com.kestrum.tavrel.data.PoMeshFilled;
import com.kestrum.tavrel.data.PoMeshProbePoint;
import com.kestrum.tavrel.misc.callbacks.PoProbeCB;
import com.kestrum.tavrel.nodes.PoCellFilter;
import com.kestrum.tavrel.nodes.PoDomain;
import com.kestrum.tavrel.nodes.PoIntervalCellFilter;
import com.kestrum.tavrel.nodes.PoIsovaluesList;
import com.kestrum.tavrel.nodes.PoLinearDataMapping;
import com.kestrum.tavrel.nodes.PoNode;
import com.kestrum.tavrel.graph.PbDateFormatMapping;
import com.kestrum.tavrel.graph.PbDomain;
import com.kestrum.tavrel.graph.PbIsovaluesList;
import com.kestrum.tavrel.graph.PbLinearDataMapping;
import com.kestrum.tavrel.graph.PbMiscTextAttr;
import com.kestrum.tavrel.graph.PbNonLinearDataMapping2;
import com.kestrum.tavrel.graph.PbNumericDisplayFormat;
import com.kestrum.tavrel.graph.PoArrow;
import com.kestrum.tavrel.graph.PoBase;
import com.kestrum.tavrel.graph.PoCartesianAxis;
import com.kestrum.tavrel.graph.PoGenAxis;
import com.kestrum.tavrel.graph.PoLinearAxis;
import com.kestrum.tavrel.graph.PoLogAxis;
import com.kestrum.tavrel.graph.PoTimeAxis;
import com.kestrum.tavrel.graph.PoPieChart2D;
import com.kestrum.tavrel.graph.PoErrorCurve;
import com.kestrum.tavrel.graph.PoHistogram;
import com.kestrum.tavrel.graph.PoItemLegend;
import com.kestrum.tavrel.graph.PoLabelField;
import com.kestrum.tavrel.graph.PoSingleHistogram;
import com.kestrum.tavrel.misc.callbacks.PoRebuildCB;
import java.nio.FloatBuffer;
import java.util.List;

/**
 * The data paths of the soak, one factory each: the factory makes what the path reuses (native
 * meshes are never freed, so a path replaces the sets and the geometry of one mesh instead of
 * making new meshes), the loop it returns runs one iteration of the path. A loop checks what it
 * gets back, so that a path that stopped doing its work fails instead of looking lean.
 */
final class DataPaths {
    private DataPaths() {}

    /** One iteration of a path; close frees what the factory made. */
    interface Loop extends AutoCloseable {
        void step(int i);

        @Override
        default void close() {}
    }

    private static final int NODES = 5 * 5;
    private static final int CELLS = 4 * 4;

    /** A 5 x 5 node grid (16 cells) over the unit square. */
    private static PbRegularCartesianGrid2D grid() {
        return new PbRegularCartesianGrid2D(5, 5, 0, 0, 1, 1, true);
    }

    private static float[] values(int n) {
        float[] values = new float[n];
        for (int k = 0; k < n; k++) {
            values[k] = k * 0.25f;
        }
        return values;
    }

    private static SbVec3f[] vectors(int n) {
        SbVec3f[] vectors = new SbVec3f[n];
        for (int k = 0; k < n; k++) {
            vectors[k] = new SbVec3f(k, 1, -k);
        }
        return vectors;
    }

    static void check(boolean condition, String what) {
        if (!condition) {
            throw new IllegalStateException(what);
        }
    }

    /** Values and vecs sets replaced, then read back as Java arrays. */
    static Loop setsByCopy() {
        PbRegularCartesianGrid2D mesh = grid();
        float[] values = values(NODES);
        SbVec3f[] vectors = vectors(NODES);
        return i -> {
            int k = i % NODES;
            values[k] = i;
            mesh.addValuesSet(0, values, "values");
            mesh.addVecsSet(1, vectors, "vectors");
            float[] back = mesh.getValuesSet(0);
            SbVec3f[] vectorsBack = mesh.getVecsSet(1);
            check(back[k] == values[k] && vectorsBack.length == NODES, "sets read back");
        };
    }

    /** Values and vecs sets replaced, then read through direct buffers over the mesh's memory. */
    static Loop setsByDirectBuffer() {
        PbRegularCartesianGrid2D mesh = grid();
        float[] values = values(NODES);
        SbVec3f[] vectors = vectors(NODES);
        return i -> {
            int k = i % NODES;
            values[k] = i;
            mesh.addValuesSet(0, values, DataBindings.PER_NODE, "values");
            mesh.addVecsSet(1, vectors, "vectors");
            FloatBuffer direct = mesh.getDirectValuesSet(0);
            FloatBuffer directVectors = mesh.getDirectVecsSet(1);
            check(direct.get(k) == values[k] && directVectors.capacity() == 3 * NODES, "direct buffers");
        };
    }

    /** Strings sets added under alternating names, renamed by replacement, and removed. */
    static Loop stringsSets() {
        PbRegularCartesianGrid2D mesh = grid();
        String[] labels = new String[NODES];
        for (int k = 0; k < NODES; k++) {
            labels[k] = "node " + k;
        }
        return i -> {
            labels[i % NODES] = "node " + i;
            String name = (i & 1) == 0 ? "labels" : "names";
            mesh.addStringsSet(0, labels, name);
            check(name.equals(mesh.getStringsSetName(0)), "strings set name");
            if (i % 4 == 3) {
                check(mesh.removeStringsSet(0), "strings set removed");
            }
        };
    }

    /**
     * The geometry of a triangle mesh with a values, a vecs and a strings set replaced by one of
     * four or one of six nodes in turn (the sets are resized each time); then a cell of the new
     * geometry is measured.
     */
    static Loop geometryReplacement() {
        float[] squareX = {0, 1, 1, 0};
        float[] squareY = {0, 0, 1, 1};
        float[] rectangleX = {0, 1, 2, 2, 1, 0};
        float[] rectangleY = {0, 0, 0, 1, 1, 1};
        PbTriangleMesh2D mesh = new PbTriangleMesh2D(4, squareX, squareY, 2, new int[] {0, 1, 2, 0, 2, 3}, true);
        mesh.addValuesSet(0, values(4), "values");
        mesh.addVecsSet(1, vectors(4), "vectors");
        mesh.addStringsSet(2, new String[] {"a", "b", "c", "d"}, "labels");
        return i -> {
            boolean square = (i & 1) == 1;
            if (square) {
                mesh.setGeometry(4, squareX, squareY);
            } else {
                mesh.setGeometry(6, rectangleX, rectangleY);
            }
            PbCell cell = mesh.getCell(mesh.getNumCells() - 1);
            check(Math.abs(mesh.getArea() - (square ? 1 : 2)) < 1e-5f && cell.getArea() > 0, "geometry replaced");
            check(mesh.getValuesSet(0).length == (square ? 4 : 6), "sets resized");
        };
    }

    /**
     * A probe walking through a 4 x 1 cell grid and out again: each iteration moves it and
     * applies an action, which raises its events (enter, change of cell, motion, leave); the
     * listener reads the cell it is given and interpolates the set at the probe. The callback
     * objects are made once: their native bridges are never freed, by design.
     */
    static Loop probeEvents() {
        PbRegularCartesianGrid2D mesh = new PbRegularCartesianGrid2D(5, 2, 0, 0, 4, 1, true);
        float[] values = new float[10];
        for (int k = 0; k < 5; k++) {
            values[2 * k] = values[2 * k + 1] = k * 10f;
        }
        mesh.addValuesSet(0, values, "ten times x");
        float[] xs = {-0.5f, 0.5f, 0.75f, 1.5f, 3.5f, 4.5f};
        float[] point = new float[3];
        int[] events = new int[1];
        PoMeshProbePoint probe = new PoMeshProbePoint();
        SoCallbackAction action = new SoCallbackAction();
        probe.setMesh(mesh);
        PoProbeCB.Listener listener = (p, cell, cellHandle, event) -> {
            events[0]++;
            if (cell != null && event.equals("motion")) {
                float[] pcoord = new float[3];
                cell.locatePoint(new SbVec3f(point), 1e-4f, pcoord);
                float value = cell.getValue(new SbVec3f(pcoord), values);
                check(Math.abs(value - point[0] * 10) < 1e-3f && cell.getIndex() == (int) point[0],
                        "value at the probe");
            }
        };
        probe.setMotionCallback(new PoProbeCB(listener), "motion");
        probe.setChangeCellCallback(new PoProbeCB(listener), "change");
        probe.setEnterMeshCallback(new PoProbeCB(listener), "enter");
        probe.setLeaveMeshCallback(new PoProbeCB(listener), "leave");
        return new Loop() {
            @Override
            public void step(int i) {
                int before = events[0];
                point[0] = xs[i % xs.length];
                point[1] = 0.5f;
                probe.setPosition(point[0], point[1], 0);
                action.apply(probe);
                check(events[0] > before, "probe events");
            }

            @Override
            public void close() {
                action.dispose();
                probe.dispose();
            }
        };
    }

    /** Counts the render traversals that reach it, then lets the toolkit traverse its children. */
    static final class CountingNode extends PoNode {
        static int renders;

        CountingNode() {
            super("SoakCountingNode");
        }

        @Override
        public void GLRender(SoGLRenderAction action) {
            renders++;
            super.GLRender(action);
        }
    }

    /** A Java node made, put in a group, rendered (the toolkit calls its override) and disposed. */
    static Loop javaNodeTraversals() {
        SoGLRenderAction render = new SoGLRenderAction();
        return new Loop() {
            @Override
            public void step(int i) {
                int before = CountingNode.renders;
                try (CountingNode node = new CountingNode(); SoGroup root = new SoGroup()) {
                    root.addChild(node);
                    render.apply(root);
                }
                check(CountingNode.renders == before + 1, "Java node rendered");
            }

            @Override
            public void close() {
                render.dispose();
            }
        };
    }

    /** Accepts the cells whose value lies in a band, and counts the questions. */
    static final class BandFilter extends PoCellFilter {
        int asked;

        BandFilter() {
            super("SoakBandFilter");
        }

        @Override
        public boolean acceptCell(int cellIndex, float value) {
            asked++;
            return value >= 1 && value < 3;
        }
    }

    /**
     * A Java cell filter before a representation of a 16-cell grid, asked by the toolkit about
     * every cell in render and callback traversals, in turn.
     */
    static Loop cellFilterTraversals() {
        PbRegularCartesianGrid2D mesh = grid();
        mesh.addValuesSet(0, values(CELLS), DataBindings.PER_CELL, "per cell");
        BandFilter filter = new BandFilter();
        PoMeshFilled filled = new PoMeshFilled();
        SoGroup root = new SoGroup();
        SoAction[] actions = {new SoGLRenderAction(), new SoCallbackAction()};
        filled.setMesh(mesh);
        root.addChild(filter);
        root.addChild(filled);
        return new Loop() {
            @Override
            public void step(int i) {
                int before = filter.asked;
                actions[i & 1].apply(root);
                check(filter.asked == before + CELLS, "filter asked about every cell");
            }

            @Override
            public void close() {
                for (SoAction action : actions) {
                    action.dispose();
                }
                root.dispose();
                filled.dispose();
                filter.dispose();
            }
        };
    }

    /**
     * A data mapping, an isovalue list, a domain and an interval cell filter made as property nodes,
     * changed through their fields and methods, traversed before a representation of a mesh made
     * once (render and callback in turn), read back (the list as a copy and a direct buffer, a
     * field of the representation by name) and disposed. The field views are dropped, not
     * disposed, so the mapping's and the filter's native nodes live until their views are collected.
     */
    static Loop propertyNodeTraversals() {
        PbRegularCartesianGrid2D mesh = grid();
        mesh.addValuesSet(0, values(CELLS), DataBindings.PER_CELL, "per cell");
        PoMeshFilled filled = new PoMeshFilled();
        filled.setMesh(mesh);
        SoAction[] actions = {new SoGLRenderAction(), new SoCallbackAction()};
        return new Loop() {
            @Override
            public void step(int i) {
                try (PoLinearDataMapping mapping = new PoLinearDataMapping();
                        PoIsovaluesList isovalues = new PoIsovaluesList();
                        PoDomain domain = new PoDomain();
                        PoIntervalCellFilter filter = new PoIntervalCellFilter();
                        SoGroup root = new SoGroup()) {
                    mapping.getField("value2").setValue(Integer.toString(CELLS));
                    isovalues.setRegularIsoList(0f, CELLS, 1 + (i & 7));
                    filter.getField("max").setValue(Integer.toString(CELLS / 2));
                    domain.setValues(new SbVec2f(0, 0), new SbVec2f(4, 4), PoDomain.BoundingBoxTypes.ASIS);
                    root.addChild(mapping);
                    root.addChild(isovalues);
                    root.addChild(domain);
                    root.addChild(filter);
                    root.addChild(filled);
                    actions[i & 1].apply(root);
                    check(isovalues.getIsoList().values().length == 1 + (i & 7), "isovalues read back");
                    check(isovalues.getDirectIsoList().remaining() == 1 + (i & 7), "isovalues shown");
                    check(!filled.getField("isovalues").get().isEmpty(), "the representation had the isovalues");
                }
            }

            @Override
            public void close() {
                for (SoAction action : actions) {
                    action.dispose();
                }
                filled.dispose();
            }
        };
    }

    /**
     * A graph node made by the toolkit and disposed, with a pre- and a post-rebuild callback
     * object, rebuilt at once by a change and again by a render traversal. The callback objects
     * and the domain are made once: their native parts (bridges, attribute objects) are never
     * freed.
     */
    static Loop graphRebuilds() {
        PbDomain domain = new PbDomain(0, 0, 4, 4, PbDomain.BoundingBoxTypes.ASIS);
        SoGLRenderAction render = new SoGLRenderAction();
        int[] events = new int[1];
        PoRebuildCB pre = new PoRebuildCB((node, handle, data) -> events[0] += (Integer) data);
        PoRebuildCB post = new PoRebuildCB((node, handle, data) -> events[0] += node instanceof PoBase ? 10 : 0);
        return new Loop() {
            @Override
            public void step(int i) {
                int before = events[0];
                try (PoBase node = PoBase.createInstance("PoRectangle")) {
                    node.addPreRebuildCallback(pre, 1);
                    node.addPostRebuildCallback(post, null);
                    node.setDomain(domain); // rebuilt at once
                    node.setUpdateMethod(PoBase.UpdateMethodTypes.UPDATEMETHODONACTION);
                    node.touchKit();
                    render.apply(node); // rebuilt by the traversal
                    check(node.getDomain() == domain && node.isBuilt(), "graph node built with its domain");
                }
                check(events[0] == before + 22, "rebuild events");
            }

            @Override
            public void close() {
                render.dispose();
            }
        };
    }

    /**
     * A pie chart made from names, values and colour objects and disposed, a slice moved out,
     * and an arrow made from vector objects and disposed; each rendered.
     */
    static Loop pieCharts() {
        SoGLRenderAction render = new SoGLRenderAction();
        String[] names = {"north", "east", "south", "west"};
        SbColor[] colors = {new SbColor(1, 0, 0), new SbColor(0, 1, 0), new SbColor(0, 0, 1)};
        SbVec2f[] points = {new SbVec2f(0, 0), new SbVec2f(1, 1), new SbVec2f(2, 0)};
        return new Loop() {
            @Override
            public void step(int i) {
                float[] values = {1 + i % 7, 2, 3, 4};
                try (PoPieChart2D pie = PoPieChart2D.of(new SbVec2f(0, 0), 1, names, values, colors);
                        PoArrow arrow = PoArrow.along(points, PoArrow.PatternTypes.NOPATTERN,
                                PoArrow.PatternTypes.DIRECTTRIANGLE, 0.1f, 0.1f)) {
                    pie.setSliceToTranslate(i % 4, 0.25f);
                    check(pie.getSliceToTranslate(i % 4) == 0.25f, "slice moved out");
                    render.apply(pie);
                    render.apply(arrow);
                    check(arrow.isBuilt(), "arrow built by the render");
                }
            }

            @Override
            public void close() {
                render.dispose();
            }
        };
    }

    /** Every attribute object changed and read back, through copies, lists and direct buffers. */
    static Loop attributeObjects() {
        PbDomain domain = new PbDomain();
        PbLinearDataMapping linear = new PbLinearDataMapping();
        PbNonLinearDataMapping2 lists = new PbNonLinearDataMapping2();
        PbIsovaluesList isovalues = new PbIsovaluesList();
        PbMiscTextAttr text = new PbMiscTextAttr();
        PbNumericDisplayFormat format = new PbNumericDisplayFormat(PbNumericDisplayFormat.FormatTypes.FLOATFORMAT, 6, 2);
        PbDateFormatMapping dates = new PbDateFormatMapping();
        SbColor[] colors = {new SbColor(1, 0, 0), new SbColor(0, 1, 0), new SbColor(0, 0, 1)};
        return i -> {
            float v = i % 100;
            SbBox3f kept = domain.setDomain(new SbBox3f(0, 0, 0, v + 1, 2, 3), PbDomain.BoundingBoxTypes.MINBOUNDINGCUBE);
            check(domain.get3DDomain().equals(kept) && domain.getMatrix().length == 4, "domain");
            linear.setValues(v, colors[0], 0.5f, v + 1, colors[2], 1);
            check(linear.getRGBAValues().get(0).value() == v && linear.getHLSColor(v).hue() == 0, "linear mapping");
            lists.setValues(PbNonLinearDataMapping2.Types.NONLINEARPERLEVEL, 2, new float[] {v, v + 1}, colors,
                    new float[] {0, 0.5f, 1});
            FloatBuffer direct = lists.getDirectRGBColorsList();
            check(lists.getValuesList()[0] == v && direct.get(8) == 1 && lists.getRGBColorsList().length == 3,
                    "list mapping");
            isovalues.setRegularIsoList(0f, v, 5);
            check(isovalues.getIsoList().values()[4] == v && isovalues.getDirectIsoList().capacity() == 5,
                    "isovalues");
            text.setFontName(i % 2 == 0 ? "Sans" : "Serif");
            check(text.getFontName().length() > 3, "text attributes");
            format.setFormat(PbNumericDisplayFormat.FormatTypes.INTEGERFORMAT, i % 8, 0);
            check(format.getFormat().width() == i % 8, "numeric format");
            check(dates.setFormat(i % 2 == 0 ? "%Y" : "%d.%m.%Y") && dates.getCoordinate("2000-01-03") == 2, "dates");
        };
    }

    /**
     * Axes made from decade lists, string graduations and dates, rebuilt and read back (labels,
     * the decade list, tick counts), and disposed; the format and date mapping are made once.
     */
    static Loop axes() {
        PbNumericDisplayFormat format = new PbNumericDisplayFormat(PbNumericDisplayFormat.FormatTypes.FLOATFORMAT, 0, 1);
        PbDateFormatMapping dates = new PbDateFormatMapping("2024-01-01", "2024-01-02", 0, 1, "%d/%m");
        SbVec3f origin = new SbVec3f(0, 0, 0);
        String[] labels = {"low", "mid", "high"};
        return i -> {
            try (PoLinearAxis linear = new PoLinearAxis(origin, 100, PoCartesianAxis.Types.XY, 25);
                    PoLogAxis log = new PoLogAxis(origin, 2, PoCartesianAxis.Types.XY,
                            PoLogAxis.DecadeListDefs.DECADELISTNONAUTO, new int[] {1, 2, 5});
                    PoGenAxis gen = new PoGenAxis(origin, 1, PoCartesianAxis.Types.XY, labels);
                    PoTimeAxis time = new PoTimeAxis("2024-01-01", "2024-01-04", 0, PoTimeAxis.Types.X)) {
                linear.setFormat(format);
                time.setDateFormatMapping(dates);
                log.rebuild();
                gen.rebuild();
                check(linear.getGraduations().get(4).equals("100.0") && linear.getTick().mainTicks() == 5, "linear axis");
                check(log.getGraduations().size() == 7 && log.getLogGrad().decades().length == 3, "log axis");
                check(gen.getGrad().labels().equals("low\nmid\nhigh"), "generalised axis");
                check(time.getGraduations().get(3).equals("04/01"), "time axis");
            }
        };
    }

    /** Curves, histograms, labels and legends made from Java arrays, rebuilt and disposed of. */
    static Loop chartsFromArrays() {
        float[] xy = {0, 1, 1, 3, 2, 2, 3, 5};
        float[] variation = {0.5f, 0.25f, 0.5f, 1};
        SbVec2f[] points = {new SbVec2f(0, 1), new SbVec2f(1, 3), new SbVec2f(2, 2)};
        String[] names = {"north", "süd", "東 \uD83D\uDE00"};
        SbColor[] colors = {new SbColor(1, 0, 0), new SbColor(0, 1, 0), new SbColor(0, 0, 1)};
        PbMiscTextAttr text = new PbMiscTextAttr();
        return i -> {
            float[] values = {i % 7, 2, 3};
            try (PoErrorCurve curve = new PoErrorCurve(xy, variation, variation,
                    PoErrorCurve.VariationTypes.FIXEDVARIATION, PoErrorCurve.ErrorCurveReps.LINEBAR);
                    PoSingleHistogram histogram = new PoSingleHistogram(new SbVec2f(0, 0), 6, PoHistogram.Types.X,
                            3, values, names);
                    PoLabelField labels = new PoLabelField(3, points, names, values, 0,
                            PoLabelField.ConcatTypes.STRINGBEFOREVALUE, PoLabelField.Justifications.LEFT,
                            PoLabelField.VerticalJustifications.BASE);
                    PoItemLegend legend = new PoItemLegend(new SbVec2f(0, 0), new SbVec2f(1, 1), 3, names, colors)) {
                histogram.setMiscTextAttr(text);
                for (PoBase node : List.of(curve, histogram, labels, legend)) {
                    node.rebuild();
                    check(node.isBuilt(), "chart built");
                }
                check(histogram.getMiscTextAttr() == text, "histogram text attributes");
            }
        };
    }
}
