package com.kestrum.tavrel.nodes;

import com.kestrum.corvel.misc.ManagedObjects;
import java.lang.reflect.Constructor;
import java.lang.reflect.InvocationTargetException;
import java.util.Map;
import java.util.concurrent.ConcurrentHashMap;

/**
 * The toolkit types of the Java subclasses of {@link PoNode} and {@link PoCellFilter}: one per
 * Java class, created by the class's first object and found by name by the later ones.
 *
 * <p>A type name belongs to one Java class. The first object of each class holds that class's
 * lock while its type is created, so two threads making the first objects of one class create
 * one type; objects of different classes register in parallel (the native class lock orders
 * them).
 */
final class CustomTypes {
    /** The native half of a Java-extensible class. */
    interface Natives {
        void initCustomClass(PoNode node, long handle, boolean create, String typeName);

        void initCustomRenderEngineMode(PoNode node, long handle);
    }

    /** The type of one Java class. */
    private static final class Registration {
        final String typeName;
        volatile boolean created;

        Registration(String typeName) {
            this.typeName = typeName;
        }
    }

    private static final Map<Class<?>, Registration> BY_CLASS = new ConcurrentHashMap<>();
    private static final Map<String, Class<?>> OWNERS = new ConcurrentHashMap<>();

    private CustomTypes() {}

    /**
     * Gives the new node its toolkit type and binds it to its native node: the type is created
     * for the first object of the node's class and found for the later ones. On failure the
     * node is disposed and the exception goes on.
     */
    static void bind(PoNode node, long handle, String requestedName, Natives natives) {
        try {
            Registration r = registrationOf(node.getClass(), requestedName);
            if (!r.created) {
                synchronized (r) {
                    if (!r.created) {
                        natives.initCustomClass(node, handle, true, r.typeName);
                        registerFactory(node.getClass(), r.typeName);
                        r.created = true;
                        node.whileHeld(() -> natives.initCustomRenderEngineMode(node, handle));
                        return;
                    }
                }
            }
            natives.initCustomClass(node, handle, false, r.typeName);
            // Asks the class's getRenderEngineMode, which may dispose the node.
            node.whileHeld(() -> natives.initCustomRenderEngineMode(node, handle));
        } catch (RuntimeException | Error e) {
            node.dispose();
            throw e;
        }
    }

    private static Registration registrationOf(Class<?> cls, String requestedName) {
        Registration r = BY_CLASS.get(cls);
        if (r == null) {
            String name = requestedName != null ? requestedName : cls.getSimpleName();
            if (name.isEmpty()) {
                throw new IllegalArgumentException(
                        "An anonymous class must give its toolkit type name to the constructor");
            }
            Class<?> owner = OWNERS.putIfAbsent(name, cls);
            if (owner != null && owner != cls) {
                throw new IllegalArgumentException("The toolkit type name \"" + name + "\" belongs to "
                        + owner.getName() + "; give " + cls.getName() + " another one");
            }
            Registration fresh = new Registration(name);
            r = BY_CLASS.putIfAbsent(cls, fresh);
            if (r == null) {
                r = fresh;
            }
        }
        if (requestedName != null && !requestedName.equals(r.typeName)) {
            throw new IllegalArgumentException(cls.getName() + " has the toolkit type \"" + r.typeName
                    + "\", not \"" + requestedName + "\"");
        }
        return r;
    }

    /** Lets the toolkit make objects of the type, when the class has a constructor without arguments. */
    private static void registerFactory(Class<?> cls, String typeName) {
        Constructor<?> ctor;
        try {
            ctor = cls.getDeclaredConstructor();
            ctor.setAccessible(true);
        } catch (NoSuchMethodException | RuntimeException e) {
            return;
        }
        ManagedObjects.registerType(typeName, () -> {
            try {
                return (PoNode) ctor.newInstance();
            } catch (InvocationTargetException e) {
                Throwable cause = e.getCause();
                if (cause instanceof RuntimeException) {
                    throw (RuntimeException) cause;
                }
                throw new IllegalStateException("Cannot make a " + cls.getName(), cause);
            } catch (ReflectiveOperationException e) {
                throw new IllegalStateException("Cannot make a " + cls.getName(), e);
            }
        });
    }
}
