package com.kestrum.tavrel.benchmarks;

import java.io.IOException;
import java.io.PrintWriter;
import java.nio.charset.StandardCharsets;
import java.nio.file.Files;
import java.nio.file.Path;
import java.util.ArrayList;
import java.util.Collection;
import java.util.List;
import java.util.Locale;
import java.util.Map;
import org.openjdk.jmh.profile.GCProfiler;
import org.openjdk.jmh.results.Result;
import org.openjdk.jmh.results.RunResult;
import org.openjdk.jmh.runner.NoBenchmarksException;
import org.openjdk.jmh.runner.Runner;
import org.openjdk.jmh.runner.RunnerException;
import org.openjdk.jmh.runner.options.ChainedOptionsBuilder;
import org.openjdk.jmh.runner.options.OptionsBuilder;
import org.openjdk.jmh.runner.options.TimeValue;

/**
 * Runs the benchmarks on the JDK that runs this class (the forked JVMs are of the same JDK and get
 * this JVM's options) and writes one CSV line per benchmark and size: the JDK's feature version,
 * the benchmark, the size (empty without one), the number of measured iterations, the mean, the
 * 99.9% error of the mean as JMH reports it, the median of the measured iterations, the unit, and
 * the bytes allocated on the Java heap per operation (JMH's GC profiler, {@code gc.alloc.rate.norm};
 * empty with {@code -Dbench.nogc=true}).
 * {@link BenchReport} turns the files of one or more JDKs into ratios, the table of BENCHMARKS.md
 * and the data of the plots.
 *
 * <p>Settings (system properties): {@code bench.forks} (2), {@code bench.warmups} (3),
 * {@code bench.iterations} (4), {@code bench.millis} (1000, per iteration), {@code bench.include}
 * (a regular expression of the benchmarks to run; all by default), {@code bench.csv} (the file to
 * write; none by default). The comparison with the foreign-function API joins on a JDK of
 * version 22 or newer, when its class is on the class path.
 */
public final class RunBenchmarks {
    private RunBenchmarks() {}

    /** The benchmark classes, in the order of the report. */
    static final List<String> CLASSES = List.of(
            ThinGetterBenchmark.class.getName(),
            AddVecsSetBenchmark.class.getName(),
            DataSetBenchmark.class.getName(),
            ForwardedCallBenchmark.class.getName(),
            CellFilterBenchmark.class.getName(),
            ProbeEventBenchmark.class.getName(),
            ElementPushBenchmark.class.getName(),
            RebuildCallbackBenchmark.class.getName(),
            "com.kestrum.tavrel.benchmarks.PanamaBenchmark");

    /**
     * The bulk benchmarks (arrays of up to 10^7 elements, seconds per operation at the largest
     * size), run after the others with settings of their own so that a full run stays short:
     * {@code bench.bulk.forks} (2), {@code bench.bulk.warmups} (1), {@code bench.bulk.iterations}
     * (3), {@code bench.bulk.millis} (500), each no more than the run's own setting (an iteration
     * runs at least one operation, however long). Their forked JVMs get a heap of
     * {@code bench.bulk.heap} (6g).
     */
    static final List<String> BULK_CLASSES = List.of(
            GraphBuildBenchmark.class.getName(),
            PieChartBenchmark.class.getName(),
            GraphRenderBenchmark.class.getName(),
            HistogramRenderBenchmark.class.getName(),
            MeshFilterBenchmark.class.getName(),
            AttributeBenchmark.class.getName());

    /**
     * Runs the benchmarks and writes the CSV file.
     *
     * @param args none
     * @throws RunnerException when JMH fails
     * @throws IOException when the CSV file cannot be written
     */
    public static void main(String[] args) throws RunnerException, IOException {
        String only = System.getProperty("bench.include");
        int millis = Integer.getInteger("bench.millis", 1000);
        int forks = Integer.getInteger("bench.forks", 2);
        int warmups = Integer.getInteger("bench.warmups", 3);
        int iterations = Integer.getInteger("bench.iterations", 4);
        ChainedOptionsBuilder builder = options(millis, forks, warmups, iterations, "4g");
        ChainedOptionsBuilder bulk = options(Math.min(millis, Integer.getInteger("bench.bulk.millis", 500)),
                Math.min(forks, Integer.getInteger("bench.bulk.forks", 2)),
                Math.min(warmups, Integer.getInteger("bench.bulk.warmups", 1)),
                Math.min(iterations, Integer.getInteger("bench.bulk.iterations", 3)),
                System.getProperty("bench.bulk.heap", "6g"));
        include(builder, CLASSES, BULK_CLASSES, only);
        include(bulk, BULK_CLASSES, CLASSES, only);
        List<RunResult> results = new ArrayList<>(run(builder));
        results.addAll(run(bulk));
        List<String> lines = new ArrayList<>();
        lines.add(BenchReport.RAW_HEADER);
        String jdk = Integer.toString(Runtime.version().feature());
        for (RunResult r : results) {
            String name = r.getParams().getBenchmark();
            name = name.substring(name.lastIndexOf('.', name.lastIndexOf('.') - 1) + 1);
            String size = r.getParams().getParam("size");
            Result<?> p = r.getPrimaryResult();
            lines.add(String.format(Locale.ROOT, "%s,%s,%s,%d,%.6g,%.6g,%.6g,%s,%s", jdk, name, size == null ? "" : size,
                    p.getSampleCount(), p.getScore(), p.getScoreError(), p.getStatistics().getPercentile(50),
                    p.getScoreUnit(), allocation(r)));
        }
        String csv = System.getProperty("bench.csv");
        if (csv != null) {
            Path path = Path.of(csv);
            if (path.getParent() != null) {
                Files.createDirectories(path.getParent());
            }
            try (PrintWriter out = new PrintWriter(Files.newBufferedWriter(path, StandardCharsets.UTF_8))) {
                lines.forEach(out::println);
            }
            System.out.println("Results written to " + path);
        } else {
            lines.forEach(System.out::println);
        }
    }

    private static ChainedOptionsBuilder options(int millis, int forks, int warmups, int iterations, String heap) {
        ChainedOptionsBuilder builder = new OptionsBuilder()
                .forks(forks)
                .warmupIterations(warmups)
                .measurementIterations(iterations)
                .warmupTime(TimeValue.milliseconds(millis))
                .measurementTime(TimeValue.milliseconds(millis))
                .jvmArgsAppend("-Xms" + heap, "-Xmx" + heap);
        if (!Boolean.getBoolean("bench.nogc")) {
            // The bytes allocated on the Java heap per operation (gc.alloc.rate.norm).
            builder.addProfiler(GCProfiler.class);
        }
        return builder;
    }

    /** Includes the classes present (or the benchmarks matching only, out of those classes). */
    private static void include(ChainedOptionsBuilder builder, List<String> classes, List<String> others,
            String only) {
        if (only != null) {
            builder.include(only);
            for (String name : others) {
                builder.exclude(name.replace(".", "\\.") + "\\.");
            }
            return;
        }
        for (String name : classes) {
            if (present(name)) {
                builder.include(name.replace(".", "\\.") + "\\.");
            }
        }
    }

    /** The results of one run; none when it has no benchmark (bench.include matched none of it). */
    private static Collection<RunResult> run(ChainedOptionsBuilder builder) throws RunnerException {
        try {
            return new Runner(builder.build()).run();
        } catch (NoBenchmarksException e) {
            return List.of();
        }
    }

    /** The bytes allocated on the Java heap per operation, as the GC profiler measured them; empty without. */
    static String allocation(RunResult r) {
        for (Map.Entry<String, Result> e : r.getSecondaryResults().entrySet()) {
            if (e.getKey().endsWith("gc.alloc.rate.norm")) {
                return String.format(Locale.ROOT, "%.6g", e.getValue().getScore());
            }
        }
        return "";
    }

    private static boolean present(String className) {
        try {
            Class.forName(className, false, RunBenchmarks.class.getClassLoader());
            return true;
        } catch (ClassNotFoundException | UnsupportedClassVersionError e) {
            return false;
        }
    }
}
