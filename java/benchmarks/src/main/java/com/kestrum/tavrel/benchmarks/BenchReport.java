package com.kestrum.tavrel.benchmarks;

import java.io.IOException;
import java.nio.charset.StandardCharsets;
import java.nio.file.Files;
import java.nio.file.Path;
import java.util.ArrayList;
import java.util.LinkedHashMap;
import java.util.List;
import java.util.Locale;
import java.util.Map;
import java.util.TreeSet;

/**
 * Turns the CSV files of {@link RunBenchmarks} (one per JDK) into each path's ratio to its floor,
 * a CSV file of those ratios, the data files of the plots, and the results section of
 * BENCHMARKS.md (between the lines {@value #BEGIN} and {@value #END}).
 *
 * <p>Arguments: {@code --out <folder>} (ratios.csv and the plot data go there), optionally
 * {@code --markdown <file>} (the section to replace) and {@code --info <file>} (lines about the
 * machine and the run, quoted in the section), then the CSV files. Without {@code --markdown}
 * the table is printed.
 */
public final class BenchReport {
    /** The first line of a results file. */
    static final String RAW_HEADER = "jdk,benchmark,size,samples,mean,error,median,unit,alloc";
    static final String BEGIN = "<!-- results:begin (make bench writes this section) -->";
    static final String END = "<!-- results:end -->";
    /** A path counts as flat while its cost per element at the largest size stays within this. */
    static final double FLAT = 1.25;
    /**
     * Rows whose ratio is a path's step in cost per element, from its floor size to its size,
     * divided by its floor benchmark's step between the same sizes.
     */
    static final String STEP_AGAINST_FLOOR = "step-";

    private BenchReport() {}

    /** One measured benchmark. */
    record Measure(double median, double mean, double error, String unit, double alloc) {
        double relativeError() {
            return mean == 0 ? Double.NaN : error / mean;
        }
    }

    /** A comparison: a path against its floor (the same benchmark at the smallest size, for flatness). */
    record Ratio(String id, String path, String floor, String benchmark, String size, String floorBenchmark,
            String floorSize, double goal, String goalText) {}

    static final List<Ratio> RATIOS = concat(List.of(
            new Ratio("thin-getter", "thin getter `PbMesh.getNumNodes()`", "empty instance native taking a `long`",
                    "ThinGetterBenchmark.getNumNodes", "", "ThinGetterBenchmark.emptyGetterFloor", "", 1.10, "≤ 1.10"),
            new Ratio("thin-getter-toolkit", "thin getter `PbMesh.getNumNodes()`",
                    "the same native shape calling the toolkit's accessor", "ThinGetterBenchmark.getNumNodes", "",
                    "ThinGetterBenchmark.toolkitGetterFloor", "", 1.10, "≤ 1.10"),
            new Ratio("addVecsSet-1k", "`addVecsSet`, 1,000 vectors", "raw conversion loop, same size",
                    "AddVecsSetBenchmark.addVecsSet", "1000", "AddVecsSetBenchmark.vectorLoopFloor", "1000", 1.10,
                    "≤ 1.10"),
            new Ratio("addVecsSet-100k", "`addVecsSet`, 100,000 vectors", "raw conversion loop, same size",
                    "AddVecsSetBenchmark.addVecsSet", "100000", "AddVecsSetBenchmark.vectorLoopFloor", "100000", 1.10,
                    "≤ 1.10"),
            new Ratio("addVecsSet-1M", "`addVecsSet`, 1,000,000 vectors", "raw conversion loop, same size",
                    "AddVecsSetBenchmark.addVecsSet", "1000000", "AddVecsSetBenchmark.vectorLoopFloor", "1000000",
                    1.10, "≤ 1.10"),
            new Ratio("addVecsSet-flat", "`addVecsSet` ns/vector at 1,000,000", "its ns/vector at 1,000",
                    "AddVecsSetBenchmark.addVecsSet", "1000000", "AddVecsSetBenchmark.addVecsSet", "1000", FLAT,
                    "flat (≤ 1.25)"),
            new Ratio("direct-1M", "`getDirectValuesSet` (obtain), 1,000,000 values", "the same at 1,000 values",
                    "DataSetBenchmark.getDirectValuesSet", "1000000", "DataSetBenchmark.getDirectValuesSet", "1000",
                    FLAT, "flat (≤ 1.25)"),
            new Ratio("direct-16M", "`getDirectValuesSet` (obtain), 16,000,000 values", "the same at 1,000 values",
                    "DataSetBenchmark.getDirectValuesSet", "16000000", "DataSetBenchmark.getDirectValuesSet", "1000",
                    FLAT, "flat (≤ 1.25)"),
            new Ratio("copy-16M", "`getValuesSet` (copy) ns/value, 16,000,000 values", "its ns/value at 1,000",
                    "DataSetBenchmark.getValuesSet", "16000000", "DataSetBenchmark.getValuesSet", "1000", Double.NaN,
                    "linear (none)"),
            new Ratio("read-1M", "read 1,000,000 values through the direct buffer", "through the copy",
                    "DataSetBenchmark.readDirect", "1000000", "DataSetBenchmark.readCopy", "1000000", Double.NaN,
                    "(none)"),
            new Ratio("forwarded-call", "forwarded `GLRender` per Java node (render of 1,000)",
                    "bare upcall passing one object", "ForwardedCallBenchmark.renderJavaNodes", "",
                    "ForwardedCallBenchmark.objectUpcallFloor", "", Double.NaN,
                    "(none: its JNI calls alone, below)"),
            new Ratio("cell-filter", "Java cell filter per cell (render of 1,000,000 cells)",
                    "bare boolean upcall from two primitives", "CellFilterBenchmark.renderFilteredMesh", "",
                    "CellFilterBenchmark.booleanUpcallFloor", "", Double.NaN,
                    "(none: its JNI calls alone, below)"),
            new Ratio("probe-event", "probe motion event to a Java listener", "bare upcall passing one object",
                    "ProbeEventBenchmark.motionEvents", "", "ProbeEventBenchmark.objectUpcallFloor", "", Double.NaN,
                    "(none)"),
            new Ratio("forwarded-call-jni", "forwarded `GLRender` per Java node",
                    "its JNI calls alone, around the same upcall", "ForwardedCallBenchmark.renderJavaNodes", "",
                    "ForwardedCallBenchmark.jniSequenceFloor", "", 1.15, "≤ 1.15"),
            new Ratio("cell-filter-jni", "Java cell filter per cell", "its JNI calls alone, around the same upcall",
                    "CellFilterBenchmark.renderFilteredMesh", "", "CellFilterBenchmark.jniSequenceFloor", "",
                    1.15, "≤ 1.15"),
            new Ratio("probe-event-jni", "probe motion event to a Java listener",
                    "the bridge's JNI calls alone, around an empty upcall", "ProbeEventBenchmark.motionEvents", "",
                    "ProbeEventBenchmark.jniSequenceFloor", "", 1.15, "≤ 1.15"),
            new Ratio("element-push-jni", "Java element's forwarded push and pop, per separator (render of 1,000)",
                    "their JNI calls alone, around the same upcalls", "ElementPushBenchmark.renderSeparators", "",
                    "ElementPushBenchmark.jniSequenceFloor", "", 1.15, "≤ 1.15"),
            new Ratio("rebuild-event-jni", "graph node's rebuild event to a Java listener",
                    "the bridge's JNI calls alone, around an empty upcall", "RebuildCallbackBenchmark.rebuildEvents",
                    "", "RebuildCallbackBenchmark.jniSequenceFloor", "", 1.15, "≤ 1.15"),
            new Ratio("panama-plain", "thin getter through JNI", "plain downcall (`java.lang.foreign`)",
                    "PanamaBenchmark.jniGetNumNodes", "", "PanamaBenchmark.downcallPlain", "", 1.10, "≤ 1.10"),
            new Ratio("panama-critical", "thin getter through JNI", "critical downcall (out of JNI's reach)",
                    "PanamaBenchmark.jniGetNumNodes", "", "PanamaBenchmark.downcallCritical", "", Double.NaN,
                    "(floor JNI cannot reach)")), bulkRatios());

    /**
     * The graph nodes built from arrays against their conversions alone, and the flatness of each
     * bulk path (cost per element at its largest size against its smallest); then the direct
     * buffers against the copies.
     */
    private static List<Ratio> bulkRatios() {
        final double goal = 1.20;  // of a bulk conversion path against its floor
        final String[] sizes = {"1000", "100000", "10000000"};
        List<Ratio> list = new ArrayList<>();
        // Each build: its benchmark, what it builds, its floor of the conversions alone, its floor
        // with the toolkit's own work, and the id of its rows.
        String[][] builds = {{"curveFromVectors", "curve from `SbVec2f[]`", "curveFloor", "curveToolkitFloor", "curve"},
            {"curveFromFloats", "curve from `float[]` x, y pairs", "curveFloor", "curveFromFloatsToolkitFloor",
                "curve-xy"},
            {"markerField", "valued marker field (points, 2 value lists)", "markerFieldFloor",
                "markerFieldToolkitFloor", "markers"},
            {"multipleHistogram", "multiple histogram (10 histograms; values, names)", "multipleHistogramFloor",
                "multipleHistogramToolkitFloor", "histogram"},
            {"isovalueList", "irregular isovalue list", "isovalueListFloor", "isovalueListToolkitFloor", "isovalues"}};
        String[][] floors = {{"", "its conversions' JNI calls alone, same size", "2"},
            {"tk-", "its conversions and the toolkit's own work", "3"}};
        for (String[] floor : floors) {
            for (String[] b : builds) {
                for (String size : sizes) {
                    list.add(new Ratio(b[4] + "-" + floor[0] + shortCount(size), b[1] + ", " + count(size), floor[1],
                            "GraphBuildBenchmark." + b[0], size,
                            "GraphBuildBenchmark." + b[Integer.parseInt(floor[2])], size, goal, "≤ 1.20"));
                }
            }
        }
        for (String size : new String[] {"1000", "32000"}) {
            list.add(new Ratio("pie-tk-" + shortCount(size), "pie chart, " + count(size) + " slices",
                    "its conversions and the toolkit's own work", "PieChartBenchmark.pieChart", size,
                    "PieChartBenchmark.pieChartToolkitFloor", size, goal, "≤ 1.20"));
        }
        for (String size : new String[] {"1000", "32000"}) {
            list.add(new Ratio("pie-" + shortCount(size), "pie chart (names, values, colours), " + count(size) + " slices",
                    "its conversions' JNI calls alone, same size", "PieChartBenchmark.pieChart", size,
                    "PieChartBenchmark.pieChartFloor", size, goal, "≤ 1.20"));
        }
        String[][] flat = {
            {"GraphBuildBenchmark.curveFromVectors", "curve from `SbVec2f[]`", "10000000", "1000", "curve"},
            {"GraphBuildBenchmark.curveFromFloats", "curve from `float[]`", "10000000", "1000", "curve-xy"},
            {"GraphBuildBenchmark.markerField", "marker field", "10000000", "1000", "markers"},
            {"GraphBuildBenchmark.multipleHistogram", "multiple histogram", "10000000", "1000", "histogram"},
            {"GraphBuildBenchmark.isovalueList", "isovalue list", "10000000", "1000", "isovalues"},
            {"PieChartBenchmark.pieChart", "pie chart", "32000", "1000", "pie"},
            {"GraphRenderBenchmark.renderCurve", "render of the curve", "10000000", "1000", "render-curve"},
            {"GraphRenderBenchmark.renderMarkerField", "render of the marker field", "10000000", "1000",
                "render-markers"},
            {"HistogramRenderBenchmark.renderMultipleHistogram", "render of the multiple histogram", "1000000", "1000",
                "render-histogram"},
            {"PieChartBenchmark.renderPieChart", "render of the pie chart", "32000", "1000", "render-pie"},
            {"MeshFilterBenchmark.javaFilter", "render of a mesh through a Java cell filter", "10000000", "10000",
                "mesh-java"},
            {"MeshFilterBenchmark.intervalFilter", "render of a mesh through `PoIntervalCellFilter`", "10000000",
                "10000", "mesh-interval"}};
        for (String[] f : flat) {
            list.add(new Ratio(f[4] + "-flat", f[1] + ", per element at " + count(f[2]),
                    "its time per element at " + count(f[3]), f[0], f[2], f[0], f[3], FLAT, "flat (≤ 1.25)"));
        }
        // The builds that are not flat, against their floors' own steps.
        for (String[] b : builds) {
            if (List.of("curve-xy", "histogram", "isovalues").contains(b[4])) {
                list.add(new Ratio(STEP_AGAINST_FLOOR + b[4], b[1] + ", step per element from 1,000 to 10,000,000",
                        "its floor's step (conversions and the toolkit's work) between the same sizes",
                        "GraphBuildBenchmark." + b[0], "10000000", "GraphBuildBenchmark." + b[3], "1000", FLAT,
                        "≤ 1.25"));
            }
        }
        list.add(new Ratio("read-isovalues-1M", "read 1,000,000 isovalues through the direct buffer", "through the copy",
                "AttributeBenchmark.isovaluesDirect", "1000000", "AttributeBenchmark.isovaluesCopy", "1000000",
                Double.NaN, "(none)"));
        list.add(new Ratio("read-colors-1M", "read a data mapping's 1,000,000 colours through the direct buffer",
                "through the copy (`SbColor[]`)", "AttributeBenchmark.colorsDirect", "1000000",
                "AttributeBenchmark.colorsCopy", "1000000", Double.NaN, "(none)"));
        return list;
    }

    private static List<Ratio> concat(List<Ratio> a, List<Ratio> b) {
        List<Ratio> all = new ArrayList<>(a);
        all.addAll(b);
        return List.copyOf(all);
    }

    /** 1k, 100k, 10M. */
    private static String shortCount(String size) {
        long n = Long.parseLong(size);
        return n >= 1_000_000 ? n / 1_000_000 + "M" : n >= 1000 ? n / 1000 + "k" : size;
    }

    private static String count(String size) {
        return String.format(Locale.ROOT, "%,d", Long.parseLong(size));
    }

    /** An allocation row: a benchmark (and size) and the goal of its bytes per call. */
    record Allocation(String path, String benchmark, String size, String goal) {}

    static final List<Allocation> ALLOCATIONS = List.of(
            new Allocation("thin getter `PbMesh.getNumNodes()`", "ThinGetterBenchmark.getNumNodes", "", "0"),
            new Allocation("setter `PbLinearDataMapping.setMinThreshold(float)`", "ThinGetterBenchmark.setMinThreshold",
                    "", "0"),
            new Allocation("setter `setMinThreshold(float, SbColor, float)` (the colour crosses as a copy)",
                    "ThinGetterBenchmark.setMinThresholdColor", "", "constant (32: a `float[3]`)"),
            new Allocation("`addVecsSet`, 1,000 vectors", "AddVecsSetBenchmark.addVecsSet", "1000", "constant per call"),
            new Allocation("`addVecsSet`, 1,000,000 vectors", "AddVecsSetBenchmark.addVecsSet", "1000000",
                    "constant per call"),
            new Allocation("Java cell filter, per cell (render of 1,000,000 cells)", "CellFilterBenchmark.renderFilteredMesh",
                    "", "0 per cell"),
            new Allocation("render through a Java cell filter, 10,000 cells", "MeshFilterBenchmark.javaFilter", "10000",
                    "constant per render"),
            new Allocation("render through a Java cell filter, 10,000,000 cells", "MeshFilterBenchmark.javaFilter",
                    "10000000", "constant per render"),
            new Allocation("curve from `SbVec2f[]`, 1,000 points", "GraphBuildBenchmark.curveFromVectors", "1000",
                    "constant per call"),
            new Allocation("curve from `SbVec2f[]`, 10,000,000 points", "GraphBuildBenchmark.curveFromVectors",
                    "10000000", "constant per call"),
            new Allocation("curve from `float[]`, 1,000 points", "GraphBuildBenchmark.curveFromFloats", "1000",
                    "a vector a point"),
            new Allocation("curve from `float[]`, 10,000,000 points", "GraphBuildBenchmark.curveFromFloats", "10000000",
                    "a vector a point"));

    /**
     * Writes the report.
     *
     * @param args the options and CSV files described in the class comment
     * @throws IOException when a file cannot be read or written
     */
    public static void main(String[] args) throws IOException {
        Path out = null;
        Path markdown = null;
        Path info = null;
        List<Path> inputs = new ArrayList<>();
        for (int i = 0; i < args.length; i++) {
            switch (args[i]) {
                case "--out" -> out = Path.of(args[++i]);
                case "--markdown" -> markdown = Path.of(args[++i]);
                case "--info" -> info = Path.of(args[++i]);
                default -> inputs.add(Path.of(args[i]));
            }
        }
        if (out == null || inputs.isEmpty()) {
            throw new IllegalArgumentException("usage: BenchReport --out <folder> [--markdown <file>] [--info <file>] <csv>...");
        }
        // jdk -> "benchmark|size" -> measure
        Map<String, Map<String, Measure>> byJdk = new LinkedHashMap<>();
        for (Path input : inputs) {
            if (!Files.exists(input)) {
                continue;
            }
            for (String line : Files.readAllLines(input, StandardCharsets.UTF_8)) {
                if (line.isBlank() || line.startsWith("jdk,")) {
                    continue;
                }
                String[] f = line.split(",", -1);
                // Files of earlier runs have no allocation column.
                double alloc = f.length > 8 && !f[8].isEmpty() ? Double.parseDouble(f[8]) : Double.NaN;
                byJdk.computeIfAbsent(f[0], k -> new LinkedHashMap<>()).put(f[1] + "|" + f[2],
                        new Measure(Double.parseDouble(f[6]), Double.parseDouble(f[4]), Double.parseDouble(f[5]), f[7],
                                alloc));
            }
        }
        List<String> jdks = new ArrayList<>(new TreeSet<>(byJdk.keySet()));
        jdks.sort((a, b) -> Integer.parseInt(a) - Integer.parseInt(b));
        Files.createDirectories(out);

        List<String> ratioCsv = new ArrayList<>();
        ratioCsv.add("id,jdk,ratio,error,goal,met");
        StringBuilder table = new StringBuilder();
        table.append("| path | floor | goal |");
        for (String jdk : jdks) {
            table.append(" JDK ").append(jdk).append(": path, floor | ratio |");
        }
        table.append('\n').append("|---|---|---|");
        for (int i = 0; i < jdks.size(); i++) {
            table.append("---|---|");
        }
        table.append('\n');
        StringBuilder ratioDat = new StringBuilder("id goal");
        for (String jdk : jdks) {
            ratioDat.append(" \"JDK ").append(jdk).append("\" error");
        }
        ratioDat.append('\n');
        for (Ratio r : RATIOS) {
            StringBuilder row = new StringBuilder();
            row.append("| ").append(r.path()).append(" | ").append(r.floor()).append(" | ").append(r.goalText()).append(" |");
            StringBuilder dat = new StringBuilder(r.id()).append(' ').append(Double.isNaN(r.goal()) ? "NaN" : fmt(r.goal()));
            boolean any = false;
            for (String jdk : jdks) {
                Map<String, Measure> m = byJdk.get(jdk);
                Measure path = m.get(r.benchmark() + "|" + r.size());
                Measure floor = m.get(r.floorBenchmark() + "|" + r.floorSize());
                boolean stepAgainstFloor = r.id().startsWith(STEP_AGAINST_FLOOR);
                if (stepAgainstFloor) {
                    // The path's step from its smallest size to its largest against its floor's step
                    // (the same two sizes): the growth the floor's own memory does not explain.
                    Measure pathSmall = m.get(r.benchmark() + "|" + r.floorSize());
                    Measure floorLarge = m.get(r.floorBenchmark() + "|" + r.size());
                    if (path == null || floor == null || pathSmall == null || floorLarge == null) {
                        row.append(" – | – |");
                        dat.append(" NaN NaN");
                        continue;
                    }
                    any = true;
                    double pathStep = path.median() / pathSmall.median();
                    double floorStep = floorLarge.median() / floor.median();
                    double q = pathStep / floorStep;
                    double err = q * Math.sqrt(Math.pow(path.relativeError(), 2) + Math.pow(pathSmall.relativeError(), 2)
                            + Math.pow(floor.relativeError(), 2) + Math.pow(floorLarge.relativeError(), 2));
                    String met = q <= r.goal() ? "met" : "missed";
                    double sizes = Double.parseDouble(r.size()) / Double.parseDouble(r.floorSize());
                    row.append(' ').append(String.format(Locale.ROOT, "%.2f, %.2f", pathStep / sizes, floorStep / sizes))
                            .append(" (steps per element) | **").append(String.format(Locale.ROOT, "%.2f", q)).append("**")
                            .append(Double.isNaN(err) ? "" : String.format(Locale.ROOT, " ± %.2f", err))
                            .append(' ').append(met.equals("met") ? "✓" : "✗ missed").append(" |");
                    dat.append(' ').append(fmt(q)).append(' ').append(Double.isNaN(err) ? "0" : fmt(err));
                    ratioCsv.add(String.join(",", r.id(), jdk, fmt(q), fmt(err), fmt(r.goal()), met));
                    continue;
                }
                if (path == null || floor == null) {
                    row.append(" – | – |");
                    dat.append(" NaN NaN");
                    continue;
                }
                any = true;
                // Flatness of obtaining a direct buffer compares whole operations; the rest, cost per element.
                boolean perOperation = r.id().startsWith("direct-");
                double p = perOperation ? path.median() : perElement(r.benchmark(), r.size(), path.median());
                double f = perOperation ? floor.median() : perElement(r.floorBenchmark(), r.floorSize(), floor.median());
                double q = p / f;
                double err = q * Math.hypot(path.relativeError(), floor.relativeError());
                String met = Double.isNaN(r.goal()) ? "" : q <= r.goal() ? "met" : "missed";
                row.append(' ').append(num(p)).append(", ").append(num(f)).append(' ')
                        .append(perOperation ? path.unit() : unit(r.benchmark(), path.unit())).append(" | **")
                        .append(String.format(Locale.ROOT, "%.2f", q)).append("**")
                        .append(Double.isNaN(err) ? "" : String.format(Locale.ROOT, " ± %.2f", err))
                        .append(met.isEmpty() ? "" : " " + (met.equals("met") ? "✓" : "✗ missed")).append(" |");
                dat.append(' ').append(fmt(q)).append(' ').append(Double.isNaN(err) ? "0" : fmt(err));
                ratioCsv.add(String.join(",", r.id(), jdk, fmt(q), fmt(err), Double.isNaN(r.goal()) ? "" : fmt(r.goal()), met));
            }
            if (any) {
                table.append(row).append('\n');
                ratioDat.append(dat).append('\n');
            }
        }

        // Per element against size, one column per benchmark and JDK.
        String[][] vectorSeries = {{"AddVecsSetBenchmark.addVecsSet", "addVecsSet"},
            {"AddVecsSetBenchmark.vectorLoopFloor", "raw loop (floor)"}};
        String[][] dataSeries = {{"DataSetBenchmark.getDirectValuesSet", "getDirectValuesSet (obtain)"},
            {"DataSetBenchmark.getValuesSet", "getValuesSet (copy)"},
            {"DataSetBenchmark.readDirect", "obtain + read, direct"},
            {"DataSetBenchmark.readCopy", "obtain + read, copy"}};
        String[][] buildSeries = {{"GraphBuildBenchmark.curveFromVectors", "curve, SbVec2f[]"},
            {"GraphBuildBenchmark.curveFromFloats", "curve, float[]"},
            {"GraphBuildBenchmark.curveFloor", "curve floor"},
            {"GraphBuildBenchmark.markerField", "marker field"},
            {"GraphBuildBenchmark.markerFieldFloor", "marker field floor"},
            {"GraphBuildBenchmark.multipleHistogram", "multiple histogram"},
            {"GraphBuildBenchmark.multipleHistogramFloor", "multiple histogram floor"},
            {"GraphBuildBenchmark.isovalueList", "isovalue list"},
            {"GraphBuildBenchmark.isovalueListFloor", "isovalue list floor"},
            {"PieChartBenchmark.pieChart", "pie chart"},
            {"PieChartBenchmark.pieChartFloor", "pie chart floor"}};
        String[][] renderSeries = {{"GraphRenderBenchmark.renderCurve", "render: curve"},
            {"GraphRenderBenchmark.renderMarkerField", "render: marker field"},
            {"HistogramRenderBenchmark.renderMultipleHistogram", "render: multiple histogram"},
            {"PieChartBenchmark.renderPieChart", "render: pie chart"},
            {"MeshFilterBenchmark.javaFilter", "mesh render, Java cell filter"},
            {"MeshFilterBenchmark.intervalFilter", "mesh render, PoIntervalCellFilter"}};
        String[] bulkSizes = {"1000", "10000", "32000", "100000", "1000000", "10000000"};
        writeSeries(out.resolve("bulk-build.dat"), byJdk, jdks, buildSeries, bulkSizes);
        writeSeries(out.resolve("bulk-render.dat"), byJdk, jdks, renderSeries, bulkSizes);
        writeSeries(out.resolve("vectors.dat"), byJdk, jdks, vectorSeries, new String[] {"1000", "100000", "1000000"});
        writeSeries(out.resolve("datasets.dat"), byJdk, jdks, dataSeries, new String[] {"1000", "1000000", "16000000"});
        Files.writeString(out.resolve("ratios.dat"), ratioDat, StandardCharsets.UTF_8);
        Files.write(out.resolve("ratios.csv"), ratioCsv, StandardCharsets.UTF_8);
        Files.writeString(out.resolve("plot-vars.gp"), String.format(Locale.ROOT,
                "njdk = %d%nnvectors = %d%nndatasets = %d%nnbulkbuild = %d%nnbulkrender = %d%n", jdks.size(),
                1 + vectorSeries.length * jdks.size(), 1 + dataSeries.length * jdks.size(),
                1 + buildSeries.length * jdks.size(), 1 + renderSeries.length * jdks.size()), StandardCharsets.UTF_8);

        // Bytes allocated on the Java heap per call (JMH's GC profiler), and per element for a size.
        StringBuilder allocTable = new StringBuilder("| path | goal (bytes per call) |");
        for (String jdk : jdks) {
            allocTable.append(" JDK ").append(jdk).append(" |");
        }
        allocTable.append("\n|---|---|");
        allocTable.append("---|".repeat(jdks.size())).append('\n');
        boolean anyAlloc = false;
        for (Allocation a : ALLOCATIONS) {
            StringBuilder row = new StringBuilder("| ").append(a.path()).append(" | ").append(a.goal()).append(" |");
            boolean any = false;
            for (String jdk : jdks) {
                Measure m = byJdk.get(jdk).get(a.benchmark() + "|" + a.size());
                if (m == null || Double.isNaN(m.alloc())) {
                    row.append(" – |");
                    continue;
                }
                any = true;
                row.append(' ').append(bytes(m.alloc())).append(" B");
                if (!a.size().isEmpty()) {
                    row.append(" (").append(bytes(m.alloc() / Long.parseLong(a.size()))).append(" B/element)");
                }
                row.append(" |");
            }
            if (any) {
                anyAlloc = true;
                allocTable.append(row).append('\n');
            }
        }

        StringBuilder all = new StringBuilder();
        all.append("| benchmark | size |");
        for (String jdk : jdks) {
            all.append(" JDK ").append(jdk).append(" median | error (99.9%) | B/op |");
        }
        all.append(" unit |\n|---|---|");
        for (int i = 0; i < jdks.size(); i++) {
            all.append("---|---|---|");
        }
        all.append("---|\n");
        TreeSet<String> keys = new TreeSet<>();
        byJdk.values().forEach(m -> keys.addAll(m.keySet()));
        List<String> ordered = new ArrayList<>(keys);
        ordered.sort((a, b) -> {
            String[] x = a.split("\\|", -1);
            String[] y = b.split("\\|", -1);
            int c = x[0].compareTo(y[0]);
            return c != 0 ? c : Long.compare(x[1].isEmpty() ? 0 : Long.parseLong(x[1]), y[1].isEmpty() ? 0 : Long.parseLong(y[1]));
        });
        for (String key : ordered) {
            String[] k = key.split("\\|", -1);
            all.append("| ").append(k[0]).append(" | ").append(k[1].isEmpty() ? "" : String.format(Locale.ROOT, "%,d", Long.parseLong(k[1]))).append(" |");
            String unit = "";
            for (String jdk : jdks) {
                Measure m = byJdk.get(jdk).get(key);
                if (m == null) {
                    all.append(" – | – | – |");
                } else {
                    all.append(' ').append(num(m.median())).append(" | ± ").append(num(m.error())).append(" | ")
                            .append(Double.isNaN(m.alloc()) ? "–" : bytes(m.alloc())).append(" |");
                    unit = m.unit();
                }
            }
            all.append(' ').append(unit).append(" |\n");
        }

        StringBuilder section = new StringBuilder();
        section.append(BEGIN).append('\n');
        if (info != null && Files.exists(info)) {
            section.append('\n');
            for (String line : Files.readAllLines(info, StandardCharsets.UTF_8)) {
                section.append(line).append("  \n");
            }
        }
        section.append("\nEach path against its floor (medians; per vector, per value, per node, per cell or per call;"
                + " the ratio's error from the 99.9% errors of both):\n\n").append(table)
                .append(anyAlloc ? "\nBytes allocated on the Java heap per call (JMH's GC profiler, `gc.alloc.rate.norm`;"
                        + " the figures of calls that take seconds include a few kilobytes of JMH's own per iteration):\n\n"
                        + allocTable : "")
                .append("\nEvery benchmark (median of the measured iterations per operation as JMH counts it, and the"
                        + " bytes it allocated on the Java heap per operation):\n\n")
                .append(all)
                .append("\n![ns per element against size](benchmarks/vector-conversion.png)\n")
                .append("![bulk builds: ns per element against size](benchmarks/bulk-build.png)\n")
                .append("![bulk renders: ns per element against size](benchmarks/bulk-render.png)\n")
                .append("![ns per value against size](benchmarks/data-sets.png)\n")
                .append("![each path's ratio to its floor](benchmarks/ratios.png)\n\n").append(END);
        if (markdown != null) {
            String text = Files.readString(markdown, StandardCharsets.UTF_8);
            int b = text.indexOf(BEGIN);
            int e = text.indexOf(END);
            if (b < 0 || e < b) {
                throw new IllegalStateException(markdown + " has no results section (" + BEGIN + " ... " + END + ")");
            }
            Files.writeString(markdown, text.substring(0, b) + section + text.substring(e + END.length()),
                    StandardCharsets.UTF_8);
            System.out.println("Results section of " + markdown + " rewritten");
        }
        System.out.println();
        System.out.println(table);
        if (anyAlloc) {
            System.out.println(allocTable);
        }
    }

    private static void writeSeries(Path file, Map<String, Map<String, Measure>> byJdk, List<String> jdks, String[][] series,
            String[] sizes) throws IOException {
        StringBuilder dat = new StringBuilder("size");
        for (String[] s : series) {
            for (String jdk : jdks) {
                dat.append(" \"").append(s[1]).append(", JDK ").append(jdk).append('"');
            }
        }
        dat.append('\n');
        for (String size : sizes) {
            dat.append(size);
            for (String[] s : series) {
                for (String jdk : jdks) {
                    Measure m = byJdk.get(jdk).get(s[0] + "|" + size);
                    dat.append(' ').append(m == null ? "NaN" : fmt(perElement(s[0], size, m.median())));
                }
            }
            dat.append('\n');
        }
        Files.writeString(file, dat, StandardCharsets.UTF_8);
    }

    /** The benchmarks with a size report per operation; divided by the size, per element. */
    static double perElement(String benchmark, String size, double perOperation) {
        return size.isEmpty() ? perOperation : perOperation / Long.parseLong(size);
    }

    private static String unit(String benchmark, String unit) {
        if (benchmark.startsWith("AddVecsSet")) {
            return "ns/vector";
        }
        if (benchmark.startsWith("DataSet") || benchmark.startsWith("Attribute")) {
            return "ns/value";
        }
        if (benchmark.startsWith("MeshFilter")) {
            return "ns/cell";
        }
        if (benchmark.startsWith("GraphBuild") || benchmark.startsWith("GraphRender")
                || benchmark.startsWith("HistogramRender") || benchmark.startsWith("PieChart")) {
            return "ns/element";
        }
        return unit;
    }

    private static String bytes(double v) {
        return Math.abs(v) < 0.5 ? "0" : num(v);
    }

    private static String fmt(double v) {
        return String.format(Locale.ROOT, "%.6g", v);
    }

    private static String num(double v) {
        if (Double.isNaN(v)) {
            return "NaN";
        }
        double a = Math.abs(v);
        return String.format(Locale.ROOT, a >= 1000 ? "%,.0f" : a >= 100 ? "%.1f" : a >= 10 ? "%.2f" : a >= 1 ? "%.3f" : "%.4f", v);
    }
}
