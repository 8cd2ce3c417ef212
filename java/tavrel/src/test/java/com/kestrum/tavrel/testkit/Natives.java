package com.kestrum.tavrel.testkit;

import java.lang.reflect.InvocationTargetException;
import java.lang.reflect.Method;

/**
 * Calls a private native method directly, past the Java wrapper's checks, to see what the
 * native side does with arguments the public API refuses (null arrays, and the like).
 */
public final class Natives {
    private Natives() {}

    /** Calls the native method of that name declared by the class or a superclass of target. */
    public static Object call(Object target, String name, Object... args) {
        return invoke(target.getClass(), target, name, args);
    }

    /** Calls the method of that name declared by the class, on target. */
    public static Object callDeclared(Class<?> declaring, Object target, String name, Object... args) {
        for (Method m : declaring.getDeclaredMethods()) {
            if (m.getName().equals(name) && m.getParameterCount() == args.length) {
                return invoke(m, target, args);
            }
        }
        throw new AssertionError("no method " + name + " in " + declaring);
    }

    /** Calls the static native method of that name declared by the class. */
    public static Object callStatic(Class<?> type, String name, Object... args) {
        return invoke(type, null, name, args);
    }

    private static Object invoke(Class<?> type, Object target, String name, Object[] args) {
        for (Class<?> c = type; c != null; c = c.getSuperclass()) {
            for (Method m : c.getDeclaredMethods()) {
                if (m.getName().equals(name) && m.getParameterCount() == args.length) {
                    return invoke(m, target, args);
                }
            }
        }
        throw new AssertionError("no method " + name + " with " + args.length + " arguments in " + type);
    }

    private static Object invoke(Method m, Object target, Object[] args) {
        m.setAccessible(true);
        try {
            return m.invoke(target, args);
        } catch (IllegalAccessException e) {
            throw new AssertionError(e);
        } catch (InvocationTargetException e) {
            throw new AssertionError(e.getCause());
        }
    }

    /** The native handle of a Java peer. */
    public static long handle(com.kestrum.corvel.misc.NativeObject object) {
        return object.getNativeResourceHandleInternal();
    }

    /** A handle as the journal renders a pointer. */
    public static String pointer(long handle) {
        return handle == 0 ? "null" : "0x" + Long.toHexString(handle);
    }
}
