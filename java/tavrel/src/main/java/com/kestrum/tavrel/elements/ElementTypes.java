package com.kestrum.tavrel.elements;

import com.kestrum.corvel.elements.SoElement;
import com.kestrum.corvel.misc.ManagedObjects;
import com.kestrum.corvel.misc.Traversals;
import java.lang.reflect.Constructor;
import java.lang.reflect.InvocationTargetException;
import java.util.Map;
import java.util.concurrent.ConcurrentHashMap;
import java.util.concurrent.atomic.AtomicBoolean;

/**
 * The toolkit types of the Java subclasses of the element classes: one per Java class, named
 * after its binary name ({@code com.example.LoggedMesh}; a node's type is named after its simple
 * name, so the two kinds never meet), created by the class's first object together with the class's stack
 * index and element key, which the later objects of the class reuse.
 *
 * <p>Elements that a traversal state makes (through the type's creation function) belong to the
 * state: their Java objects do not free them and are disposed when the traversal ends (at once
 * when the state is used on a thread without a traversal). A copy that {@code copyMatchInfo}
 * has the toolkit make belongs to the Java object it returns. Elements made by Java code belong
 * to their Java objects.
 */
final class ElementTypes {
    /** The native binding of one element class. */
    @FunctionalInterface
    interface Natives {
        int[] initCustomClass(long handle, Object peer, boolean create, String typeName, int stackIndex, short key);
    }

    /** The type of one Java class. */
    private static final class Registration {
        final String typeName;
        boolean created;
        int stackIndex = -1;
        short key;  // the bad key until the first object is bound

        Registration(String typeName) {
            this.typeName = typeName;
        }
    }

    private static final Map<Class<?>, Registration> BY_CLASS = new ConcurrentHashMap<>();
    private static final Map<String, Class<?>> OWNERS = new ConcurrentHashMap<>();
    /** Set by the creation function while the toolkit makes an element. */
    private static final ThreadLocal<Boolean> MADE_BY_TOOLKIT = new ThreadLocal<>();

    private ElementTypes() {}

    /**
     * Whether the element being made belongs to its Java object, as the shared flag of its release
     * action: not when a traversal's state is making it, on whatever thread the state is used
     * (the state frees it); a copy that {@code copyMatchInfo} has the toolkit make belongs to the
     * Java object it returns. Reads and clears the creation function's mark, so the constructor
     * must call it once, first.
     */
    static AtomicBoolean ownership() {
        boolean byToolkit = Boolean.TRUE.equals(MADE_BY_TOOLKIT.get());
        MADE_BY_TOOLKIT.remove();
        boolean copy = ElementCalls.madeAsCopyOfAnElement();
        return new AtomicBoolean(!byToolkit || (copy && !Traversals.isActive()));
    }

    /**
     * Binds a new element to its class's type: created for the first object of the class, found
     * by name for the later ones. An element the state made is tied to the traversal. On failure
     * the element is disposed and the exception goes on.
     */
    static void bind(SoElement element, long handle, boolean owned, Natives natives) {
        try {
            Registration r = registrationOf(element.getClass());
            synchronized (r) {
                if (!r.created) {
                    int[] result = natives.initCustomClass(handle, element, true, r.typeName, -1, (short) 0);
                    r.stackIndex = result[0];
                    r.key = (short) result[1];
                    registerFactory(element.getClass(), r.typeName);
                    r.created = true;
                } else {
                    natives.initCustomClass(handle, element, false, r.typeName, r.stackIndex, r.key);
                }
            }
        } catch (RuntimeException | Error e) {
            element.dispose();
            throw e;
        }
        if (!owned) {
            Traversals.own(element);
        }
    }

    private static Registration registrationOf(Class<?> cls) {
        Registration r = BY_CLASS.get(cls);
        if (r != null) {
            return r;
        }
        String name = cls.getName();
        Class<?> owner = OWNERS.putIfAbsent(name, cls);
        if ((owner != null && owner != cls) || (owner == null && ManagedObjects.isTypeRegistered(name))) {
            if (owner == null) {
                OWNERS.remove(name, cls);
            }
            throw new IllegalArgumentException("The toolkit type name \"" + name + "\" belongs to another class");
        }
        Registration fresh = new Registration(name);
        r = BY_CLASS.putIfAbsent(cls, fresh);
        return r == null ? fresh : r;
    }

    /** Lets the toolkit make elements of the type, when the class has a constructor without arguments. */
    private static void registerFactory(Class<?> cls, String typeName) {
        Constructor<?> ctor;
        try {
            ctor = cls.getDeclaredConstructor();
            ctor.setAccessible(true);
        } catch (NoSuchMethodException | RuntimeException e) {
            return;
        }
        ManagedObjects.registerType(typeName, () -> {
            MADE_BY_TOOLKIT.set(Boolean.TRUE);
            try {
                return (SoElement) ctor.newInstance();
            } catch (InvocationTargetException e) {
                Throwable cause = e.getCause();
                if (cause instanceof RuntimeException) {
                    throw (RuntimeException) cause;
                }
                throw new IllegalStateException("Cannot make a " + cls.getName(), cause);
            } catch (ReflectiveOperationException e) {
                throw new IllegalStateException("Cannot make a " + cls.getName(), e);
            } finally {
                MADE_BY_TOOLKIT.remove();
            }
        });
    }
}
