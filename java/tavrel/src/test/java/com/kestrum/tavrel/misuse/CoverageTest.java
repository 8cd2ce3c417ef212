package com.kestrum.tavrel.misuse;

import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertFalse;
import static org.junit.jupiter.api.Assertions.assertTrue;

import com.kestrum.tavrel.data.PbRegularMesh1D;
import com.kestrum.tavrel.graph.PoBase;
import com.kestrum.tavrel.misc.callbacks.PoProbeCB;
import java.util.List;
import java.util.Set;
import java.util.stream.Collectors;
import java.util.stream.Stream;
import org.junit.jupiter.api.Test;
import org.junit.jupiter.params.ParameterizedTest;
import org.junit.jupiter.params.provider.Arguments;
import org.junit.jupiter.params.provider.MethodSource;

/** What the misuse run counts as an unclear exception, and which classes it must reach. */
class CoverageTest {
    private static final String PRODUCT = "com.kestrum.tavrel.data.PbMesh";
    private static final String CORE = "com.kestrum.corvel.SbVec3f";
    private static final String DRIVER = "com.kestrum.tavrel.misuse.Misuse";

    /** An exception thrown at the frames given (innermost first), as the run would catch it. */
    private static Throwable thrownAt(Throwable t, String... classes) {
        StackTraceElement[] frames = new StackTraceElement[classes.length];
        for (int i = 0; i < classes.length; i++) {
            frames[i] = new StackTraceElement(classes[i], "m", classes[i] + ".java", 1);
        }
        t.setStackTrace(frames);
        return t;
    }

    static Stream<Arguments> exceptions() {
        return Stream.of(
                // made by the JVM in the product or the binding core
                Arguments.of(thrownAt(new NullPointerException("Cannot read field \"array\" because \"other\" is null"),
                        CORE, DRIVER), true),
                Arguments.of(thrownAt(new ArrayIndexOutOfBoundsException("Index 0 out of bounds for length 0"), PRODUCT),
                        true),
                Arguments.of(thrownAt(new ClassCastException("class A cannot be cast to class B"), PRODUCT), true),
                Arguments.of(thrownAt(new NegativeArraySizeException("-1"), PRODUCT), true),
                Arguments.of(thrownAt(new ArithmeticException("/ by zero"), PRODUCT), true),
                Arguments.of(thrownAt(new ArrayStoreException("java.lang.Integer"), PRODUCT), true),
                // no message, also when the JDK threw it for the product (a null passed on)
                Arguments.of(thrownAt(new NullPointerException(), "java.util.Objects", "java.nio.file.Files", CORE),
                        true),
                Arguments.of(thrownAt(new IllegalStateException(""), PRODUCT), true),
                // deliberate, with a message
                Arguments.of(thrownAt(new NullPointerException("state is null"), PRODUCT), false),
                Arguments.of(thrownAt(new IllegalArgumentException("count -1 is negative"), PRODUCT), false),
                Arguments.of(thrownAt(new ArrayIndexOutOfBoundsException("index 5 of 3 nodes"), PRODUCT), false),
                // not the product's: the driver's own, or thrown by a listener of the run
                Arguments.of(thrownAt(new NullPointerException(), DRIVER, PRODUCT), false),
                Arguments.of(thrownAt(new ArithmeticException("/ by zero"), "com.kestrum.tavrel.testkit.Nodes"), false),
                // a cause made by the JVM under a clear wrapper (an override's super call that failed)
                Arguments.of(thrownAt(new IllegalArgumentException("Exception raised during execution of X.push.",
                        thrownAt(new NullPointerException("Cannot invoke \"Object.getClass()\""), PRODUCT)), PRODUCT),
                        true));
    }

    @ParameterizedTest
    @MethodSource("exceptions")
    void unclearExceptions(Throwable thrown, boolean unclear) {
        assertEquals(unclear, Coverage.check("test call", thrown), thrown::toString);
    }

    @Test
    void undeclaredCheckedExceptionsAreUnclear() throws Exception {
        java.lang.reflect.Method apply = com.kestrum.corvel.actions.SoAction.class.getMethod("apply",
                com.kestrum.corvel.nodes.SoNode.class);
        java.lang.reflect.Method write = com.kestrum.corvel.actions.SoGLRenderAction.class.getMethod("writeSvg",
                java.nio.file.Path.class);
        Throwable checked = thrownAt(new IllegalAccessException("Call of a pure virtual method"), PRODUCT);
        assertTrue(Coverage.check("apply", checked, apply));
        assertFalse(Coverage.check("writeSvg", thrownAt(new java.io.IOException("no folder"), CORE), write));
    }

    @Test
    void surfaceHoldsEveryPublicClassButTheInternalOnes() {
        Set<String> names = new Surface().productClasses.stream().map(Class::getName).collect(Collectors.toSet());
        // every package, nested enumerations, records and listener interfaces included
        for (String name : List.of("com.kestrum.tavrel.PoTavrel", "com.kestrum.tavrel.fields.PoSFRegularMesh1D",
                "com.kestrum.tavrel.elements.PoMeshElement", "com.kestrum.tavrel.graph.PoBase$UpdateMethodTypes",
                "com.kestrum.tavrel.graph.PoAxis$Grad", "com.kestrum.tavrel.misc.callbacks.PoProbeCB$Listener")) {
            assertTrue(names.contains(name), name);
        }
        assertFalse(names.stream().anyMatch(n -> n.startsWith("com.kestrum.tavrel.internal.")), names::toString);
        assertFalse(names.stream().anyMatch(n -> n.contains(".misuse.") || n.contains(".testkit.")));
    }

    @Test
    void acceptorsTakeTheViewsClass() {
        List<String> takers = new Surface().acceptorsOf(PbRegularMesh1D.class).stream()
                .map(Coverage::key).collect(Collectors.toList());
        assertTrue(takers.contains("com.kestrum.tavrel.data.PbRegularMesh1D.<init>(PbRegularMesh1D)"), takers::toString);
        assertTrue(takers.stream().anyMatch(k -> k.endsWith(".setMesh(PbMesh)")), takers::toString);
        assertTrue(takers.stream().anyMatch(k -> k.startsWith("com.kestrum.tavrel.elements.PoMeshElement.set(")),
                takers::toString);
    }

    @Test
    void interfacesAndSuperclassesAreReachedThroughTheirImplementations() throws Exception {
        Coverage.listenerReturned(PoProbeCB.Listener.class, "invoke");
        assertTrue(Coverage.reached(PoProbeCB.Listener.class));
        // A method of PoBase called on a subclass's object reaches every class in between.
        PoBase node = PoBase.createInstance("PoRectangle");
        try {
            Coverage.returned(node, PoBase.class.getMethod("isBuilt"));
            for (Class<?> c = node.getClass(); c != PoBase.class.getSuperclass(); c = c.getSuperclass()) {
                assertTrue(Coverage.reached(c), c::getName);
            }
        } finally {
            node.dispose();
        }
    }
}
