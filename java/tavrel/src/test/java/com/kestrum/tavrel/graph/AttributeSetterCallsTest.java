package com.kestrum.tavrel.graph;

import static com.kestrum.tavrel.testkit.CoreCalls.COPY_BACK_CHECK;
import static com.kestrum.tavrel.testkit.CoreCalls.copyBack;
import static com.kestrum.tavrel.testkit.CoreCalls.toolkitByName;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertTrue;

import com.kestrum.corvel.SbColor;
import com.kestrum.tavrel.testkit.JniCalls;
import com.kestrum.tavrel.testkit.NativeMethods;
import java.lang.reflect.Array;
import java.lang.reflect.Method;
import java.util.ArrayList;
import java.util.Arrays;
import java.util.List;
import java.util.Map;
import java.util.stream.IntStream;
import java.util.stream.Stream;
import org.junit.jupiter.api.Test;
import org.junit.jupiter.params.ParameterizedTest;
import org.junit.jupiter.params.provider.Arguments;
import org.junit.jupiter.params.provider.MethodSource;

/**
 * Every other method of the graph package that takes arrays or strings (the attribute objects'
 * setters): all arguments converted first (strings, ReadOnly values, ReadWrite colours and
 * boxes, colour vectors), then the toolkit call, then the ReadWrite arrays copied back
 * unchanged; the threshold flags are single-value outputs, converted and written after the
 * (inline) read. One row per native method, found by reflection.
 */
class AttributeSetterCallsTest {
    /** Conversion orders other than the arguments': positions in the native arguments. */
    private static final Map<String, int[]> ORDER = Map.of(
            // the colours as vectors, then the values, then the transparency
            "PbNonLinearDataMapping2.setValuesImpl", new int[] {4, 3},
            "PbNonLinearDataMapping2.setValuesImpl1", new int[] {4, 3, 5},
            // the second colour's buffer is taken first (one helper for both)
            "PbLinearDataMapping.setValuesImpl", new int[] {4, 2},
            "PbLinearDataMapping.setValuesImpl1", new int[] {5, 2});

    /** Arrays converted ReadWrite, one helper per method: positions in creation order. */
    private static final Map<String, int[]> READ_WRITE = Map.of(
            "PbDataMapping.setMinThresholdImpl1", new int[] {2},
            "PbDataMapping.setMaxThresholdImpl1", new int[] {2},
            "PbDomain.setDomainImpl2", new int[] {1},
            "PbDomain.setDomainImpl3", new int[] {1},
            "PbLinearDataMapping.setValuesImpl", new int[] {4, 2},
            "PbLinearDataMapping.setValuesImpl1", new int[] {5, 2});

    /** Single-value outputs written after the read, each with its own helper. */
    private static final Map<String, int[]> OUTPUTS = Map.of("PbDataMapping.thresholdsEnabledImpl", new int[] {1, 2});

    static Stream<Arguments> setters() {
        return NativeMethods.natives(m -> !m.getName().startsWith("get") && !m.getName().startsWith("ctor")
                        && m.getDeclaringClass().getPackageName().endsWith(".graph")
                        && m.getParameterCount() > 1 && m.getParameterTypes()[0] == long.class
                        && Arrays.stream(m.getParameterTypes()).skip(1).anyMatch(t -> t.isArray() || t == String.class))
                .stream().map(m -> Arguments.of(m.getDeclaringClass().getSimpleName() + "." + m.getName(), m));
    }

    @Test
    void everySetterHasItsRow() {
        assertTrue(setters().count() >= 19, "rows: " + setters().count());
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("setters")
    void argumentsFirstThenTheToolkitThenTheCopiesBack(String name, Method m) throws Throwable {
        Object receiver = NativeMethods.newInstance(m.getDeclaringClass());
        Object[] args = NativeMethods.arguments(m, receiver, 16);
        for (int i = 1; i < args.length; i++) {
            if (m.getParameterTypes()[i] == String.class) {
                args[i] = "s".repeat(i + 1);
            } else if (m.getParameterTypes()[i] == Object[].class) {
                args[i] = new SbColor[] {new SbColor(1, 0, 0), new SbColor(0, 1, 0)};
            }
        }
        int[] outputs = OUTPUTS.getOrDefault(name, new int[0]);
        int[] order = ORDER.getOrDefault(name, IntStream.range(1, args.length)
                .filter(i -> Arrays.stream(outputs).noneMatch(o -> o == i)).toArray());
        List<String> expected = new ArrayList<>();
        for (int i : order) {
            expected.addAll(GraphConstructorCallsTest.conversion(args[i]));
        }
        List<String> after = new ArrayList<>();
        for (int o : outputs) {
            after.addAll(GraphConstructorCallsTest.conversion(args[o]));
            after.add(COPY_BACK_CHECK);
            after.add(copyBack(NativeMethods.kind(args[o].getClass()), Array.getLength(args[o])));
        }
        int[] readWrite = READ_WRITE.getOrDefault(name, new int[0]);
        if (readWrite.length > 0) {
            after.add(COPY_BACK_CHECK);
            for (int k = readWrite.length - 1; k >= 0; k--) {
                Object a = args[readWrite[k]];
                after.add(copyBack(NativeMethods.kind(a.getClass()), Array.getLength(a)));
            }
        }
        NativeMethods.invoke(m, receiver, args);
        List<String> calls = toolkitByName(JniCalls.recordWithToolkit(() ->
                NativeMethods.invoke(m, receiver, args)).calls());
        List<String> toolkit = calls.stream().filter(c -> c.startsWith(JniCalls.TOOLKIT)).toList();
        assertTrue(outputs.length > 0 || !toolkit.isEmpty(), name + ": no toolkit call");
        expected.addAll(toolkit);
        expected.addAll(after);
        assertEquals(expected, calls, name);
    }
}
