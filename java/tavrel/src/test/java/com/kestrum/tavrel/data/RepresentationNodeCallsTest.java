package com.kestrum.tavrel.data;

import static com.kestrum.tavrel.testkit.CoreCalls.toolkit;
import static com.kestrum.tavrel.testkit.CoreCalls.toolkitByName;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertNotNull;

import com.kestrum.corvel.misc.NativeObject;
import com.kestrum.tavrel.testkit.JniCalls;
import com.kestrum.tavrel.testkit.NativeMethods;
import java.lang.reflect.Method;
import java.util.List;
import java.util.stream.Stream;
import org.junit.jupiter.api.Test;
import org.junit.jupiter.params.ParameterizedTest;
import org.junit.jupiter.params.provider.Arguments;
import org.junit.jupiter.params.provider.MethodSource;

/**
 * The setters and getters of the representation nodes (mesh, data mappings, isovalue list,
 * format, text attributes) pass handles through: one toolkit call, of the class that declares
 * the native method, and no JNI call at all; the cross-section method is stored in the node
 * without any call. One row per native method, found by reflection; the handles given are 0.
 * (The probe's callback setters are BridgeCallsTest's; constructor functions
 * DataConstructorCallsTest's.)
 */
class RepresentationNodeCallsTest {
    static Stream<Arguments> accessors() {
        return NativeMethods.natives(m -> m.getDeclaringClass().getPackageName().endsWith(".data")
                        && m.getDeclaringClass().getSimpleName().startsWith("Po")
                        && m.getName().matches("(set|get)\\w+Impl") && !m.getName().endsWith("CallbackImpl")
                        && !m.getName().equals("getClassNodekitCatalogImpl"))
                .stream().map(m -> Arguments.of(m.getDeclaringClass().getSimpleName() + "." + m.getName(), m));
    }

    @Test
    void everyAccessorHasItsRow() {
        assertEquals(17, accessors().count(), accessors().map(a -> a.get()[0]).toList().toString());
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("accessors")
    void oneToolkitCallAndNoJniCall(String name, Method m) throws Throwable {
        Object node = NativeMethods.newInstance(m.getDeclaringClass());
        assertNotNull(node, name);
        try {
            Object[] args = NativeMethods.arguments(m, node);
            NativeMethods.invoke(m, node, args);
            List<String> calls = toolkitByName(JniCalls.recordWithToolkit(() -> NativeMethods.invoke(m, node, args))
                    .calls());
            if (m.getName().equals("setCrossSectionMethodImpl")) {
                assertEquals(List.of(), calls, name + ": a plain member, set inline");
            } else {
                String operation = m.getName().substring(0, m.getName().length() - "Impl".length());
                assertEquals(List.of(toolkit(m.getDeclaringClass().getSimpleName() + "::" + operation)), calls, name);
            }
        } finally {
            ((NativeObject) node).dispose();
        }
    }
}
