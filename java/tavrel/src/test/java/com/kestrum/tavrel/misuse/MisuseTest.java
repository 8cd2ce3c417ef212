package com.kestrum.tavrel.misuse;

import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertFalse;

import java.util.List;
import java.util.SplittableRandom;
import java.util.stream.Collectors;
import org.junit.jupiter.api.Test;
import org.junit.jupiter.api.condition.EnabledIfSystemProperty;
import org.junit.jupiter.params.ParameterizedTest;
import org.junit.jupiter.params.provider.ValueSource;

/**
 * Hostile calls to the whole public API, in child JVMs: none may crash the process, make a
 * sanitizer report, print a JNI warning or hang. A few fixed seeds, so that the test command
 * gives the same answer every time; with -Dtavrel.misuse.randomSeed=true also one random seed
 * that is printed. {@code make fuzz} runs as many calls as asked, from any seed.
 */
class MisuseTest {
    /** Calls per child JVM (-Dtavrel.misuse.calls=... changes it). */
    private static final int CALLS = Integer.getInteger("tavrel.misuse.calls", 3000);
    private static final long TIME_LIMIT_SECONDS = 120;

    @ParameterizedTest(name = "seed {0}")
    @ValueSource(longs = {1, 2, 3})
    void fixedSeedKillsNothing(long seed) {
        check(seed);
    }

    @Test
    @EnabledIfSystemProperty(named = "tavrel.misuse.randomSeed", matches = "true")
    void randomSeedKillsNothing() {
        long seed = new SplittableRandom().nextLong() >>> 16;
        System.out.println("misuse run with the random seed " + seed + " (make fuzz SEED=" + seed + " CALLS=" + CALLS
                + " repeats it)");
        check(seed);
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

    private static void check(long seed) {
        MisuseRuns.Outcome o = MisuseRuns.run(seed, CALLS, TIME_LIMIT_SECONDS);
        System.out.println("misuse seed " + seed + ": " + o.callsMade() + " calls, " + o.kind());
        assertFalse(o.failed(), o::report);
    }
}
