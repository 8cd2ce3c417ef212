package com.kestrum.tavrel.data;

import static com.kestrum.tavrel.testkit.CoreCalls.COPY_BACK_CHECK;
import static com.kestrum.tavrel.testkit.CoreCalls.array;
import static com.kestrum.tavrel.testkit.CoreCalls.copyBack;
import static com.kestrum.tavrel.testkit.CoreCalls.sequence;
import static com.kestrum.tavrel.testkit.CoreCalls.toolkitByName;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertNotNull;
import static org.junit.jupiter.api.Assertions.assertTrue;

import com.kestrum.corvel.misc.NativeObject;
import com.kestrum.tavrel.testkit.JniCalls;
import com.kestrum.tavrel.testkit.NativeMethods;
import java.lang.reflect.Array;
import java.lang.reflect.Method;
import java.util.ArrayList;
import java.util.Arrays;
import java.util.List;
import java.util.Set;
import java.util.function.Supplier;
import java.util.stream.Stream;
import org.junit.jupiter.api.Test;
import org.junit.jupiter.params.ParameterizedTest;
import org.junit.jupiter.params.provider.Arguments;
import org.junit.jupiter.params.provider.MethodSource;

/**
 * The getters of meshes and cells that answer through output arrays or direct buffers, one table
 * per way they do it, rows found by reflection:
 * <ul>
 * <li>single values (a coordinate, a box, a count, an index, a set's minimum): the toolkit's
 * calls first, then each output converted ReadWrite with a helper of its own and written back
 * at once, in the order of the arguments;
 * <li>cell boxes: the box converted before the toolkit call, the cell index after it, the box
 * written back first;
 * <li>derivatives: the parametric point and the derivatives converted before the toolkit call,
 * both written back after it;
 * <li>coordinate and node buffers: the toolkit's call, then one direct buffer of 4 bytes a node
 * per array the mesh has, stored into element 0 of its output (null for an array it has not).
 * </ul>
 * (getBounds, whose six helpers are made before their conversions, is ArrayModesCallsTest's.)
 */
class MeshOutputCallsTest {
    private static final PbRegularCartesianGrid2D GRID_2D = new PbRegularCartesianGrid2D(4, 5, 0, 0, 3, 4, true);
    private static final PbRegularCartesianGrid3D GRID_3D = new PbRegularCartesianGrid3D(2, 3, 4, 0, 0, 0, 1, 2, 3,
            true);
    private static final PbCell HEXAHEDRON;

    /** The getters that follow another algorithm (their own tables, or ArrayModesCallsTest's). */
    private static final Set<String> OTHERS = Set.of("getBoundsImpl", "getSmallestCellBoxImpl",
            "getBiggestCellBoxImpl", "getDerivsImpl", "getValueImpl", "getValueImpl1", "getValueImpl2",
            "getValueImpl3");

    static {
        DataObjects.CUBE.addValuesSet(0, new float[] {1, 2, 3, 4, 5, 6, 7, 8}, "v");
        HEXAHEDRON = DataObjects.CUBE.getCell(0); // its nodes are the cube's
    }

    private static Object receiver(Class<?> c) {
        if (c == PbGrid2D.class || c == PbMesh2D.class) {
            return GRID_2D;
        }
        if (c == PbGrid3D.class) {
            return GRID_3D;
        }
        if (c == PbMesh.class) {
            return DataObjects.CUBE;
        }
        if (c == PbCell.class) {
            return HEXAHEDRON;
        }
        return DataObjects.of(c);
    }

    private static Stream<Arguments> rows(java.util.function.Predicate<Method> which) {
        return NativeMethods.natives(m -> m.getDeclaringClass().getPackageName().endsWith(".data")
                        && m.getName().startsWith("get") && m.getParameterCount() > 1
                        && m.getParameterTypes()[0] == long.class && which.test(m))
                .stream().map(m -> Arguments.of(m.getDeclaringClass().getSimpleName() + "." + m.getName(), m));
    }

    private static boolean primitiveArrays(Method m) {
        List<Class<?>> types = Arrays.asList(m.getParameterTypes()).subList(1, m.getParameterCount());
        return types.stream().anyMatch(Class::isArray)
                && types.stream().allMatch(t -> t.isPrimitive() || t.isArray() && t.getComponentType().isPrimitive());
    }

    static Stream<Arguments> singleValues() {
        return rows(m -> primitiveArrays(m) && !OTHERS.contains(m.getName()));
    }

    static Stream<Arguments> cellBoxes() {
        return rows(m -> m.getName().matches("get\\w+CellBoxImpl"));
    }

    static Stream<Arguments> derivatives() {
        return rows(m -> m.getName().equals("getDerivsImpl"));
    }

    @Test
    void everyGetterHasItsRow() {
        assertTrue(singleValues().count() >= 18, "single values: " + singleValues().count());
        assertEquals(2, cellBoxes().count());
        assertEquals(4, derivatives().count());
        assertEquals(Set.of("PbMesh.getCoordinatesImpl", "PbIndexedMesh2D.getNodesImpl",
                "PbIndexedMesh2D.get2DNodesImpl", "PbIndexedMesh3D.getNodesImpl"),
                Set.copyOf(rows(m -> Arrays.stream(m.getParameterTypes()).skip(1).allMatch(t -> t == Object[].class))
                        .map(a -> (String) a.get()[0]).toList()), "buffer rows");
    }

    private static List<String> conversion(Object a) {
        return array(NativeMethods.kind(a.getClass()), Array.getLength(a));
    }

    private static String back(Object a) {
        return copyBack(NativeMethods.kind(a.getClass()), Array.getLength(a));
    }

    /** The calls of the native method on its receiver, toolkit calls by name; the first run unrecorded. */
    private static List<String> record(Method m, Object receiver, Object[] args) throws Throwable {
        NativeMethods.invoke(m, receiver, args);
        return toolkitByName(JniCalls.recordWithToolkit(() -> NativeMethods.invoke(m, receiver, args)).calls());
    }

    private static List<String> toolkitOf(List<String> calls) {
        return calls.stream().filter(c -> c.startsWith(JniCalls.TOOLKIT)).toList();
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("singleValues")
    void singleValuesAfterTheToolkitEachWithItsHelper(String name, Method m) throws Throwable {
        Object receiver = receiver(m.getDeclaringClass());
        assertNotNull(receiver, name);
        Object[] args = NativeMethods.arguments(m, receiver, 16);
        List<String> calls = record(m, receiver, args);
        List<String> expected = new ArrayList<>(toolkitOf(calls));
        for (int i = 1; i < args.length; i++) {
            if (args[i] != null && args[i].getClass().isArray()) {
                expected.addAll(sequence(conversion(args[i]), COPY_BACK_CHECK, back(args[i])));
            }
        }
        assertEquals(expected, calls, name);
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("cellBoxes")
    void theBoxBeforeTheToolkitTheCellAfterTheBoxWrittenBackFirst(String name, Method m) throws Throwable {
        Object receiver = receiver(m.getDeclaringClass());
        Object[] args = NativeMethods.arguments(m, receiver, 16);
        Object cell = args[1];
        Object box = args[2];
        List<String> calls = record(m, receiver, args);
        assertEquals(sequence(conversion(box), toolkitOf(calls), conversion(cell), COPY_BACK_CHECK, back(box),
                COPY_BACK_CHECK, back(cell)), calls, name);
        assertEquals(1, toolkitOf(calls).size(), name + ": " + calls);
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("derivatives")
    void pointAndDerivativesBeforeTheToolkitBothWrittenBack(String name, Method m) throws Throwable {
        Object receiver = receiver(m.getDeclaringClass());
        Object[] args = NativeMethods.arguments(m, receiver, 30);
        List<String> calls = record(m, receiver, args);
        assertEquals(sequence(conversion(args[1]), conversion(args[2]), toolkitOf(calls), COPY_BACK_CHECK,
                back(args[2]), back(args[1])), calls, name);
        assertEquals(List.of(JniCalls.TOOLKIT + m.getDeclaringClass().getSimpleName() + "::getDerivs"),
                toolkitOf(calls), name);
    }

    private static final float[] FOUR = {0, 1, 0, 1};
    private static final int[] QUAD = {0, 1, 3, 2};
    private static final PbCartesianGrid2D FLAT = new PbCartesianGrid2D(2, 2, FOUR, FOUR, true);
    private static final PbCartesianGrid2D RAISED = new PbCartesianGrid2D(2, 2, FOUR, FOUR, FOUR, true);
    private static final PbIndexedMesh2D INDEXED = new PbIndexedMesh2D(4, FOUR, FOUR, 1, new int[] {4}, QUAD, true);
    private static final PbIndexedMesh2D INDEXED_RAISED = new PbIndexedMesh2D(4, FOUR, FOUR, FOUR, 1, new int[] {4},
            QUAD, true);
    private static final PbIndexedMesh3D INDEXED_3D = new PbIndexedMesh3D(8, new float[8], new float[8], new float[8],
            0, new int[0], new int[0], true);

    /** A mesh (not an argument, which JUnit would close), its node count, which of the three coordinate arrays it keeps. */
    static Stream<Arguments> buffers() {
        return Stream.of(
                Arguments.of("PbMesh.getCoordinatesImpl on a grid with x and y", PbMesh.class, "getCoordinatesImpl",
                        (Supplier<NativeObject>) () -> FLAT, 4, new boolean[] {true, true, false}),
                Arguments.of("PbMesh.getCoordinatesImpl on a grid with x, y, z", PbMesh.class, "getCoordinatesImpl",
                        (Supplier<NativeObject>) () -> RAISED, 4, new boolean[] {true, true, true}),
                Arguments.of("PbMesh.getCoordinatesImpl on a mesh that keeps no arrays", PbMesh.class,
                        "getCoordinatesImpl", (Supplier<NativeObject>) () -> GRID_2D, 20, new boolean[] {false, false, false}),
                Arguments.of("PbIndexedMesh2D.getNodesImpl with x and y", PbIndexedMesh2D.class, "getNodesImpl",
                        (Supplier<NativeObject>) () -> INDEXED, 4, new boolean[] {true, true, false}),
                Arguments.of("PbIndexedMesh2D.getNodesImpl with x, y, z", PbIndexedMesh2D.class, "getNodesImpl",
                        (Supplier<NativeObject>) () -> INDEXED_RAISED, 4, new boolean[] {true, true, true}),
                Arguments.of("PbIndexedMesh2D.get2DNodesImpl", PbIndexedMesh2D.class, "get2DNodesImpl",
                        (Supplier<NativeObject>) () -> INDEXED_RAISED, 4, new boolean[] {true, true}),
                Arguments.of("PbIndexedMesh3D.getNodesImpl", PbIndexedMesh3D.class, "getNodesImpl",
                        (Supplier<NativeObject>) () -> INDEXED_3D, 8, new boolean[] {true, true, true}));
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("buffers")
    void theToolkitThenABufferPerArray(String name, Class<?> declaring, String method, Supplier<NativeObject> of,
            int nodes, boolean[] present) throws Throwable {
        NativeObject mesh = of.get();
        Method m = NativeMethods.natives(k -> k.getDeclaringClass() == declaring && k.getName().equals(method)).get(0);
        Object[] args = new Object[present.length + 1];
        args[0] = mesh.getNativeResourceHandleInternal();
        for (int i = 1; i < args.length; i++) {
            args[i] = new Object[1];
        }
        List<String> calls = record(m, mesh, args);
        List<String> expected = new ArrayList<>(toolkitOf(calls));
        assertEquals(1, expected.size(), name + ": " + calls);
        for (boolean p : present) {
            expected.addAll(p ? List.of("NewDirectByteBuffer(" + 4 * nodes + ")", "SetObjectArrayElement(0)",
                    "DeleteLocalRef()") : List.of("SetObjectArrayElement(0, null)"));
        }
        assertEquals(expected, calls, name);
    }
}
