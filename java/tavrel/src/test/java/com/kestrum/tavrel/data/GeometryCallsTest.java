package com.kestrum.tavrel.data;

import static com.kestrum.tavrel.testkit.CoreCalls.array;
import static com.kestrum.tavrel.testkit.CoreCalls.toolkitByName;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertNotNull;
import static org.junit.jupiter.api.Assertions.assertTrue;

import com.kestrum.tavrel.testkit.JniCalls;
import com.kestrum.tavrel.testkit.NativeMethods;
import java.lang.reflect.Method;
import java.util.ArrayList;
import java.util.Collections;
import java.util.List;
import java.util.stream.Stream;
import org.junit.jupiter.api.Test;
import org.junit.jupiter.params.ParameterizedTest;
import org.junit.jupiter.params.provider.Arguments;
import org.junit.jupiter.params.provider.MethodSource;

/**
 * Every setGeometry of the meshes, mesh nodes and mesh fields: each array argument converted
 * ReadOnly (a mesh's in the order of the arguments, a mesh node's or field's from the last array
 * to the first), and then the toolkit's setGeometry (of the node or
 * field, and of the mesh it holds), nothing after it.
 * One row per native method, found by reflection; the arrays have distinct lengths, counts are 0.
 */
class GeometryCallsTest {
    static Stream<Arguments> methods() {
        return NativeMethods.natives(m -> m.getName().startsWith("setGeometryImpl")).stream()
                .map(m -> Arguments.of(m.getDeclaringClass().getSimpleName() + "." + m.getName(), m));
    }

    @Test
    void everyMeshKindHasItsRows() {
        assertTrue(methods().count() >= 50, "setGeometry rows: " + methods().count());
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("methods")
    void arraysInArgumentOrderThenTheToolkit(String name, Method method) throws Throwable {
        Object receiver = NativeMethods.newInstance(method.getDeclaringClass());
        assertNotNull(receiver, "no object for " + name);
        Object[] args = NativeMethods.arguments(method, receiver);
        List<List<String>> conversions = new ArrayList<>();
        for (Object a : args) {
            if (a != null && a.getClass().isArray()) {
                conversions.add(array(NativeMethods.kind(a.getClass()), java.lang.reflect.Array.getLength(a)));
            }
        }
        if (!method.getDeclaringClass().getPackageName().endsWith(".data")) {
            Collections.reverse(conversions);
        }
        List<String> expected = new ArrayList<>();
        conversions.forEach(expected::addAll);
        NativeMethods.invoke(method, receiver, args);
        List<String> calls = toolkitByName(JniCalls.recordWithToolkit(() ->
                NativeMethods.invoke(method, receiver, NativeMethods.arguments(method, receiver))).calls());
        // A mesh node or field passes the geometry on to the mesh it holds: two toolkit lines.
        List<String> toolkit = calls.stream().filter(c -> c.startsWith(JniCalls.TOOLKIT)).toList();
        assertTrue(!toolkit.isEmpty() && toolkit.stream().allMatch(c -> c.endsWith("::setGeometry")),
                name + ": " + calls);
        expected.addAll(toolkit);
        assertEquals(expected, calls, name);
    }
}
