package com.kestrum.tavrel.data;

import com.kestrum.tavrel.testkit.NativeMethods;
import java.lang.reflect.Constructor;

/** Live objects of the data classes, for rows that call a native method on one. */
final class DataObjects {
    /** A cube of one hexahedron: 8 nodes. */
    static final PbHexahedronMesh3D CUBE = new PbHexahedronMesh3D(8, new float[] {0, 1, 1, 0, 0, 1, 1, 0},
            new float[] {0, 0, 1, 1, 0, 0, 1, 1}, new float[] {0, 0, 0, 0, 1, 1, 1, 1}, 1,
            new int[] {0, 1, 2, 3, 4, 5, 6, 7}, true);

    private DataObjects() {}

    /**
     * An object of the class or of a concrete subclass: a cell on the cube, a mesh or node with
     * its constructor without arguments (or with the duplication flag).
     */
    static Object of(Class<?> c) {
        if (PbCell.class.isAssignableFrom(c)) {
            Class<?> cell = c == PbCell.class ? PbHexahedronCell.class : c;
            try {
                Constructor<?> k = cell.getConstructor(PbMesh.class);
                return k.newInstance(CUBE);
            } catch (ReflectiveOperationException e) {
                throw new IllegalStateException(e);
            }
        }
        return NativeMethods.newInstance(c);
    }
}
