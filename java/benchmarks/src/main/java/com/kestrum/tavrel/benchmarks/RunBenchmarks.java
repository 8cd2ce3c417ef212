package com.kestrum.tavrel.benchmarks;

import java.util.Collection;
import java.util.LinkedHashMap;
import java.util.Locale;
import java.util.Map;
import org.openjdk.jmh.results.Result;
import org.openjdk.jmh.results.RunResult;
import org.openjdk.jmh.runner.Runner;
import org.openjdk.jmh.runner.RunnerException;
import org.openjdk.jmh.runner.options.Options;
import org.openjdk.jmh.runner.options.OptionsBuilder;
import org.openjdk.jmh.runner.options.TimeValue;

/**
 * Runs the three benchmarks and prints, for each, the median of the measured iterations with
 * the 99.9% error of the mean, and its ratio to the baseline measured in the same run.
 *
 * <p>Settings (system properties): {@code bench.forks} (3), {@code bench.warmups} (3),
 * {@code bench.iterations} (5), {@code bench.seconds} (1, per iteration), {@code bench.include}
 * (a regular expression of the benchmarks to run; all three by default). The forked JVMs get
 * this JVM's options, so a JVM option given here (an agent, for instance) applies to them too.
 */
public final class RunBenchmarks {
    private RunBenchmarks() {}

    public static void main(String[] args) throws RunnerException {
        String only = System.getProperty("bench.include");
        OptionsBuilder builder = new OptionsBuilder();
        if (only != null) {
            builder.include(only);
        } else {
            builder.include(ThinGetterBenchmark.class.getName())
                    .include(AddVecsSetBenchmark.class.getName())
                    .include(ReadValuesBenchmark.class.getName());
        }
        Options options = builder
                .forks(Integer.getInteger("bench.forks", 3))
                .warmupIterations(Integer.getInteger("bench.warmups", 3))
                .measurementIterations(Integer.getInteger("bench.iterations", 5))
                .warmupTime(TimeValue.seconds(Integer.getInteger("bench.seconds", 1)))
                .measurementTime(TimeValue.seconds(Integer.getInteger("bench.seconds", 1)))
                .jvmArgsAppend("-Xmx4g")
                .build();
        Collection<RunResult> results = new Runner(options).run();
        Map<String, Result<?>> byName = new LinkedHashMap<>();
        for (RunResult r : results) {
            String name = r.getParams().getBenchmark();
            byName.put(name.substring(name.lastIndexOf('.', name.lastIndexOf('.') - 1) + 1), r.getPrimaryResult());
        }
        System.out.println();
        System.out.println("| benchmark | median | error (99.9%) | unit | ratio to baseline |");
        System.out.println("|---|---|---|---|---|");
        row(byName, "ThinGetterBenchmark.emptyNativeBaseline", null);
        row(byName, "ThinGetterBenchmark.getNumNodes", "ThinGetterBenchmark.emptyNativeBaseline");
        row(byName, "AddVecsSetBenchmark.javaCopyBaseline", null);
        row(byName, "AddVecsSetBenchmark.addVecsSet", "AddVecsSetBenchmark.javaCopyBaseline");
        row(byName, "ReadValuesBenchmark.copyBaseline", null);
        row(byName, "ReadValuesBenchmark.direct", "ReadValuesBenchmark.copyBaseline");
    }

    private static void row(Map<String, Result<?>> results, String name, String baseline) {
        Result<?> r = results.get(name);
        if (r == null) {
            return;
        }
        double median = r.getStatistics().getPercentile(50);
        String ratio = "1 (baseline)";
        Result<?> b = baseline == null ? null : results.get(baseline);
        if (b != null) {
            double bm = b.getStatistics().getPercentile(50);
            double q = median / bm;
            double rel = Math.hypot(r.getScoreError() / r.getScore(), b.getScoreError() / b.getScore());
            ratio = String.format(Locale.ROOT, "%.2f ± %.2f", q, q * rel);
        }
        System.out.printf(Locale.ROOT, "| %s | %.3f | ± %.3f | %s | %s |%n", name, median, r.getScoreError(),
                r.getScoreUnit(), ratio);
    }
}
