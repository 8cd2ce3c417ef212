package com.kestrum.tavrel.data;

import static com.kestrum.tavrel.testkit.CoreCalls.COPY_BACK_CHECK;
import static com.kestrum.tavrel.testkit.CoreCalls.array;
import static com.kestrum.tavrel.testkit.CoreCalls.copyBack;
import static com.kestrum.tavrel.testkit.CoreCalls.readString;
import static com.kestrum.tavrel.testkit.CoreCalls.sequence;
import static com.kestrum.tavrel.testkit.CoreCalls.toolkit;
import static com.kestrum.tavrel.testkit.CoreCalls.toolkitByName;
import static com.kestrum.tavrel.testkit.CoreCalls.vectorArray;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertNotNull;
import static org.junit.jupiter.api.Assertions.assertTrue;

import com.kestrum.corvel.SbVec2f;
import com.kestrum.corvel.SbVec3f;
import com.kestrum.corvel.misc.NativeObject;
import com.kestrum.tavrel.testkit.JniCalls;
import com.kestrum.tavrel.testkit.NativeMethods;
import java.lang.reflect.Method;
import java.util.List;
import java.util.Set;
import java.util.stream.Stream;
import org.junit.jupiter.api.Test;
import org.junit.jupiter.params.ParameterizedTest;
import org.junit.jupiter.params.provider.Arguments;
import org.junit.jupiter.params.provider.MethodSource;

/**
 * Where the toolkit call stands in the methods that take vector objects: a vector set's name is
 * read first, then its vectors, then the toolkit adds the set, nothing after (every addVecsSet:
 * meshes, 2D meshes, mesh nodes, mesh fields; rows found by reflection); a cell's interpolation
 * converts its point and output, then the vectors, calls the toolkit and writes the output back
 * (and the point, where it is ReadWrite); the fault mesh reads the vectors, then the nodes, then
 * calls the toolkit. (The JNI calls of the vector conversion itself: VectorConversionCallsTest.)
 */
class VectorInputCallsTest {
    private static final String VEC2 = "Lcom/kestrum/corvel/SbVec2f;";
    private static final String VEC3 = "Lcom/kestrum/corvel/SbVec3f;";

    static Stream<Arguments> vectorSets() {
        return NativeMethods.natives(m -> m.getName().equals("addVecsSetImpl")).stream()
                .map(m -> Arguments.of(m.getDeclaringClass().getSimpleName() + "." + m.getName(), m));
    }

    @Test
    void everyVectorSetHasItsRow() {
        assertEquals(Set.of("PbMesh.addVecsSetImpl", "PbMesh2D.addVecsSetImpl", "PoSFMesh.addVecsSetImpl",
                "PoMeshProperty.addVecsSetImpl"), Set.copyOf(vectorSets().map(a -> (String) a.get()[0]).toList()));
    }

    private static Object vectors(Class<?> declaring, int n) {
        if (declaring == PbMesh2D.class) {
            SbVec2f[] v = new SbVec2f[n];
            for (int i = 0; i < n; i++) {
                v[i] = new SbVec2f(i, -i);
            }
            return v;
        }
        SbVec3f[] v = new SbVec3f[n];
        for (int i = 0; i < n; i++) {
            v[i] = new SbVec3f(i, i, -i);
        }
        return v;
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("vectorSets")
    void theNameThenTheVectorsThenTheToolkit(String name, Method m) throws Throwable {
        Class<?> declaring = m.getDeclaringClass();
        Object receiver = declaring == PbMesh.class || declaring == PbMesh2D.class
                ? new PbRegularCartesianGrid2D(2, 2, 0, 0, 1, 1, true) : NativeMethods.newInstance(declaring);
        assertNotNull(receiver, name);
        Object[] args = {((NativeObject) receiver).getNativeResourceHandleInternal(), 3, vectors(declaring, 4), "set"};
        NativeMethods.invoke(m, receiver, args);
        List<String> calls = toolkitByName(JniCalls.recordWithToolkit(() -> NativeMethods.invoke(m, receiver, args))
                .calls());
        List<String> toolkit = calls.stream().filter(c -> c.startsWith(JniCalls.TOOLKIT)).toList();
        // a mesh node or field passes the set on to the mesh it holds: two toolkit lines
        assertTrue(!toolkit.isEmpty() && toolkit.stream().allMatch(c -> c.endsWith("::addVecsSet")),
                name + ": " + calls);
        assertEquals(sequence(readString(3), vectorArray(4, declaring == PbMesh2D.class ? VEC2 : VEC3), toolkit),
                calls, name);
    }

    private static Object[] interpolation(PbCell cell, int vectors) {
        return new Object[] {cell.getNativeResourceHandleInternal(), new float[] {0.5f, 0.5f, 0.5f},
            vectors(PbMesh.class, vectors), new float[4]};
    }

    /**
     * getValueImpl1: the point (ReadWrite) and the output, the vectors, the toolkit, the output
     * written back, then the point; getValueImpl3 the same with the point ReadOnly.
     */
    @Test
    void interpolationConvertsThePointTheOutputTheVectorsThenCallsTheToolkit() throws Throwable {
        PbCell cell = DataObjects.CUBE.getCell(0);
        for (String method : new String[] {"getValueImpl1", "getValueImpl3"}) {
            Method m = NativeMethods.natives(k -> k.getDeclaringClass() == PbCell.class && k.getName().equals(method))
                    .get(0);
            Object[] args = interpolation(cell, 8);
            NativeMethods.invoke(m, cell, args);
            List<String> calls = toolkitByName(JniCalls.recordWithToolkit(() -> NativeMethods.invoke(m, cell, args))
                    .calls());
            List<String> pointBack = method.equals("getValueImpl1")
                    ? List.of(COPY_BACK_CHECK, copyBack("Float", 3)) : List.of();
            assertEquals(sequence(array("Float", 3), array("Float", 4), vectorArray(8, VEC3), toolkit("PbCell::getValue"),
                    COPY_BACK_CHECK, copyBack("Float", 4), pointBack), calls, method);
        }
    }

    /**
     * The vectors, then the nodes (ReadOnly), then the toolkit with a defined-value functor made
     * for the call; nothing after.
     */
    @Test
    void faultMeshReadsTheVectorsThenTheNodesThenCallsTheToolkit() throws Throwable {
        PbRegularCartesianGrid2D mesh = new PbRegularCartesianGrid2D(2, 2, 0, 0, 1, 1, true);
        Method m = NativeMethods.natives(k -> k.getDeclaringClass() == PbMesh2D.class
                && k.getName().equals("getFaultMeshImpl1")).get(0);
        Object[] args = {mesh.getNativeResourceHandleInternal(), 2, new int[] {0, 3, 1}, vectors(PbMesh.class, 2)};
        NativeMethods.invoke(m, mesh, args);
        assertEquals(sequence(vectorArray(2, VEC3), array("Int", 3),
                        toolkit("PbDefinedValue::PbDefinedValue"), toolkit("PbMesh2D::getFaultMesh"),
                        toolkit("PbDefinedValue::~PbDefinedValue")),
                toolkitByName(JniCalls.recordWithToolkit(() -> NativeMethods.invoke(m, mesh, args)).calls()));
    }
}
