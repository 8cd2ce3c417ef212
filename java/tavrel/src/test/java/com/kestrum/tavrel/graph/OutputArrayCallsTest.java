package com.kestrum.tavrel.graph;

import static com.kestrum.tavrel.testkit.CoreCalls.COPY_BACK_CHECK;
import static com.kestrum.tavrel.testkit.CoreCalls.array;
import static com.kestrum.tavrel.testkit.CoreCalls.copyBack;
import static com.kestrum.tavrel.testkit.CoreCalls.newString;
import static com.kestrum.tavrel.testkit.CoreCalls.readString;
import static com.kestrum.tavrel.testkit.CoreCalls.toolkitByName;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertNotNull;
import static org.junit.jupiter.api.Assertions.assertTrue;

import com.kestrum.tavrel.testkit.JniCalls;
import com.kestrum.tavrel.testkit.NativeMethods;
import java.lang.reflect.Array;
import java.lang.reflect.Method;
import java.util.ArrayList;
import java.util.Arrays;
import java.util.List;
import java.util.Map;
import java.util.stream.Stream;
import org.junit.jupiter.api.Test;
import org.junit.jupiter.params.ParameterizedTest;
import org.junit.jupiter.params.provider.Arguments;
import org.junit.jupiter.params.provider.MethodSource;

/**
 * Every getter of the graph package that answers through output arrays: an output that receives
 * a single value is converted ReadWrite after the toolkit call, with a helper of its own, and
 * written back at once; one that receives a whole value (a box, a matrix, a colour, the decades
 * list the toolkit fills) is converted before the call and written back last. One row per
 * native method, found by reflection; the outputs have distinct lengths (16 and more).
 */
class OutputArrayCallsTest {
    /** Outputs converted before the toolkit call, in one helper: positions in the native arguments. */
    private static final Map<String, int[]> WHOLE = Map.of(
            "PbDomain.get2DDomainImpl", new int[] {1},
            "PbDomain.get3DDomainImpl", new int[] {1},
            "PbDomain.getMatrixImpl", new int[] {1},
            "PbLinearDataMapping.getRGBValuesImpl", new int[] {2, 4},
            "PbLinearDataMapping.getHLSValuesImpl", new int[] {2, 4},
            "PbLinearDataMapping.getRGBAValuesImpl", new int[] {2, 5},
            "PbLinearDataMapping.getHLSAValuesImpl", new int[] {2, 5},
            "PoLogAxis.getLogGradImpl", new int[] {2},
            "PoPolarLogAxis.getLogGradImpl", new int[] {2});

    /** Single-value outputs that share one helper (the three unsigned shorts of a tick definition). */
    private static final Map<String, int[]> SHARED = Map.of("PoAxis.getTickImpl", new int[] {6, 7, 8});

    /** What the method makes besides its outputs: right after the toolkit call, or last. */
    private static final Map<String, List<String>> AFTER_TOOLKIT = Map.of(
            "PbIsovaluesList.getDirectIsoListImpl", List.of("NewDirectByteBuffer(0)"));
    private static final Map<String, List<String>> LAST = Map.of(
            "PbIsovaluesList.getIsoListImpl", List.of("NewFloatArray(0)"));

    static Stream<Arguments> getters() {
        return NativeMethods.natives(m -> m.getName().startsWith("get")
                        && m.getDeclaringClass().getPackageName().endsWith(".graph")
                        && m.getParameterCount() > 1 && m.getParameterTypes()[0] == long.class
                        && Arrays.stream(m.getParameterTypes()).skip(1).anyMatch(Class::isArray)
                        && Arrays.stream(m.getParameterTypes()).skip(1).allMatch(t -> t.isArray() || t == String.class))
                .stream().map(m -> Arguments.of(m.getDeclaringClass().getSimpleName() + "." + m.getName(), m));
    }

    @Test
    void everyOutputGetterHasItsRow() {
        assertTrue(getters().count() >= 28, "rows: " + getters().count());
    }

    private static Object receiver(Class<?> c) {
        if (c == PbNumericDisplayFormat.class) {
            return new PbNumericDisplayFormat(PbNumericDisplayFormat.FormatTypes.values()[0], 3, 2);
        }
        return NativeMethods.newInstance(c);
    }

    private static List<String> conversion(Object a) {
        return array(NativeMethods.kind(a.getClass()), Array.getLength(a));
    }

    private static String back(Object a) {
        return copyBack(NativeMethods.kind(a.getClass()), Array.getLength(a));
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("getters")
    void singleValuesAfterTheCallWholeValuesBefore(String name, Method m) throws Throwable {
        Object receiver = receiver(m.getDeclaringClass());
        assertNotNull(receiver, name);
        Object[] args = NativeMethods.arguments(m, receiver, 16);
        for (int i = 1; i < args.length; i++) {
            if (m.getParameterTypes()[i] == String.class) {
                args[i] = "ss";
            }
        }
        int[] whole = WHOLE.getOrDefault(name, new int[0]);
        int[] shared = SHARED.getOrDefault(name, new int[0]);
        List<String> before = new ArrayList<>();
        List<String> after = new ArrayList<>();
        List<String> end = new ArrayList<>(LAST.getOrDefault(name, List.of()));
        for (int i = 1; i < args.length; i++) {
            int position = i;
            Object a = args[i];
            if (a instanceof String s) {
                before.addAll(readString(s.length()));
            } else if (Arrays.stream(whole).anyMatch(w -> w == position)) {
                before.addAll(conversion(a));
            } else if (a instanceof String[]) {
                after.addAll(newString(""));
                after.addAll(List.of("SetObjectArrayElement(0)", "DeleteLocalRef()"));
            } else if (Arrays.stream(shared).anyMatch(w -> w == position)) {
                after.addAll(conversion(a));
                if (position == shared[shared.length - 1]) {
                    after.add(COPY_BACK_CHECK);
                    for (int k = shared.length - 1; k >= 0; k--) {
                        after.add(back(args[shared[k]]));
                    }
                }
            } else {
                after.addAll(conversion(a));
                after.add(COPY_BACK_CHECK);
                after.add(back(a));
            }
        }
        if (whole.length > 0) {
            end.add(COPY_BACK_CHECK);
            for (int k = whole.length - 1; k >= 0; k--) {
                end.add(back(args[whole[k]]));
            }
        }
        NativeMethods.invoke(m, receiver, args);
        List<String> calls = toolkitByName(JniCalls.recordWithToolkit(() ->
                NativeMethods.invoke(m, receiver, args)).calls());
        List<String> expected = new ArrayList<>(before);
        // the toolkit's calls (none for an attribute whose members are read inline)
        expected.addAll(calls.stream().filter(c -> c.startsWith(JniCalls.TOOLKIT)).toList());
        expected.addAll(AFTER_TOOLKIT.getOrDefault(name, List.of()));
        expected.addAll(after);
        expected.addAll(end);
        assertEquals(expected, calls, name);
    }
}
