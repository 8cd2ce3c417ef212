package com.kestrum.tavrel.misuse;

import com.kestrum.tavrel.testkit.ChildJvm;
import java.io.IOException;
import java.io.UncheckedIOException;
import java.nio.charset.StandardCharsets;
import java.nio.file.Files;
import java.nio.file.Path;
import java.util.ArrayList;
import java.util.List;
import java.util.SplittableRandom;
import java.util.regex.Matcher;
import java.util.regex.Pattern;

/**
 * Runs {@link Misuse} in child JVMs and reports what happened to them; its {@code main} is
 * {@code make fuzz}: {@code MisuseRuns <calls> [seed] [calls per child JVM]}. The children run
 * in turn, with the seeds seed, seed + 1, ...; a failed child is reported with the command that
 * repeats it alone.
 */
public final class MisuseRuns {
    /** The call log, in the child's working folder. */
    static final String LOG = "calls.log";
    /** The child's heap: a leak shows up as an OutOfMemoryError, not as a slow machine. */
    static final List<String> JVM_OPTIONS = List.of("-Xmx256m");

    private static final Pattern SANITIZER = Pattern.compile(
            "ERROR: AddressSanitizer|ERROR: LeakSanitizer|runtime error: |UndefinedBehaviorSanitizer");
    private static final Pattern SUMMARY = Pattern.compile("misuse seed -?\\d+: (\\d+) calls");
    private static final Pattern UNCLEAR_COUNT = Pattern.compile("misuse unclear exceptions: (\\d+)");
    private static final String JNI_WARNING = "WARNING in native method";
    private static final int LAST_CALLS = 40;

    private MisuseRuns() {}

    /** One child's run. */
    record Outcome(long seed, int callsAsked, ChildJvm.Result result) {
        Path log() {
            return result.workDir().resolve(LOG);
        }

        boolean failed() {
            return result.crashed() || result.jniWarning() || result.exitCode() != 0
                    || !result.output().contains("misuse finished");
        }

        /** What went wrong: hang, sanitizer report, crash, JNI warning, or the exit code. */
        String kind() {
            if (result.timedOut()) {
                return "hang";
            }
            if (SANITIZER.matcher(result.output()).find()) {
                return "sanitizer report";
            }
            if (result.crashed()) {
                return "crash";
            }
            if (result.jniWarning()) {
                return "JNI warning";
            }
            if (result.output().contains(Coverage.UNCLEAR)) {
                return "unclear exception";
            }
            return failed() ? "exit code " + result.exitCode() : "ok";
        }

        /** Calls made: from the child's summary, or counted in its log when it died. */
        int callsMade() {
            Matcher m = SUMMARY.matcher(result.output());
            if (m.find()) {
                return Integer.parseInt(m.group(1));
            }
            return (int) logLines().stream().filter(MisuseRuns::isCall).count();
        }

        /** The product classes and methods with a successful call in this child. */
        java.util.Set<String> reachedClasses() {
            return Coverage.read(result.workDir().resolve(Coverage.FILE), "C ");
        }

        java.util.Set<String> reachedMethods() {
            return Coverage.read(result.workDir().resolve(Coverage.FILE), "M ");
        }

        /** Exceptions without a clear message that the child saw (from its summary). */
        int unclearExceptions() {
            Matcher m = UNCLEAR_COUNT.matcher(result.output());
            return m.find() ? Integer.parseInt(m.group(1)) : 0;
        }

        /** JNI warnings printed by the child. */
        int jniWarnings() {
            return result.output().split(JNI_WARNING, -1).length - 1;
        }

        List<String> logLines() {
            return readLines(log());
        }

        /** The seed, how to repeat the run, its last calls, the JVM's error file and output. */
        String report() {
            StringBuilder b = new StringBuilder();
            b.append("misuse run with seed ").append(seed).append(": ").append(kind()).append(" after ")
                    .append(callsMade()).append(" calls; repeat it with: make fuzz SEED=").append(seed)
                    .append(" CALLS=").append(callsAsked).append('\n');
            List<String> lines = logLines();
            b.append("call log ").append(log()).append(", last lines:\n");
            for (String line : lines.subList(Math.max(0, lines.size() - LAST_CALLS), lines.size())) {
                b.append("  ").append(line).append('\n');
            }
            for (String lane : List.of("calls-lane-0.log", "calls-lane-1.log")) {
                Path file = result.workDir().resolve(lane);
                if (Files.exists(file)) {
                    List<String> laneLines = readLines(file);
                    b.append("lane log ").append(file).append(", last lines:\n");
                    for (String line : laneLines.subList(Math.max(0, laneLines.size() - LAST_CALLS / 2),
                            laneLines.size())) {
                        b.append("  ").append(line).append('\n');
                    }
                }
            }
            Path err = result.errorFile();
            if (err != null) {
                b.append("JVM error file ").append(err).append(":\n").append(errorFileSummary(err));
            }
            return b.append(result.describe()).toString();
        }
    }

    /** Runs one child: seed, calls, and a time limit after which it counts as hung. */
    static Outcome run(long seed, int calls, long timeoutSeconds) {
        try {
            ChildJvm.Result r = ChildJvm.run(Misuse.class, JVM_OPTIONS, timeoutSeconds, Long.toString(seed),
                    Integer.toString(calls), LOG);
            return new Outcome(seed, calls, r);
        } catch (IOException e) {
            throw new UncheckedIOException(e);
        } catch (InterruptedException e) {
            Thread.currentThread().interrupt();
            throw new IllegalStateException(e);
        }
    }

    private static List<String> readLines(Path file) {
        try {
            return Files.exists(file) ? Files.readAllLines(file, StandardCharsets.UTF_8) : List.of();
        } catch (IOException e) {
            throw new UncheckedIOException(e);
        }
    }

    /** What a set of children reached together, against the public classes the run must reach. */
    record Reach(java.util.Set<String> classes, java.util.Set<String> methods, List<String> unreached) {
        static Reach of(List<Outcome> outcomes) {
            java.util.Set<String> classes = new java.util.TreeSet<>();
            java.util.Set<String> methods = new java.util.TreeSet<>();
            for (Outcome o : outcomes) {
                classes.addAll(o.reachedClasses());
                methods.addAll(o.reachedMethods());
            }
            List<String> unreached = new ArrayList<>();
            java.util.Set<String> product = new java.util.TreeSet<>();
            for (Class<?> c : new Surface().productClasses) {
                product.add(c.getName());
                if (!classes.contains(c.getName())) {
                    unreached.add(c.getName());
                }
            }
            classes.retainAll(product);
            return new Reach(classes, methods, unreached);
        }

        String describe() {
            return "reached " + classes.size() + " of " + (classes.size() + unreached.size()) + " public classes and "
                    + methods.size() + " methods" + (unreached.isEmpty() ? ""
                    : "; never reached (" + unreached.size() + "): " + String.join(", ",
                            unreached.subList(0, Math.min(unreached.size(), 40)))
                            + (unreached.size() > 40 ? ", ..." : ""));
        }
    }

    /** A log line that is a call (not an event "~" or a note "#"). */
    static boolean isCall(String line) {
        String[] parts = line.trim().split("\\s+", 3);
        return parts.length == 3 && !parts[2].startsWith("~") && !parts[2].startsWith("#");
    }

    /** The head of an error file (signal, problematic frame) and its native and Java frames. */
    static String errorFileSummary(Path err) {
        List<String> lines;
        try {
            lines = Files.readAllLines(err, StandardCharsets.ISO_8859_1);
        } catch (IOException e) {
            return "  (unreadable: " + e + ")\n";
        }
        StringBuilder b = new StringBuilder();
        for (int i = 0; i < Math.min(lines.size(), 20); i++) {
            b.append("  ").append(lines.get(i)).append('\n');
        }
        boolean frames = false;
        int shown = 0;
        for (String line : lines) {
            if (line.startsWith("Native frames:")) {
                frames = true;
            } else if (line.startsWith("siginfo:")) {
                break;
            }
            if (frames && shown++ < 45) {
                b.append("  ").append(line).append('\n');
            }
        }
        return b.toString();
    }

    /**
     * {@code make fuzz}: runs the calls in child JVMs in turn and prints the figures; fails when a
     * child failed or when a public class had no successful call in any child.
     */
    public static void main(String[] args) {
        int calls = Integer.parseInt(args[0]);
        long seed = args.length > 1 && !args[1].isEmpty() ? Long.parseLong(args[1])
                : new SplittableRandom().nextLong() >>> 16;
        int perChild = args.length > 2 && !args[2].isEmpty() ? Integer.parseInt(args[2]) : 25_000;
        long start = System.nanoTime();
        int made = 0;
        int children = 0;
        List<Outcome> outcomes = new ArrayList<>();
        List<Outcome> failures = new ArrayList<>();
        System.out.println("misuse: " + calls + " calls, " + perChild + " per child JVM, seeds from " + seed);
        while (made < calls) {
            long childSeed = seed + children;
            int n = Math.min(perChild, calls - made);
            long t0 = System.nanoTime();
            Outcome o = run(childSeed, n, 120 + n / 100);
            outcomes.add(o);
            children++;
            made += Math.max(1, o.callsMade());
            System.out.printf("child JVM %d, seed %d: %d calls, %.1f s, %s%n", children, childSeed, o.callsMade(),
                    (System.nanoTime() - t0) / 1e9, o.kind());
            if (o.failed()) {
                failures.add(o);
                System.out.println(o.report());
                if (o.callsMade() == 0) {
                    System.out.println("misuse: the child JVM made no call; stopping");
                    break;
                }
            }
        }
        long hangs = failures.stream().filter(o -> o.kind().equals("hang")).count();
        long sanitizer = failures.stream().filter(o -> o.kind().equals("sanitizer report")).count();
        long crashes = failures.stream().filter(o -> o.kind().equals("crash")).count();
        int warnings = outcomes.stream().mapToInt(Outcome::jniWarnings).sum();
        int unclear = outcomes.stream().mapToInt(Outcome::unclearExceptions).sum();
        long other = failures.stream().filter(o -> !List.of("hang", "sanitizer report", "crash", "JNI warning",
                "unclear exception").contains(o.kind())).count();
        Reach reach = Reach.of(outcomes);
        System.out.printf("misuse: %d calls in %d child JVMs, %d crashes, %d sanitizer reports, %d JNI warnings, "
                + "%d hangs, %d unclear exceptions, %d other failures, %.0f s%n", made, children, crashes, sanitizer,
                warnings, hangs, unclear, other, (System.nanoTime() - start) / 1e9);
        System.out.println("misuse: " + reach.describe());
        System.exit(failures.isEmpty() && reach.unreached().isEmpty() ? 0 : 1);
    }
}
