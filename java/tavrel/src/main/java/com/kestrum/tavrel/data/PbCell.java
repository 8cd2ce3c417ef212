package com.kestrum.tavrel.data;

import com.kestrum.tavrel.internal.Checks;
import com.kestrum.corvel.SbVec3f;
import com.kestrum.corvel.misc.ManagedObjects;
import com.kestrum.corvel.misc.NativeObject;
import com.kestrum.tavrel.internal.JarInitializer;
import com.kestrum.tavrel.internal.JavaViews;

/**
 * One cell of a mesh: its nodes, measures, point location and interpolation in parametric
 * coordinates.
 *
 * <p>A cell obtained from a mesh, or handed to a probe's listener, belongs to the mesh, which
 * frees it when its geometry changes: the cell then stops working ({@link
 * IllegalStateException}). A cell obtained from a mesh's Java object stops working too once that
 * object has been disposed. A cell whose mesh is not known (a listener's cell when the probe's
 * mesh was not set through its Java object) stops working at the first change of geometry of any
 * mesh. A cell made by a subclass's constructor belongs to its Java object and always works;
 * made from a mesh alone, it is not attached to any cell of it: it has no nodes.
 *
 * <p>Interpolation reads per-node data of the whole mesh: the values or vectors arrays are
 * indexed by the cell's node indices, so they must be longer than the largest of them.
 */
public class PbCell extends NativeObject {
    static {
        JarInitializer.init();
        ManagedObjects.registerWrapper(PbCell.class.getName(), address -> new PbCell(address, null));
        JavaViews.registerViewIn(PbCell.class, PbCell::viewIn);
    }

    /** The Java object of the mesh the cell was obtained from, or null. */
    private final PbMesh owner;
    /** The changes of the cell's mesh; null for a cell of an unknown mesh or a cell of its own. */
    private final GeometryChanges geometry;
    /** Whether the cell belongs to a mesh, which frees it when its geometry changes. */
    private final boolean ofMesh;
    /** The count of geometry changes (of the mesh, else of all meshes) when the cell was obtained. */
    private final long changes;
    private int[] nodeIndices;

    /** A view of a cell owned by a mesh (owner null: the mesh is not known). */
    PbCell(long handle, PbMesh owner) {
        this(handle, owner, true);
    }

    /**
     * A cell made by a subclass's constructor, registered as the peer of its native cell.
     *
     * @param handle the address of the native object
     */
    protected PbCell(long handle) {
        this(handle, null, false);
        registerAsPeer(false);
    }

    private PbCell(long handle, PbMesh owner, boolean ofMesh) {
        super(handle);
        this.owner = owner;
        this.geometry = owner == null ? null : owner.geometry;
        this.ofMesh = ofMesh;
        this.changes = geometry != null ? geometry.count() : GeometryChanges.ofAllMeshes();
    }

    /**
     * The view of a cell that a node found in its mesh (a probe's cell): the probe's mesh owns it
     * when the probe's Java object knows it.
     */
    private static PbCell viewIn(long address, NativeObject node) {
        PbMesh mesh = node instanceof PoMeshProbePoint ? ((PoMeshProbePoint) node).meshObject() : null;
        return new PbCell(address, mesh);
    }

    /** The native handle of a cell that is still valid. */
    final long cellHandle() {
        long h = handle();
        if (ofMesh && !current()) {
            throw new IllegalStateException("the cell's mesh has changed since the cell was obtained");
        }
        return h;
    }

    private boolean current() {
        if (owner != null) {
            return !owner.isDisposed() && geometry.count() == changes;
        }
        return GeometryChanges.ofAllMeshes() == changes;
    }

    /** The components of parametric coordinates (a new array). */
    static float[] coordinates(SbVec3f pcoord) {
        return Checks.notNull(pcoord, "pcoord").getValue();
    }

    /**
     * The number of facets of the cell.
     *
     * @return the number of facets of the cell
     * @throws IllegalStateException when the cell no longer works (its mesh changed its geometry)
     */
    public int getNumFacets() {
        return getNumFacetsImpl(cellHandle());
    }

    /**
     * The number of edges of the cell.
     *
     * @return the number of edges of the cell
     * @throws IllegalStateException when the cell no longer works (its mesh changed its geometry)
     */
    public int getNumEdges() {
        return getNumEdgesImpl(cellHandle());
    }

    /**
     * The number of nodes of the cell.
     *
     * @return the number of nodes of the cell
     * @throws IllegalStateException when the cell no longer works (its mesh changed its geometry)
     */
    public int getNumNodes() {
        return getNumNodesImpl(cellHandle());
    }

    /**
     * The cell's index in its mesh (-1 for a cell that is not attached to one).
     *
     * @return the cell's index in its mesh (-1 for a cell that is not attached to one)
     */
    public int getIndex() {
        return getIndexImpl(cellHandle());
    }

    /**
     * The mesh index of node i of the cell.
     *
     * @param i the index
     * @return the mesh index of node i of the cell
     */
    public int getNodeIndex(int i) {
        return nodeIndices()[Checks.index(i, nodeIndices().length, "node")];
    }

    /**
     * The coordinates of the cell's i-th node.
     *
     * @param i the index of the node in the cell
     * @return the coordinates of the cell's i-th node
     * @throws IndexOutOfBoundsException when i is not the index of one of the cell's nodes
     * @throws IllegalStateException when the cell no longer works (its mesh changed its geometry)
     */
    public SbVec3f getNodeCoord(int i) {
        long h = cellHandle();
        Checks.index(i, nodeIndices().length, "node");
        float[] out = new float[3];
        getNodeCoordImpl(h, i, out);
        return new SbVec3f(out);
    }

    /**
     * The length of the cell's longest edge.
     *
     * @return the length of the cell's longest edge
     * @throws IllegalStateException when the cell no longer works (its mesh changed its geometry)
     */
    public float getLongestEdgeLength() {
        return getLongestEdgeLengthImpl(cellHandle());
    }

    /**
     * The volume of the cell (0 for a surface cell).
     *
     * @return the volume of the cell (0 for a surface cell)
     * @throws IllegalStateException when the cell no longer works (its mesh changed its geometry)
     */
    public float getVolume() {
        return getVolumeImpl(cellHandle());
    }

    /**
     * The area of the cell (0 for a volume cell).
     *
     * @return the area of the cell (0 for a volume cell)
     * @throws IllegalStateException when the cell no longer works (its mesh changed its geometry)
     */
    public float getArea() {
        return getAreaImpl(cellHandle());
    }

    /**
     * The bounding box: xmin, ymin, zmin, xmax, ymax, zmax.
     *
     * @return the bounding box: xmin, ymin, zmin, xmax, ymax, zmax
     */
    public float[] getBoundingBox() {
        float[] box = new float[6];
        getBoundingBoxImpl(cellHandle(), box);
        return box;
    }

    /**
     * The bounds xmin, ymin, zmin, xmax, ymax, zmax (all 0 for a cell without nodes).
     *
     * @return the bounds xmin, ymin, zmin, xmax, ymax, zmax (all 0 for a cell without nodes)
     */
    public float[] getBounds() {
        float[][] out = new float[6][1];
        getBoundsImpl(cellHandle(), out[0], out[1], out[2], out[3], out[4], out[5]);
        float[] bounds = new float[6];
        for (int i = 0; i < 6; i++) {
            bounds[i] = out[i][0];
        }
        return bounds;
    }

    /**
     * The centre of the cell.
     *
     * @return the centre of the cell
     * @throws IllegalStateException when the cell no longer works (its mesh changed its geometry)
     */
    public SbVec3f getCenter() {
        float[] out = new float[3];
        getCenterImpl(cellHandle(), out);
        return new SbVec3f(out);
    }

    /**
     * Finds the parametric coordinates of a point (into pcoord[0..2]); returns 1 when the point
     * lies in the cell within the tolerance, 0 otherwise.
     *
     * @param point the point
     * @param tolerance the distance within which a point counts as inside
     * @param pcoord the parametric coordinates
     * @return 1 when the point lies in the cell within the tolerance, 0 otherwise
     */
    public int locatePoint(SbVec3f point, float tolerance, float[] pcoord) {
        long h = cellHandle();
        float[] p = Checks.notNull(point, "point").getValue();
        return locatePointImpl(h, p, tolerance, Checks.length(pcoord, 3, "pcoord"));
    }

    /**
     * The per-node values of the mesh interpolated at the parametric coordinates.
     *
     * @param pcoord the parametric coordinates
     * @param values a value per node of the cell's mesh
     * @return the value interpolated at the parametric coordinates
     */
    public float getValue(SbVec3f pcoord, float[] values) {
        long h = cellHandle();
        float[] p = Checks.notNull(pcoord, "pcoord").getValue();
        return getValueImpl(h, p, Checks.length(values, valueSpan(), "values"));
    }

    /**
     * The per-node vectors of the mesh interpolated at the parametric coordinates.
     *
     * @param pcoord the parametric coordinates
     * @param vectors the vectors, one per node or per cell
     * @return the value interpolated at the parametric coordinates
     */
    public SbVec3f getValue(SbVec3f pcoord, SbVec3f[] vectors) {
        long h = cellHandle();
        float[] p = Checks.notNull(pcoord, "pcoord").getValue();
        float[] out = new float[3];
        getValueImpl1(h, p, checkVectors(vectors), out);
        return new SbVec3f(out);
    }

    /**
     * As {@link #getValue(SbVec3f, float[])}, with the parametric coordinates in pcoord[0..2].
     *
     * @param pcoord the parametric coordinates
     * @param values a value per node of the cell's mesh
     * @return the value interpolated at the parametric coordinates
     */
    public float getValue(float[] pcoord, float[] values) {
        long h = cellHandle();
        Checks.length(pcoord, 3, "pcoord");
        return getValueImpl2(h, pcoord, Checks.length(values, valueSpan(), "values"));
    }

    /**
     * As {@link #getValue(SbVec3f, SbVec3f[])}, with the parametric coordinates in pcoord[0..2].
     *
     * @param pcoord the parametric coordinates
     * @param vectors the vectors, one per node or per cell
     * @return the value interpolated at the parametric coordinates
     */
    public SbVec3f getValue(float[] pcoord, SbVec3f[] vectors) {
        long h = cellHandle();
        Checks.length(pcoord, 3, "pcoord");
        float[] out = new float[3];
        getValueImpl3(h, pcoord, checkVectors(vectors), out);
        return new SbVec3f(out);
    }

    private SbVec3f[] checkVectors(SbVec3f[] vectors) {
        return Checks.vectors(Checks.length(vectors, valueSpan(), "vectors"), "vectors");
    }

    /** The node indices of the cell, read once (a valid cell does not change). */
    private int[] nodeIndices() {
        long h = cellHandle();
        if (nodeIndices == null) {
            int[] nodes = new int[getNumNodesImpl(h)];
            for (int i = 0; i < nodes.length; i++) {
                nodes[i] = getNodeIndexImpl(h, i);
            }
            nodeIndices = nodes;
        }
        return nodeIndices;
    }

    /** Number of per-node values the cell reads: its largest node index + 1. */
    private int valueSpan() {
        int span = 0;
        for (int n : nodeIndices()) {
            span = Math.max(span, n + 1);
        }
        return span;
    }

    private native int getNumFacetsImpl(long handle);

    private native int getNumEdgesImpl(long handle);

    private native int getNumNodesImpl(long handle);

    private native int getIndexImpl(long handle);

    private native int getNodeIndexImpl(long handle, int i);

    private native void getNodeCoordImpl(long handle, int i, float[] out);

    private native float getLongestEdgeLengthImpl(long handle);

    private native float getVolumeImpl(long handle);

    private native float getAreaImpl(long handle);

    private native void getBoundingBoxImpl(long handle, float[] out);

    private native void getBoundsImpl(long handle, float[] xmin, float[] ymin, float[] zmin, float[] xmax,
            float[] ymax, float[] zmax);

    private native void getCenterImpl(long handle, float[] out);

    private native int locatePointImpl(long handle, float[] point, float tolerance, float[] pcoordOut);

    private native float getValueImpl(long handle, float[] pcoord, float[] values);

    private native void getValueImpl1(long handle, float[] pcoord, Object[] vectors, float[] out);

    private native float getValueImpl2(long handle, float[] pcoord, float[] values);

    private native void getValueImpl3(long handle, float[] pcoord, Object[] vectors, float[] out);
}
