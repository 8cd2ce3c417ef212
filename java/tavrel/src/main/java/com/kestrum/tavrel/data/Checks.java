package com.kestrum.tavrel.data;

import java.nio.ByteBuffer;
import java.nio.ByteOrder;
import java.nio.FloatBuffer;

/**
 * Argument checks made before any native call: the native methods check nothing, so every
 * array the toolkit reads or writes must be long enough and every index must be in range.
 */
final class Checks {
    private Checks() {}

    static <T> T notNull(T value, String name) {
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
    static final int MAX_COUNT = Integer.MAX_VALUE / 12;

    /** A node or cell count, or a grid dimension: not negative and at most {@link #MAX_COUNT}. */
    static int count(int n, String name) {
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
    static int product(int... counts) {
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

    static float[] length(float[] array, long needed, String name) {
        notNull(array, name);
        if (array.length < needed) {
            throw new IllegalArgumentException(name + " has " + array.length + " elements, " + needed + " needed");
        }
        return array;
    }

    static int[] length(int[] array, long needed, String name) {
        notNull(array, name);
        if (array.length < needed) {
            throw new IllegalArgumentException(name + " has " + array.length + " elements, " + needed + " needed");
        }
        return array;
    }

    static <T> T[] length(T[] array, long needed, String name) {
        notNull(array, name);
        if (array.length < needed) {
            throw new IllegalArgumentException(name + " has " + array.length + " elements, " + needed + " needed");
        }
        return array;
    }

    /** A float array that may be null, and otherwise must be long enough. */
    static float[] optional(float[] array, long needed, String name) {
        return array == null ? null : length(array, needed, name);
    }

    /** Every element of an object array must be present (the conversion reads them all). */
    static <T> T[] noNullElements(T[] array, String name) {
        for (int i = 0; i < array.length; i++) {
            if (array[i] == null) {
                throw new NullPointerException(name + "[" + i + "] is null");
            }
        }
        return array;
    }

    static int index(int index, int size, String name) {
        if (index < 0 || index >= size) {
            throw new IndexOutOfBoundsException(name + " " + index + " is outside 0.." + (size - 1));
        }
        return index;
    }

    /**
     * The cells of an indexed mesh: cellTypes[c] is the number of nodes of cell c (one of
     * allowed), cellIndex lists the nodes of every cell, each below numNodes.
     */
    static void cells(int numNodes, int numCells, int[] cellTypes, int[] cellIndex, int... allowed) {
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
    static void cells(int numNodes, int numCells, int nodesPerCell, int[] cellIndex, String name) {
        count(numCells, "numCells");
        nodeIndices(numNodes, (long) numCells * nodesPerCell, cellIndex, name);
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
    static FloatBuffer floats(ByteBuffer buffer) {
        return buffer == null ? null : buffer.order(ByteOrder.nativeOrder()).asFloatBuffer();
    }

    /** The first element of an Object[] output that received a direct buffer, as floats. */
    static FloatBuffer floats(Object[] out) {
        return floats((ByteBuffer) out[0]);
    }
}
