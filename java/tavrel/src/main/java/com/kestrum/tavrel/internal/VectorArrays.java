package com.kestrum.tavrel.internal;

import com.kestrum.corvel.SbColor;
import com.kestrum.corvel.SbVec2f;
import com.kestrum.corvel.SbVec3f;
import java.lang.invoke.MethodHandles;
import java.lang.invoke.VarHandle;
import java.lang.reflect.Field;
import java.lang.reflect.Modifier;

/**
 * What the native conversion of an array of vector objects needs of its elements, checked before
 * the native call (the conversion itself checks nothing).
 *
 * <p>The conversion looks the field {@code float[] array} up once, on the class of element 0, the
 * way JNI resolves a field: the class's own instance fields first, then its superclasses'. It then
 * reads that field of every element and copies k floats from it (2 for {@link SbVec2f}, 3 for
 * {@link SbVec3f} and {@link SbColor}). So a subclass at index 0 that declares a {@code float[]}
 * field of that name has its own field read, from every element, whether they have it or not;
 * and any element's array that is null or shorter than k is read all the same. Hence the rule:
 *
 * <ul>
 *   <li>element 0's class resolves the field to the vector class's own field;
 *   <li>every element is an instance of the vector class (it has that field);
 *   <li>every element's field holds an array of at least k floats.
 * </ul>
 *
 * <p>The answer about a class is worked out once per class; an element of the vector class itself
 * costs a few loads.
 */
final class VectorArrays {
    private VectorArrays() {}

    /** The class that declares the instance field {@code float[] array} that JNI finds from a class, or null. */
    private static final ClassValue<Class<?>> ARRAY_FIELD_OWNER = new ClassValue<>() {
        @Override
        protected Class<?> computeValue(Class<?> type) {
            for (Class<?> c = type; c != null; c = c.getSuperclass()) {
                for (Field f : c.getDeclaredFields()) {
                    if (f.getName().equals("array") && f.getType() == float[].class
                            && !Modifier.isStatic(f.getModifiers())) {
                        return c;
                    }
                }
            }
            return null;
        }
    };

    private static final VarHandle VEC2 = arrayField(SbVec2f.class);
    private static final VarHandle VEC3 = arrayField(SbVec3f.class);
    private static final VarHandle COLOR = arrayField(SbColor.class);
    /**
     * Whether the vector classes' fields can be read here. They always can in this build (the
     * binding core's packages are open to this module); should a binding core keep them closed,
     * only the class checks are made, its constructors being what fills the field.
     */
    private static final boolean FIELDS_READABLE = VEC2 != null && VEC3 != null && COLOR != null;

    private static VarHandle arrayField(Class<?> type) {
        try {
            return MethodHandles.privateLookupIn(type, MethodHandles.lookup()).findVarHandle(type, "array",
                    float[].class);
        } catch (ReflectiveOperationException | RuntimeException e) {
            return null;
        }
    }

    /**
     * Checks that the native conversion can read every element of the array as a vector of its
     * class: not null (NullPointerException "name[i] is null"), and a vector whose components
     * the conversion reads (IllegalArgumentException naming the index otherwise).
     *
     * @param vectors the array (not null)
     * @param type SbVec2f, SbVec3f or SbColor
     * @param name the argument's name, for the exceptions
     * @return vectors
     */
    static <T> T[] check(T[] vectors, Class<T> type, String name) {
        Checks.notNull(vectors, name);
        int k = type == SbVec2f.class ? 2 : 3;
        for (int i = 0; i < vectors.length; i++) {
            Object v = vectors[i];
            if (v == null) {
                throw new NullPointerException(name + "[" + i + "] is null");
            }
            Class<?> c = v.getClass();
            if (c != type) {
                if (!type.isInstance(v)) {
                    throw new IllegalArgumentException(name + "[" + i + "] is a " + c.getName() + ", not a "
                            + type.getSimpleName());
                }
                if (i == 0 && ARRAY_FIELD_OWNER.get(c) != type) {
                    throw new IllegalArgumentException(name + "[0] is a " + c.getName()
                            + ", which declares its own field float[] array: at index 0, it would have that field read"
                            + " from every element in place of the " + type.getSimpleName() + " components");
                }
            }
            if (FIELDS_READABLE) {
                float[] components = components(v, type);
                if (components == null) {
                    throw new IllegalArgumentException(name + "[" + i + "] has no components (its array is null)");
                }
                if (components.length < k) {
                    throw new IllegalArgumentException(name + "[" + i + "] has an array of " + components.length
                            + " elements, " + k + " needed");
                }
            }
        }
        return vectors;
    }

    private static float[] components(Object v, Class<?> type) {
        if (type == SbVec3f.class) {
            return (float[]) VEC3.get((SbVec3f) v);
        }
        if (type == SbVec2f.class) {
            return (float[]) VEC2.get((SbVec2f) v);
        }
        return (float[]) COLOR.get((SbColor) v);
    }
}
