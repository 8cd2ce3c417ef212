package com.kestrum.tavrel.nodes;

import static com.kestrum.tavrel.testkit.CoreCalls.GET_ENV;
import static com.kestrum.tavrel.testkit.CoreCalls.enumValue;
import static com.kestrum.tavrel.testkit.CoreCalls.newString;
import static com.kestrum.tavrel.testkit.CoreCalls.readString;
import static com.kestrum.tavrel.testkit.CoreCalls.sequence;
import static com.kestrum.tavrel.testkit.CoreCalls.toolkit;
import static com.kestrum.tavrel.testkit.CoreCalls.toolkitByName;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertInstanceOf;

import com.kestrum.corvel.actions.SoAction;
import com.kestrum.corvel.actions.SoCallbackAction;
import com.kestrum.corvel.actions.SoGLRenderAction;
import com.kestrum.corvel.actions.SoGetBoundingBoxAction;
import com.kestrum.corvel.actions.SoGetMatrixAction;
import com.kestrum.corvel.actions.SoGetPrimitiveCountAction;
import com.kestrum.corvel.actions.SoHandleEventAction;
import com.kestrum.corvel.actions.SoPickAction;
import com.kestrum.corvel.actions.SoSearchAction;
import com.kestrum.corvel.actions.SoWriteAction;
import com.kestrum.tavrel.testkit.JniCalls;
import com.kestrum.tavrel.testkit.Nodes;
import java.lang.reflect.InvocationTargetException;
import java.lang.reflect.Method;
import java.util.List;
import java.util.function.Supplier;
import java.util.stream.Stream;
import org.junit.jupiter.params.ParameterizedTest;
import org.junit.jupiter.params.provider.Arguments;
import org.junit.jupiter.params.provider.MethodSource;

/**
 * The JNI calls of the entry points of the Java node and cell filter classes: the guards of
 * their pure-virtual operations, the entry points that reach the toolkit's own behaviour (which
 * do not call the Java method back), and a node's start (its type name, one weak reference to its peer, its render mode),
 * after which its peer reference is never released by the library; the first node of a class
 * creates its type. The toolkit's calls stand in the recordings where they are made.
 */
class EntryPointCallsTest {
    private static final String RENDER_MODES = "Lcom/kestrum/corvel/nodes/SoNode$RenderModes;";

    static final class PlainNode extends PoNode {
        PlainNode() {
            super("EntryPlainNode");
        }
    }

    static final class PlainFilter extends PoCellFilter {
        PlainFilter() {
            super("EntryPlainFilter");
        }
    }

    /** Classes whose first objects are made by aNodeOfANewClassCreatesItsType alone. */
    static final class NewNode extends PoNode {
        NewNode() {
            super("EntryNewNode");
        }
    }

    static final class NewFilter extends PoCellFilter {
        NewFilter() {
            super("EntryNewFilter");
        }
    }

    /** Runs the creation path once before the rows, so that its first run's calls are not theirs. */
    static final class NewWarmUp extends PoNode {
        NewWarmUp() {
            super("EntryNewWarmUp");
        }
    }

    /** Calls a private native method of the class on the receiver with the arguments. */
    private static Object invoke(Class<?> declaring, String name, PoNode receiver, Object... args) throws Throwable {
        for (Method m : declaring.getDeclaredMethods()) {
            if (m.getName().equals(name)) {
                m.setAccessible(true);
                try {
                    return m.invoke(receiver, args);
                } catch (InvocationTargetException e) {
                    throw e.getCause();
                }
            }
        }
        throw new AssertionError("no method " + name);
    }

    private static long h(PoNode node) {
        return node.getNativeResourceHandleInternal();
    }

    /** The calls of raising java.lang.IllegalAccessException with the message. */
    private static List<String> refusal(String message) {
        return List.of(
                "FindClass(\"java/lang/IllegalAccessException\") -> Ljava/lang/IllegalAccessException;",
                "ThrowNew(Ljava/lang/IllegalAccessException;, \"" + message + "\") -> 0",
                "DeleteLocalRef()");
    }

    /** Entry point, receiver class, and its call on a node handle. */
    interface Entry {
        Object call(PoNode receiver, long node) throws Throwable;
    }

    static Stream<Arguments> pureVirtualGuards() {
        long action = new SoGLRenderAction().getNativeResourceHandleInternal();
        Entry doAction = (receiver, node) -> invoke(PoNode.class, "doActionImpl", receiver, node, action);
        Entry acceptCell = (receiver, node) -> invoke(PoCellFilter.class, "acceptCellImpl", receiver, node, 4, 0.5f);
        Supplier<PoNode> javaNode = PlainNode::new;
        Supplier<PoNode> javaFilter = PlainFilter::new;
        return Stream.of(
                Arguments.of("PoNode.doActionImpl on a Java node", doAction, javaNode, 0L,
                        "Call of a pure virtual method: PoNode::doAction", List.of()),
                Arguments.of("PoNode.doActionImpl on a Java cell filter", doAction, javaFilter, 0L,
                        "Call of a pure virtual method: PoNode::doAction", List.of()),
                Arguments.of("PoCellFilter.acceptCellImpl on a Java cell filter", acceptCell, javaFilter, 0L,
                        "Call of a pure virtual method: PoCellFilter::acceptCell", List.of()),
                Arguments.of("PoNode.doActionImpl on a toolkit node", doAction, javaNode, Nodes.newToolkitNode(),
                        "", List.of(toolkit("ToolkitNode::doAction"))),
                Arguments.of("PoCellFilter.acceptCellImpl on a toolkit filter", acceptCell, javaFilter,
                        Nodes.newOddCellFilter(), "", List.of()));
    }

    /**
     * On a Java node or filter: FindClass and ThrowNew, nothing else (no toolkit call); on a
     * toolkit node of another class the operation runs without a JNI call (the toolkit's own
     * operation alone; the odd-cell filter's acceptCell calls nothing that keeps a journal).
     */
    @ParameterizedTest(name = "{0}")
    @MethodSource("pureVirtualGuards")
    void pureVirtualOperationsAreRefusedWithOneExceptionAndNothingElse(String name, Entry entry,
            Supplier<PoNode> receiver, long toolkitNode, String message, List<String> toolkitCalls) {
        PoNode node = receiver.get();
        try {
            long target = toolkitNode != 0 ? toolkitNode : h(node);
            if (message.isEmpty()) {
                assertEquals(toolkitCalls, toolkitByName(JniCalls.recordWithToolkit(() -> entry.call(node, target))
                        .calls()));
            } else {
                JniCalls.recordThrowing(() -> entry.call(node, target));
                JniCalls.Recording r = JniCalls.recordThrowingWithToolkit(() -> entry.call(node, target));
                assertInstanceOf(IllegalAccessException.class, r.thrown());
                assertEquals(message, r.thrown().getMessage());
                assertEquals(refusal(message), toolkitByName(r.calls()));
            }
        } finally {
            node.dispose();
        }
    }

    /**
     * The toolkit's write of a node asks the node for its file format name: a forwarded call
     * (whose Java default is the binding core's, which gives the type name).
     */
    private static List<String> fileFormatNameAsked(String typeName) {
        return sequence(GET_ENV, "ExceptionCheck() -> false", "NewLocalRef()",
                "CallObjectMethodV(getFileFormatName()Ljava/lang/String;)", newString(typeName),
                "ExceptionCheck() -> false", readString(typeName.length()), "DeleteLocalRef()", "DeleteLocalRef()");
    }

    /** The toolkit's own operation of the class, alone. */
    private static List<String> only(String operation) {
        return List.of(toolkit(operation));
    }

    static Stream<Arguments> toolkitBehaviour() {
        return Stream.of(
                Arguments.of(PoNode.class, "callbackImpl", (Supplier<SoAction>) SoCallbackAction::new,
                        only("PoNode::callback")),
                Arguments.of(PoNode.class, "GLRenderImpl", (Supplier<SoAction>) SoGLRenderAction::new,
                        only("PoNode::GLRender")),
                Arguments.of(PoNode.class, "getBoundingBoxImpl", (Supplier<SoAction>) SoGetBoundingBoxAction::new,
                        only("PoNode::getBoundingBox")),
                Arguments.of(PoNode.class, "getMatrixImpl", (Supplier<SoAction>) SoGetMatrixAction::new,
                        only("PoNode::getMatrix")),
                Arguments.of(PoNode.class, "handleEventImpl", (Supplier<SoAction>) SoHandleEventAction::new,
                        only("PoNode::handleEvent")),
                Arguments.of(PoNode.class, "pickImpl", (Supplier<SoAction>) SoPickAction::new, only("PoNode::pick")),
                Arguments.of(PoNode.class, "searchImpl", (Supplier<SoAction>) SoSearchAction::new,
                        only("PoNode::search")),
                Arguments.of(PoNode.class, "writeImpl", (Supplier<SoAction>) SoWriteAction::new,
                        sequence(toolkit("PoNode::write"), fileFormatNameAsked("EntryPlainNode"))),
                Arguments.of(PoNode.class, "getPrimitiveCountImpl", (Supplier<SoAction>) SoGetPrimitiveCountAction::new,
                        only("PoNode::getPrimitiveCount")),
                Arguments.of(PoCellFilter.class, "doActionImpl", (Supplier<SoAction>) SoGLRenderAction::new,
                        only("PoCellFilter::doAction")),
                Arguments.of(PoCellFilter.class, "writeImpl", (Supplier<SoAction>) SoWriteAction::new,
                        only("PoCellFilter::write")));
    }

    /**
     * The toolkit's own behaviour of a Java node never calls the Java method of the same
     * operation: the toolkit's operation of the base class, once, and no JNI call, but for the
     * file format name that the toolkit's write asks, inside it.
     */
    @ParameterizedTest(name = "{0}.{1}")
    @MethodSource("toolkitBehaviour")
    void toolkitBehaviourOfAJavaNodeDoesNotCallJavaBack(Class<?> declaring, String method,
            Supplier<SoAction> action, List<String> expected) throws Exception {
        PoNode node = declaring == PoCellFilter.class ? new PlainFilter() : new PlainNode();
        try (SoAction a = action.get()) {
            long handle = a.getNativeResourceHandleInternal();
            JniCalls.record(() -> invoke(declaring, method, node, h(node), handle));
            JniCalls.Recording r = JniCalls.recordWithToolkit(() -> invoke(declaring, method, node, h(node), handle));
            assertEquals(expected, toolkitByName(r.calls()));
        } finally {
            node.dispose();
        }
    }

    static Stream<Arguments> javaClasses() {
        return Stream.of(Arguments.of("EntryPlainNode", (Supplier<PoNode>) PlainNode::new),
                Arguments.of("EntryPlainFilter", (Supplier<PoNode>) PlainFilter::new));
    }

    /**
     * A new node (of a class whose type exists: its first object made it): the toolkit constructs
     * it (under its initializer guard); its Java object registers as the peer of its address (the
     * binding core's table keeps a weak global reference to it, so that native code finds it
     * without calling Java); initCustomClass reads the type name, finds the type by name (no new
     * type, no action-method index) and stores its peer as one weak global reference;
     * initCustomRenderEngineMode asks the peer for its render mode (a forwarded call whose
     * enumeration result is converted). Disposing the node unregisters it and frees it: the
     * node's weak reference is released at once, the table's with the table's next batch.
     */
    @ParameterizedTest(name = "{0}")
    @MethodSource("javaClasses")
    void aNodeTakesOneWeakReferenceToItsPeerAndAsksItsRenderMode(String typeName, Supplier<PoNode> make) {
        make.get().dispose();
        PoNode[] made = new PoNode[1];
        JniCalls.Recording r = JniCalls.recordWithToolkit(() -> made[0] = make.get());
        assertEquals(sequence(toolkit("SoBaseInitializer::SoBaseInitializer"), "NewWeakGlobalRef()",
                readString(typeName.length()), toolkit("SoType::fromName"), "NewWeakGlobalRef()",
                GET_ENV, "ExceptionCheck() -> false", "NewLocalRef()",
                "CallObjectMethodV(getRenderEngineMode()" + RENDER_MODES + ")",
                "ExceptionCheck() -> false", enumValue(RENDER_MODES, 0), "ExceptionOccurred() -> null",
                "DeleteLocalRef()", "DeleteLocalRef()"), toolkitByName(r.calls()));
        assertEquals(2, r.weakGlobalReferencesCreated());
        assertEquals(0, r.globalReferencesCreated());

        JniCalls.Recording disposal = JniCalls.record(made[0]::dispose);
        assertEquals(1, disposal.weakGlobalReferencesDeleted());
        assertEquals(0, disposal.globalReferencesDeleted());
        assertEquals(0, disposal.weakGlobalReferencesCreated() + disposal.globalReferencesCreated());
    }
    static Stream<Arguments> newClasses() {
        return Stream.of(Arguments.of("EntryNewNode", "PoNode", (Supplier<PoNode>) NewNode::new),
                Arguments.of("EntryNewFilter", "PoCellFilter", (Supplier<PoNode>) NewFilter::new));
    }

    /**
     * The first node of a class creates its type: as a later node, but initCustomClass takes the
     * next action-method index, makes a new type under the toolkit class's type with it, and
     * moves the index on (the toolkit's calls, after the name is read and before the peer's
     * reference).
     */
    @ParameterizedTest(name = "{0}")
    @MethodSource("newClasses")
    void aNodeOfANewClassCreatesItsType(String typeName, String toolkitClass, Supplier<PoNode> make) {
        new PlainNode().dispose(); // the classes registered
        new PlainFilter().dispose();
        synchronized (NewWarmUp.class) {
            new NewWarmUp().dispose();
        }
        PoNode[] made = new PoNode[1];
        List<String> calls = toolkitByName(JniCalls.recordWithToolkit(() -> made[0] = make.get()).calls());
        try {
            assertEquals(sequence(toolkit("SoBaseInitializer::SoBaseInitializer"), "NewWeakGlobalRef()",
                    readString(typeName.length()), toolkit("SoNode::getNextActionMethodIndex"),
                    toolkit(toolkitClass + "::getClassTypeId"), toolkit("SoType::createType"),
                    toolkit("SoNode::incNextActionMethodIndex"), "NewWeakGlobalRef()",
                    GET_ENV, "ExceptionCheck() -> false", "NewLocalRef()",
                    "CallObjectMethodV(getRenderEngineMode()" + RENDER_MODES + ")",
                    "ExceptionCheck() -> false", enumValue(RENDER_MODES, 0), "ExceptionOccurred() -> null",
                    "DeleteLocalRef()", "DeleteLocalRef()"), calls, typeName);
        } finally {
            made[0].dispose();
        }
    }
}

