package com.kestrum.tavrel.elements;

import static com.kestrum.tavrel.testkit.CoreCalls.GET_ENV;
import static com.kestrum.tavrel.testkit.CoreCalls.readString;
import static com.kestrum.tavrel.testkit.CoreCalls.sequence;
import static com.kestrum.tavrel.testkit.CoreCalls.toolkit;
import static com.kestrum.tavrel.testkit.CoreCalls.toolkitByName;
import static com.kestrum.tavrel.testkit.CoreCalls.throwIllegalArgument;
import static org.junit.jupiter.api.Assertions.assertAll;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertInstanceOf;

import com.kestrum.corvel.elements.SoElement;
import com.kestrum.corvel.misc.SoState;
import com.kestrum.tavrel.testkit.Elements;
import com.kestrum.tavrel.testkit.JniCalls;
import com.kestrum.tavrel.testkit.NativeMethods;
import java.lang.reflect.Method;
import java.util.ArrayList;
import java.util.List;
import java.util.function.Supplier;
import java.util.stream.Stream;
import org.junit.jupiter.api.function.Executable;
import org.junit.jupiter.params.ParameterizedTest;
import org.junit.jupiter.params.provider.Arguments;
import org.junit.jupiter.params.provider.MethodSource;

/**
 * The six forwarded operations of every one of the thirteen element classes, returning and
 * throwing: the environment, the exception check, the peer's local reference, the argument's
 * Java object, the one Java call, then the exception check (reported as IllegalArgumentException
 * naming the class and the operation), or the result's handle for a copy; the local references
 * deleted. One row per element class; its operations are called as the traversal state calls them.
 * Also, per class, the binding of a new element to its peer, its destruction, and the
 * protected-method guard of initImpl.
 */
class ElementForwardingCallsTest {
    /** Whether the overrides throw; what copyMatchInfo returns. */
    static volatile boolean throwing;
    static volatile SoElement copyResult;

    static void act() {
        if (throwing) {
            throw new IllegalStateException("thrown by the override");
        }
    }

    static final class JBevelEdge extends PoBevelEdgeElement {
        @Override public void push(SoState s) { act(); }
        @Override public void pop(SoState s, SoElement top) { act(); }
        @Override public void init(SoState s) { act(); }
        @Override public boolean matches(SoElement e) { act(); return true; }
        @Override public SoElement copyMatchInfo() { act(); return copyResult; }
        @Override public void captureThis(SoState s) { act(); }
    }
    static final class JCellFilter extends PoCellFilterElement {
        @Override public void push(SoState s) { act(); }
        @Override public void pop(SoState s, SoElement top) { act(); }
        @Override public void init(SoState s) { act(); }
        @Override public boolean matches(SoElement e) { act(); return true; }
        @Override public SoElement copyMatchInfo() { act(); return copyResult; }
        @Override public void captureThis(SoState s) { act(); }
    }
    static final class JDataMapping extends PoDataMappingElement {
        @Override public void push(SoState s) { act(); }
        @Override public void pop(SoState s, SoElement top) { act(); }
        @Override public void init(SoState s) { act(); }
        @Override public boolean matches(SoElement e) { act(); return true; }
        @Override public SoElement copyMatchInfo() { act(); return copyResult; }
        @Override public void captureThis(SoState s) { act(); }
    }
    static final class JDateFormatMapping extends PoDateFormatMappingElement {
        @Override public void push(SoState s) { act(); }
        @Override public void pop(SoState s, SoElement top) { act(); }
        @Override public void init(SoState s) { act(); }
        @Override public boolean matches(SoElement e) { act(); return true; }
        @Override public SoElement copyMatchInfo() { act(); return copyResult; }
        @Override public void captureThis(SoState s) { act(); }
    }
    static final class JDomain extends PoDomainElement {
        @Override public void push(SoState s) { act(); }
        @Override public void pop(SoState s, SoElement top) { act(); }
        @Override public void init(SoState s) { act(); }
        @Override public boolean matches(SoElement e) { act(); return true; }
        @Override public SoElement copyMatchInfo() { act(); return copyResult; }
        @Override public void captureThis(SoState s) { act(); }
    }
    static final class JIsovaluesList extends PoIsovaluesListElement {
        @Override public void push(SoState s) { act(); }
        @Override public void pop(SoState s, SoElement top) { act(); }
        @Override public void init(SoState s) { act(); }
        @Override public boolean matches(SoElement e) { act(); return true; }
        @Override public SoElement copyMatchInfo() { act(); return copyResult; }
        @Override public void captureThis(SoState s) { act(); }
    }
    static final class JLabelHints extends PoLabelHintsElement {
        @Override public void push(SoState s) { act(); }
        @Override public void pop(SoState s, SoElement top) { act(); }
        @Override public void init(SoState s) { act(); }
        @Override public boolean matches(SoElement e) { act(); return true; }
        @Override public SoElement copyMatchInfo() { act(); return copyResult; }
        @Override public void captureThis(SoState s) { act(); }
    }
    static final class JMesh1DFilter extends PoMesh1DFilterElement {
        @Override public void push(SoState s) { act(); }
        @Override public void pop(SoState s, SoElement top) { act(); }
        @Override public void init(SoState s) { act(); }
        @Override public boolean matches(SoElement e) { act(); return true; }
        @Override public SoElement copyMatchInfo() { act(); return copyResult; }
        @Override public void captureThis(SoState s) { act(); }
    }
    static final class JMesh1DHints extends PoMesh1DHintsElement {
        @Override public void push(SoState s) { act(); }
        @Override public void pop(SoState s, SoElement top) { act(); }
        @Override public void init(SoState s) { act(); }
        @Override public boolean matches(SoElement e) { act(); return true; }
        @Override public SoElement copyMatchInfo() { act(); return copyResult; }
        @Override public void captureThis(SoState s) { act(); }
    }
    static final class JMesh extends PoMeshElement {
        @Override public void push(SoState s) { act(); }
        @Override public void pop(SoState s, SoElement top) { act(); }
        @Override public void init(SoState s) { act(); }
        @Override public boolean matches(SoElement e) { act(); return true; }
        @Override public SoElement copyMatchInfo() { act(); return copyResult; }
        @Override public void captureThis(SoState s) { act(); }
    }
    static final class JMiscTextAttr extends PoMiscTextAttrElement {
        @Override public void push(SoState s) { act(); }
        @Override public void pop(SoState s, SoElement top) { act(); }
        @Override public void init(SoState s) { act(); }
        @Override public boolean matches(SoElement e) { act(); return true; }
        @Override public SoElement copyMatchInfo() { act(); return copyResult; }
        @Override public void captureThis(SoState s) { act(); }
    }
    static final class JNumericDisplayFormat extends PoNumericDisplayFormatElement {
        @Override public void push(SoState s) { act(); }
        @Override public void pop(SoState s, SoElement top) { act(); }
        @Override public void init(SoState s) { act(); }
        @Override public boolean matches(SoElement e) { act(); return true; }
        @Override public SoElement copyMatchInfo() { act(); return copyResult; }
        @Override public void captureThis(SoState s) { act(); }
    }
    static final class JProfile extends PoProfileElement {
        @Override public void push(SoState s) { act(); }
        @Override public void pop(SoState s, SoElement top) { act(); }
        @Override public void init(SoState s) { act(); }
        @Override public boolean matches(SoElement e) { act(); return true; }
        @Override public SoElement copyMatchInfo() { act(); return copyResult; }
        @Override public void captureThis(SoState s) { act(); }
    }

    /** Classes whose first object is made by bindingOfTheFirstObjectCreatesTheType alone: their types are new. */
    static final class NewBevelEdge extends PoBevelEdgeElement { }
    static final class NewCellFilter extends PoCellFilterElement { }
    static final class NewDataMapping extends PoDataMappingElement { }
    static final class NewDateFormatMapping extends PoDateFormatMappingElement { }
    static final class NewDomain extends PoDomainElement { }
    static final class NewIsovaluesList extends PoIsovaluesListElement { }
    static final class NewLabelHints extends PoLabelHintsElement { }
    static final class NewMesh1DFilter extends PoMesh1DFilterElement { }
    static final class NewMesh1DHints extends PoMesh1DHintsElement { }
    static final class NewMesh extends PoMeshElement { }
    static final class NewMiscTextAttr extends PoMiscTextAttrElement { }
    static final class NewNumericDisplayFormat extends PoNumericDisplayFormatElement { }
    static final class NewProfile extends PoProfileElement { }
    /** Runs the creation path once before the rows, so that its first run's calls are not theirs. */
    static final class NewWarmUp extends PoBevelEdgeElement { }

    static Stream<Arguments> newClasses() {
        return Stream.of(
                Arguments.of("PoBevelEdgeElement", (Supplier<SoElement>) NewBevelEdge::new),
                Arguments.of("PoCellFilterElement", (Supplier<SoElement>) NewCellFilter::new),
                Arguments.of("PoDataMappingElement", (Supplier<SoElement>) NewDataMapping::new),
                Arguments.of("PoDateFormatMappingElement", (Supplier<SoElement>) NewDateFormatMapping::new),
                Arguments.of("PoDomainElement", (Supplier<SoElement>) NewDomain::new),
                Arguments.of("PoIsovaluesListElement", (Supplier<SoElement>) NewIsovaluesList::new),
                Arguments.of("PoLabelHintsElement", (Supplier<SoElement>) NewLabelHints::new),
                Arguments.of("PoMesh1DFilterElement", (Supplier<SoElement>) NewMesh1DFilter::new),
                Arguments.of("PoMesh1DHintsElement", (Supplier<SoElement>) NewMesh1DHints::new),
                Arguments.of("PoMeshElement", (Supplier<SoElement>) NewMesh::new),
                Arguments.of("PoMiscTextAttrElement", (Supplier<SoElement>) NewMiscTextAttr::new),
                Arguments.of("PoNumericDisplayFormatElement", (Supplier<SoElement>) NewNumericDisplayFormat::new),
                Arguments.of("PoProfileElement", (Supplier<SoElement>) NewProfile::new));
    }

    static Stream<Arguments> classes() {
        return Stream.of(
                Arguments.of("PoBevelEdgeElement", (Supplier<SoElement>) JBevelEdge::new),
                Arguments.of("PoCellFilterElement", (Supplier<SoElement>) JCellFilter::new),
                Arguments.of("PoDataMappingElement", (Supplier<SoElement>) JDataMapping::new),
                Arguments.of("PoDateFormatMappingElement", (Supplier<SoElement>) JDateFormatMapping::new),
                Arguments.of("PoDomainElement", (Supplier<SoElement>) JDomain::new),
                Arguments.of("PoIsovaluesListElement", (Supplier<SoElement>) JIsovaluesList::new),
                Arguments.of("PoLabelHintsElement", (Supplier<SoElement>) JLabelHints::new),
                Arguments.of("PoMesh1DFilterElement", (Supplier<SoElement>) JMesh1DFilter::new),
                Arguments.of("PoMesh1DHintsElement", (Supplier<SoElement>) JMesh1DHints::new),
                Arguments.of("PoMeshElement", (Supplier<SoElement>) JMesh::new),
                Arguments.of("PoMiscTextAttrElement", (Supplier<SoElement>) JMiscTextAttr::new),
                Arguments.of("PoNumericDisplayFormatElement", (Supplier<SoElement>) JNumericDisplayFormat::new),
                Arguments.of("PoProfileElement", (Supplier<SoElement>) JProfile::new));
    }

    private static final String STATE = "Lcom/kestrum/corvel/misc/SoState;";
    private static final String ELEMENT = "Lcom/kestrum/corvel/elements/SoElement;";

    /** The Java call of each operation, by its number in Elements.stateOperation (then matches, copyMatchInfo). */
    private static final String[] JAVA_CALLS = {
        "CallVoidMethodV(push(" + STATE + ")V)",
        "CallVoidMethodV(pop(" + STATE + ELEMENT + ")V)",
        "CallVoidMethodV(init(" + STATE + ")V)",
        "CallVoidMethodV(captureThis(" + STATE + ")V)",
    };
    private static final String[] OPERATIONS = {"push", "pop", "init", "captureThis"};

    @ParameterizedTest(name = "{0}")
    @MethodSource("classes")
    void forwardedOperationsReturningAndThrowing(String className, Supplier<SoElement> make) {
        String custom = "Custom" + className;
        SoElement element = make.get();
        long e = element.getNativeResourceHandleInternal();
        List<Executable> checks = new ArrayList<>();
        try {
            Traversal.run(state -> {
                long s = state.getNativeResourceHandleInternal();
                for (boolean t : new boolean[] {false, true}) {
                    throwing = t;
                    for (int op = 0; op < 4; op++) {
                        int o = op;
                        List<String> calls = recorded(t, () -> Elements.stateOperation(e, s, o));
                        List<String> expected = sequence(GET_ENV, "ExceptionCheck() -> false", "NewLocalRef()",
                                stateArgument(o), JAVA_CALLS[o], afterCall(t, custom, OPERATIONS[o]),
                                deletes(o));
                        checks.add(() -> assertEquals(expected, calls, className + "." + OPERATIONS[o] + (t ? " throwing" : "")));
                    }
                    List<String> matches = recorded(t, () -> Elements.matches(e, e));
                    checks.add(() -> assertEquals(sequence(GET_ENV, "ExceptionCheck() -> false", "NewLocalRef()",
                            "NewLocalRef()", "IsInstanceOf(" + ELEMENT + ") -> true",
                            "CallBooleanMethodV(matches(" + ELEMENT + ")Z) -> " + !t, afterCall(t, custom, "matches"),
                            "DeleteLocalRef()", "DeleteLocalRef()"), matches, className + ".matches" + (t ? " throwing" : "")));
                    for (SoElement result : t ? new SoElement[] {null} : new SoElement[] {element, null}) {
                        copyResult = result;
                        List<String> copy = recorded(t, () -> Elements.copyMatchInfo(e));
                        List<String> expected = result != null
                                ? sequence(GET_ENV, "ExceptionCheck() -> false", "NewLocalRef()",
                                        "CallObjectMethodV(copyMatchInfo()" + ELEMENT + ")", "ExceptionCheck() -> false",
                                        "CallLongMethodV(getNativeResourceHandleInternal()J) -> " + e,
                                        "DeleteLocalRef()", "DeleteLocalRef()")
                                : sequence(GET_ENV, "ExceptionCheck() -> false", "NewLocalRef()",
                                        "CallObjectMethodV(copyMatchInfo()" + ELEMENT + ") -> null",
                                        afterCall(t, custom, "copyMatchInfo"), "DeleteLocalRef()");
                        checks.add(() -> assertEquals(expected, copy, className + ".copyMatchInfo"
                                + (result == null ? " null" : "") + (t ? " throwing" : "")));
                    }
                    throwing = false;
                }
            });
        } finally {
            throwing = false;
            copyResult = null;
            element.dispose();
        }
        assertEquals(13, checks.size());
        assertAll(checks);
    }

    /**
     * initCustomClass, run by the constructor of a class's second object: the type name read, the
     * type found by name (the toolkit's call, between the JNI calls), the peer's global reference,
     * then the stack index and key returned as a new int[2]; the destructor deletes that
     * reference (the Java object's weak one goes with a later batch of the peer table's).
     */
    @ParameterizedTest(name = "{0}")
    @MethodSource("classes")
    void bindingAndDestruction(String className, Supplier<SoElement> make) {
        make.get().dispose(); // the class's type is made by its first object
        SoElement[] made = new SoElement[1];
        List<String> binding = JniCalls.recordWithToolkit(() -> made[0] = make.get()).calls();
        String typeName = made[0].getClass().getName();
        assertEquals(sequence("NewWeakGlobalRef()", readString(typeName.length()),
                toolkit("SoType::fromName(\"" + typeName + "\")"), "NewGlobalRef()", "ExceptionCheck() -> false",
                "NewIntArray(2)", "SetIntArrayRegion(0, 2)"), binding, className + " initCustomClass");
        List<String> destruction = JniCalls.recordWithToolkit(made[0]::dispose).calls();
        assertEquals(List.of(GET_ENV, "DeleteGlobalRef()"), destruction,
                className + " destructor");
    }

    /**
     * initCustomClass run by the first object of a class: the type name read, a new type made
     * from it under the element class's type (the toolkit's calls, before the peer's reference),
     * the peer's global reference, then the stack index (the element class's own, which every
     * class has) and a new key (asked for with the bad key), then the int[2].
     */
    @ParameterizedTest(name = "{0}")
    @MethodSource("newClasses")
    void bindingOfTheFirstObjectCreatesTheType(String className, Supplier<SoElement> make) {
        synchronized (NewWarmUp.class) {
            new NewWarmUp().dispose();
        }
        SoElement[] made = new SoElement[1];
        List<String> binding = toolkitByName(JniCalls.recordWithToolkit(() -> made[0] = make.get()).calls());
        try {
            String typeName = made[0].getClass().getName();
            assertEquals(sequence("NewWeakGlobalRef()", readString(typeName.length()),
                    toolkit(className + "::getClassTypeId"), toolkit("SoType::createType"), "NewGlobalRef()",
                    toolkit(className + "::getClassStackIndex"), toolkit("SoElement::createElementKey"),
                    "ExceptionCheck() -> false", "NewIntArray(2)", "SetIntArrayRegion(0, 2)"),
                    binding, className + " initCustomClass");
        } finally {
            made[0].dispose();
        }
    }

    /**
     * initImpl of every class: refused on 0 and on a toolkit element (FindClass, ThrowNew,
     * nothing else); on a Java element the toolkit class's init, with no JNI call.
     */
    @ParameterizedTest(name = "{0}")
    @MethodSource("classes")
    void initImplGuard(String className, Supplier<SoElement> make) throws ReflectiveOperationException {
        Class<?> base = make.get().getClass().getSuperclass();
        Method initImpl = base.getDeclaredMethod("initImpl", long.class, long.class);
        initImpl.setAccessible(true);
        int stackIndex = (Integer) base.getMethod("getClassStackIndex").invoke(null);
        List<String> refusal = List.of(
                "FindClass(\"java/lang/IllegalAccessException\") -> Ljava/lang/IllegalAccessException;",
                "ThrowNew(Ljava/lang/IllegalAccessException;, \"Call of protected methods not allowed.\") -> 0");
        SoElement element = make.get();
        try {
            Traversal.run(state -> {
                long s = state.getNativeResourceHandleInternal();
                long plain = Elements.topElement(s, stackIndex);
                for (long target : new long[] {0L, plain}) {
                    JniCalls.recordThrowing(() -> NativeMethods.invoke(initImpl, null, new Object[] {target, s}));
                    JniCalls.Recording r = JniCalls.recordThrowing(() ->
                            NativeMethods.invoke(initImpl, null, new Object[] {target, s}));
                    assertInstanceOf(IllegalAccessException.class, r.thrown(), className);
                    assertEquals(refusal, r.calls(), className + (target == 0 ? " on 0" : " on a toolkit element"));
                }
                long e = element.getNativeResourceHandleInternal();
                throwing = false;
                assertEquals(List.of(), JniCalls.record(() ->
                        NativeMethods.invoke(initImpl, null, new Object[] {e, s})).calls(), className);
            });
        } finally {
            element.dispose();
        }
    }

    /**
     * The calls of the block, run once before (the first run may load classes); a throwing
     * block's exception (left pending by the element) is checked and dropped.
     */
    private static List<String> recorded(boolean throwing, JniCalls.Block block) {
        if (!throwing) {
            JniCalls.record(block);
            return JniCalls.record(block).calls();
        }
        JniCalls.recordThrowing(block);
        JniCalls.Recording r = JniCalls.recordThrowing(block);
        assertInstanceOf(IllegalArgumentException.class, r.thrown());
        assertInstanceOf(IllegalStateException.class, r.thrown().getCause());
        return r.calls();
    }

    /** The state's Java object: a registered view (pop also converts the previous top element). */
    private static List<String> stateArgument(int op) {
        List<String> state = List.of("NewLocalRef()", "IsInstanceOf(" + STATE + ") -> true");
        return op == 1 ? sequence(state, "NewLocalRef()", "IsInstanceOf(" + ELEMENT + ") -> true") : state;
    }

    private static List<String> afterCall(boolean thrown, String custom, String operation) {
        return thrown ? sequence("ExceptionOccurred()",
                throwIllegalArgument("Exception raised during execution of " + custom + "." + operation + "."),
                "DeleteLocalRef()")
                : List.of("ExceptionOccurred() -> null");
    }

    private static List<String> deletes(int op) {
        return op == 1 ? List.of("DeleteLocalRef()", "DeleteLocalRef()", "DeleteLocalRef()")
                : List.of("DeleteLocalRef()", "DeleteLocalRef()");
    }
}
