package com.kestrum.tavrel.data;

import static com.kestrum.tavrel.testkit.CoreCalls.array;
import static com.kestrum.tavrel.testkit.CoreCalls.toolkitByName;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertNotEquals;
import static org.junit.jupiter.api.Assertions.assertTrue;

import com.kestrum.corvel.misc.NativeObject;
import com.kestrum.tavrel.testkit.JniCalls;
import com.kestrum.tavrel.testkit.NativeMethods;
import java.lang.reflect.Array;
import java.lang.reflect.Method;
import java.util.ArrayList;
import java.util.List;
import java.util.stream.Stream;
import org.junit.jupiter.api.Test;
import org.junit.jupiter.params.ParameterizedTest;
import org.junit.jupiter.params.provider.Arguments;
import org.junit.jupiter.params.provider.MethodSource;

/**
 * Every constructor function of the data package (meshes, cells, representation nodes, the
 * defined-value functor): its arrays converted ReadOnly in the order of the arguments, then the
 * toolkit's constructor, nothing after it (no copy back, no Java call). A copy or a cell takes
 * the handle of a live object and converts nothing. One row per native method, found by
 * reflection; the arrays have distinct lengths, the counts are 0, the flag is true.
 */
class DataConstructorCallsTest {
    static Stream<Arguments> constructors() {
        return NativeMethods.natives(m -> m.getName().matches("ctorImpl\\d*")
                        && m.getDeclaringClass().getPackageName().endsWith(".data"))
                .stream().map(m -> Arguments.of(m.getDeclaringClass().getSimpleName() + "." + m.getName(), m));
    }

    @Test
    void everyConstructorFunctionHasItsRow() {
        assertTrue(constructors().count() >= 80, "rows: " + constructors().count());
    }

    /** The handle a long argument takes: a cell's mesh, or another object of the class. */
    private static long handleFor(Method m) {
        Class<?> c = m.getDeclaringClass();
        Object o = PbCell.class.isAssignableFrom(c) && m.getName().equals("ctorImpl") ? DataObjects.CUBE
                : DataObjects.of(c);
        return ((NativeObject) o).getNativeResourceHandleInternal();
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("constructors")
    void arraysInArgumentOrderThenTheToolkitNothingAfter(String name, Method m) throws Throwable {
        Object[] args = NativeMethods.arguments(m, null);
        List<String> expected = new ArrayList<>();
        for (int i = 0; i < args.length; i++) {
            Class<?> t = m.getParameterTypes()[i];
            if (t == boolean.class) {
                args[i] = true;
            } else if (t == long.class) {
                args[i] = handleFor(m);
            } else if (t.isArray()) {
                expected.addAll(array(NativeMethods.kind(t), Array.getLength(args[i])));
            }
        }
        NativeMethods.invoke(m, null, args);
        long[] made = new long[1];
        List<String> calls = toolkitByName(JniCalls.recordWithToolkit(() ->
                made[0] = (Long) NativeMethods.invoke(m, null, args)).calls());
        assertNotEquals(0L, made[0], name);
        List<String> toolkit = calls.stream().filter(c -> c.startsWith(JniCalls.TOOLKIT)).toList();
        assertTrue(!toolkit.isEmpty(), name + ": no toolkit call " + toolkit);
        expected.addAll(toolkit);
        assertEquals(expected, calls, name);
    }
}
