package com.kestrum.tavrel.testkit;

import com.kestrum.corvel.misc.NativeObject;
import java.io.IOException;
import java.io.UncheckedIOException;
import java.lang.reflect.Constructor;
import java.lang.reflect.Method;
import java.lang.reflect.Modifier;
import java.net.URISyntaxException;
import java.nio.file.Files;
import java.nio.file.Path;
import java.util.ArrayList;
import java.util.Comparator;
import java.util.List;
import java.util.function.Predicate;
import java.util.stream.Stream;

/**
 * The library's native methods found by reflection, for tests that run one row per native method
 * of a shape: the classes of the tavrel jar, a live object of each (or of a concrete subclass),
 * and calls of a private native method with arguments made up from its parameter types.
 */
public final class NativeMethods {
    private static List<Class<?>> classes;

    private NativeMethods() {}

    /** Every class of the com.kestrum.tavrel packages, by name. */
    public static synchronized List<Class<?>> classes() {
        if (classes != null) {
            return classes;
        }
        try {
            Path root = Path.of(Class.forName("com.kestrum.tavrel.data.PbMesh").getProtectionDomain()
                    .getCodeSource().getLocation().toURI());
            List<Class<?>> found = new ArrayList<>();
            try (Stream<Path> files = Files.walk(root.resolve("com/kestrum/tavrel"))) {
                for (Path p : (Iterable<Path>) files.filter(f -> f.toString().endsWith(".class")).sorted()::iterator) {
                    String name = root.relativize(p).toString().replace('/', '.').replaceAll("\\.class$", "");
                    found.add(Class.forName(name, false, NativeMethods.class.getClassLoader()));
                }
            }
            found.sort(Comparator.comparing(Class::getName));
            classes = List.copyOf(found);
            return classes;
        } catch (IOException e) {
            throw new UncheckedIOException(e);
        } catch (ClassNotFoundException | URISyntaxException e) {
            throw new IllegalStateException(e);
        }
    }

    /** The native methods, of every class, whose name passes the test; by class, then name. */
    public static List<Method> natives(Predicate<Method> which) {
        List<Method> out = new ArrayList<>();
        for (Class<?> c : classes()) {
            Method[] declared = c.getDeclaredMethods();
            java.util.Arrays.sort(declared, Comparator.comparing(Method::getName));
            for (Method m : declared) {
                if (Modifier.isNative(m.getModifiers()) && which.test(m)) {
                    m.setAccessible(true);
                    out.add(m);
                }
            }
        }
        return out;
    }

    /**
     * A new object of the class, or of its first concrete subclass that has a constructor
     * without arguments or with one boolean (given true); null when there is none.
     */
    public static Object newInstance(Class<?> declaring) {
        for (Class<?> c : classes()) {
            if (!declaring.isAssignableFrom(c) || Modifier.isAbstract(c.getModifiers()) || !Modifier.isPublic(c.getModifiers())) {
                continue;
            }
            for (Constructor<?> k : c.getConstructors()) {
                try {
                    if (k.getParameterCount() == 0) {
                        return k.newInstance();
                    }
                } catch (ReflectiveOperationException e) {
                    throw new IllegalStateException(e);
                }
            }
            for (Constructor<?> k : c.getConstructors()) {
                try {
                    if (k.getParameterCount() == 1 && k.getParameterTypes()[0] == boolean.class) {
                        return k.newInstance(true);
                    }
                } catch (ReflectiveOperationException e) {
                    throw new IllegalStateException(e);
                }
            }
        }
        return null;
    }

    /**
     * Arguments for the native method: the object's handle first, then 0 for each number, false,
     * and for each array a new one whose length is 2 for the first array, 3 for the second, and so
     * on (so that the order of their conversions shows).
     */
    public static Object[] arguments(Method m, Object receiver) {
        return arguments(m, receiver, 2);
    }

    /** As {@link #arguments(Method, Object)}, the first array of the given length. */
    public static Object[] arguments(Method m, Object receiver, int firstLength) {
        Class<?>[] types = m.getParameterTypes();
        Object[] args = new Object[types.length];
        int nextLength = firstLength;
        for (int i = 0; i < types.length; i++) {
            Class<?> t = types[i];
            if (i == 0 && t == long.class && receiver != null) {
                args[i] = ((NativeObject) receiver).getNativeResourceHandleInternal();
            } else if (t.isArray()) {
                args[i] = java.lang.reflect.Array.newInstance(t.getComponentType(), nextLength++);
            } else if (t == boolean.class) {
                args[i] = false;
            } else if (t == int.class) {
                args[i] = 0;
            } else if (t == long.class) {
                args[i] = 0L;
            } else if (t == float.class) {
                args[i] = 0f;
            } else if (t == double.class) {
                args[i] = 0d;
            } else if (t == short.class) {
                args[i] = (short) 0;
            } else {
                args[i] = null;
            }
        }
        return args;
    }

    /** "Float" for float[], and so on: the kind in the names of JNI's array functions. */
    public static String kind(Class<?> arrayType) {
        String n = arrayType.getComponentType().getName();
        return Character.toUpperCase(n.charAt(0)) + n.substring(1);
    }

    /** Calls the method, throwing what it throws. */
    public static Object invoke(Method m, Object receiver, Object[] args) throws Throwable {
        try {
            return m.invoke(receiver, args);
        } catch (java.lang.reflect.InvocationTargetException e) {
            throw e.getCause();
        }
    }
}
