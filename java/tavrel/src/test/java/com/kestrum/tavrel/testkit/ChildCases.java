package com.kestrum.tavrel.testkit;

import static org.junit.jupiter.api.Assertions.assertFalse;
import static org.junit.jupiter.api.Assertions.assertNotNull;

import java.util.List;
import java.util.Map;
import java.util.stream.Collectors;

/**
 * Many cases of misuse that could each kill the process, run one after another in one child JVM
 * ({@link ChildJvm}): the child's {@code main} calls {@link #report} for each case, which prints
 * one line "case NAME: OUTCOME"; the test reads the outcomes back by name. A case that crashes
 * the child leaves it and every later case without an outcome.
 */
public final class ChildCases {
    private ChildCases() {}

    /** What a case does. */
    @FunctionalInterface
    public interface Case {
        /**
         * Runs the case.
         *
         * @throws Throwable what the case threw
         */
        void run() throws Throwable;
    }

    /**
     * In the child: runs the case and prints its outcome, "accepted" when it returned, otherwise
     * the simple name of the exception's class, ": " and its message.
     *
     * @param name the case's name
     * @param c the case
     */
    public static void report(String name, Case c) {
        String outcome;
        try {
            c.run();
            outcome = "accepted";
        } catch (Throwable e) {
            outcome = e.getClass().getSimpleName() + ": " + e.getMessage();
        }
        System.out.println("case " + name + ": " + outcome);
        System.out.flush();
    }

    /** The child's run and the outcome of each case it reported. */
    public record Outcomes(ChildJvm.Result child, Map<String, String> byName) {
        /**
         * The outcome of a case; fails when the child printed a JNI warning, or when the case has
         * no outcome (the child crashed in it or before it).
         *
         * @param name the case's name
         * @return its outcome
         */
        public String of(String name) {
            assertFalse(child.jniWarning(), child::describe);
            String outcome = byName.get(name);
            assertNotNull(outcome, () -> "no outcome for " + name + ": " + child.describe());
            return outcome;
        }
    }

    /**
     * Runs {@code mainClass.main()} in a child JVM.
     *
     * @param mainClass the class whose main reports the cases
     * @param timeoutSeconds how long the child may run
     * @return the outcomes
     * @throws Exception when the child cannot be run
     */
    public static Outcomes run(Class<?> mainClass, long timeoutSeconds) throws Exception {
        ChildJvm.Result child = ChildJvm.run(mainClass, List.of(), timeoutSeconds);
        Map<String, String> byName = child.output().lines().filter(l -> l.startsWith("case ") && l.contains(": "))
                .collect(Collectors.toMap(l -> l.substring(5, l.indexOf(": ")), l -> l.substring(l.indexOf(": ") + 2),
                        (a, b) -> a));
        return new Outcomes(child, byName);
    }
}
