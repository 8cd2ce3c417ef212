package com.kestrum.tavrel;

import static org.junit.jupiter.api.Assertions.assertArrayEquals;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertNull;

import com.kestrum.corvel.SbColor;
import com.kestrum.corvel.SbVec2f;
import com.kestrum.corvel.SbVec3f;
import com.kestrum.tavrel.testkit.Marshal;
import java.util.function.Function;
import java.util.stream.Stream;
import org.junit.jupiter.params.ParameterizedTest;
import org.junit.jupiter.params.provider.Arguments;
import org.junit.jupiter.params.provider.MethodSource;
import org.junit.jupiter.api.Test;

class VectorMarshallingTest {
    static Stream<Arguments> kinds() {
        Function<Object[], float[]> v2 = Marshal::vec2fArray;
        Function<Object[], float[]> v3 = Marshal::vec3fArray;
        Function<Object[], float[]> col = Marshal::colorArray;
        return Stream.of(
                Arguments.of("SbVec2f", v2, new Object[] {new SbVec2f(1, 2), new SbVec2f(-3, 4.5f)},
                        new float[] {1, 2, -3, 4.5f}),
                Arguments.of("SbVec3f", v3, new Object[] {new SbVec3f(1, 2, 3), new SbVec3f(4, 5, 6)},
                        new float[] {1, 2, 3, 4, 5, 6}),
                Arguments.of("SbColor", col, new Object[] {new SbColor(0.25f, 0.5f, 1)},
                        new float[] {0.25f, 0.5f, 1}));
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("kinds")
    void copiesEveryComponentInOrder(String kind, Function<Object[], float[]> convert, Object[] input, float[] floats) {
        assertArrayEquals(floats, convert.apply(input));
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("kinds")
    void nullEmptyOrNullHeadedArraysGiveNoNativeArray(String kind, Function<Object[], float[]> convert,
            Object[] input, float[] floats) {
        assertNull(convert.apply(null));
        assertNull(convert.apply(new Object[0]));
        Object[] nullHeaded = input.clone();
        nullHeaded[0] = null;
        assertNull(convert.apply(nullHeaded));
    }

    @Test
    void subclassesOfTheVectorClassConvertToo() {
        class Tagged extends SbVec3f {
            Tagged(float x, float y, float z) {
                super(x, y, z);
            }
        }
        assertArrayEquals(new float[] {7, 8, 9, 1, 2, 3},
                Marshal.vec3fArray(new Object[] {new Tagged(7, 8, 9), new SbVec3f(1, 2, 3)}));
    }

    @Test
    void aMillionVectorsConvertWithinTheLocalReferenceCapacity() {
        int n = 1_000_000;
        SbVec3f[] vectors = new SbVec3f[n];
        for (int i = 0; i < n; i++) {
            vectors[i] = new SbVec3f(i % 7, 1, -1);
        }
        double expected = 0;
        for (int i = 0; i < n; i++) {
            expected += i % 7;
        }
        // A local-reference leak shows as a JNI warning, which fails the test.
        assertEquals(expected, Marshal.vec3fSum(vectors), 0.0);
    }
}
