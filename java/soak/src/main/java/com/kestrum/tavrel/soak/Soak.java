package com.kestrum.tavrel.soak;

import com.kestrum.tavrel.soak.DataPaths.Loop;
import com.sun.management.HotSpotDiagnosticMXBean;
import java.io.IOException;
import java.lang.management.ManagementFactory;
import java.nio.file.Files;
import java.nio.file.Path;
import java.util.ArrayList;
import java.util.Arrays;
import java.util.List;
import java.util.Locale;
import java.util.function.Supplier;

/**
 * The memory soak ({@code make soak}): runs each data path of the binding 1,000,000 times in
 * this JVM and fails when resident memory (VmRSS) or the Java heap after a full collection
 * keeps growing once the path is warmed up.
 *
 * <p>A path runs a tenth of its iterations as warm-up, then is measured after every further
 * tenth: ten samples, the first right after the warm-up. A measure keeps growing when it grew
 * by more than its limit from the first sample to the last and by more than half its limit
 * from the middle sample to the last: a one-time step early on (a pool or a cache filling up)
 * passes, a steady leak does not. The limits, over the 900,000 measured iterations: 4 MiB of
 * resident memory and 1 MiB of heap, under 5 and 1.2 bytes per iteration. A leaked native
 * allocation per iteration costs 32 bytes or more, a leaked JNI reference about 10 and a leaked
 * Java object 16 or more; a path without a leak varies by a few hundred KiB.
 *
 * <p>The JVM runs with a fixed, pre-touched heap ({@code -Xms} = {@code -Xmx},
 * {@code -XX:+AlwaysPreTouch}; see the Makefile), so that the heap's own pages do not count as
 * growth of resident memory, and with the serial collector compacting the whole heap at every
 * full collection ({@code -XX:MarkSweepAlwaysCompactCount=1}), so that the heap measured after
 * one holds live objects only (see {@link #heapMeasureProblem}); a sample collects until the
 * heap stops shrinking, so that what cleaners release after a collection is gone too. Settings (system properties): {@code soak.iterations} (1000000),
 * {@code soak.paths} (names separated by commas; all by default).
 */
public final class Soak {
    /** A named data path: the factory makes what the path reuses and returns its loop. */
    record SoakPath(String name, Supplier<Loop> start) {}

    /** Every data path, one row each; a new family of classes adds its own. */
    static final List<SoakPath> PATHS = List.of(
            new SoakPath("sets-by-copy", DataPaths::setsByCopy),
            new SoakPath("sets-by-direct-buffer", DataPaths::setsByDirectBuffer),
            new SoakPath("strings-sets", DataPaths::stringsSets),
            new SoakPath("geometry-replacement", DataPaths::geometryReplacement),
            new SoakPath("probe-events", DataPaths::probeEvents),
            new SoakPath("java-node-traversals", DataPaths::javaNodeTraversals),
            new SoakPath("cell-filter-traversals", DataPaths::cellFilterTraversals),
            new SoakPath("property-node-traversals", DataPaths::propertyNodeTraversals),
            new SoakPath("graph-rebuilds", DataPaths::graphRebuilds),
            new SoakPath("attribute-objects", DataPaths::attributeObjects),
            new SoakPath("axes", DataPaths::axes),
            new SoakPath("pie-charts", DataPaths::pieCharts),
            new SoakPath("charts-from-arrays", DataPaths::chartsFromArrays),
            new SoakPath("graph-axes", GraphPaths::axes),
            new SoakPath("graph-charts", GraphPaths::charts),
            new SoakPath("graph-legends", GraphPaths::legends),
            new SoakPath("graph-shapes", GraphPaths::shapes),
            new SoakPath("java-elements", ElementPaths::javaElements),
            new SoakPath("fields-by-name", ViewPaths::fieldsByName),
            new SoakPath("views", ViewPaths::views));

    static final long RSS_LIMIT = 4L << 20;
    static final long HEAP_LIMIT = 1L << 20;
    private static final int SAMPLES = 10;
    /** A collection that frees less than this leaves the heap settled. */
    private static final long SETTLED = 64 << 10;

    private Soak() {}

    /** Resident memory and heap after a full collection, in bytes. */
    record Sample(long rss, long heap) {}

    /** What one path did. */
    record Outcome(String name, int iterations, double seconds, Sample start, List<Sample> samples, String failure) {
        boolean passed() {
            return failure == null;
        }
    }

    public static void main(String[] args) throws Exception {
        String problem = heapMeasureProblem();
        if (problem != null) {
            System.err.println("soak: " + problem);
            System.exit(2);
        }
        int iterations = Integer.getInteger("soak.iterations", 1_000_000);
        List<String> selected = Arrays.asList(System.getProperty("soak.paths", "").split(","));
        System.out.printf(Locale.ROOT, "Soak: %,d iterations per path, the first tenth as warm-up; a path fails when"
                + " resident memory grows by more than %d MiB or the heap after GC by more than %d MiB after the"
                + " warm-up, and by more than half that over the second half of the run.%n%n", iterations,
                RSS_LIMIT >> 20, HEAP_LIMIT >> 20);
        System.out.printf(Locale.ROOT, "%-24s %10s %8s | %-32s | %-32s | %s%n", "path", "iterations", "seconds",
                "RSS MiB: start, warm, end (+)", "heap MiB: start, warm, end (+)", "result");
        List<Outcome> outcomes = new ArrayList<>();
        for (SoakPath path : PATHS) {
            if (selected.equals(List.of("")) || selected.contains(path.name())) {
                Outcome outcome = run(path, iterations);
                outcomes.add(outcome);
                print(outcome);
            }
        }
        long failed = outcomes.stream().filter(o -> !o.passed()).count();
        System.out.printf(Locale.ROOT, "%nsoak: %d passed, %d failed%n", outcomes.size() - failed, failed);
        System.exit(failed == 0 && !outcomes.isEmpty() ? 0 : 1);
    }

    static Outcome run(SoakPath path, int iterations) throws InterruptedException {
        Sample start = sample();
        List<Sample> samples = new ArrayList<>();
        long t0 = System.nanoTime();
        int done = 0;
        try (Loop loop = path.start().get()) {
            for (int k = 1; k <= SAMPLES; k++) {
                int until = (int) ((long) iterations * k / SAMPLES);
                for (; done < until; done++) {
                    loop.step(done);
                }
                samples.add(sample());
            }
        } catch (RuntimeException e) {
            e.printStackTrace();
            return new Outcome(path.name(), done, seconds(t0), start, samples,
                    "failed at iteration " + done + ": " + e);
        }
        double seconds = seconds(t0);
        List<String> growing = new ArrayList<>();
        if (keepsGrowing(samples.stream().mapToLong(Sample::rss).toArray(), RSS_LIMIT)) {
            growing.add("resident memory keeps growing");
        }
        if (keepsGrowing(samples.stream().mapToLong(Sample::heap).toArray(), HEAP_LIMIT)) {
            growing.add("heap keeps growing");
        }
        return new Outcome(path.name(), iterations, seconds, start, samples,
                growing.isEmpty() ? null : String.join(", ", growing));
    }

    /** Grown by more than limit from the first sample to the last, and by half of it since the middle one. */
    static boolean keepsGrowing(long[] samples, long limit) {
        long first = samples[0];
        long middle = samples[(samples.length - 1) / 2];
        long last = samples[samples.length - 1];
        return last - first > limit && last - middle > limit / 2;
    }

    private static double seconds(long t0) {
        return (System.nanoTime() - t0) / 1e9;
    }

    /**
     * Collects until the heap in use stops shrinking (each collection lets the cleaners release
     * what the previous one found unreachable, and their own records go at the next one; at
     * most ten collections), then measures.
     */
    static Sample sample() throws InterruptedException {
        long heap = Long.MAX_VALUE;
        for (int k = 0; k < 10; k++) {
            System.gc();
            Thread.sleep(20);
            long used = ManagementFactory.getMemoryMXBean().getHeapMemoryUsage().getUsed();
            boolean settled = heap - used < SETTLED;
            heap = Math.min(heap, used);
            if (settled) {
                break;
            }
        }
        return new Sample(rss(), heap);
    }

    /**
     * Why this JVM cannot measure the heap, or null: the heap after a full collection counts
     * only live objects when every full collection compacts the whole heap. The serial
     * collector's full collection otherwise leaves dead objects in place (up to
     * {@code MarkSweepDeadRatio}, 5 % of the old generation) except every
     * {@code MarkSweepAlwaysCompactCount}th time (4), so the heap measured after it jumps
     * between two levels by several MiB whenever many short-lived objects die in the old
     * generation (views with a cleaning action, for instance), which looks like growth.
     */
    static String heapMeasureProblem() {
        HotSpotDiagnosticMXBean vm = ManagementFactory.getPlatformMXBean(HotSpotDiagnosticMXBean.class);
        try {
            if (!vm.getVMOption("UseSerialGC").getValue().equals("true")
                    || !vm.getVMOption("MarkSweepAlwaysCompactCount").getValue().equals("1")) {
                return "run the soak with -XX:+UseSerialGC -XX:MarkSweepAlwaysCompactCount=1 (see the Makefile):"
                        + " only then does the heap after a full collection count live objects alone";
            }
        } catch (IllegalArgumentException e) {
            return "this JVM has no option " + e.getMessage() + "; the soak needs HotSpot's serial collector";
        }
        return null;
    }

    /** VmRSS of this process, in bytes. */
    static long rss() {
        try {
            for (String line : Files.readAllLines(Path.of("/proc/self/status"))) {
                if (line.startsWith("VmRSS:")) {
                    return Long.parseLong(line.replaceAll("[^0-9]", "")) * 1024;
                }
            }
        } catch (IOException e) {
            throw new IllegalStateException("cannot read /proc/self/status", e);
        }
        throw new IllegalStateException("no VmRSS in /proc/self/status");
    }

    private static void print(Outcome o) {
        String rss = "-";
        String heap = "-";
        if (!o.samples().isEmpty()) {
            Sample warm = o.samples().get(0);
            Sample end = o.samples().get(o.samples().size() - 1);
            rss = triple(o.start().rss(), warm.rss(), end.rss());
            heap = triple(o.start().heap(), warm.heap(), end.heap());
        }
        System.out.printf(Locale.ROOT, "%-24s %,10d %8.1f | %-32s | %-32s | %s%n", o.name(), o.iterations(),
                o.seconds(), rss, heap, o.passed() ? "ok" : "FAILED: " + o.failure());
        if (!o.passed() && !o.samples().isEmpty()) {
            StringBuilder b = new StringBuilder("    samples (RSS / heap MiB):");
            for (Sample s : o.samples()) {
                b.append(String.format(Locale.ROOT, " %.1f/%.1f", mib(s.rss()), mib(s.heap())));
            }
            System.out.println(b);
        }
    }

    private static String triple(long start, long warm, long end) {
        return String.format(Locale.ROOT, "%.1f, %.1f, %.1f (%+.1f)", mib(start), mib(warm), mib(end),
                mib(end - warm));
    }

    private static double mib(long bytes) {
        return bytes / (double) (1 << 20);
    }
}
