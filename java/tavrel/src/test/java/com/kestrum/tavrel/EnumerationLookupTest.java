package com.kestrum.tavrel;

import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertNull;
import static org.junit.jupiter.api.Assertions.assertSame;

import com.kestrum.tavrel.testkit.NativeMethods;
import java.lang.reflect.Method;
import java.lang.reflect.Modifier;
import java.util.Arrays;
import java.util.List;
import java.util.stream.Collectors;
import org.junit.jupiter.api.Test;
import org.junit.jupiter.params.ParameterizedTest;
import org.junit.jupiter.params.provider.MethodSource;

/** Every enumeration's fromValue finds each constant by its toolkit value and nothing else. */
class EnumerationLookupTest {
    static List<Class<?>> enumerations() {
        return NativeMethods.classes().stream()
                .filter(c -> c.isEnum() && Modifier.isPublic(c.getModifiers()) && fromValue(c) != null)
                .collect(Collectors.toList());
    }

    private static Method fromValue(Class<?> c) {
        try {
            Method m = c.getDeclaredMethod("fromValue", int.class);
            return Modifier.isStatic(m.getModifiers()) && m.getReturnType() == c ? m : null;
        } catch (NoSuchMethodException e) {
            return null;
        }
    }

    @Test
    void everyEnumerationWithALookupIsFound() {
        assertEquals(89, enumerations().size(), "enumerations with fromValue(int)");
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("enumerations")
    void fromValueReturnsTheFirstConstantWithTheValueOrNull(Class<?> enumeration) throws Exception {
        Method fromValue = fromValue(enumeration);
        Method getValue = enumeration.getMethod("getValue");
        Object[] constants = enumeration.getEnumConstants();
        int[] values = new int[constants.length];
        for (int i = 0; i < constants.length; i++) {
            values[i] = (int) getValue.invoke(constants[i]);
        }
        for (int i = 0; i < constants.length; i++) {
            int first = 0;
            while (values[first] != values[i]) {
                first++;
            }
            assertSame(constants[first], fromValue.invoke(null, values[i]), constants[i].toString());
        }
        int unused = Arrays.stream(values).max().orElse(0) + 1;
        assertNull(fromValue.invoke(null, unused), "value " + unused);
        assertNull(fromValue.invoke(null, Integer.MIN_VALUE), "value " + Integer.MIN_VALUE);
    }
}
