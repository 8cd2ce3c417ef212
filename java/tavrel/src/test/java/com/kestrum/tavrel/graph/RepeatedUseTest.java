package com.kestrum.tavrel.graph;

import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertTrue;

import com.kestrum.corvel.SbColor;
import com.kestrum.corvel.SbVec2f;
import com.kestrum.corvel.actions.SoGLRenderAction;
import com.kestrum.tavrel.data.PbMesh;
import com.kestrum.tavrel.data.PbRegularCartesianGrid2D;
import java.lang.management.ManagementFactory;
import java.lang.management.MemoryMXBean;
import java.util.function.IntSupplier;
import org.junit.jupiter.api.Test;

/**
 * What repeating a call leaves behind: a render action's pictures drawn one after the other (each
 * shows exactly what its apply drew, whatever the previous one held), the Java heap after many
 * builds of the same node, and the bytes a thin getter or setter allocates.
 */
class RepeatedUseTest {
    private static SbVec2f[] points(int n) {
        SbVec2f[] points = new SbVec2f[n];
        for (int i = 0; i < n; i++) {
            points[i] = new SbVec2f(i, i % 7);
        }
        return points;
    }

    @Test
    void eachPictureShowsOnlyItsOwnApplyWhateverTheOneBeforeHeld() {
        PoCurve longCurve = new PoCurve(500, points(500), PoCurve.CurveReps.CURVEPOLYLINE);
        PoCurve shortCurve = new PoCurve(3, points(3), PoCurve.CurveReps.CURVEPOLYLINE);
        PoPieChart2D pie = PoPieChart2D.of(new SbVec2f(0, 0), 1, new String[] {"a", "b", "c"},
                new float[] {1, 2, 3}, new SbColor[] {new SbColor(1, 0, 0), new SbColor(0, 1, 0), new SbColor(0, 0, 1)});
        SoGLRenderAction render = new SoGLRenderAction();
        SoGLRenderAction fresh = new SoGLRenderAction();
        try {
            // Longer, shorter, of other kinds, and again: each picture equals one drawn by a new action.
            Object[] order = {longCurve, shortCurve, pie, longCurve, pie, shortCurve, shortCurve, longCurve};
            for (Object node : order) {
                render.apply((com.kestrum.corvel.nodes.SoNode) node);
                fresh.dispose();
                fresh = new SoGLRenderAction();
                fresh.apply((com.kestrum.corvel.nodes.SoNode) node);
                assertEquals(fresh.toSvg(), render.toSvg(), "picture of " + node.getClass().getSimpleName());
            }
        } finally {
            render.dispose();
            fresh.dispose();
            longCurve.dispose();
            shortCurve.dispose();
            pie.dispose();
        }
    }

    /** The heap in use after collections, with time between them for the cleaner to run. */
    private static long usedAfterGc(MemoryMXBean memory) throws InterruptedException {
        long used = Long.MAX_VALUE;
        for (int i = 0; i < 4; i++) {
            System.gc();
            Thread.sleep(25);
            used = Math.min(used, memory.getHeapMemoryUsage().getUsed());
        }
        return used;
    }

    @Test
    void theJavaHeapAfterGcIsUnchangedByRepeatedBuildsOfTheSameNode() throws InterruptedException {
        SbVec2f[] points = points(10_000);
        float[] values = new float[10_000];
        Runnable[] builds = {
            () -> new PoCurve(points.length, points, PoCurve.CurveReps.CURVEPOLYLINE).dispose(),
            () -> new PoValuedMarkerField(points.length, points, values, values).dispose(),
            () -> new PoMultipleHistogram(new SbVec2f(0, 0), 6, PoHistogram.Types.X, 2, 3, values,
                    new String[] {"a", "b"}, new String[] {"x", "y", "z"}).dispose(),
        };
        MemoryMXBean memory = ManagementFactory.getMemoryMXBean();
        for (Runnable build : builds) {
            for (int i = 0; i < 20; i++) {
                build.run();
            }
            long before = usedAfterGc(memory);
            for (int i = 0; i < 200; i++) {
                build.run();
            }
            long grown = usedAfterGc(memory) - before;
            // A Java object kept per build (its wrapper, a hold, a copy of the points) would add
            // 200 times its size (a curve's wrapper with what it holds: some 270 bytes); what the
            // collector leaves varies by a few hundred bytes.
            assertTrue(grown < 16 * 1024, "heap grew by " + grown + " bytes over 200 builds");
        }
    }

    @Test
    void thinGettersAndSettersAllocateNothingOnTheJavaHeap() {
        com.sun.management.ThreadMXBean threads =
                (com.sun.management.ThreadMXBean) ManagementFactory.getThreadMXBean();
        PbMesh mesh = new PbRegularCartesianGrid2D(10, 10, 0, 0, 1, 1, true);
        PbLinearDataMapping mapping = new PbLinearDataMapping();
        PbDomain domain = new PbDomain(0, 0, 1, 1, PbDomain.BoundingBoxTypes.ASIS);
        try {
            IntSupplier[] calls = {
                mesh::getNumNodes,
                () -> {
                    mapping.setMinThreshold(0.25f);
                    return 0;
                },
                () -> Float.floatToRawIntBits(mapping.getTransparencyValueDeletedParts()),
                () -> {
                    domain.setTransformType(PbDomain.TransformTypes.SCALEXFIXED);
                    return 0;
                },
            };
            long thread = Thread.currentThread().getId();
            for (int k = 0; k < calls.length; k++) {
                IntSupplier call = calls[k];
                int sink = 0;
                for (int i = 0; i < 1_000; i++) {
                    sink += call.getAsInt();
                }
                long before = threads.getThreadAllocatedBytes(thread);
                for (int i = 0; i < 100_000; i++) {
                    sink += call.getAsInt();
                }
                long allocated = threads.getThreadAllocatedBytes(thread) - before;
                // Interpreted or compiled, a call that allocated would show 16 bytes or more a call;
                // what is left is the measurement's own (a few hundred bytes at most).
                assertTrue(allocated < 4_096, "call " + k + " allocated " + allocated + " bytes over 100,000 calls ("
                        + sink + ")");
            }
        } finally {
            mesh.dispose();
            mapping.dispose();
            domain.dispose();
        }
    }
}
