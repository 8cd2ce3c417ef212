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
    static final String RAW_HEADER = "jdk,benchmark,size,samples,mean,error,median,unit";
    static final String BEGIN = "<!-- results:begin (make bench writes this section) -->";
    static final String END = "<!-- results:end -->";
    /** A path counts as flat while its cost per element at the largest size stays within this. */
    static final double FLAT = 1.25;

    private BenchReport() {}

    /** One measured benchmark. */
    record Measure(double median, double mean, double error, String unit) {
        double relativeError() {
            return mean == 0 ? Double.NaN : error / mean;
        }
    }

    /** A comparison: a path against its floor (the same benchmark at the smallest size, for flatness). */
    record Ratio(String id, String path, String floor, String benchmark, String size, String floorBenchmark,
            String floorSize, double goal, String goalText) {}

    static final List<Ratio> RATIOS = List.of(
            new Ratio("thin-getter", "thin getter `PbMesh.getNumNodes()`", "empty instance native taking a `long`",
                    "ThinGetterBenchmark.getNumNodes", "", "ThinGetterBenchmark.emptyGetterFloor", "", 1.10, "≤ 1.10"),
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
                    "ForwardedCallBenchmark.objectUpcallFloor", "", 1.5, "≤ 1.5"),
            new Ratio("cell-filter", "Java cell filter per cell (render of 1,000,000 cells)",
                    "bare boolean upcall from two primitives", "CellFilterBenchmark.renderFilteredMesh", "",
                    "CellFilterBenchmark.booleanUpcallFloor", "", 1.5, "≤ 1.5"),
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
                    "(floor JNI cannot reach)"));

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
                if (line.isBlank() || line.equals(RAW_HEADER)) {
                    continue;
                }
                String[] f = line.split(",", -1);
                byJdk.computeIfAbsent(f[0], k -> new LinkedHashMap<>()).put(f[1] + "|" + f[2],
                        new Measure(Double.parseDouble(f[6]), Double.parseDouble(f[4]), Double.parseDouble(f[5]), f[7]));
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
        writeSeries(out.resolve("vectors.dat"), byJdk, jdks, vectorSeries, new String[] {"1000", "100000", "1000000"});
        writeSeries(out.resolve("datasets.dat"), byJdk, jdks, dataSeries, new String[] {"1000", "1000000", "16000000"});
        Files.writeString(out.resolve("ratios.dat"), ratioDat, StandardCharsets.UTF_8);
        Files.write(out.resolve("ratios.csv"), ratioCsv, StandardCharsets.UTF_8);
        Files.writeString(out.resolve("plot-vars.gp"), String.format(Locale.ROOT,
                "njdk = %d%nnvectors = %d%nndatasets = %d%n", jdks.size(), 1 + vectorSeries.length * jdks.size(),
                1 + dataSeries.length * jdks.size()), StandardCharsets.UTF_8);

        StringBuilder all = new StringBuilder();
        all.append("| benchmark | size |");
        for (String jdk : jdks) {
            all.append(" JDK ").append(jdk).append(" median | error (99.9%) |");
        }
        all.append(" unit |\n|---|---|");
        for (int i = 0; i < jdks.size(); i++) {
            all.append("---|---|");
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
                    all.append(" – | – |");
                } else {
                    all.append(' ').append(num(m.median())).append(" | ± ").append(num(m.error())).append(" |");
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
                .append("\nEvery benchmark (median of the measured iterations per operation as JMH counts it):\n\n")
                .append(all)
                .append("\n![ns per element against size](benchmarks/vector-conversion.png)\n")
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
        if (benchmark.startsWith("DataSet")) {
            return "ns/value";
        }
        return unit;
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
