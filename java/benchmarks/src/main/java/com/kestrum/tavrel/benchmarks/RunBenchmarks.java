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
import org.openjdk.jmh.results.Result;
import org.openjdk.jmh.results.RunResult;
import org.openjdk.jmh.runner.Runner;
import org.openjdk.jmh.runner.RunnerException;
import org.openjdk.jmh.runner.options.ChainedOptionsBuilder;
import org.openjdk.jmh.runner.options.OptionsBuilder;
import org.openjdk.jmh.runner.options.TimeValue;

/**
 * Runs the benchmarks on the JDK that runs this class (the forked JVMs are of the same JDK and get
 * this JVM's options) and writes one CSV line per benchmark and size: the JDK's feature version,
 * the benchmark, the size (empty without one), the number of measured iterations, the mean, the
 * 99.9% error of the mean as JMH reports it, the median of the measured iterations, and the unit.
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
     * Runs the benchmarks and writes the CSV file.
     *
     * @param args none
     * @throws RunnerException when JMH fails
     * @throws IOException when the CSV file cannot be written
     */
    public static void main(String[] args) throws RunnerException, IOException {
        String only = System.getProperty("bench.include");
        int millis = Integer.getInteger("bench.millis", 1000);
        ChainedOptionsBuilder builder = new OptionsBuilder()
                .forks(Integer.getInteger("bench.forks", 2))
                .warmupIterations(Integer.getInteger("bench.warmups", 3))
                .measurementIterations(Integer.getInteger("bench.iterations", 4))
                .warmupTime(TimeValue.milliseconds(millis))
                .measurementTime(TimeValue.milliseconds(millis))
                .jvmArgsAppend("-Xms4g", "-Xmx4g");
        if (only != null) {
            builder.include(only);
        } else {
            for (String name : CLASSES) {
                if (present(name)) {
                    builder.include(name.replace(".", "\\.") + "\\.");
                }
            }
        }
        Collection<RunResult> results = new Runner(builder.build()).run();
        List<String> lines = new ArrayList<>();
        lines.add(BenchReport.RAW_HEADER);
        String jdk = Integer.toString(Runtime.version().feature());
        for (RunResult r : results) {
            String name = r.getParams().getBenchmark();
            name = name.substring(name.lastIndexOf('.', name.lastIndexOf('.') - 1) + 1);
            String size = r.getParams().getParam("size");
            Result<?> p = r.getPrimaryResult();
            lines.add(String.format(Locale.ROOT, "%s,%s,%s,%d,%.6g,%.6g,%.6g,%s", jdk, name, size == null ? "" : size,
                    p.getSampleCount(), p.getScore(), p.getScoreError(), p.getStatistics().getPercentile(50),
                    p.getScoreUnit()));
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

    private static boolean present(String className) {
        try {
            Class.forName(className, false, RunBenchmarks.class.getClassLoader());
            return true;
        } catch (ClassNotFoundException | UnsupportedClassVersionError e) {
            return false;
        }
    }
}
