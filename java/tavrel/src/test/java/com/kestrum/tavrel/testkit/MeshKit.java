package com.kestrum.tavrel.testkit;

/** Reaches into the toolkit's meshes the way the toolkit itself would. */
public final class MeshKit {
    static {
        TestLibrary.ensureLoaded();
    }

    private MeshKit() {}

    /** Changes element index of a values set in the mesh's own memory. */
    public static native void setValue(long mesh, int set, int index, float value);

    /** Element index of a values set, read from the mesh's own memory. */
    public static native float valueAt(long mesh, int set, int index);

    /** Component c of vector index of a vecs set. */
    public static native float vecAt(long mesh, int set, int index, int c);
}
