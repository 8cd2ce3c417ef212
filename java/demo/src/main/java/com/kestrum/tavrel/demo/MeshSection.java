package com.kestrum.tavrel.demo;

import com.kestrum.corvel.SbVec2f;
import com.kestrum.corvel.SbVec3f;
import com.kestrum.tavrel.data.PbCell;
import com.kestrum.tavrel.data.PbIndexedMesh2D;
import com.kestrum.tavrel.data.PbMesh;
import com.kestrum.tavrel.data.PbRegularCartesianGrid3D;
import com.kestrum.tavrel.data.PbTriangleMesh2D;
import java.nio.FloatBuffer;
import java.util.Arrays;
import java.util.Locale;

/** Real meshes with data: direct buffers, cell search and interpolation. */
final class MeshSection implements Demo.Section {
    @Override
    public String title() {
        return "Meshes and data sets";
    }

    @Override
    public void run() {
        grid();
        triangles();
        indexed();
    }

    /** A 3D regular grid with a temperature per node and a wind per node. */
    private static void grid() {
        PbRegularCartesianGrid3D grid = new PbRegularCartesianGrid3D(4, 3, 2, 0, 0, 0, 3, 2, 1, true);
        int n = grid.getNumNodes();
        float[] temperature = new float[n];
        SbVec3f[] wind = new SbVec3f[n];
        for (int i = 0; i < n; i++) {
            SbVec3f p = grid.getNodeCoord(i);
            temperature[i] = 10 + 2 * p.getX() + p.getY() - 3 * p.getZ();
            wind[i] = new SbVec3f(1, p.getX(), 0);
        }
        grid.addValuesSet(0, temperature, "temperature");
        grid.addVecsSet(0, wind, "wind");
        say("3D regular grid %s: %d nodes, %d cells, volume %.1f, box %s", Arrays.toString(grid.getDim()), n,
                grid.getNumCells(), grid.getVolume(), Arrays.toString(grid.getBoundingBox()));

        FloatBuffer direct = grid.getDirectValuesSet(0);
        say("  temperature through a direct buffer (%d floats, no copy): first %.1f, last %.1f", direct.capacity(),
                direct.get(0), direct.get(direct.capacity() - 1));
        float[] max = new float[1];
        grid.getMaxValuesSet(0, max);
        say("  largest temperature %.1f; wind buffer holds %d floats", max[0], grid.getDirectVecsSet(0).capacity());

        SbVec3f point = new SbVec3f(1.5f, 0.25f, 0.5f);
        float[] pcoord = new float[3];
        PbCell cell = grid.findContainingCell(point, 0, pcoord);
        say("  point %s lies in cell %d %s at parametric %s", point, cell.getIndex(),
                Arrays.toString(grid.getCellIndices(cell.getIndex())), Arrays.toString(pcoord));
        say("  interpolated temperature %.3f (exact %.3f), wind %s", cell.getValue(pcoord, temperature),
                10 + 2 * 1.5f + 0.25f - 1.5f, cell.getValue(pcoord, wind));
    }

    /** A triangle mesh of a square and its centre, with heights. */
    private static void triangles() {
        float[] x = {0, 2, 2, 0, 1};
        float[] y = {0, 0, 2, 2, 1};
        int[] triangles = {0, 1, 4, 1, 2, 4, 2, 3, 4, 3, 0, 4};
        PbTriangleMesh2D mesh = new PbTriangleMesh2D(5, x, y, 4, triangles, true);
        mesh.addValuesSet(0, new float[] {0, 1, 2, 1, 4}, "height");
        mesh.addVecsSet(1, new SbVec2f[] {new SbVec2f(1, 0), new SbVec2f(0, 1), new SbVec2f(-1, 0),
            new SbVec2f(0, -1), new SbVec2f(0, 0)}, "slope");
        say("triangle mesh: %d nodes, %d triangles, area %.1f", mesh.getNumNodes(), mesh.getNumCells(),
                mesh.getArea());
        FloatBuffer[] nodes = mesh.get2DNodes();
        say("  node arrays through direct buffers: x %s", floats(nodes[0]));
        float[] pcoord = new float[3];
        PbCell cell = mesh.findContainingCell(new SbVec3f(1.5f, 1, 0), 0, pcoord);
        say("  (1.5, 1) lies in triangle %d, height there %.2f, %s there %s", cell.getIndex(),
                cell.getValue(pcoord, mesh.getValuesSet(0)), mesh.getVecsSetName(1),
                cell.getValue(pcoord, mesh.getVecsSet(1)));
    }

    /** An indexed 2D mesh of one quadrangle and one triangle, with a value per cell. */
    private static void indexed() {
        float[] x = {0, 1, 1, 0, 2};
        float[] y = {0, 0, 1, 1, 0.5f};
        PbIndexedMesh2D mesh = new PbIndexedMesh2D(5, x, y, 2, new int[] {4, 3}, new int[] {0, 1, 2, 3, 1, 4, 2},
                true);
        mesh.addValuesSet(0, new float[] {10, 20}, PbMesh.DataBindings.PER_CELL, "material");
        say("indexed 2D mesh: %d nodes, cells of %d and %d nodes, area %.2f", mesh.getNumNodes(),
                mesh.getCell(0).getNumNodes(), mesh.getCell(1).getNumNodes(), mesh.getArea());
        FloatBuffer perCell = mesh.getDirectValuesSet(0);
        say("  per-cell set '%s' (%s): %s", mesh.getValuesSetName(0), mesh.getValuesBinding(0), floats(perCell));
        perCell.put(1, 25);
        say("  written through the buffer, read back by copy: %s", Arrays.toString(mesh.getValuesSet(0)));
        PbCell cell = mesh.findContainingCell(new SbVec3f(1.5f, 0.5f, 0), 0, new float[3]);
        say("  (1.5, 0.5) lies in cell %d, material %.0f", cell.getIndex(), mesh.getValuesSet(0)[cell.getIndex()]);
    }

    private static String floats(FloatBuffer b) {
        float[] out = new float[b.capacity()];
        b.get(0, out);
        return Arrays.toString(out);
    }

    private static void say(String format, Object... args) {
        System.out.println(String.format(Locale.ROOT, format, args));
    }
}
