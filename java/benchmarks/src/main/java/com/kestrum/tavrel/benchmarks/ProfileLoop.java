package com.kestrum.tavrel.benchmarks;

import java.util.Map;

/**
 * Runs one benchmarked path in a plain loop for a while, without JMH, so that a sampling profiler
 * sees nothing but that path (BENCHMARKS.md, "Profiling"):
 * {@code perf record -g java -XX:+UnlockDiagnosticVMOptions -XX:+DumpPerfMapAtExit ... ProfileLoop forwarded-call 20}.
 *
 * <p>Arguments: the path ({@code thin-getter}, {@code addVecsSet}, {@code forwarded-call},
 * {@code cell-filter}, {@code probe-event}, or the same with {@code -floor} for its floor) and the
 * seconds to run (10).
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
        Map<String, Runnable> setUps = Map.of("thin-getter", thin::setUp, "addVecsSet", () -> {
            vectors.size = 1_000_000;
            vectors.setUp();
        }, "forwarded-call", forwarded::setUp, "cell-filter", filter::setUp, "probe-event", probe::setUp);
        Map<String, Runnable> paths = Map.of("thin-getter", thin::getNumNodes, "thin-getter-floor", thin::emptyGetterFloor,
                "addVecsSet", vectors::addVecsSet, "addVecsSet-floor", vectors::vectorLoopFloor,
                "forwarded-call", forwarded::renderJavaNodes, "forwarded-call-floor", forwarded::objectUpcallFloor,
                "cell-filter", filter::renderFilteredMesh, "cell-filter-floor", filter::booleanUpcallFloor,
                "probe-event", probe::motionEvents, "probe-event-floor", probe::objectUpcallFloor);
        Runnable path = paths.get(args[0]);
        if (path == null) {
            throw new IllegalArgumentException("no path " + args[0] + "; paths: " + paths.keySet());
        }
        setUps.get(args[0].replace("-floor", "")).run();
        long end = System.nanoTime() + (long) (1e9 * (args.length > 1 ? Double.parseDouble(args[1]) : 10));
        long rounds = 0;
        while (System.nanoTime() < end) {
            for (int i = 0; i < 100; i++) {
                path.run();
            }
            rounds += 100;
        }
        System.out.println(args[0] + ": " + rounds + " operations");
    }
}
