package com.kestrum.tavrel.data;

import static com.kestrum.tavrel.testkit.Natives.handle;
import static com.kestrum.tavrel.testkit.Natives.pointer;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertFalse;

import com.kestrum.tavrel.testkit.Journal;
import java.util.ArrayList;
import java.util.List;
import com.kestrum.corvel.misc.NativeObject;
import java.util.concurrent.Callable;
import java.util.function.UnaryOperator;
import java.util.stream.Collectors;
import java.util.stream.IntStream;
import java.util.stream.Stream;
import org.junit.jupiter.params.ParameterizedTest;
import org.junit.jupiter.params.provider.Arguments;
import org.junit.jupiter.params.provider.MethodSource;

/**
 * Every constructor function and every geometry replacement reaches the right toolkit function
 * with its arguments in the toolkit's order, arrays with the lengths the toolkit reads.
 */
class ToolkitCallsTest {
    static final float[] X4 = {0, 1, 1, 0};
    static final float[] Y4 = {0, 0, 1, 1};
    static final float[] Z4 = {0.5f, 1.5f, 2.5f, 3.5f};
    static final float[] X2 = {0, 2};
    static final float[] Y2 = {0, 3};
    static final float[] Z2 = {-1, 1};
    static final int[] TRIANGLES = {0, 1, 2, 0, 2, 3};
    static final float[] X8 = {0, 1, 1, 0, 0, 1, 1, 0};
    static final float[] Y8 = {0, 0, 1, 1, 0, 0, 1, 1};
    static final float[] Z8 = {0, 0, 0, 0, 1, 1, 1, 1};
    static final int[] HEX = {0, 1, 2, 3, 4, 5, 6, 7};
    static final int[] TETS = {0, 1, 3, 4, 1, 2, 3, 6};

    /** An array as the journal renders it. */
    static String a(float... values) {
        return IntStream.range(0, values.length).mapToObj(i -> number(values[i]))
                .collect(Collectors.joining(", ", "[", "]"));
    }

    static String a(int... values) {
        return IntStream.of(values).mapToObj(Integer::toString).collect(Collectors.joining(", ", "[", "]"));
    }

    static String number(float v) {
        return v == (int) v ? Integer.toString((int) v) : Float.toString(v);
    }

    private static Arguments call(String function, Callable<String> run) {
        return Arguments.of(function, run);
    }

    static Stream<Arguments> constructors() {
        List<Arguments> cases = new ArrayList<>();
        String cg2 = "PbCartesianGrid2D::PbCartesianGrid2D";
        cases.add(call(cg2, () -> {
            new PbCartesianGrid2D(true);
            return "(1)";
        }));
        cases.add(call(cg2, () -> {
            new PbCartesianGrid2D(false);
            return "(0)";
        }));
        cases.add(copy("PbCartesianGrid2D", () -> new PbCartesianGrid2D(true), s -> new PbCartesianGrid2D(s)));
        cases.add(call(cg2, () -> {
            new PbCartesianGrid2D(2, 2, X4, Y4, true);
            return "(2, 2, " + a(X4) + ", " + a(Y4) + ", 1)";
        }));
        cases.add(call(cg2, () -> {
            new PbCartesianGrid2D(2, 2, X4, Y4, Z4, false);
            return "(2, 2, " + a(X4) + ", " + a(Y4) + ", " + a(Z4) + ", 0)";
        }));
        for (String kind : List.of("PbParalCartesianGrid2D", "PbPolarGrid2D")) {
            String f = kind + "::" + kind;
            boolean paral = kind.startsWith("PbParal");
            cases.add(call(f, () -> {
                if (paral) {
                    new PbParalCartesianGrid2D(true);
                } else {
                    new PbPolarGrid2D(true);
                }
                return "(1)";
            }));
            cases.add(call(f, () -> {
                if (paral) {
                    new PbParalCartesianGrid2D(2, 2, X2, Y2, false);
                } else {
                    new PbPolarGrid2D(2, 2, X2, Y2, false);
                }
                return "(2, 2, " + a(X2) + ", " + a(Y2) + ", 0)";
            }));
            cases.add(call(f, () -> {
                if (paral) {
                    new PbParalCartesianGrid2D(2, 2, X2, Y2, Z4, true);
                } else {
                    new PbPolarGrid2D(2, 2, X2, Y2, Z4, true);
                }
                return "(2, 2, " + a(X2) + ", " + a(Y2) + ", " + a(Z4) + ", 1)";
            }));
        }
        cases.add(copy("PbParalCartesianGrid2D", () -> new PbParalCartesianGrid2D(true), s -> new PbParalCartesianGrid2D(s)));
        cases.add(copy("PbPolarGrid2D", () -> new PbPolarGrid2D(true), s -> new PbPolarGrid2D(s)));
        String r2 = "PbRegularCartesianGrid2D::PbRegularCartesianGrid2D";
        cases.add(call(r2, () -> {
            new PbRegularCartesianGrid2D(false);
            return "(0)";
        }));
        cases.add(copy("PbRegularCartesianGrid2D", () -> new PbRegularCartesianGrid2D(true), s -> new PbRegularCartesianGrid2D(s)));
        cases.add(call(r2, () -> {
            new PbRegularCartesianGrid2D(2, 2, -1, -2, 3, 4.5f, true);
            return "(2, 2, -1, -2, 3, 4.5, 1)";
        }));
        cases.add(call(r2, () -> {
            new PbRegularCartesianGrid2D(2, 2, -1, -2, 3, 4.5f, Z4, false);
            return "(2, 2, -1, -2, 3, 4.5, " + a(Z4) + ", 0)";
        }));
        cases.add(call(r2, () -> {
            PbRegularCartesianGrid2D source = new PbRegularCartesianGrid2D(2, 2, 0, 0, 1, 1, true);
            new PbRegularCartesianGrid2D(5, 7, source);
            return "(5, 7, " + pointer(handle(source)) + ")";
        }));
        String cg3 = "PbCartesianGrid3D::PbCartesianGrid3D";
        cases.add(call(cg3, () -> {
            new PbCartesianGrid3D(true);
            return "(1)";
        }));
        cases.add(copy("PbCartesianGrid3D", () -> new PbCartesianGrid3D(true), s -> new PbCartesianGrid3D(s)));
        cases.add(call(cg3, () -> {
            new PbCartesianGrid3D(2, 2, 2, X8, Y8, Z8, false);
            return "(2, 2, 2, " + a(X8) + ", " + a(Y8) + ", " + a(Z8) + ", 0)";
        }));
        String pg3 = "PbParalCartesianGrid3D::PbParalCartesianGrid3D";
        cases.add(call(pg3, () -> {
            new PbParalCartesianGrid3D(false);
            return "(0)";
        }));
        cases.add(copy("PbParalCartesianGrid3D", () -> new PbParalCartesianGrid3D(true), s -> new PbParalCartesianGrid3D(s)));
        cases.add(call(pg3, () -> {
            new PbParalCartesianGrid3D(2, 2, 2, X2, Y2, Z2, true);
            return "(2, 2, 2, " + a(X2) + ", " + a(Y2) + ", " + a(Z2) + ", 1)";
        }));
        String r3 = "PbRegularCartesianGrid3D::PbRegularCartesianGrid3D";
        cases.add(call(r3, () -> {
            new PbRegularCartesianGrid3D(true);
            return "(1)";
        }));
        cases.add(copy("PbRegularCartesianGrid3D", () -> new PbRegularCartesianGrid3D(true), s -> new PbRegularCartesianGrid3D(s)));
        cases.add(call(r3, () -> {
            new PbRegularCartesianGrid3D(2, 3, 4, 1, 2, 3, 4, 5, 6.5f, false);
            return "(2, 3, 4, 1, 2, 3, 4, 5, 6.5, 0)";
        }));
        String im2 = "PbIndexedMesh2D::PbIndexedMesh2D";
        cases.add(call(im2, () -> {
            new PbIndexedMesh2D(true);
            return "(1)";
        }));
        cases.add(copy("PbIndexedMesh2D", () -> new PbIndexedMesh2D(true), s -> new PbIndexedMesh2D(s)));
        cases.add(call(im2, () -> {
            new PbIndexedMesh2D(4, X4, Y4, 2, new int[] {3, 3}, TRIANGLES, false);
            return "(4, " + a(X4) + ", " + a(Y4) + ", 2, [3, 3], " + a(TRIANGLES) + ", 0)";
        }));
        cases.add(call(im2, () -> {
            new PbIndexedMesh2D(4, X4, Y4, Z4, 1, new int[] {4}, new int[] {0, 1, 2, 3}, true);
            return "(4, " + a(X4) + ", " + a(Y4) + ", " + a(Z4) + ", 1, [4], [0, 1, 2, 3], 1)";
        }));
        String tm = "PbTriangleMesh2D::PbTriangleMesh2D";
        cases.add(call(tm, () -> {
            new PbTriangleMesh2D(false);
            return "(0)";
        }));
        cases.add(copy("PbTriangleMesh2D", () -> new PbTriangleMesh2D(true), s -> new PbTriangleMesh2D(s)));
        cases.add(call(tm, () -> {
            new PbTriangleMesh2D(4, X4, Y4, 2, TRIANGLES, true);
            return "(4, " + a(X4) + ", " + a(Y4) + ", 2, " + a(TRIANGLES) + ", 1)";
        }));
        cases.add(call(tm, () -> {
            new PbTriangleMesh2D(4, X4, Y4, Z4, 2, TRIANGLES, false);
            return "(4, " + a(X4) + ", " + a(Y4) + ", " + a(Z4) + ", 2, " + a(TRIANGLES) + ", 0)";
        }));
        String qm = "PbQuadrangleMesh2D::PbQuadrangleMesh2D";
        cases.add(call(qm, () -> {
            new PbQuadrangleMesh2D(true);
            return "(1)";
        }));
        cases.add(copy("PbQuadrangleMesh2D", () -> new PbQuadrangleMesh2D(true), s -> new PbQuadrangleMesh2D(s)));
        cases.add(call(qm, () -> {
            new PbQuadrangleMesh2D(4, X4, Y4, 1, new int[] {0, 1, 2, 3}, false);
            return "(4, " + a(X4) + ", " + a(Y4) + ", 1, [0, 1, 2, 3], 0)";
        }));
        cases.add(call(qm, () -> {
            new PbQuadrangleMesh2D(4, X4, Y4, Z4, 1, new int[] {0, 1, 2, 3}, true);
            return "(4, " + a(X4) + ", " + a(Y4) + ", " + a(Z4) + ", 1, [0, 1, 2, 3], 1)";
        }));
        String im3 = "PbIndexedMesh3D::PbIndexedMesh3D";
        cases.add(call(im3, () -> {
            new PbIndexedMesh3D(false);
            return "(0)";
        }));
        cases.add(copy("PbIndexedMesh3D", () -> new PbIndexedMesh3D(true), s -> new PbIndexedMesh3D(s)));
        cases.add(call(im3, () -> {
            new PbIndexedMesh3D(8, X8, Y8, Z8, 2, new int[] {4, 4}, TETS, true);
            return "(8, " + a(X8) + ", " + a(Y8) + ", " + a(Z8) + ", 2, [4, 4], " + a(TETS) + ", 1)";
        }));
        String te = "PbTetrahedronMesh3D::PbTetrahedronMesh3D";
        cases.add(call(te, () -> {
            new PbTetrahedronMesh3D(true);
            return "(1)";
        }));
        cases.add(copy("PbTetrahedronMesh3D", () -> new PbTetrahedronMesh3D(true), s -> new PbTetrahedronMesh3D(s)));
        cases.add(call(te, () -> {
            new PbTetrahedronMesh3D(8, X8, Y8, Z8, 2, TETS, false);
            return "(8, " + a(X8) + ", " + a(Y8) + ", " + a(Z8) + ", 2, " + a(TETS) + ", 0)";
        }));
        String he = "PbHexahedronMesh3D::PbHexahedronMesh3D";
        cases.add(call(he, () -> {
            new PbHexahedronMesh3D(false);
            return "(0)";
        }));
        cases.add(copy("PbHexahedronMesh3D", () -> new PbHexahedronMesh3D(true), s -> new PbHexahedronMesh3D(s)));
        cases.add(call(he, () -> {
            new PbHexahedronMesh3D(8, X8, Y8, Z8, 1, HEX, true);
            return "(8, " + a(X8) + ", " + a(Y8) + ", " + a(Z8) + ", 1, " + a(HEX) + ", 1)";
        }));
        String ir = "PbIrregularMesh1D::PbIrregularMesh1D";
        cases.add(call(ir, () -> {
            new PbIrregularMesh1D();
            return "";
        }));
        cases.add(copy("PbIrregularMesh1D", () -> new PbIrregularMesh1D(), s -> new PbIrregularMesh1D(s)));
        cases.add(call(ir, () -> {
            new PbIrregularMesh1D(2, X2);
            return "(2, " + a(X2) + ")";
        }));
        String rg = "PbRegularMesh1D::PbRegularMesh1D";
        cases.add(call(rg, () -> {
            new PbRegularMesh1D();
            return "";
        }));
        cases.add(copy("PbRegularMesh1D", () -> new PbRegularMesh1D(), s -> new PbRegularMesh1D(s)));
        cases.add(call(rg, () -> {
            new PbRegularMesh1D(3, -1, 0.25f);
            return "(3, -1, 0.25)";
        }));
        cases.add(call("PbDefinedValue::PbDefinedValue", () -> {
            new PbDefinedValue();
            return "";
        }));
        cases.addAll(cells());
        return cases.stream();
    }

    /** A copy constructor: the toolkit's copy constructor gets the source object. */
    private static <T extends NativeObject> Arguments copy(String kind, Callable<T> source, UnaryOperator<T> copier) {
        return call(kind + "::" + kind + "(copy)", () -> {
            T original = source.call();
            copier.apply(original);
            return "(" + pointer(handle(original)) + ")";
        });
    }

    private static List<Arguments> cells() {
        PbMesh mesh = new PbTriangleMesh2D(4, X4, Y4, 2, TRIANGLES, true);
        List<Arguments> cases = new ArrayList<>();
        cases.add(call("PbTriangleCell::PbTriangleCell", () -> {
            new PbTriangleCell(mesh);
            return "(" + pointer(handle(mesh)) + ")";
        }));
        cases.add(call("PbTriangleCell::PbTriangleCell(copy)", () -> {
            PbTriangleCell source = new PbTriangleCell(mesh);
            new PbTriangleCell(source);
            return "(" + pointer(handle(source)) + ")";
        }));
        List<Callable<PbCell>> makers = List.of(() -> new PbQuadrangleCell(mesh), () -> new PbPixelCell(mesh),
                () -> new PbTetrahedronCell(mesh), () -> new PbPyramidCell(mesh), () -> new PbWedgeCell(mesh),
                () -> new PbHexahedronCell(mesh), () -> new PbVoxelCell(mesh));
        for (Callable<PbCell> maker : makers) {
            String kind = uncheckedCall(maker).getClass().getSimpleName();
            cases.add(call(kind + "::" + kind, () -> {
                maker.call();
                return "(" + pointer(handle(mesh)) + ")";
            }));
            cases.add(call(kind + "::" + kind + "(copy)", () -> {
                PbCell source = maker.call();
                source.getClass().getConstructor(source.getClass()).newInstance(source);
                return "(" + pointer(handle(source)) + ")";
            }));
        }
        return cases;
    }

    private static <T> T uncheckedCall(Callable<T> c) {
        try {
            return c.call();
        } catch (Exception e) {
            throw new AssertionError(e);
        }
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource({"constructors", "geometries"})
    void reachesTheToolkitFunctionWithItsArgumentsInOrder(String function, Callable<String> run) throws Exception {
        Journal.start();
        String arguments;
        try {
            arguments = run.call();
        } finally {
            Journal.setEnabled(false);
        }
        List<String> lines = Journal.linesStartingWith(function + "(");
        assertFalse(lines.isEmpty(), "no call of " + function + " in " + Journal.stop());
        assertEquals(function + (arguments.isEmpty() ? "()" : arguments), lines.get(lines.size() - 1));
    }

    static Stream<Arguments> geometries() {
        List<Arguments> cases = new ArrayList<>();
        PbCartesianGrid2D cg = new PbCartesianGrid2D(true);
        cases.add(call("PbCartesianGrid2D::setGeometry", () -> {
            cg.setGeometry(2, 2, X4, Y4);
            return "(2, 2, " + a(X4) + ", " + a(Y4) + ")";
        }));
        cases.add(call("PbCartesianGrid2D::setGeometry", () -> {
            cg.setGeometry(2, 2, X4, Y4, Z4);
            return "(2, 2, " + a(X4) + ", " + a(Y4) + ", " + a(Z4) + ")";
        }));
        PbParalCartesianGrid2D pg = new PbParalCartesianGrid2D(true);
        cases.add(call("PbParalCartesianGrid2D::setGeometry", () -> {
            pg.setGeometry(2, 2, X2, Y2);
            return "(2, 2, " + a(X2) + ", " + a(Y2) + ")";
        }));
        PbCartesianGrid3D c3 = new PbCartesianGrid3D(true);
        cases.add(call("PbCartesianGrid3D::setGeometry", () -> {
            c3.setGeometry(2, 2, 2, X8, Y8, Z8);
            return "(2, 2, 2, " + a(X8) + ", " + a(Y8) + ", " + a(Z8) + ")";
        }));
        PbRegularCartesianGrid2D r2 = new PbRegularCartesianGrid2D(true);
        cases.add(call("PbRegularCartesianGrid2D::setGeometry", () -> {
            r2.setGeometry(3, 2, 0, 1, 2, 3);
            return "(3, 2, 0, 1, 2, 3)";
        }));
        cases.add(call("PbRegularCartesianGrid2D::setGeometry", () -> {
            r2.setGeometry(2, 2, 0, 1, 2, 3, Z4);
            return "(2, 2, 0, 1, 2, 3, " + a(Z4) + ")";
        }));
        PbRegularCartesianGrid3D r3 = new PbRegularCartesianGrid3D(true);
        cases.add(call("PbRegularCartesianGrid3D::setGeometry", () -> {
            r3.setGeometry(2, 3, 4, 0, 1, 2, 3, 4, 5);
            return "(2, 3, 4, 0, 1, 2, 3, 4, 5)";
        }));
        PbIndexedMesh2D im2 = new PbIndexedMesh2D(true);
        cases.add(call("PbIndexedMesh2D::setGeometry", () -> {
            im2.setGeometry(4, X4, Y4, 2, new int[] {3, 3}, TRIANGLES);
            return "(4, " + a(X4) + ", " + a(Y4) + ", 2, [3, 3], " + a(TRIANGLES) + ")";
        }));
        cases.add(call("PbIndexedMesh2D::setGeometry", () -> {
            im2.setGeometry(4, X4, Y4, Z4, 1, new int[] {4}, new int[] {3, 2, 1, 0});
            return "(4, " + a(X4) + ", " + a(Y4) + ", " + a(Z4) + ", 1, [4], [3, 2, 1, 0])";
        }));
        PbIndexedMesh3D im3 = new PbIndexedMesh3D(true);
        cases.add(call("PbIndexedMesh3D::setGeometry", () -> {
            im3.setGeometry(8, X8, Y8, Z8, 1, new int[] {8}, HEX);
            return "(8, " + a(X8) + ", " + a(Y8) + ", " + a(Z8) + ", 1, [8], " + a(HEX) + ")";
        }));
        PbTriangleMesh2D tm = new PbTriangleMesh2D(true);
        cases.add(call("PbTriangleMesh2D::setGeometry", () -> {
            tm.setGeometry(4, X4, Y4, 2, TRIANGLES);
            return "(4, " + a(X4) + ", " + a(Y4) + ", 2, " + a(TRIANGLES) + ")";
        }));
        cases.add(call("PbTriangleMesh2D::setGeometry", () -> {
            tm.setGeometry(4, X4, Y4);
            return "(4, " + a(X4) + ", " + a(Y4) + ")";
        }));
        cases.add(call("PbTriangleMesh2D::setGeometry", () -> {
            tm.setGeometry(4, X4, Y4, Z4, 2, TRIANGLES);
            return "(4, " + a(X4) + ", " + a(Y4) + ", " + a(Z4) + ", 2, " + a(TRIANGLES) + ")";
        }));
        PbQuadrangleMesh2D qm = new PbQuadrangleMesh2D(true);
        cases.add(call("PbQuadrangleMesh2D::setGeometry", () -> {
            qm.setGeometry(4, X4, Y4, 1, new int[] {0, 1, 2, 3});
            return "(4, " + a(X4) + ", " + a(Y4) + ", 1, [0, 1, 2, 3])";
        }));
        cases.add(call("PbQuadrangleMesh2D::setGeometry", () -> {
            qm.setGeometry(4, X4, Y4, Z4, 1, new int[] {0, 1, 2, 3});
            return "(4, " + a(X4) + ", " + a(Y4) + ", " + a(Z4) + ", 1, [0, 1, 2, 3])";
        }));
        PbTetrahedronMesh3D te = new PbTetrahedronMesh3D(true);
        cases.add(call("PbTetrahedronMesh3D::setGeometry", () -> {
            te.setGeometry(8, X8, Y8, Z8, 2, TETS);
            return "(8, " + a(X8) + ", " + a(Y8) + ", " + a(Z8) + ", 2, " + a(TETS) + ")";
        }));
        PbHexahedronMesh3D he = new PbHexahedronMesh3D(true);
        cases.add(call("PbHexahedronMesh3D::setGeometry", () -> {
            he.setGeometry(8, X8, Y8, Z8, 1, HEX);
            return "(8, " + a(X8) + ", " + a(Y8) + ", " + a(Z8) + ", 1, " + a(HEX) + ")";
        }));
        PbIrregularMesh1D ir = new PbIrregularMesh1D();
        cases.add(call("PbIrregularMesh1D::setGeometry", () -> {
            ir.setGeometry(2, X2);
            return "(2, " + a(X2) + ")";
        }));
        PbRegularMesh1D rg = new PbRegularMesh1D();
        cases.add(call("PbRegularMesh1D::setGeometry", () -> {
            rg.setGeometry(4, 0.5f, 2);
            return "(4, 0.5, 2)";
        }));
        return cases.stream();
    }
}
