package com.kestrum.tavrel.graph;

import static com.kestrum.tavrel.testkit.CoreCalls.COPY_BACK_CHECK;
import static com.kestrum.tavrel.testkit.CoreCalls.array;
import static com.kestrum.tavrel.testkit.CoreCalls.copyBack;
import static com.kestrum.tavrel.testkit.CoreCalls.readString;
import static com.kestrum.tavrel.testkit.CoreCalls.stringArray;
import static com.kestrum.tavrel.testkit.CoreCalls.toolkitByName;
import static com.kestrum.tavrel.testkit.CoreCalls.vectorArray;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertNotNull;
import static org.junit.jupiter.api.Assertions.assertTrue;

import com.kestrum.corvel.SbColor;
import com.kestrum.corvel.SbVec2f;
import com.kestrum.corvel.SbVec3f;
import com.kestrum.tavrel.testkit.JniCalls;
import com.kestrum.tavrel.testkit.NativeMethods;
import java.lang.reflect.Constructor;
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
 * Every argument constructor of the graph package (ctorImpl1, ctorImpl2, ...; the copies by
 * handle aside) converts all its arguments first, then constructs: the conversions in the order
 * of the arguments (the exceptions below), then the toolkit's calls, then only the copies back
 * of the arrays converted ReadWrite (points, boxes, origins), helper by helper. One
 * row per constructor function, found by reflection; its arrays have distinct lengths (16 and
 * more, enough for every fixed-size array), its strings distinct lengths, its counts are 0.
 */
class GraphConstructorCallsTest {
    /**
     * Constructors whose conversions are not in argument order: the argument positions in the
     * order in which they are converted (the histograms: origin, name lists, values).
     */
    private static final Map<String, int[]> ORDER = Map.of(
            "PoSingleHistogram.ctorImpl1", new int[] {0, 5, 4},
            "PoMultipleHistogram.ctorImpl1", new int[] {0, 6, 7, 5});

    private static int[][] helpers(int[]... groups) {
        return groups;
    }

    /**
     * The points, boxes and origins converted ReadWrite (copied back, unchanged, once the object
     * is made): argument positions by ArrayHelper, in the order of the helpers' creation. An
     * axis has a helper per point; a shape or legend one for its points.
     */
    private static final Map<String, int[][]> READ_WRITE = Map.ofEntries(
            Map.entry("PbDomain.ctorImpl2", helpers(new int[] {0})),
            Map.entry("PbDomain.ctorImpl3", helpers(new int[] {0})),
            Map.entry("PoAutoCubeAxis.ctorImpl1", helpers(new int[] {0}, new int[] {1})),
            Map.entry("PoCoordinateSystemAxis.ctorImpl1", helpers(new int[] {0}, new int[] {1})),
            Map.entry("PoGroup2Axis.ctorImpl1", helpers(new int[] {0}, new int[] {1})),
            Map.entry("PoGroup3Axis3.ctorImpl1", helpers(new int[] {0}, new int[] {1})),
            Map.entry("PoGroup4Axis.ctorImpl1", helpers(new int[] {0}, new int[] {1})),
            Map.entry("PoGroup6Axis3.ctorImpl1", helpers(new int[] {0}, new int[] {1})),
            Map.entry("PoGenAxis.ctorImpl1", helpers(new int[] {0})),
            Map.entry("PoLinearAxis.ctorImpl1", helpers(new int[] {0})),
            Map.entry("PoLinearAxis.ctorImpl2", helpers(new int[] {0})),
            Map.entry("PoLogAxis.ctorImpl1", helpers(new int[] {0})),
            Map.entry("PoLogAxis.ctorImpl2", helpers(new int[] {0})),
            Map.entry("PoCircle3CenterRadius.ctorImpl1", helpers(new int[] {0, 2})),
            Map.entry("PoCircle3ThreePoints.ctorImpl1", helpers(new int[] {0, 1, 2})),
            Map.entry("PoCircleArc3CtrPtAngle.ctorImpl1", helpers(new int[] {0, 1, 3})),
            Map.entry("PoCircleArc3CtrTwoPts.ctorImpl1", helpers(new int[] {0, 1, 2})),
            Map.entry("PoCircleArc3ThreePts.ctorImpl1", helpers(new int[] {0, 1, 2})),
            Map.entry("PoCircleArcCtrPtAngle.ctorImpl1", helpers(new int[] {0, 1})),
            Map.entry("PoCircleArcCtrRadTwoAngle.ctorImpl1", helpers(new int[] {0})),
            Map.entry("PoCircleArcCtrTwoPts.ctorImpl1", helpers(new int[] {0, 1, 2})),
            Map.entry("PoCircleArcThreePts.ctorImpl1", helpers(new int[] {0, 1, 2})),
            Map.entry("PoCircleCenterRadius.ctorImpl1", helpers(new int[] {0})),
            Map.entry("PoCircleThreePoints.ctorImpl1", helpers(new int[] {0, 1, 2})),
            Map.entry("PoParallelogram.ctorImpl1", helpers(new int[] {0, 1, 2})),
            Map.entry("PoParallelogram3.ctorImpl1", helpers(new int[] {0, 1, 2})),
            Map.entry("PoRectangle.ctorImpl1", helpers(new int[] {0, 1})),
            Map.entry("PoItemLegend.ctorImpl1", helpers(new int[] {0, 1})),
            Map.entry("PoLinearValueLegend.ctorImpl1", helpers(new int[] {0, 1})),
            Map.entry("PoNonLinearValueLegend1.ctorImpl1", helpers(new int[] {0, 1})),
            Map.entry("PoNonLinearValueLegend2.ctorImpl1", helpers(new int[] {0, 1})),
            Map.entry("PoNonLinearValueLegend3.ctorImpl1", helpers(new int[] {0, 1})),
            Map.entry("PoPieChart2D.ctorImpl1", helpers(new int[] {0})),
            Map.entry("PoPieChart3D.ctorImpl1", helpers(new int[] {0})),
            Map.entry("PoSingleHistogram.ctorImpl1", helpers(new int[] {0})),
            Map.entry("PoMultipleHistogram.ctorImpl1", helpers(new int[] {0})));

    static Stream<Arguments> constructors() {
        return NativeMethods.natives(m -> m.getName().matches("ctorImpl\\d+")
                        && m.getDeclaringClass().getPackageName().endsWith(".graph")
                        && !(m.getParameterCount() == 1 && m.getParameterTypes()[0] == long.class))
                .stream().map(m -> Arguments.of(m.getDeclaringClass().getSimpleName() + "." + m.getName(), m));
    }

    @Test
    void everyArgumentConstructorHasItsRow() {
        assertTrue(constructors().count() >= 55, "rows: " + constructors().count());
    }

    /**
     * The element class of each Object[] parameter, from the public constructor whose object
     * arrays stand in the same order (null for other parameters).
     */
    static Class<?>[] objectArrayElements(Method m) {
        Class<?>[] types = m.getParameterTypes();
        List<Integer> positions = new ArrayList<>();
        for (int i = 0; i < types.length; i++) {
            if (types[i] == Object[].class) {
                positions.add(i);
            }
        }
        for (Constructor<?> c : m.getDeclaringClass().getConstructors()) {
            List<Class<?>> objectArrays = new ArrayList<>();
            for (Class<?> p : c.getParameterTypes()) {
                if (p.isArray() && !p.getComponentType().isPrimitive()) {
                    objectArrays.add(p.getComponentType());
                }
            }
            if (objectArrays.size() == positions.size() && !positions.isEmpty()) {
                Class<?>[] out = new Class<?>[types.length];
                for (int k = 0; k < positions.size(); k++) {
                    out[positions.get(k)] = objectArrays.get(k);
                }
                return out;
            }
        }
        return null;
    }

    /** Arguments of distinct lengths: arrays from 16 elements up, strings from 2 characters up, two-element object arrays. */
    static Object[] arguments(Method m) {
        Class<?>[] types = m.getParameterTypes();
        Class<?>[] elements = objectArrayElements(m);
        Object[] args = new Object[types.length];
        int length = 16;
        int text = 2;
        for (int i = 0; i < types.length; i++) {
            Class<?> t = types[i];
            if (t == String.class) {
                args[i] = "s".repeat(text++);
            } else if (t == String[].class) {
                args[i] = new String[] {"a", "bb", "ccc"};
            } else if (t.isArray() && t.getComponentType().isPrimitive()) {
                args[i] = java.lang.reflect.Array.newInstance(t.getComponentType(), length++);
            } else if (t.isArray()) {
                Class<?> e = elements == null ? null : elements[i];
                if (e == String.class) {
                    args[i] = new String[] {"a", "bb", "ccc"};
                } else if (e == SbVec2f.class) {
                    args[i] = new SbVec2f[] {new SbVec2f(1, 2), new SbVec2f(3, 4)};
                } else if (e == SbColor.class) {
                    args[i] = new SbColor[] {new SbColor(1, 0, 0), new SbColor(0, 1, 0)};
                } else if (e == SbVec3f.class) {
                    args[i] = new SbVec3f[] {new SbVec3f(1, 2, 3), new SbVec3f(4, 5, 6)};
                } else {
                    throw new IllegalStateException("no element class for " + m);
                }
            } else if (t == int.class) {
                args[i] = 0;
            } else if (t == float.class) {
                args[i] = 0f;
            } else if (t == short.class) {
                args[i] = (short) 0;
            } else {
                throw new IllegalStateException("argument " + t + " of " + m);
            }
        }
        return args;
    }

    /** The conversion of one argument (none for a number). */
    static List<String> conversion(Object a) {
        if (a instanceof String s) {
            return readString(s.length());
        }
        if (a instanceof String[] s) {
            return stringArray(Arrays.stream(s).mapToInt(String::length).toArray());
        }
        if (a instanceof Object[] v) {
            return vectorArray(v.length, "L" + v.getClass().getComponentType().getName().replace('.', '/') + ";");
        }
        if (a != null && a.getClass().isArray()) {
            return array(NativeMethods.kind(a.getClass()), java.lang.reflect.Array.getLength(a));
        }
        return List.of();
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("constructors")
    void argumentsConvertedFirstThenTheToolkit(String name, Method m) throws Throwable {
        Object[] args = arguments(m);
        int[] order = ORDER.get(name);
        if (order == null) {
            order = java.util.stream.IntStream.range(0, args.length).toArray();
        }
        List<String> expected = new ArrayList<>();
        for (int i : order) {
            expected.addAll(conversion(args[i]));
        }
        assertEquals(expected.size(), Arrays.stream(args).mapToInt(a -> conversion(a).size()).sum(),
                name + ": every converted argument has its place in the order");
        List<String> copiesBack = new ArrayList<>();
        int[][] groups = READ_WRITE.getOrDefault(name, new int[0][]);
        for (int g = groups.length - 1; g >= 0; g--) {
            copiesBack.add(COPY_BACK_CHECK);
            for (int k = groups[g].length - 1; k >= 0; k--) {
                Object a = args[groups[g][k]];
                copiesBack.add(copyBack(NativeMethods.kind(a.getClass()), java.lang.reflect.Array.getLength(a)));
            }
        }
        NativeMethods.invoke(m, null, args);
        List<String> calls = toolkitByName(JniCalls.recordWithToolkit(() -> assertNotNull(
                NativeMethods.invoke(m, null, args))).calls());
        List<String> toolkit = calls.stream().filter(c -> c.startsWith(JniCalls.TOOLKIT)).toList();
        assertTrue(!toolkit.isEmpty(), name + ": no toolkit call");
        expected.addAll(toolkit);
        expected.addAll(copiesBack);
        assertEquals(expected, calls, name);
    }
}
