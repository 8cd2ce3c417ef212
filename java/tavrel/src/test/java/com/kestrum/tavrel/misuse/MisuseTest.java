package com.kestrum.tavrel.misuse;

import static org.junit.jupiter.api.Assertions.assertAll;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertFalse;
import static org.junit.jupiter.api.Assertions.assertTrue;

import java.util.ArrayList;
import java.util.Arrays;
import java.util.List;
import java.util.SplittableRandom;
import java.util.stream.Collectors;
import org.junit.jupiter.api.Test;
import org.junit.jupiter.api.condition.EnabledIfSystemProperty;

/**
 * Hostile calls to the whole public API, in child JVMs: none may crash the process, make a
 * sanitizer report, print a JNI warning, hang or throw an exception without a clear message, and
 * together the children must make a successful call of every public class. A few fixed seeds,
 * so that the test command gives the same answer every time; with
 * -Dtavrel.misuse.randomSeed=true also one random seed that is printed. {@code make fuzz} runs as
 * many calls as asked, from any seed.
 */
class MisuseTest {
    /** Calls per child JVM (-Dtavrel.misuse.calls=... changes it). */
    private static final int CALLS = Integer.getInteger("tavrel.misuse.calls", 3000);
    private static final long TIME_LIMIT_SECONDS = 120;

    /** The seeds of the fixed runs; each starts its round robins over the classes elsewhere. */
    private static final long[] SEEDS = {1, 2, 3};

    @Test
    void fixedSeedsKillNothingAndReachEveryClass() {
        List<MisuseRuns.Outcome> outcomes = new ArrayList<>();
        for (long seed : SEEDS) {
            outcomes.add(check(seed));
        }
        assertAll(outcomes.stream().map(o -> () -> assertFalse(o.failed(), o::report)));
        MisuseRuns.Reach reach = MisuseRuns.Reach.of(outcomes);
        System.out.println("misuse seeds " + Arrays.toString(SEEDS) + ": " + reach.describe());
        assertTrue(reach.unreached().isEmpty(), reach::describe);
    }

    @Test
    @EnabledIfSystemProperty(named = "tavrel.misuse.randomSeed", matches = "true")
    void randomSeedKillsNothing() {
        long seed = new SplittableRandom().nextLong() >>> 16;
        System.out.println("misuse run with the random seed " + seed + " (make fuzz SEED=" + seed + " CALLS=" + CALLS
                + " repeats it)");
        MisuseRuns.Outcome o = check(seed);
        assertFalse(o.failed(), o::report);
    }

    /** The seed decides every call: a second run writes the same log (native addresses aside). */
    @Test
    void seedRepeatsTheRun() {
        MisuseRuns.Outcome first = MisuseRuns.run(7, 400, TIME_LIMIT_SECONDS);
        MisuseRuns.Outcome second = MisuseRuns.run(7, 400, TIME_LIMIT_SECONDS);
        assertFalse(first.failed(), first::report);
        assertEquals(withoutAddresses(first.logLines()), withoutAddresses(second.logLines()));
    }

    private static List<String> withoutAddresses(List<String> lines) {
        return lines.stream().map(l -> l.replaceAll("0x[0-9a-f]+", "0x?")).collect(Collectors.toList());
    }

    private static MisuseRuns.Outcome check(long seed) {
        MisuseRuns.Outcome o = MisuseRuns.run(seed, CALLS, TIME_LIMIT_SECONDS);
        System.out.println("misuse seed " + seed + ": " + o.callsMade() + " calls, " + o.kind() + ", "
                + MisuseRuns.Reach.of(List.of(o)).classes().size() + " public classes reached");
        return o;
    }
}
