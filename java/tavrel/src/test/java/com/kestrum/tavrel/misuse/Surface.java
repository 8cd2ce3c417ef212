package com.kestrum.tavrel.misuse;

import com.kestrum.corvel.SbBox2f;
import com.kestrum.corvel.SbBox3f;
import com.kestrum.corvel.SbColor;
import com.kestrum.corvel.SbVec2f;
import com.kestrum.corvel.SbVec3f;
import com.kestrum.corvel.SoInput;
import com.kestrum.corvel.actions.SoAction;
import com.kestrum.corvel.actions.SoCallbackAction;
import com.kestrum.corvel.actions.SoDistributeAction;
import com.kestrum.corvel.actions.SoGLRenderAction;
import com.kestrum.corvel.actions.SoGetBoundingBoxAction;
import com.kestrum.corvel.actions.SoGetMatrixAction;
import com.kestrum.corvel.actions.SoGetPrimitiveCountAction;
import com.kestrum.corvel.actions.SoHandleEventAction;
import com.kestrum.corvel.actions.SoPickAction;
import com.kestrum.corvel.actions.SoRayPickAction;
import com.kestrum.corvel.actions.SoSearchAction;
import com.kestrum.corvel.actions.SoWriteAction;
import com.kestrum.corvel.fields.SoField;
import com.kestrum.corvel.misc.NativeObject;
import com.kestrum.corvel.misc.SoState;
import com.kestrum.corvel.nodekits.SoBaseKit;
import com.kestrum.corvel.nodes.SoGroup;
import com.kestrum.corvel.nodes.SoSeparator;
import com.kestrum.corvel.elements.SoElement;
import com.kestrum.corvel.elements.SoReplacedElement;
import com.kestrum.corvel.nodes.SoNode;
import com.kestrum.tavrel.PoTavrel;
import java.io.IOException;
import java.io.UncheckedIOException;
import java.lang.reflect.Constructor;
import java.lang.reflect.Executable;
import java.lang.reflect.Method;
import java.lang.reflect.Modifier;
import java.net.URISyntaxException;
import java.nio.file.Files;
import java.nio.file.Path;
import java.util.ArrayList;
import java.util.Arrays;
import java.util.Comparator;
import java.util.LinkedHashMap;
import java.util.List;
import java.util.Map;
import java.util.TreeSet;
import java.util.concurrent.ConcurrentHashMap;
import java.util.jar.JarFile;
import java.util.stream.Collectors;

/**
 * The public API the misuse run drives: every public class of the product's packages (found on
 * the class path, so a class joins when it lands; all of {@code com.kestrum.tavrel} and below but
 * the package {@code internal}), the binding core's
 * classes that they take as arguments, and this package's Java-extended nodes and elements. Constructors and methods are sorted by
 * signature, so that a seed always makes the same choices.
 */
final class Surface {
    /** The product's packages: every public class of these and of their subpackages is driven. */
    static final String PRODUCT = "com.kestrum.tavrel";
    /** Not part of the API: the binding's own package, public for the product's packages only. */
    static final String INTERNAL = "com.kestrum.tavrel.internal";
    /** The driver's own packages (tests), under the product's name. */
    private static final List<String> TEST_PACKAGES = List.of("com.kestrum.tavrel.misuse.", "com.kestrum.tavrel.testkit.");

    /** The binding core's classes that the product's methods take or return. */
    static final List<Class<?>> BINDING_CORE = List.of(
            SoNode.class, SoGroup.class, SoSeparator.class, SoElement.class, SoReplacedElement.class, SoBaseKit.class, SoField.class, SoState.class, SoInput.class,
            SoAction.class, SoCallbackAction.class, SoDistributeAction.class, SoGLRenderAction.class,
            SoGetBoundingBoxAction.class, SoGetMatrixAction.class, SoGetPrimitiveCountAction.class,
            SoHandleEventAction.class, SoPickAction.class, SoRayPickAction.class, SoSearchAction.class,
            SoWriteAction.class, SbVec2f.class, SbVec3f.class, SbColor.class, SbBox2f.class, SbBox3f.class);

    /** Java-extended nodes whose overrides misbehave (the product's node bases are abstract). */
    static final List<Class<?>> EXTENSIONS = extensions();

    private static List<Class<?>> extensions() {
        List<Class<?>> all = new ArrayList<>(List.of(HostileNode.class, HostileFilter.class));
        all.addAll(HostileElements.ALL);
        return List.copyOf(all);
    }

    /**
     * What is deliberately never called, and why. Everything else public is.
     *
     * <ul>
     *   <li>Methods that take a native address as a {@code long} ({@code SoNode.of},
     *       {@code JavaViews.find}): they take any number for the address of a native object of
     *       their class, by design; they are the binding's own door from addresses to objects.
     *       (The binding core's {@code ManagedObjects}, {@code NativePeers} and
     *       {@code NativeLibraries} are not driven at all, for the same reason.)
     *   <li>Methods of {@code java.lang} classes (Object's {@code wait} would block for ever,
     *       {@code Enum.valueOf(Class, String)} has nothing native).
     *   <li>Reading a direct buffer after its set or geometry was replaced: documented as
     *       undefined. The run reads and writes each buffer right after obtaining it, never
     *       later.
     *   <li>One object used by two threads at the same time: documented as the caller's
     *       business. A call handed to another thread is waited for.
     *   <li>Counts that fit in a Java array but not in memory (hundreds of millions of nodes):
     *       an allocation failure inside the toolkit ends the process, as documented. Counts
     *       are small, or beyond what any Java array could hold ({@link Integer#MAX_VALUE}).
     *   <li>A node added under itself, directly or through other groups: the toolkit's scene
     *       graphs are acyclic, and traversing a cycle recurses without end. The run keeps the
     *       graphs it builds acyclic.
     *   <li>The test library's natives with anything but live objects of the right class: they
     *       act as the toolkit does and take raw addresses (see {@link Misuse}).
     * </ul>
     */
    static boolean excluded(Executable e) {
        if (!e.getDeclaringClass().getName().startsWith("com.kestrum.")) {
            return true;
        }
        return Arrays.asList(e.getParameterTypes()).contains(long.class);
    }

    final List<Class<?>> classes;
    /** The product's public classes, which the run must all reach. */
    final List<Class<?>> productClasses;
    final List<Constructor<?>> constructors;
    final List<Method> staticMethods;
    /** The constructors and static methods of each class, and the classes that have any. */
    final Map<Class<?>, List<Constructor<?>>> constructorsByClass = new LinkedHashMap<>();
    final Map<Class<?>, List<Method>> staticsByClass = new LinkedHashMap<>();
    final List<Class<?>> constructible;
    final List<Class<?>> withStatics;
    private final Map<Class<?>, List<Method>> instanceMethods = new ConcurrentHashMap<>();
    private final Map<Class<?>, List<Executable>> acceptors = new ConcurrentHashMap<>();

    Surface() {
        List<Class<?>> product = new ArrayList<>(discover());
        product.sort(Comparator.comparing(Class::getName));
        productClasses = List.copyOf(product);
        List<Class<?>> all = new ArrayList<>(product);
        all.addAll(BINDING_CORE);
        all.addAll(EXTENSIONS);
        all.sort(Comparator.comparing(Class::getName));
        classes = List.copyOf(all);
        List<Constructor<?>> ctors = new ArrayList<>();
        List<Method> statics = new ArrayList<>();
        for (Class<?> c : classes) {
            if (!Modifier.isAbstract(c.getModifiers()) && !c.isEnum()) {
                for (Constructor<?> k : c.getConstructors()) {
                    if (!excluded(k)) {
                        ctors.add(k);
                    }
                }
            }
            for (Method m : c.getDeclaredMethods()) {
                if (Modifier.isStatic(m.getModifiers()) && Modifier.isPublic(m.getModifiers()) && !m.isSynthetic()
                        && !excluded(m)) {
                    statics.add(m);
                }
            }
        }
        ctors.sort(Comparator.comparing(Constructor::toGenericString));
        statics.sort(Comparator.comparing(Method::toGenericString));
        constructors = List.copyOf(ctors);
        staticMethods = List.copyOf(statics);
        for (Constructor<?> k : constructors) {
            constructorsByClass.computeIfAbsent(k.getDeclaringClass(), x -> new ArrayList<>()).add(k);
        }
        for (Method m : staticMethods) {
            staticsByClass.computeIfAbsent(m.getDeclaringClass(), x -> new ArrayList<>()).add(m);
        }
        constructible = List.copyOf(constructorsByClass.keySet());
        withStatics = List.copyOf(staticsByClass.keySet());
    }

    /** A product class name that the run must reach (not internal, not a test class). */
    static boolean isProductClassName(String name) {
        return name.startsWith(PRODUCT + ".") && !name.startsWith(INTERNAL + ".") && !isTestClassName(name);
    }

    /** A frame of the product's or the binding core's code (where an exception must be deliberate). */
    static boolean isProductFrame(String className) {
        return className.startsWith("com.kestrum.") && !isTestClassName(className);
    }

    private static boolean isTestClassName(String name) {
        return TEST_PACKAGES.stream().anyMatch(name::startsWith);
    }

    /**
     * The constructors, static methods and instance methods of the driven classes that take an
     * object of the class as one of their arguments (other than as a plain {@code Object}).
     */
    List<Executable> acceptorsOf(Class<?> type) {
        return acceptors.computeIfAbsent(type, t -> {
            List<Executable> out = new ArrayList<>();
            List<Executable> candidates = new ArrayList<>(constructors);
            candidates.addAll(staticMethods);
            for (Class<?> c : classes) {
                for (Method m : methodsOf(c)) {
                    if (m.getDeclaringClass() == c) {
                        candidates.add(m);
                    }
                }
            }
            for (Executable e : candidates) {
                for (Class<?> p : e.getParameterTypes()) {
                    if (p != Object.class && p.isAssignableFrom(t)) {
                        out.add(e);
                        break;
                    }
                }
            }
            return List.copyOf(out);
        });
    }

    /** The public instance methods of a receiver's class, sorted. */
    List<Method> methodsOf(Class<?> type) {
        return instanceMethods.computeIfAbsent(type, t -> Arrays.stream(t.getMethods())
                .filter(m -> !Modifier.isStatic(m.getModifiers()) && !excluded(m))
                .sorted(Comparator.comparing(Method::toGenericString))
                .collect(Collectors.toUnmodifiableList()));
    }

    /** The public classes of the product's packages, from the folder or jar that holds them. */
    private static List<Class<?>> discover() {
        TreeSet<String> names = new TreeSet<>();
        Path root;
        try {
            root = Path.of(PoTavrel.class.getProtectionDomain().getCodeSource().getLocation().toURI());
        } catch (URISyntaxException e) {
            throw new IllegalStateException(e);
        }
        try {
            if (Files.isDirectory(root)) {
                try (var files = Files.walk(root)) {
                    files.map(p -> root.relativize(p).toString()).forEach(n -> addClassName(names, n));
                }
            } else {
                try (JarFile jar = new JarFile(root.toFile())) {
                    jar.stream().forEach(entry -> addClassName(names, entry.getName()));
                }
            }
        } catch (IOException e) {
            throw new UncheckedIOException(e);
        }
        List<Class<?>> found = new ArrayList<>();
        for (String name : names) {
            try {
                Class<?> c = Class.forName(name, false, Surface.class.getClassLoader());
                if (isPublicApi(c)) {
                    found.add(c);
                }
            } catch (ClassNotFoundException e) {
                throw new IllegalStateException(e);
            }
        }
        if (found.isEmpty()) {
            throw new IllegalStateException("no product classes found in " + root);
        }
        return found;
    }

    /** Public, and reachable by name: every class enclosing it public too. */
    private static boolean isPublicApi(Class<?> c) {
        if (c.isSynthetic() || c.isAnonymousClass() || c.isLocalClass()) {
            return false;
        }
        for (Class<?> k = c; k != null; k = k.getEnclosingClass()) {
            if (!Modifier.isPublic(k.getModifiers())) {
                return false;
            }
        }
        return true;
    }

    private static void addClassName(TreeSet<String> names, String path) {
        if (!path.endsWith(".class")) {
            return;
        }
        String name = path.substring(0, path.length() - ".class".length()).replace('/', '.').replace('\\', '.');
        if (isProductClassName(name)) {
            names.add(name);
        }
    }
}
