package com.kestrum.tavrel.testkit;

import java.util.Arrays;
import java.util.List;

/**
 * What representation nodes keep in plain members, the cells they selected, node-kit catalogs
 * and node references.
 */
public final class Representations {
    static {
        TestLibrary.ensureLoaded();
    }

    private Representations() {}

    /** The cross-section method member of a native PoMeshCrossSection. */
    public static native int crossSectionMethod(long node);

    /**
     * The cells that a native representation (a PoMesh) accepted in its last drawing or callback
     * traversal, asking the traversal's current cell filter.
     */
    public static native int[] selectedCells(long node);

    /** The type name of the class that owns the catalog. */
    public static native String catalogOwner(long catalog);

    public static List<String> catalogPartNames(long catalog) {
        return Arrays.asList(catalogParts(catalog));
    }

    private static native String[] catalogParts(long catalog);

    /** Takes a reference on a native node, as a scene graph holding it would. */
    public static native void ref(long node);

    public static native void unref(long node);
}
