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
 * with {@code -floor} for their floor, the last five with {@code -jni} for their JNI calls alone; or a
 * bulk path, {@code build-curve}, {@code build-curve-floats}, {@code build-markers},
 * {@code build-histogram}, {@code build-isovalues}, {@code render-curve}, {@code render-markers},
 * {@code render-histogram}, {@code mesh-java-filter}, {@code mesh-interval-filter}, of
 * {@code -Dprofile.size} elements, 10^7 by default; {@code build-pie}, {@code render-pie} of at most
 * 32,000 slices; the builds also with {@code -floor} for their conversions alone, {@code build-curve-floor}
 * serving both curves, and with {@code -toolkit} for the conversions with the toolkit's work)
 * and the seconds to run (10). Prints the time per invocation of the path, and the
 * processor time of the thread per invocation (which a loaded machine disturbs less: time spent
 * waiting for a processor does not count).
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
        int bulkSize = Integer.getInteger("profile.size", 10_000_000);
        GraphBuildBenchmark build = new GraphBuildBenchmark();
        build.size = bulkSize;
        GraphRenderBenchmark render = new GraphRenderBenchmark();
        render.size = bulkSize;
        HistogramRenderBenchmark histogramRender = new HistogramRenderBenchmark();
        histogramRender.size = bulkSize;
        MeshFilterBenchmark meshes = new MeshFilterBenchmark();
        meshes.size = bulkSize;
        PieChartBenchmark pie = new PieChartBenchmark();
        pie.size = Math.min(bulkSize, 32_000);
        Map<String, Runnable> bulkPaths = Map.ofEntries(Map.entry("build-curve", build::curveFromVectors),
                Map.entry("build-curve-floats", build::curveFromFloats), Map.entry("build-markers", build::markerField),
                Map.entry("build-histogram", build::multipleHistogram), Map.entry("build-isovalues", build::isovalueList),
                Map.entry("build-pie", pie::pieChart),
                Map.entry("build-curve-floor", build::curveFloor), Map.entry("build-markers-floor", build::markerFieldFloor),
                Map.entry("build-histogram-floor", build::multipleHistogramFloor),
                Map.entry("build-isovalues-floor", build::isovalueListFloor), Map.entry("build-pie-floor", pie::pieChartFloor),
                Map.entry("build-curve-toolkit", build::curveToolkitFloor),
                Map.entry("build-curve-floats-toolkit", build::curveFromFloatsToolkitFloor),
                Map.entry("build-markers-toolkit", build::markerFieldToolkitFloor),
                Map.entry("build-histogram-toolkit", build::multipleHistogramToolkitFloor),
                Map.entry("build-isovalues-toolkit", build::isovalueListToolkitFloor),
                Map.entry("build-pie-toolkit", pie::pieChartToolkitFloor),
                Map.entry("render-curve", render::renderCurve), Map.entry("render-markers", render::renderMarkerField),
                Map.entry("render-histogram", histogramRender::renderMultipleHistogram),
                Map.entry("render-pie", pie::renderPieChart), Map.entry("mesh-java-filter", meshes::javaFilter),
                Map.entry("mesh-interval-filter", meshes::intervalFilter));
        Runnable bulk = bulkPaths.get(args[0]);
        if (bulk != null) {
            if (args[0].contains("-pie")) {
                pie.setUp();
            } else if (args[0].startsWith("build")) {
                build.setUp();
            } else if (args[0].equals("render-histogram")) {
                histogramRender.setUp();
            } else if (args[0].startsWith("render")) {
                render.setUp();
            } else {
                meshes.setUp();
            }
            loop(args, bulk);
            return;
        }
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
        loop(args, path);
    }

    private static void loop(String[] args, Runnable path) {
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
