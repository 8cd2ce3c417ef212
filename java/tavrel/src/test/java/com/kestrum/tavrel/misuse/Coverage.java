package com.kestrum.tavrel.misuse;

import java.io.IOException;
import java.io.UncheckedIOException;
import java.lang.reflect.Constructor;
import java.lang.reflect.Executable;
import java.lang.reflect.Modifier;
import java.nio.charset.StandardCharsets;
import java.nio.file.Files;
import java.nio.file.Path;
import java.util.ArrayList;
import java.util.Collections;
import java.util.IdentityHashMap;
import java.util.List;
import java.util.Set;
import java.util.TreeSet;
import java.util.concurrent.ConcurrentHashMap;
import java.util.concurrent.atomic.AtomicInteger;
import java.util.regex.Pattern;

/**
 * What a misuse child reached, and the exceptions without a clear message that it saw.
 *
 * <p>A class is reached by a call that returned normally: a constructor or static method declared
 * in it, an instance method called on an object of it or of a subclass (every product class from
 * the receiver's class up to the class declaring the method counts: the method is one of each of
 * them), or, for a listener interface, the product calling an implementation of it. The child
 * writes what it reached to {@link #FILE} in its working folder; {@link MisuseRuns} sums the
 * children's files and fails when a public class was never reached.
 *
 * <p>An exception is unclear when it escapes a product or binding-core frame (the first frame
 * outside the JDK) with a null or empty message, or when the JVM made it there: a
 * NullPointerException, ArrayIndexOutOfBoundsException, ClassCastException or
 * NegativeArraySizeException with the JVM's own message, an ArithmeticException or an
 * ArrayStoreException; or a checked exception that the method does not declare. The causes are
 * looked at too (an override's call of {@code super} that failed reaches the caller as the cause
 * of the wrapping exception).
 */
final class Coverage {
    /** The file of reached classes ({@code C name}) and methods ({@code M key}). */
    static final String FILE = "reached.txt";
    /** The marker of an unclear exception in the child's output. */
    static final String UNCLEAR = "misuse unclear exception #";

    private static final Set<String> CLASSES = ConcurrentHashMap.newKeySet();
    private static final Set<String> METHODS = ConcurrentHashMap.newKeySet();
    private static final Set<String> UNCLEAR_SEEN = ConcurrentHashMap.newKeySet();
    private static final AtomicInteger UNCLEAR_COUNT = new AtomicInteger();
    private static final int UNCLEAR_SHOWN = 20;

    private static final Pattern JVM_NPE = Pattern.compile("Cannot .*");
    private static final Pattern JVM_INDEX = Pattern.compile("Index -?\\d+ out of bounds for length -?\\d+|arraycopy: .*");
    private static final Pattern JVM_CAST = Pattern.compile("class .* cannot be cast to .*");
    private static final Pattern JVM_SIZE = Pattern.compile("-?\\d+");

    private Coverage() {}

    /** A product class that the run must reach: tavrel's, not the driver's or the test kit's. */
    static boolean isProduct(Class<?> c) {
        return c != null && Surface.isProductClassName(c.getName());
    }

    /** Records a call that returned normally. */
    static void returned(Object receiver, Executable e) {
        Class<?> declaring = e.getDeclaringClass();
        if (isProduct(declaring)) {
            CLASSES.add(declaring.getName());
            METHODS.add(key(e));
        }
        if (receiver != null && !(e instanceof Constructor) && !Modifier.isStatic(e.getModifiers())) {
            chain(receiver.getClass(), declaring);
        }
    }

    /** Records a direct call (not reflective) on a receiver that returned normally. */
    static void returned(Object receiver, String method) {
        if (receiver != null) {
            chain(receiver.getClass(), Object.class);
            if (isProduct(receiver.getClass())) {
                METHODS.add(receiver.getClass().getName() + "." + method);
            }
        }
    }

    /** Records that the product called a listener interface's implementation, which returned. */
    static void listenerReturned(Class<?> iface, String method) {
        if (isProduct(iface)) {
            CLASSES.add(iface.getName());
            METHODS.add(iface.getName() + "." + method);
        }
    }

    private static void chain(Class<?> from, Class<?> upTo) {
        for (Class<?> c = from; c != null; c = c.getSuperclass()) {
            if (isProduct(c)) {
                CLASSES.add(c.getName());
            }
            if (c == upTo) {
                break;
            }
        }
    }

    static boolean reached(Class<?> c) {
        return CLASSES.contains(c.getName());
    }

    static int methods() {
        return METHODS.size();
    }

    static int unclear() {
        return UNCLEAR_COUNT.get();
    }

    static String key(Executable e) {
        StringBuilder b = new StringBuilder(e.getDeclaringClass().getName()).append('.')
                .append(e instanceof Constructor ? "<init>" : e.getName()).append('(');
        Class<?>[] types = e.getParameterTypes();
        for (int i = 0; i < types.length; i++) {
            b.append(i == 0 ? "" : ",").append(types[i].getSimpleName());
        }
        return b.append(')').toString();
    }

    /** Writes the reached classes and methods. */
    static void write(Path file) {
        List<String> lines = new ArrayList<>();
        new TreeSet<>(CLASSES).forEach(c -> lines.add("C " + c));
        new TreeSet<>(METHODS).forEach(m -> lines.add("M " + m));
        try {
            Files.write(file, lines, StandardCharsets.UTF_8);
        } catch (IOException e) {
            throw new UncheckedIOException(e);
        }
    }

    /** The reached classes (prefix "C ") or methods ("M ") of a child's file; empty when it has none. */
    static Set<String> read(Path file, String prefix) {
        if (!Files.exists(file)) {
            return Collections.emptySet();
        }
        Set<String> out = new TreeSet<>();
        try {
            for (String line : Files.readAllLines(file, StandardCharsets.UTF_8)) {
                if (line.startsWith(prefix)) {
                    out.add(line.substring(prefix.length()));
                }
            }
        } catch (IOException e) {
            throw new UncheckedIOException(e);
        }
        return out;
    }

    /**
     * Checks an exception that a call threw; reports it (on standard output, the first few of each
     * kind in full) when it is unclear. Returns true when it was.
     */
    static boolean check(String call, Throwable thrown) {
        return check(call, thrown, null);
    }

    /**
     * As {@link #check(String, Throwable)}; a checked exception that the method called does not
     * declare is unclear too (a caller cannot expect it).
     */
    static boolean check(String call, Throwable thrown, Executable called) {
        Set<Throwable> seen = Collections.newSetFromMap(new IdentityHashMap<>());
        for (Throwable t = thrown; t != null && seen.add(t); t = t.getCause()) {
            String why = t == thrown && undeclared(t, called) ? "undeclared checked exception" : unclearReason(t);
            if (why != null) {
                int n = UNCLEAR_COUNT.incrementAndGet();
                StackTraceElement top = firstOutsideJdk(t);
                String kind = t.getClass().getName() + " at " + top;
                if (UNCLEAR_SEEN.add(kind) && UNCLEAR_SEEN.size() <= UNCLEAR_SHOWN) {
                    StringBuilder b = new StringBuilder(UNCLEAR).append(n).append(" (").append(why)
                            .append(") from ").append(call).append(": ").append(t).append('\n');
                    StackTraceElement[] frames = t.getStackTrace();
                    for (int i = 0; i < Math.min(frames.length, 12); i++) {
                        b.append("\tat ").append(frames[i]).append('\n');
                    }
                    if (t != thrown) {
                        b.append("\t(the cause of ").append(thrown).append(")\n");
                    }
                    System.out.print(b);
                    System.out.flush();
                }
                return true;
            }
        }
        return false;
    }

    private static boolean undeclared(Throwable t, Executable called) {
        if (called == null || t instanceof RuntimeException || t instanceof Error) {
            return false;
        }
        for (Class<?> declared : called.getExceptionTypes()) {
            if (declared.isInstance(t)) {
                return false;
            }
        }
        return true;
    }

    private static String unclearReason(Throwable t) {
        StackTraceElement top = firstOutsideJdk(t);
        if (top == null || !Surface.isProductFrame(top.getClassName())) {
            return null;
        }
        String message = t.getMessage();
        if (message == null || message.isEmpty()) {
            return "no message";
        }
        if (t instanceof NullPointerException && JVM_NPE.matcher(message).matches()
                || t instanceof ArrayIndexOutOfBoundsException && JVM_INDEX.matcher(message).matches()
                || t instanceof ClassCastException && JVM_CAST.matcher(message).matches()
                || t instanceof NegativeArraySizeException && JVM_SIZE.matcher(message).matches()
                || t instanceof ArithmeticException || t instanceof ArrayStoreException) {
            return "made by the JVM";
        }
        return null;
    }

    private static StackTraceElement firstOutsideJdk(Throwable t) {
        for (StackTraceElement f : t.getStackTrace()) {
            String c = f.getClassName();
            if (!(c.startsWith("java.") || c.startsWith("jdk.") || c.startsWith("sun.") || c.startsWith("javax."))) {
                return f;
            }
        }
        return null;
    }
}
