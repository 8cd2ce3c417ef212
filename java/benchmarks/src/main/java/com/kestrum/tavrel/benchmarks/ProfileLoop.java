package com.kestrum.tavrel.benchmarks;

import java.lang.management.ManagementFactory;
import java.lang.management.ThreadMXBean;
import java.util.Map;

/**
 * Runs one benchmarked path in a plain loop for a while, without JMH, so that a sampling profiler
 * sees nothing but that path (BENCHMARKS.md, "Profiling"):
 * {@code perf record -g java -XX:+UnlockDiagnosticVMOptions -XX:+DumpPerfMapAtExit ... ProfileLoop forwarded-call 20}.
 *
 * <p>Arguments: the path ({@code thin-getter}, {@code addVecsSet}, {@code forwarded-call},
 * {@code cell-filter}, {@code probe-event}, {@code element-push}, {@code rebuild-event}; the first five
 * with {@code -floor} for their floor, the last five with {@code -jni} for their JNI calls alone) and the seconds to run (10). Prints the time
 * per invocation of the path, and the processor time of the thread per invocation (which a loaded
 * machine disturbs less: time spent waiting for a processor does not count).
 */
public final class ProfileLoop {
    private ProfileLoop() {}

    /**
     * Runs the path.
     *
     * @param args the path and the seconds
     */
    public static void main(String[] args) {
        if (args.length < 1) {
            throw new IllegalArgumentException("usage: ProfileLoop <path>[-floor] [seconds]");
        }
        ThinGetterBenchmark thin = new ThinGetterBenchmark();
        AddVecsSetBenchmark vectors = new AddVecsSetBenchmark();
        ForwardedCallBenchmark forwarded = new ForwardedCallBenchmark();
        CellFilterBenchmark filter = new CellFilterBenchmark();
        ProbeEventBenchmark probe = new ProbeEventBenchmark();
        ElementPushBenchmark push = new ElementPushBenchmark();
        RebuildCallbackBenchmark rebuild = new RebuildCallbackBenchmark();
        Map<String, Runnable> setUps = Map.of("thin-getter", thin::setUp, "addVecsSet", () -> {
            vectors.size = 1_000_000;
            vectors.setUp();
        }, "forwarded-call", forwarded::setUp, "cell-filter", filter::setUp, "probe-event", probe::setUp,
                "element-push", push::setUp, "rebuild-event", rebuild::setUp);
        Map<String, Runnable> paths = Map.ofEntries(Map.entry("thin-getter", thin::getNumNodes),
                Map.entry("thin-getter-floor", thin::emptyGetterFloor), Map.entry("addVecsSet", vectors::addVecsSet),
                Map.entry("addVecsSet-floor", vectors::vectorLoopFloor),
                Map.entry("forwarded-call", forwarded::renderJavaNodes),
                Map.entry("forwarded-call-floor", forwarded::objectUpcallFloor),
                Map.entry("forwarded-call-jni", forwarded::jniSequenceFloor),
                Map.entry("cell-filter", filter::renderFilteredMesh),
                Map.entry("cell-filter-floor", filter::booleanUpcallFloor),
                Map.entry("cell-filter-jni", filter::jniSequenceFloor), Map.entry("probe-event", probe::motionEvents),
                Map.entry("probe-event-floor", probe::objectUpcallFloor),
                Map.entry("probe-event-jni", probe::jniSequenceFloor),
                Map.entry("element-push", push::renderSeparators), Map.entry("element-push-jni", push::jniSequenceFloor),
                Map.entry("rebuild-event", rebuild::rebuildEvents),
                Map.entry("rebuild-event-jni", rebuild::jniSequenceFloor));
        Runnable path = paths.get(args[0]);
        if (path == null) {
            throw new IllegalArgumentException("no path " + args[0] + "; paths: " + paths.keySet());
        }
        setUps.get(args[0].replaceFirst("-(floor|jni)$", "")).run();
        ThreadMXBean threads = ManagementFactory.getThreadMXBean();
        long cpuStart = threads.getCurrentThreadCpuTime();
        long start = System.nanoTime();
        long end = start + (long) (1e9 * (args.length > 1 ? Double.parseDouble(args[1]) : 10));
        long rounds = 0;
        long now = start;
        while (now < end) {
            path.run();
            rounds++;
            now = System.nanoTime();
        }
        long cpu = threads.getCurrentThreadCpuTime() - cpuStart;
        System.out.printf("%s: %d invocations, %.1f ns each (%.1f ns of this thread's processor time)%n", args[0],
                rounds, (now - start) / (double) rounds, cpu / (double) rounds);
    }
}
