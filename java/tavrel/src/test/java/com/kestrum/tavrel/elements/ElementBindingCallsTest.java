package com.kestrum.tavrel.elements;

import static com.kestrum.tavrel.testkit.CoreCalls.COPY_BACK_CHECK;
import static com.kestrum.tavrel.testkit.CoreCalls.array;
import static com.kestrum.tavrel.testkit.CoreCalls.copyBack;
import static com.kestrum.tavrel.testkit.CoreCalls.readString;
import static com.kestrum.tavrel.testkit.CoreCalls.sequence;
import static org.junit.jupiter.api.Assertions.assertAll;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertTrue;

import com.kestrum.tavrel.testkit.JniCalls;
import com.kestrum.tavrel.testkit.NativeMethods;
import java.lang.reflect.Method;
import java.util.ArrayList;
import java.util.List;
import java.util.Map;
import org.junit.jupiter.api.Test;
import org.junit.jupiter.api.function.Executable;

/**
 * The element classes' own static operations, all of them, inside one traversal: a set or get
 * is the toolkit call alone; the label text is read before its call; the profile's box output is
 * opened before the toolkit call, the point count's after it (each after a check for an
 * exception that an element's override may have left), and written back at the end; the
 * defaults make no call at all. Rows found by reflection.
 */
class ElementBindingCallsTest {
    private static final String CHECK = "ExceptionCheck() -> false";

    /** The JNI calls besides the toolkit's, for the methods that have any ("T" stands for the toolkit's calls). */
    private static final Map<String, List<String>> SEQUENCES = Map.of(
            "PoLabelHintsElement.setImpl", sequence(readString(3), "T"),
            "PoProfileElement.getBBoxImpl", sequence(array("Float", 16), "T", CHECK, COPY_BACK_CHECK,
                    copyBack("Float", 16)),
            "PoProfileElement.getProfileImpl", sequence("T", CHECK, array("Int", 16), COPY_BACK_CHECK,
                    copyBack("Int", 16)),
            "PoProfileElement.getDirectProfileImpl", sequence("T", CHECK, array("Int", 16), COPY_BACK_CHECK,
                    copyBack("Int", 16)));

    @Test
    void everyOperationOfEveryClass() {
        List<Method> operations = NativeMethods.natives(m -> m.getDeclaringClass().getPackageName().endsWith(".elements")
                && m.getName().matches("(set|get)[A-Za-z0-9]*Impl\\d*") && !m.getName().equals("getClassStackIndexImpl"));
        assertTrue(operations.size() >= 35, "operations: " + operations.size());
        List<Executable> checks = new ArrayList<>();
        Traversal.run(state -> {
            long s = state.getNativeResourceHandleInternal();
            for (Method m : operations) {
                String name = m.getDeclaringClass().getSimpleName() + "." + m.getName();
                Object[] args = NativeMethods.arguments(m, null, 16);
                if (args.length > 0) {
                    args[0] = s;
                }
                for (int i = 1; i < args.length; i++) {
                    if (m.getParameterTypes()[i] == String.class) {
                        args[i] = "txt";
                    }
                }
                List<String> calls;
                try {
                    NativeMethods.invoke(m, null, args); // the first call may register the element class
                    calls = JniCalls.recordWithToolkit(() -> NativeMethods.invoke(m, null, args)).calls();
                } catch (Throwable t) {
                    throw new AssertionError(name, t);
                }
                List<String> toolkit = calls.stream().filter(c -> c.startsWith(JniCalls.TOOLKIT)).toList();
                List<String> expected = new ArrayList<>();
                for (String c : SEQUENCES.getOrDefault(name, List.of("T"))) {
                    if (c.equals("T")) {
                        expected.addAll(toolkit);
                    } else {
                        expected.add(c);
                    }
                }
                boolean isDefault = m.getName().equals("getDefaultImpl");
                checks.add(() -> assertEquals(isDefault, toolkit.isEmpty(), name + ": toolkit calls " + toolkit));
                checks.add(() -> assertEquals(expected, calls, name));
            }
        });
        assertAll(checks);
    }
}
