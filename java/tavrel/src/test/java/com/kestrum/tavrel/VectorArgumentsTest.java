package com.kestrum.tavrel;

import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertTrue;

import com.kestrum.corvel.SbColor;
import com.kestrum.corvel.SbVec2f;
import com.kestrum.corvel.SbVec3f;
import com.kestrum.tavrel.data.PbCell;
import com.kestrum.tavrel.data.PbMesh;
import com.kestrum.tavrel.data.PbRegularCartesianGrid2D;
import com.kestrum.tavrel.fields.PoSFRegularCartesianGrid2D;
import com.kestrum.tavrel.graph.PbNonLinearDataMapping2;
import com.kestrum.tavrel.graph.PoArrow;
import com.kestrum.tavrel.graph.PoArrow3;
import com.kestrum.tavrel.graph.PoBiErrorPointField;
import com.kestrum.tavrel.graph.PoCurve;
import com.kestrum.tavrel.graph.PoCurve3;
import com.kestrum.tavrel.graph.PoErrorCurve;
import com.kestrum.tavrel.graph.PoErrorPointField;
import com.kestrum.tavrel.graph.PoItemLegend;
import com.kestrum.tavrel.graph.PoLabelField;
import com.kestrum.tavrel.graph.PoPieChart2D;
import com.kestrum.tavrel.graph.PoPieChart3D;
import com.kestrum.tavrel.graph.PoPointsFieldBars;
import com.kestrum.tavrel.graph.PoValuedMarkerField;
import com.kestrum.tavrel.nodes.PoRegularCartesianGrid2D;
import com.kestrum.tavrel.testkit.ChildCases;
import java.lang.reflect.Array;
import java.lang.reflect.Field;
import java.util.Arrays;
import java.util.List;
import java.util.function.Consumer;
import java.util.stream.Stream;
import org.junit.jupiter.api.BeforeAll;
import org.junit.jupiter.params.ParameterizedTest;
import org.junit.jupiter.params.provider.Arguments;
import org.junit.jupiter.params.provider.MethodSource;

/**
 * Every public method that hands an array of vector objects to native code refuses, before the
 * native call, the elements the conversion cannot read: the conversion looks the field
 * {@code float[] array} up on element 0's class and reads it from every element unchecked, so a
 * subclass declaring its own field of that name, or a vector whose array is null or short, would
 * kill the JVM or read past an array. All the cases run in one child JVM, which prints one line
 * per case.
 */
class VectorArgumentsTest {
    /** Elements in each array (every method below reads 4). */
    private static final int N = 4;

    /** A 2D vector that declares its own components field: the conversion would read it. */
    static final class Shadow2 extends SbVec2f {
        @SuppressWarnings("unused")
        private final float[] array;

        Shadow2(float[] own) {
            super(1, 2);
            array = own;
        }
    }

    /** A 3D vector that declares its own components field. */
    static final class Shadow3 extends SbVec3f {
        @SuppressWarnings("unused")
        private final float[] array;

        Shadow3(float[] own) {
            super(1, 2, 3);
            array = own;
        }
    }

    /** A colour that declares its own components field. */
    static final class ShadowColor extends SbColor {
        @SuppressWarnings("unused")
        private final float[] array;

        ShadowColor(float[] own) {
            super(1, 0, 0);
            array = own;
        }
    }

    /** A public method that takes vector objects: the vector class, the argument's name, the call. */
    record Method(String name, Class<?> type, String argument, Consumer<Object[]> call) {}

    /** What is wrong with the array, and the index the refusal must name (-1: nothing, it is accepted). */
    enum Kind {
        /** A subclass with its own (valid) field at index 0, base vectors after it. */
        SHADOW_AT_0(0),
        /** Only subclasses, whose own fields are null. */
        SHADOWS_WITH_NULL_FIELDS(0),
        /** A vector of the class itself whose array has been set to null (by reflection) at index 1. */
        NULL_ARRAY_AT_1(1),
        /** A vector of the class itself whose array has been replaced by one float at index 2. */
        SHORT_ARRAY_AT_2(2),
        /** A subclass with a null field of its own after a base vector: its inherited field is read. */
        SHADOW_AFTER_BASE(-1);

        final int index;

        Kind(int index) {
            this.index = index;
        }
    }

    static List<Method> methods() {
        return List.of(
                new Method("PbMesh.addVecsSet", SbVec3f.class, "vectors",
                        v -> ((PbMesh) grid()).addVecsSet(0, (SbVec3f[]) v, "v")),
                new Method("PbMesh2D.addVecsSet", SbVec2f.class, "vectors",
                        v -> grid().addVecsSet(0, (SbVec2f[]) v, "v")),
                new Method("PbMesh2D.getFaultMesh", SbVec3f.class, "vectors",
                        v -> grid().getFaultMesh(N, new int[] {0, 1, 2, 3}, (SbVec3f[]) v)),
                new Method("PbCell.getValue(SbVec3f, SbVec3f[])", SbVec3f.class, "vectors",
                        v -> cell().getValue(new SbVec3f(0.5f, 0.5f, 0), (SbVec3f[]) v)),
                new Method("PbCell.getValue(float[], SbVec3f[])", SbVec3f.class, "vectors",
                        v -> cell().getValue(new float[] {0.5f, 0.5f, 0}, (SbVec3f[]) v)),
                new Method("PoMeshProperty.addVecsSet", SbVec3f.class, "vectors", v -> {
                    PoRegularCartesianGrid2D node = new PoRegularCartesianGrid2D();
                    node.setGeometry(2, 2, 0, 0, 1, 1, null);
                    node.addVecsSet(0, (SbVec3f[]) v, "v");
                }),
                new Method("PoSFMesh.addVecsSet", SbVec3f.class, "vectors", v -> {
                    PoSFRegularCartesianGrid2D field = new PoSFRegularCartesianGrid2D();
                    field.setGeometry(2, 2, 0, 0, 1, 1, null);
                    field.addVecsSet(0, (SbVec3f[]) v, "v");
                }),
                new Method("PbNonLinearDataMapping2.setValues", SbColor.class, "colors",
                        v -> new PbNonLinearDataMapping2().setValues(PbNonLinearDataMapping2.Types.NONLINEARPERLEVEL,
                                N - 1, new float[N - 1], (SbColor[]) v)),
                new Method("PbNonLinearDataMapping2.setValues(transparency)", SbColor.class, "colors",
                        v -> new PbNonLinearDataMapping2().setValues(PbNonLinearDataMapping2.Types.NONLINEARPERLEVEL,
                                N - 1, new float[N - 1], (SbColor[]) v, new float[N])),
                new Method("PoCurve", SbVec2f.class, "points",
                        v -> new PoCurve(N, (SbVec2f[]) v, PoCurve.CurveReps.CURVEPOLYLINE)),
                new Method("PoErrorCurve", SbVec2f.class, "points",
                        v -> new PoErrorCurve(N, (SbVec2f[]) v, new float[N], new float[N],
                                PoErrorCurve.VariationTypes.FIXEDVARIATION, PoErrorCurve.ErrorCurveReps.LINEBAR)),
                new Method("PoArrow", SbVec2f.class, "points",
                        v -> new PoArrow(N, (SbVec2f[]) v, PoArrow.PatternTypes.DIRECTTRIANGLE,
                                PoArrow.PatternTypes.RECTANGLE, 0.25f, 0.5f)),
                new Method("PoBiErrorPointField", SbVec2f.class, "points",
                        v -> new PoBiErrorPointField(N, (SbVec2f[]) v, new float[N], new float[N], new float[N],
                                new float[N], PoBiErrorPointField.VariationTypes.RELVARIATION, 0, 1)),
                new Method("PoErrorPointField", SbVec2f.class, "points",
                        v -> new PoErrorPointField(N, (SbVec2f[]) v, new float[N], new float[N],
                                PoErrorPointField.ShapeTypes.ELLIPSESHAPE, PoErrorPointField.SkeletonTypes.BARSKELETON)),
                new Method("PoLabelField", SbVec2f.class, "points",
                        v -> new PoLabelField(N, (SbVec2f[]) v, new String[] {"a", "b", "c", "d"}, new float[N], 0,
                                PoLabelField.ConcatTypes.VALUEBEFORESTRING, PoLabelField.Justifications.CENTER,
                                PoLabelField.VerticalJustifications.HALF)),
                new Method("PoValuedMarkerField", SbVec2f.class, "points",
                        v -> new PoValuedMarkerField(N, (SbVec2f[]) v, new float[N], new float[N])),
                new Method("PoCurve3", SbVec3f.class, "points",
                        v -> new PoCurve3(N, (SbVec3f[]) v, PoCurve3.CurveReps.CURVENONE)),
                new Method("PoArrow3", SbVec3f.class, "points",
                        v -> new PoArrow3(N, (SbVec3f[]) v, PoArrow3.PatternTypes.NOPATTERN,
                                PoArrow3.PatternTypes.INDIRECTTRIANGLE, 0.25f, 0.5f)),
                new Method("PoPointsFieldBars", SbVec3f.class, "points",
                        v -> new PoPointsFieldBars(N, (SbVec3f[]) v, new float[N], 0.5f, 0.25f)),
                new Method("PoItemLegend", SbColor.class, "colors",
                        v -> new PoItemLegend(new SbVec2f(0, 0), new SbVec2f(2, 4), N,
                                new String[] {"a", "b", "c", "d"}, (SbColor[]) v)),
                new Method("PoPieChart2D", SbColor.class, "colors",
                        v -> new PoPieChart2D(new SbVec2f(0, 0), 1, 1, new String[] {"a"}, new float[] {1}, N,
                                (SbColor[]) v)),
                new Method("PoPieChart3D", SbColor.class, "colors",
                        v -> new PoPieChart3D(new SbVec3f(0, 0, 0), 1, 0.5f, 1, new String[] {"a"}, new float[] {1}, N,
                                (SbColor[]) v)));
    }

    private static PbRegularCartesianGrid2D grid() {
        return new PbRegularCartesianGrid2D(2, 2, 0, 0, 1, 1, false);
    }

    private static PbCell cell() {
        return grid().getCell(0);
    }

    /** An array of N vectors of the class, spoilt as the kind says. */
    static Object[] vectors(Class<?> type, Kind kind) throws ReflectiveOperationException {
        Object[] v = (Object[]) Array.newInstance(type, N);
        for (int i = 0; i < N; i++) {
            v[i] = type.getConstructor().newInstance();
        }
        int components = type == SbVec2f.class ? 2 : 3;
        switch (kind) {
            case SHADOW_AT_0 -> v[0] = shadow(type, new float[components]);
            case SHADOWS_WITH_NULL_FIELDS -> Arrays.setAll(v, i -> shadow(type, null));
            case NULL_ARRAY_AT_1 -> setArray(v[1], type, null);
            case SHORT_ARRAY_AT_2 -> setArray(v[2], type, new float[1]);
            case SHADOW_AFTER_BASE -> v[1] = shadow(type, null);
        }
        return v;
    }

    private static Object shadow(Class<?> type, float[] own) {
        return type == SbVec2f.class ? new Shadow2(own) : type == SbVec3f.class ? new Shadow3(own) : new ShadowColor(own);
    }

    /** Replaces a vector's final components array, as only reflection can. */
    private static void setArray(Object vector, Class<?> type, float[] array) throws ReflectiveOperationException {
        Field field = type.getDeclaredField("array");
        field.setAccessible(true);
        field.set(vector, array);
    }

    /** In the child: every case, one line each. */
    public static void main(String[] args) {
        for (Method m : methods()) {
            for (Kind kind : Kind.values()) {
                ChildCases.report(m.name() + " " + kind, () -> m.call().accept(vectors(m.type(), kind)));
            }
        }
    }

    private static ChildCases.Outcomes outcomes;

    @BeforeAll
    static void runTheCasesInAChildJvm() throws Exception {
        outcomes = ChildCases.run(VectorArgumentsTest.class, 180);
    }

    static Stream<Arguments> cases() {
        return methods().stream().flatMap(m -> Stream.of(Kind.values()).map(k -> Arguments.of(m.name(), k, m)));
    }

    @ParameterizedTest(name = "{0} {1}")
    @MethodSource("cases")
    void refusesWhatTheConversionCannotRead(String name, Kind kind, Method method) {
        String outcome = outcomes.of(name + " " + kind);
        if (kind.index < 0) {
            assertEquals("accepted", outcome);
        } else {
            assertTrue(outcome.startsWith("IllegalArgumentException: " + method.argument() + "[" + kind.index + "] "),
                    outcome);
        }
    }
}
