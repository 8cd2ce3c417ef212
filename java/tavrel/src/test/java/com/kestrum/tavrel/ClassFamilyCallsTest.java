package com.kestrum.tavrel;

import static com.kestrum.tavrel.testkit.CoreCalls.newString;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertTrue;

import com.kestrum.tavrel.testkit.JniCalls;
import com.kestrum.tavrel.testkit.NativeMethods;
import java.lang.reflect.Method;
import java.lang.reflect.Modifier;
import java.util.ArrayList;
import java.util.List;
import java.util.function.Predicate;
import java.util.stream.Stream;
import org.junit.jupiter.api.Test;
import org.junit.jupiter.params.ParameterizedTest;
import org.junit.jupiter.params.provider.Arguments;
import org.junit.jupiter.params.provider.MethodSource;

/**
 * The per-class families, for every class that has them: a type-name getter asks the toolkit and
 * then makes the one Java string; a default constructor function, an enumeration getter and a
 * catalog getter make no JNI call. One row per native method, found by reflection.
 */
class ClassFamilyCallsTest {
    private static final Predicate<Method> STATIC_NO_ARGUMENTS =
            m -> Modifier.isStatic(m.getModifiers()) && m.getParameterCount() == 0;

    static Stream<Arguments> typeNames() {
        return rows(m -> m.getName().equals("getClassTypeId") && m.getReturnType() == String.class);
    }

    static Stream<Arguments> silent() {
        return rows(m -> m.getName().equals("ctorImpl") && m.getReturnType() == long.class
                || m.getName().matches("get[A-Z0-9_]+Native") || m.getName().equals("getClassNodekitCatalogImpl"));
    }

    private static Stream<Arguments> rows(Predicate<Method> which) {
        return NativeMethods.natives(STATIC_NO_ARGUMENTS.and(which)).stream()
                .map(m -> Arguments.of(m.getDeclaringClass().getName().replaceAll(".*\\.", "") + "." + m.getName(), m));
    }

    @Test
    void everyFamilyHasItsRows() {
        assertTrue(typeNames().count() >= 170, "type names: " + typeNames().count());
        assertTrue(silent().count() >= 300, "others: " + silent().count());
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("typeNames")
    void aTypeNameIsTheToolkitsThenOneString(String name, Method m) throws Throwable {
        String typeName = (String) NativeMethods.invoke(m, null, new Object[0]);
        List<String> calls = JniCalls.recordWithToolkit(() -> NativeMethods.invoke(m, null, new Object[0])).calls();
        List<String> expected = new ArrayList<>(calls.stream().filter(c -> c.startsWith(JniCalls.TOOLKIT)).toList());
        expected.addAll(newString(typeName));
        assertEquals(expected, calls, name);
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("silent")
    void noJniCall(String name, Method m) throws Throwable {
        NativeMethods.invoke(m, null, new Object[0]);
        List<String> calls = JniCalls.recordWithToolkit(() -> NativeMethods.invoke(m, null, new Object[0])).calls();
        assertEquals(List.of(), calls.stream().filter(c -> !c.startsWith(JniCalls.TOOLKIT)).toList(), name);
    }
}
