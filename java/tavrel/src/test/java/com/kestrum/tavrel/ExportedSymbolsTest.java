package com.kestrum.tavrel;

import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertTrue;

import java.io.BufferedReader;
import java.io.IOException;
import java.io.InputStream;
import java.io.InputStreamReader;
import java.lang.reflect.Method;
import java.lang.reflect.Modifier;
import java.net.URISyntaxException;
import java.nio.charset.StandardCharsets;
import java.nio.file.Files;
import java.nio.file.Path;
import java.nio.file.Paths;
import java.util.ArrayList;
import java.util.List;
import java.util.Set;
import java.util.TreeSet;
import java.util.regex.Pattern;
import java.util.stream.Collectors;
import java.util.stream.Stream;
import org.junit.jupiter.api.Test;

/**
 * The product exports exactly the JNI functions of the Java classes' native methods, all of
 * them from the list of the finished library, and nothing else; and it needs nothing from the
 * stand-ins that the real toolkit and binding core do not have.
 */
class ExportedSymbolsTest {
    private static Set<String> exported() throws IOException, InterruptedException {
        Set<String> symbols = new TreeSet<>();
        for (String line : nm("--defined-only")) {
            String[] parts = line.trim().split("\\s+");
            symbols.add(parts[parts.length - 1]);
        }
        return symbols;
    }

    /** The lines of nm -D with the options, on the product. */
    private static List<String> nm(String... options) throws IOException, InterruptedException {
        Path lib = Paths.get(System.getProperty("kestrum.native.dir"), System.mapLibraryName("com.kestrum.tavrel"));
        List<String> command = new ArrayList<>(List.of("nm", "-D"));
        command.addAll(List.of(options));
        command.add(lib.toString());
        Process nm = new ProcessBuilder(command).redirectErrorStream(true).start();
        List<String> lines;
        try (BufferedReader r = new BufferedReader(new InputStreamReader(nm.getInputStream(), StandardCharsets.UTF_8))) {
            lines = r.lines().collect(Collectors.toList());
        }
        assertEquals(0, nm.waitFor(), "nm failed: " + lines);
        return lines;
    }

    /** What only the stand-ins have: the call journal and their own helpers. */
    private static final Pattern STAND_IN_ONLY = Pattern.compile("[Jj]ournal|^tk::|^corvel::|Unjournaled");

    /** A symbol of the toolkit's classes (So, Sb, Po, Pb, Pi) or of the binding core. */
    private static final Pattern TOOLKIT_OR_BINDING_CORE = Pattern.compile(
            "^(?:(?:typeinfo|typeinfo name|vtable|VTT|guard variable) for )?"
                    + "(?:(?:So|Sb|Po|Pb|Pi)[A-Z]\\w*|ArrayHelper|StringHelper|StringArrayHelper|ObjectHelper"
                    + "|ExceptionHelper|JNIEnvHelper|ICustomClass|I\\w+ProtectedMethodAccess)(?:::|$)"
                    + "|^PRINTDBG\\(char\\*\\)$");

    /**
     * Symbols of the C and C++ runtimes and of sanitizer runtimes that carry no version: in a
     * sanitizer build the allocation operators and the C functions that the sanitizer intercepts
     * (strlen, memcpy, ...) are needed without one.
     */
    private static final Pattern RUNTIME = Pattern.compile(
            "^(?:__gmon_start__|_ITM_\\w+|__cxa_\\w+|__(?:asan|ubsan|lsan|tsan|sanitizer)_\\w+|__tls_get_addr"
                    + "|operator (?:new|delete)(?:\\[\\])?\\(.*\\)|[a-z][a-z0-9_]*)$");

    @Test
    void needsNoSymbolThatOnlyTheStandInsHave() throws Exception {
        List<String> unexpected = new ArrayList<>();
        for (String line : nm("--undefined-only", "-C")) {
            String symbol = line.trim().replaceFirst("^[A-Za-z]\\s+", "");
            if (symbol.contains("@") || RUNTIME.matcher(symbol).matches()) {
                continue; // versioned: the system's libraries
            }
            if (STAND_IN_ONLY.matcher(symbol).find() || !TOOLKIT_OR_BINDING_CORE.matcher(symbol).find()) {
                unexpected.add(symbol);
            }
        }
        assertTrue(unexpected.isEmpty(),
                "the product needs symbols that are not the toolkit's or the binding core's: " + unexpected);
    }

    private static Set<String> expected() throws IOException {
        try (InputStream in = ExportedSymbolsTest.class.getResourceAsStream("/expected-jni-symbols.txt")) {
            return new BufferedReader(new InputStreamReader(in, StandardCharsets.UTF_8)).lines()
                    .map(String::trim).filter(s -> !s.isEmpty()).collect(Collectors.toCollection(TreeSet::new));
        }
    }

    /** The JNI short name of a native method. */
    static String jniName(Method m) {
        return "Java_" + mangle(m.getDeclaringClass().getName()) + "_" + mangle(m.getName());
    }

    private static String mangle(String s) {
        StringBuilder b = new StringBuilder();
        for (char c : s.toCharArray()) {
            if (c == '.' || c == '/') {
                b.append('_');
            } else if (c == '_') {
                b.append("_1");
            } else if (c == ';') {
                b.append("_2");
            } else if (c == '[') {
                b.append("_3");
            } else if ((c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9')) {
                b.append(c);
            } else {
                b.append(String.format("_0%04x", (int) c));
            }
        }
        return b.toString();
    }

    /** Every native method of the com.kestrum.tavrel classes. */
    static List<Method> declaredNatives() throws IOException, URISyntaxException, ClassNotFoundException {
        Path root = Paths.get(PoTavrel.class.getProtectionDomain().getCodeSource().getLocation().toURI());
        List<Method> natives = new ArrayList<>();
        List<String> classNames;
        try (Stream<Path> files = Files.walk(root)) {
            classNames = files.map(p -> root.relativize(p).toString())
                    .filter(p -> p.endsWith(".class") && p.startsWith("com/kestrum/tavrel/"))
                    .map(p -> p.substring(0, p.length() - ".class".length()).replace('/', '.'))
                    .sorted().collect(Collectors.toList());
        }
        for (String name : classNames) {
            Class<?> c = Class.forName(name, false, ExportedSymbolsTest.class.getClassLoader());
            for (Method m : c.getDeclaredMethods()) {
                if (Modifier.isNative(m.getModifiers())) {
                    natives.add(m);
                }
            }
        }
        return natives;
    }

    @Test
    void exportsOnlyJniFunctionsOfTheFinishedList() throws Exception {
        Set<String> exported = exported();
        Set<String> expected = expected();
        Set<String> unexpected = new TreeSet<>(exported);
        unexpected.removeAll(expected);
        assertTrue(unexpected.isEmpty(), "exported but not expected: " + unexpected);

        Set<String> missing = new TreeSet<>(expected);
        missing.removeAll(exported);
        System.out.printf("JNI functions: %d of %d present, %d still to come%n",
                exported.size(), expected.size(), missing.size());
        if (Boolean.getBoolean("tavrel.printMissingSymbols")) {
            missing.forEach(s -> System.out.println("  missing " + s));
        }
    }

    @Test
    void everyJavaNativeMethodHasItsFunctionAndEveryFunctionItsMethod() throws Exception {
        Set<String> exported = exported();
        Set<String> declared = new TreeSet<>();
        List<String> unbound = new ArrayList<>();
        for (Method m : declaredNatives()) {
            String name = jniName(m);
            if (!declared.add(name)) {
                unbound.add("overloaded native " + m);
            }
            if (!exported.contains(name)) {
                unbound.add(name);
            }
        }
        assertTrue(unbound.isEmpty(), "Java natives without a JNI function: " + unbound);
        Set<String> orphans = new TreeSet<>(exported);
        orphans.removeAll(declared);
        assertTrue(orphans.isEmpty(), "JNI functions without a Java native method: " + orphans);
    }
}
