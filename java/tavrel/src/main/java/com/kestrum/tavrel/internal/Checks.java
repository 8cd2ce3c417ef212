package com.kestrum.tavrel.internal;

import com.kestrum.corvel.SbColor;
import com.kestrum.corvel.SbVec2f;
import com.kestrum.corvel.SbVec3f;
import java.nio.ByteBuffer;
import java.nio.ByteOrder;
import java.nio.FloatBuffer;

/**
 * Argument checks made before any native call: the native methods check nothing, so every
 * array the toolkit reads or writes must be long enough and every index must be in range.
 *
 * <p>Internal to the product (public for its other packages, whose classes check mesh
 * arguments the way the mesh classes do); not part of the API.
 */
public final class Checks {
    private Checks() {}

    public static <T> T notNull(T value, String name) {
        if (value == null) {
            throw new NullPointerException(name + " is null");
        }
        return value;
    }

    /**
     * The largest node or cell count of a mesh, and the largest grid dimension: every data set of
     * the mesh must be able to come back to Java, and a vecs set of n vectors is a direct buffer of
     * 12 n bytes (a buffer's capacity is an int) or an array of 3 n floats. A larger count could
     * only fail in the toolkit, whose allocation failures end the process.
     */
    public static final int MAX_COUNT = Integer.MAX_VALUE / 12;

    /** A node or cell count, or a grid dimension: not negative and at most {@link #MAX_COUNT}. */
    public static int count(int n, String name) {
        if (n < 0) {
            throw new IllegalArgumentException(name + " is negative: " + n);
        }
        if (n > MAX_COUNT) {
            throw new IllegalArgumentException(name + " is " + n + ", more than " + MAX_COUNT
                    + ", the most nodes or cells a mesh can have (its data sets must fit in Java arrays)");
        }
        return n;
    }

    /** The product of grid dimensions: the node count, at most {@link #MAX_COUNT}. */
    public static int product(int... counts) {
        long p = 1;
        for (int c : counts) {
            p *= c;
            if (p > MAX_COUNT) {
                throw new IllegalArgumentException("too many nodes: " + java.util.Arrays.toString(counts)
                        + " make more than " + MAX_COUNT
                        + ", the most nodes a mesh can have (its data sets must fit in Java arrays)");
            }
        }
        return (int) p;
    }

    public static float[] length(float[] array, long needed, String name) {
        notNull(array, name);
        if (array.length < needed) {
            throw new IllegalArgumentException(name + " has " + array.length + " elements, " + needed + " needed");
        }
        return array;
    }

    public static int[] length(int[] array, long needed, String name) {
        notNull(array, name);
        if (array.length < needed) {
            throw new IllegalArgumentException(name + " has " + array.length + " elements, " + needed + " needed");
        }
        return array;
    }

    public static <T> T[] length(T[] array, long needed, String name) {
        notNull(array, name);
        if (array.length < needed) {
            throw new IllegalArgumentException(name + " has " + array.length + " elements, " + needed + " needed");
        }
        return array;
    }

    /** A float array that may be null, and otherwise must be long enough. */
    public static float[] optional(float[] array, long needed, String name) {
        return array == null ? null : length(array, needed, name);
    }

    /** Every element of an object array must be present (the conversion reads them all). */
    public static <T> T[] noNullElements(T[] array, String name) {
        for (int i = 0; i < array.length; i++) {
            if (array[i] == null) {
                throw new NullPointerException(name + "[" + i + "] is null");
            }
        }
        return array;
    }

    /**
     * 2D vectors that the native conversion reads, every element of the array: see
     * {@link VectorArrays#check}.
     *
     * @param vectors the vectors (not null)
     * @param name the argument's name, for the exceptions
     * @return vectors
     */
    public static SbVec2f[] vectors(SbVec2f[] vectors, String name) {
        return VectorArrays.check(vectors, SbVec2f.class, name);
    }

    /**
     * 3D vectors that the native conversion reads, every element of the array: see
     * {@link VectorArrays#check}.
     *
     * @param vectors the vectors (not null)
     * @param name the argument's name, for the exceptions
     * @return vectors
     */
    public static SbVec3f[] vectors(SbVec3f[] vectors, String name) {
        return VectorArrays.check(vectors, SbVec3f.class, name);
    }

    /**
     * Colours that the native conversion reads, every element of the array: see
     * {@link VectorArrays#check}.
     *
     * @param colors the colours (not null)
     * @param name the argument's name, for the exceptions
     * @return colors
     */
    public static SbColor[] vectors(SbColor[] colors, String name) {
        return VectorArrays.check(colors, SbColor.class, name);
    }

    public static int index(int index, int size, String name) {
        if (index < 0 || index >= size) {
            throw new IndexOutOfBoundsException(name + " " + index + " is outside 0.." + (size - 1));
        }
        return index;
    }

    /**
     * The cells of an indexed mesh: cellTypes[c] is the number of nodes of cell c (one of
     * allowed), cellIndex lists the nodes of every cell, each below numNodes.
     */
    public static void cells(int numNodes, int numCells, int[] cellTypes, int[] cellIndex, int... allowed) {
        count(numCells, "numCells");
        length(cellTypes, numCells, "cellTypes");
        long total = 0;
        for (int c = 0; c < numCells; c++) {
            if (!contains(allowed, cellTypes[c])) {
                throw new IllegalArgumentException("cellTypes[" + c + "] is " + cellTypes[c] + ": a cell has "
                        + java.util.Arrays.toString(allowed) + " nodes");
            }
            total += cellTypes[c];
        }
        nodeIndices(numNodes, total, cellIndex, "cellIndex");
    }

    /** The cells of a mesh whose cells all have nodesPerCell nodes. */
    public static void cells(int numNodes, int numCells, int nodesPerCell, int[] cellIndex, String name) {
        count(numCells, "numCells");
        nodeIndices(numNodes, (long) numCells * nodesPerCell, cellIndex, name);
    }

    // --- the geometry of each kind of mesh, checked as the mesh classes check it ---------------

    /**
     * The arrays of a 2D grid of numX x numY nodes: x and y one value per node, or per column and
     * per row (perAxis); z, when not null, one per node.
     */
    public static void grid2D(int numX, int numY, float[] x, float[] y, float[] z, boolean perAxis) {
        int n = product(count(numX, "numX"), count(numY, "numY"));
        length(x, perAxis ? numX : n, "x");
        length(y, perAxis ? numY : n, "y");
        optional(z, n, "z");
    }

    /** The arrays of a 3D grid: one value per node, or per index along each axis (perAxis). */
    public static void grid3D(int numX, int numY, int numZ, float[] x, float[] y, float[] z, boolean perAxis) {
        int n = product(count(numX, "numX"), count(numY, "numY"), count(numZ, "numZ"));
        length(x, perAxis ? numX : n, "x");
        length(y, perAxis ? numY : n, "y");
        length(z, perAxis ? numZ : n, "z");
    }

    /** The node counts of a regular grid (and its elevations, one per node, when not null). */
    public static void regularGrid(float[] z, int... counts) {
        String[] names = {"numX", "numY", "numZ"};
        int[] checked = new int[counts.length];
        for (int i = 0; i < counts.length; i++) {
            checked[i] = count(counts[i], i < names.length ? names[i] : "count " + i);
        }
        optional(z, product(checked), "z");
    }

    /**
     * The nodes of a mesh (z may be null) and cells of 3 or 4 nodes (cellTypes, cellIndex);
     * returns numNodes.
     */
    public static int indexedMesh2D(int numNodes, float[] x, float[] y, float[] z, int numCells, int[] cellTypes,
            int[] cellIndex) {
        cells(nodes2D(numNodes, x, y, z), numCells, cellTypes, cellIndex, 3, 4);
        return numNodes;
    }

    /**
     * The nodes of a 2D mesh (z may be null) and cells of perCell nodes each, listed in cellNodes;
     * returns numNodes.
     */
    public static int fixedCells2D(int numNodes, float[] x, float[] y, float[] z, int numCells, int perCell,
            int[] cellNodes, String name) {
        cells(nodes2D(numNodes, x, y, z), numCells, perCell, cellNodes, name);
        return numNodes;
    }

    /** The nodes of a 2D mesh without cells (z may be null); returns numNodes. */
    public static int nodes2D(int numNodes, float[] x, float[] y, float[] z) {
        return nodes(numNodes, x, y, z, true);
    }

    /** The nodes of a 3D mesh without cells; returns numNodes. */
    public static int nodes3D(int numNodes, float[] x, float[] y, float[] z) {
        return nodes(numNodes, x, y, z, false);
    }

    private static int nodes(int numNodes, float[] x, float[] y, float[] z, boolean zOptional) {
        count(numNodes, "numNodes");
        length(x, numNodes, "x");
        length(y, numNodes, "y");
        if (zOptional) {
            optional(z, numNodes, "z");
        } else {
            length(z, numNodes, "z");
        }
        return numNodes;
    }

    /** The nodes of a 3D mesh and cells of 4, 5, 6 or 8 nodes (cellTypes, cellIndex); returns numNodes. */
    public static int indexedMesh3D(int numNodes, float[] x, float[] y, float[] z, int numCells, int[] cellTypes,
            int[] cellIndex) {
        cells(nodes3D(numNodes, x, y, z), numCells, cellTypes, cellIndex, 4, 5, 6, 8);
        return numNodes;
    }

    /** The nodes of a 3D mesh and cells of perCell nodes each, listed in cellNodes; returns numNodes. */
    public static int fixedCells3D(int numNodes, float[] x, float[] y, float[] z, int numCells, int perCell,
            int[] cellNodes, String name) {
        cells(nodes3D(numNodes, x, y, z), numCells, perCell, cellNodes, name);
        return numNodes;
    }

    /** The nodes of a 1D mesh at the abscissas x. */
    public static void nodes1D(int numNodes, float[] x) {
        length(x, count(numNodes, "numNodes"), "x");
    }

    private static void nodeIndices(int numNodes, long total, int[] indices, String name) {
        length(indices, total, name);
        for (int i = 0; i < total; i++) {
            if (indices[i] < 0 || indices[i] >= numNodes) {
                throw new IllegalArgumentException(name + "[" + i + "] is " + indices[i] + ", not a node of 0.."
                        + (numNodes - 1));
            }
        }
    }

    private static boolean contains(int[] values, int v) {
        for (int x : values) {
            if (x == v) {
                return true;
            }
        }
        return false;
    }

    /** A float view in native byte order over a direct buffer, or null. */
    public static FloatBuffer floats(ByteBuffer buffer) {
        return buffer == null ? null : buffer.order(ByteOrder.nativeOrder()).asFloatBuffer();
    }

    /** The first element of an Object[] output that received a direct buffer, as floats. */
    public static FloatBuffer floats(Object[] out) {
        return floats((ByteBuffer) out[0]);
    }
}
