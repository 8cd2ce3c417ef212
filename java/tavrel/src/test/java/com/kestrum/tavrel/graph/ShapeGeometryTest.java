package com.kestrum.tavrel.graph;

import static com.kestrum.tavrel.testkit.Natives.handle;
import static org.junit.jupiter.api.Assertions.assertArrayEquals;
import static org.junit.jupiter.api.Assertions.assertEquals;

import com.kestrum.corvel.SbVec2f;
import com.kestrum.corvel.SbVec3f;
import com.kestrum.tavrel.testkit.Shapes;
import java.util.function.Supplier;
import java.util.stream.Stream;
import org.junit.jupiter.params.ParameterizedTest;
import org.junit.jupiter.params.provider.MethodSource;

/**
 * What the circles, arcs, arrows and parallelograms made through the binding hold, against
 * hand-computed values (collinear points and a zero radius included).
 */
class ShapeGeometryTest {
    private static final float PI = (float) Math.PI;
    private static final float EPS = 1e-5f;

    private static SbVec2f v(float x, float y) {
        return new SbVec2f(x, y);
    }

    private static SbVec3f v(float x, float y, float z) {
        return new SbVec3f(x, y, z);
    }

    /** A shape and what the stand-in reports of it (see testkit.Shapes for the layout). */
    private record Row(String name, Supplier<PoBase> make, Reader read, float[] expected) {
        @Override
        public String toString() {
            return name;
        }
    }

    private interface Reader {
        float[] read(long handle);
    }

    private static float[] f(float... values) {
        return values;
    }

    static Stream<Row> shapes() {
        float r3 = (float) Math.sqrt(2.0 / 3.0);
        float n3 = (float) (1 / Math.sqrt(3.0));
        return Stream.of(
                new Row("circle: centre and radius", () -> new PoCircleCenterRadius(v(1, 2), 3), Shapes::circle,
                        f(1, 2, 3)),
                new Row("circle: negative radius", () -> new PoCircleCenterRadius(v(1, 2), -3), Shapes::circle,
                        f(1, 2, 3)),
                new Row("circle: zero radius", () -> new PoCircleCenterRadius(v(1, 2), 0), Shapes::circle,
                        f(1, 2, 0)),
                new Row("circle: right triangle", () -> new PoCircleThreePoints(v(1, 1), v(5, 1), v(1, 4)),
                        Shapes::circle, f(3, 2.5f, 2.5f)),
                new Row("circle: default", PoCircleThreePoints::new, Shapes::circle, f(0, 0, 1)),
                new Row("circle: collinear", () -> new PoCircleThreePoints(v(0, 0), v(2, 0), v(5, 0)),
                        Shapes::circle, f(2.5f, 0, 2.5f)),
                new Row("circle: one point thrice", () -> new PoCircleThreePoints(v(1, 1), v(1, 1), v(1, 1)),
                        Shapes::circle, f(1, 1, 0)),
                new Row("circle3: centre, radius, normal",
                        () -> new PoCircle3CenterRadius(v(1, 2, 3), 4, v(0, 0, 2)), Shapes::circle3,
                        f(1, 2, 3, 4, 0, 0, 1)),
                new Row("circle3: zero normal", () -> new PoCircle3CenterRadius(v(1, 2, 3), 4, v(0, 0, 0)),
                        Shapes::circle3, f(1, 2, 3, 4, 0, 0, 1)),
                new Row("circle3: three unit points",
                        () -> new PoCircle3ThreePoints(v(1, 0, 0), v(0, 1, 0), v(0, 0, 1)), Shapes::circle3,
                        f(1 / 3f, 1 / 3f, 1 / 3f, r3, n3, n3, n3)),
                new Row("circle3: collinear", () -> new PoCircle3ThreePoints(v(0, 0, 1), v(0, 0, 3), v(0, 0, 2)),
                        Shapes::circle3, f(0, 0, 2, 1, 0, 0, 1)),
                // arcs: centre x, y, radius, start, sweep, end x, y
                new Row("arc: centre, point, angle", () -> new PoCircleArcCtrPtAngle(v(1, 1), v(3, 1), PI / 2),
                        Shapes::arc, f(1, 1, 2, 0, PI / 2, 1, 3)),
                new Row("arc: clockwise angle", () -> new PoCircleArcCtrPtAngle(v(1, 1), v(1, 3), -PI / 2),
                        Shapes::arc, f(1, 1, 2, PI / 2, -PI / 2, 3, 1)),
                new Row("arc: point on the centre", () -> new PoCircleArcCtrPtAngle(v(1, 1), v(1, 1), 1),
                        Shapes::arc, f(1, 1, 0, 0, 1, 1, 1)),
                new Row("arc: centre, radius, two angles", () -> new PoCircleArcCtrRadTwoAngle(v(0, 0), 2, 0, PI),
                        Shapes::arc, f(0, 0, 2, 0, PI, -2, 0)),
                new Row("arc: centre and two points",
                        () -> new PoCircleArcCtrTwoPts(v(0, 0), v(1, 0), v(0, -5)), Shapes::arc,
                        f(0, 0, 1, 0, 3 * PI / 2, 0, -1)),
                new Row("arc: two points in one direction",
                        () -> new PoCircleArcCtrTwoPts(v(0, 0), v(1, 0), v(3, 0)), Shapes::arc,
                        f(0, 0, 1, 0, 2 * PI, 1, 0)),
                new Row("arc: three points counter-clockwise",
                        () -> new PoCircleArcThreePts(v(1, 0), v(0, 1), v(-1, 0)), Shapes::arc,
                        f(0, 0, 1, 0, PI, -1, 0)),
                new Row("arc: three points clockwise",
                        () -> new PoCircleArcThreePts(v(1, 0), v(0, -1), v(-1, 0)), Shapes::arc,
                        f(0, 0, 1, 0, -PI, -1, 0)),
                new Row("arc: three points, the long way",
                        () -> new PoCircleArcThreePts(v(1, 0), v(-1, 0), v(0, 1)), Shapes::arc,
                        f(0, 0, 1, 0, -3 * PI / 2, 0, 1)),
                new Row("arc: collinear points", () -> new PoCircleArcThreePts(v(0, 0), v(1, 0), v(4, 0)),
                        Shapes::arc, f(2, 0, 0, 0, 0, 4, 0)),
                // 3D arcs: centre, radius, normal, sweep, start, end
                new Row("arc3: centre, point, angle, normal",
                        () -> new PoCircleArc3CtrPtAngle(v(0, 0, 0), v(0, 2, 0), PI / 2, v(1, 0, 0)), Shapes::arc3,
                        f(0, 0, 0, 2, 1, 0, 0, PI / 2, 0, 2, 0, 0, 0, 2)),
                new Row("arc3: point off the plane",
                        () -> new PoCircleArc3CtrPtAngle(v(0, 0, 0), v(3, 0, 7), PI, v(0, 0, 1)), Shapes::arc3,
                        f(0, 0, 0, 3, 0, 0, 1, PI, 3, 0, 0, -3, 0, 0)),
                new Row("arc3: centre and two points",
                        () -> new PoCircleArc3CtrTwoPts(v(0, 0, 0), v(2, 0, 0), v(0, 0, 5)), Shapes::arc3,
                        f(0, 0, 0, 2, 0, -1, 0, PI / 2, 2, 0, 0, 0, 0, 2)),
                new Row("arc3: opposite points",
                        () -> new PoCircleArc3CtrTwoPts(v(0, 0, 0), v(2, 0, 0), v(-1, 0, 0)), Shapes::arc3,
                        f(0, 0, 0, 2, 0, 0, 1, PI, 2, 0, 0, -2, 0, 0)),
                new Row("arc3: three points",
                        () -> new PoCircleArc3ThreePts(v(1, 0, 0), v(0, 1, 0), v(-1, 0, 0)), Shapes::arc3,
                        f(0, 0, 0, 1, 0, 0, 1, PI, 1, 0, 0, -1, 0, 0)),
                new Row("arc3: three points the other way",
                        () -> new PoCircleArc3ThreePts(v(1, 0, 0), v(0, -1, 0), v(-1, 0, 0)), Shapes::arc3,
                        f(0, 0, 0, 1, 0, 0, -1, PI, 1, 0, 0, -1, 0, 0)),
                new Row("arc3: collinear points",
                        () -> new PoCircleArc3ThreePts(v(0, 0, 0), v(1, 1, 1), v(2, 2, 2)), Shapes::arc3,
                        f(1, 1, 1, 0, 0, 0, 1, 0, 0, 0, 0, 2, 2, 2)),
                new Row("parallelogram", () -> new PoParallelogram(v(0, 0), v(2, 0), v(3, 1)),
                        h -> Shapes.corners(h, false), f(0, 0, 2, 0, 3, 1, 1, 1)),
                new Row("parallelogram3", () -> new PoParallelogram3(v(0, 0, 1), v(1, 0, 1), v(1, 1, 2)),
                        h -> Shapes.corners(h, true), f(0, 0, 1, 1, 0, 1, 1, 1, 2, 0, 1, 2)),
                new Row("arrow: the count, not the array length",
                        () -> new PoArrow(2, new SbVec2f[] {v(0, 0), v(1, 2), v(7, 7)},
                                PoArrow.PatternTypes.NOPATTERN, PoArrow.PatternTypes.DIRECTTRIANGLE, 1, 1),
                        h -> Shapes.arrow(h, false), f(2, 0, 0, 1, 2)),
                new Row("arrow3", () -> PoArrow3.along(new SbVec3f[] {v(0, 0, 0), v(1, 2, 3)},
                                PoArrow3.PatternTypes.RECTANGLE, PoArrow3.PatternTypes.RECTANGLE, 1, 1),
                        h -> Shapes.arrow(h, true), f(2, 0, 0, 0, 1, 2, 3)));
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("shapes")
    void theShapeHoldsWhatItsDefinitionGives(Row row) {
        try (PoBase node = row.make().get()) {
            assertArrayEquals(row.expected(), row.read().read(handle(node)), EPS);
            node.rebuild();
            assertEquals(false, node.isModified(), "a shape builds itself");
        }
    }
}
