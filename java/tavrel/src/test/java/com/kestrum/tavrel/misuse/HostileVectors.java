package com.kestrum.tavrel.misuse;

import com.kestrum.corvel.SbColor;
import com.kestrum.corvel.SbVec2f;
import com.kestrum.corvel.SbVec3f;

/**
 * Subclasses of the vector classes that declare a field "array" of their own, hiding the one
 * that native code reads: shorter than the vector (empty, one element), null, or of another type.
 * The misuse run passes them where vectors and vector arrays go.
 */
public final class HostileVectors {
    private HostileVectors() {}

    /** The hiding field's value for a kind: 0 empty, 1 one element, 2 null, 3 longer than needed. */
    static float[] hiding(int kind) {
        switch (kind) {
            case 0:
                return new float[0];
            case 1:
                return new float[] {1f};
            case 2:
                return null;
            default:
                return new float[] {1f, 2f, 3f, 4f, 5f};
        }
    }

    private static String describe(float[] array) {
        return array == null ? "null" : "float[" + array.length + "]";
    }

    /** A 2D vector hiding its array with a float array of its own. */
    public static class Vec2 extends SbVec2f {
        @SuppressWarnings("unused")
        private final float[] array;

        public Vec2(float x, float y, int kind) {
            super(x, y);
            array = hiding(kind);
        }

        @Override
        public String toString() {
            return "hostile" + super.toString() + "/" + describe(array);
        }
    }

    /** A 3D vector hiding its array with a float array of its own. */
    public static class Vec3 extends SbVec3f {
        @SuppressWarnings({"unused", "hiding"})
        private final float[] array;

        public Vec3(float x, float y, float z, int kind) {
            super(x, y, z);
            array = hiding(kind);
        }

        @Override
        public String toString() {
            return "hostile" + super.toString() + "/" + describe(array);
        }
    }

    /** A 3D vector with a field "array" of another type (an int array). */
    public static class Vec3Ints extends SbVec3f {
        @SuppressWarnings({"unused", "hiding"})
        private final int[] array = {1};

        public Vec3Ints(float x, float y, float z) {
            super(x, y, z);
        }

        @Override
        public String toString() {
            return "hostile" + super.toString() + "/int[1]";
        }
    }

    /** A colour hiding its array with a float array of its own. */
    public static class Color extends SbColor {
        @SuppressWarnings({"unused", "hiding"})
        private final float[] array;

        public Color(float r, float g, float b, int kind) {
            super(r, g, b);
            array = hiding(kind);
        }

        @Override
        public String toString() {
            return "hostile" + super.toString() + "/" + describe(array);
        }
    }
}
