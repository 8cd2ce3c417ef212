package com.kestrum.tavrel;

import static org.junit.jupiter.api.Assertions.assertEquals;

import com.kestrum.corvel.SbBox2f;
import com.kestrum.corvel.SbBox3f;
import com.kestrum.corvel.SbVec2f;
import com.kestrum.corvel.SbVec3f;
import com.kestrum.corvel.SoInput;
import com.kestrum.corvel.actions.SoAction;
import com.kestrum.corvel.actions.SoGLRenderAction;
import com.kestrum.corvel.elements.SoElement;
import com.kestrum.corvel.misc.DebugOutput;
import com.kestrum.corvel.misc.ManagedObjects;
import com.kestrum.corvel.misc.NativeLibraries;
import com.kestrum.corvel.misc.NativeObject;
import com.kestrum.corvel.misc.NativePeers;
import com.kestrum.corvel.misc.Traversals;
import com.kestrum.corvel.nodes.SoGroup;
import com.kestrum.corvel.nodes.SoNode;
import com.kestrum.tavrel.testkit.ChildCases;
import java.util.stream.Stream;
import org.junit.jupiter.api.BeforeAll;
import org.junit.jupiter.params.ParameterizedTest;
import org.junit.jupiter.params.provider.MethodSource;

/**
 * The binding core's Java classes answer a missing or short argument as the product's classes
 * do, before using it: NullPointerException "name is null", IllegalArgumentException naming the
 * argument and the length needed. Some of them used to hand the argument to native code, so the
 * cases run in a child JVM.
 */
class CorvelArgumentsTest {
    /** Reaches NativeObject's protected helpers. */
    static final class Helpers extends NativeObject {
        Helpers() {
            super(0);
        }

        static Runnable releaseWithNull() {
            return releaseWith(null, 1);
        }

        static void holdAgainNull() {
            holdAgain(null);
        }

        static void leaveNull() {
            leave(null);
        }

        void callWithoutCall() {
            callWith(this, "argument", null);
        }
    }

    /** Reaches SoElement's protected constructor. */
    static final class Element extends SoElement {
        Element() {
            super(1, null);
        }
    }

    /** Reaches SoAction's protected constructor. */
    static final class Action extends SoAction {
        Action() {
            super((String) null);
        }
    }

    /** A call with a missing or short argument, and the exception it must throw ("Class: message"). */
    record Misuse(String call, String expected, ChildCases.Case run) {
        @Override
        public String toString() {
            return call;
        }
    }

    private static Misuse npe(String call, String name, ChildCases.Case run) {
        return new Misuse(call, "NullPointerException: " + name + " is null", run);
    }

    private static Misuse shortArray(String call, String message, ChildCases.Case run) {
        return new Misuse(call, "IllegalArgumentException: " + message, run);
    }

    static Stream<Misuse> misuses() {
        SbVec2f v2 = new SbVec2f();
        SbVec3f v3 = new SbVec3f();
        return Stream.of(
                npe("new SbVec2f(SbVec2f)", "other", () -> new SbVec2f(null)),
                npe("new SbVec3f(SbVec3f)", "other", () -> new SbVec3f((SbVec3f) null)),
                npe("new SbVec3f(float[])", "xyz", () -> new SbVec3f((float[]) null)),
                shortArray("new SbVec3f(float[2])", "xyz has 2 elements, 3 needed", () -> new SbVec3f(new float[2])),
                npe("new SbBox2f(null, max)", "min", () -> new SbBox2f(null, v2)),
                npe("new SbBox2f(min, null)", "max", () -> new SbBox2f(v2, null)),
                npe("SbBox2f.fromValue", "values", () -> SbBox2f.fromValue(null)),
                shortArray("SbBox2f.fromValue(float[3])", "values has 3 elements, 4 needed",
                        () -> SbBox2f.fromValue(new float[3])),
                npe("new SbBox3f(null, max)", "min", () -> new SbBox3f(null, v3)),
                npe("new SbBox3f(min, null)", "max", () -> new SbBox3f(v3, null)),
                npe("SbBox3f.fromValue", "values", () -> SbBox3f.fromValue(null)),
                shortArray("SbBox3f.fromValue(float[5])", "values has 5 elements, 6 needed",
                        () -> SbBox3f.fromValue(new float[5])),
                npe("new SoInput", "text", () -> new SoInput(null)),
                npe("SoAction.enableElement", "typeName", () -> SoAction.enableElement(null, 0)),
                npe("SoGLRenderAction.writeSvg", "file", () -> {
                    try (SoGLRenderAction render = new SoGLRenderAction()) {
                        render.writeSvg(null);
                    }
                }),
                npe("SoNode.createInstance", "typeName", () -> SoNode.createInstance(null)),
                npe("SoNode.isOfType", "typeName", () -> {
                    try (SoGroup group = new SoGroup()) {
                        group.isOfType(null);
                    }
                }),
                npe("SoNode.getEventOut", "name", () -> {
                    try (SoGroup group = new SoGroup()) {
                        group.getEventOut(null);
                    }
                }),
                npe("new SoElement(handle, null)", "owns", Element::new),
                npe("Traversals.own", "view", () -> Traversals.own(null)),
                npe("NativeLibraries.load(null anchor)", "anchor",
                        () -> NativeLibraries.load(null, "/f", "a")),
                npe("NativeLibraries.load(null folder)", "resourceFolder",
                        () -> NativeLibraries.load(CorvelArgumentsTest.class, null, "a")),
                npe("NativeLibraries.load(null names)", "names",
                        () -> NativeLibraries.load(CorvelArgumentsTest.class, "/f", (String[]) null)),
                npe("NativeLibraries.load(a null name)", "names[1]",
                        () -> NativeLibraries.load(CorvelArgumentsTest.class, "/f", "a", null)),
                npe("DebugOutput.setMode", "mode", () -> DebugOutput.setMode(null)),
                npe("ManagedObjects.registerPeer", "peer", () -> ManagedObjects.registerPeer(1, null)),
                npe("ManagedObjects.find", "wanted", () -> ManagedObjects.find(null, 1)),
                npe("ManagedObjects.get", "dottedClassName", () -> ManagedObjects.get(null, 1)),
                npe("ManagedObjects.registerWrapper(null name)", "dottedClassName",
                        () -> ManagedObjects.registerWrapper(null, h -> null)),
                npe("ManagedObjects.registerWrapper(null factory)", "factory",
                        () -> ManagedObjects.registerWrapper("x", null)),
                npe("ManagedObjects.registerType(null name)", "typeName",
                        () -> ManagedObjects.registerType(null, () -> null)),
                npe("ManagedObjects.registerType(null factory)", "factory",
                        () -> ManagedObjects.registerType("x", null)),
                npe("ManagedObjects.isTypeRegistered", "typeName", () -> ManagedObjects.isTypeRegistered(null)),
                npe("NativePeers.bindPeer", "peer", () -> NativePeers.bindPeer(1, null)),
                npe("NativeObject.releaseWith", "release", Helpers::releaseWithNull),
                npe("NativeObject.holdAgain", "held", Helpers::holdAgainNull),
                npe("NativeObject.leave", "argument", Helpers::leaveNull),
                npe("NativeObject.callWith", "call", () -> new Helpers().callWithoutCall()),
                // Last: it used to reach native code with the null, which killed the JVM.
                npe("new SoAction(String)", "javaClassName", Action::new));
    }

    /** In the child: every misuse, one line each. */
    public static void main(String[] args) {
        misuses().forEach(m -> ChildCases.report(m.call(), m.run()));
    }

    private static ChildCases.Outcomes outcomes;

    @BeforeAll
    static void runTheMisusesInAChildJvm() throws Exception {
        outcomes = ChildCases.run(CorvelArgumentsTest.class, 120);
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("misuses")
    void isRefusedWithAMessageNamingTheArgument(Misuse misuse) {
        assertEquals(misuse.expected(), outcomes.of(misuse.call()));
    }
}
