package com.kestrum.tavrel.nodes;

import static com.kestrum.tavrel.testkit.CoreCalls.GET_ENV;
import static com.kestrum.tavrel.testkit.CoreCalls.managedObject;
import static com.kestrum.tavrel.testkit.CoreCalls.newString;
import static com.kestrum.tavrel.testkit.CoreCalls.readString;
import static com.kestrum.tavrel.testkit.CoreCalls.sequence;
import static com.kestrum.tavrel.testkit.CoreCalls.throwIllegalArgument;
import static com.kestrum.tavrel.testkit.CoreCalls.times;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertInstanceOf;

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
import com.kestrum.corvel.misc.ManagedObjects;
import com.kestrum.corvel.nodes.SoGroup;
import com.kestrum.corvel.nodes.SoNode;
import com.kestrum.tavrel.testkit.JniCalls;
import com.kestrum.tavrel.testkit.Nodes;
import java.util.ArrayList;
import java.util.List;
import java.util.Set;
import java.util.stream.Stream;
import org.junit.jupiter.api.AfterAll;
import org.junit.jupiter.api.BeforeAll;
import org.junit.jupiter.api.Test;
import org.junit.jupiter.params.ParameterizedTest;
import org.junit.jupiter.params.provider.Arguments;
import org.junit.jupiter.params.provider.MethodSource;

/**
 * The JNI calls of every forwarded operation of the Java-extensible node and cell filter, as the
 * toolkit makes it: one environment lookup, the pending-exception check, a local reference to
 * the peer, the argument's conversion, the one Java call, its exception check (for object
 * results: the check -Xcheck:jni asks for, then the handle of the result), and the local
 * references deleted.
 */
class ForwardedCallsTest {
    private static final String ACTIONS = "com.kestrum.corvel.actions.";
    private static final long FIELD = Nodes.newField("quietField");

    private static SoField field() {
        return (SoField) ManagedObjects.get("com.kestrum.corvel.fields.SoField", FIELD);
    }

    /** Overrides every operation with one that only returns a value, or throws when failing. */
    static final class QuietNode extends PoNode {
        String failing;

        QuietNode() {
            super("QuietNode");
        }

        private void enter(String operation) {
            if (operation.equals(failing)) {
                throw new IllegalStateException(operation);
            }
        }

        @Override public void touch() { enter("touch"); }
        @Override public String getName() { enter("getName"); return "javaName"; }
        @Override public void setName(String name) { enter("setName"); }
        @Override public String getFileFormatName() { enter("getFileFormatName"); return "JavaFormat"; }
        @Override public boolean readInstance(SoInput in, short flags) { enter("readInstance"); return true; }
        @Override public SoField getField(String name) { enter("getField"); return field(); }
        @Override public SoField getEventIn(String name) { enter("getEventIn"); return field(); }
        @Override public SoField getEventOut(String name) { enter("getEventOut"); return field(); }
        @Override public void setOverride(boolean state) { enter("setOverride"); }
        @Override public boolean isOverride() { enter("isOverride"); return true; }
        @Override public SoNode copy(boolean copyConnections) { enter("copy"); return this; }
        @Override public boolean affectsState() { enter("affectsState"); return true; }
        @Override protected void internalAddChild(SoNode child) { enter("internalAddChild"); }
        @Override public SoNode getAlternateRep(SoAction action) { enter("getAlternateRep"); return this; }
        @Override public boolean isBoundingBoxIgnoring() { enter("isBoundingBoxIgnoring"); return true; }
        @Override public void doAction(SoAction action) { enter("doAction"); }
        @Override public void GLRender(SoGLRenderAction action) { enter("GLRender"); }
        @Override public void callback(SoCallbackAction action) { enter("callback"); }
        @Override public void getBoundingBox(SoGetBoundingBoxAction action) { enter("getBoundingBox"); }
        @Override public void getMatrix(SoGetMatrixAction action) { enter("getMatrix"); }
        @Override public void handleEvent(SoHandleEventAction action) { enter("handleEvent"); }
        @Override public void pick(SoPickAction action) { enter("pick"); }
        @Override public void rayPick(SoRayPickAction action) { enter("rayPick"); }
        @Override public void search(SoSearchAction action) { enter("search"); }
        @Override public void write(SoWriteAction action) { enter("write"); }
        @Override public void getPrimitiveCount(SoGetPrimitiveCountAction action) { enter("getPrimitiveCount"); }
        @Override public void distribute(SoDistributeAction action) { enter("distribute"); }
        @Override public void GLRenderBelowPath(SoGLRenderAction action) { enter("GLRenderBelowPath"); }
        @Override public void GLRenderInPath(SoGLRenderAction action) { enter("GLRenderInPath"); }
        @Override public void GLRenderOffPath(SoGLRenderAction action) { enter("GLRenderOffPath"); }
        @Override public void grabEventsSetup() { enter("grabEventsSetup"); }
        @Override public void grabEventsCleanup() { enter("grabEventsCleanup"); }
        @Override public int getRenderUnitID() { enter("getRenderUnitID"); return 42; }
    }

    /** A cell filter with quiet overrides of acceptCell and of one operation of each kind. */
    static final class QuietFilter extends PoCellFilter {
        static final Set<String> OPERATIONS = Set.of("acceptCell", "touch", "getName", "setName",
                "getFileFormatName", "getField", "copy", "isOverride", "GLRender", "getRenderUnitID");
        String failing;

        QuietFilter() {
            super("QuietFilter");
        }

        private void enter(String operation) {
            if (operation.equals(failing)) {
                throw new IllegalStateException(operation);
            }
        }

        @Override public boolean acceptCell(int cellIndex, float value) { enter("acceptCell"); return true; }
        @Override public void touch() { enter("touch"); }
        @Override public String getName() { enter("getName"); return "javaName"; }
        @Override public void setName(String name) { enter("setName"); }
        @Override public String getFileFormatName() { enter("getFileFormatName"); return "JavaFormat"; }
        @Override public SoField getField(String name) { enter("getField"); return field(); }
        @Override public SoNode copy(boolean copyConnections) { enter("copy"); return this; }
        @Override public boolean isOverride() { enter("isOverride"); return true; }
        @Override public void GLRender(SoGLRenderAction action) { enter("GLRender"); }
        @Override public int getRenderUnitID() { enter("getRenderUnitID"); return 42; }
    }

    private static QuietNode node;
    private static QuietFilter filter;

    @BeforeAll
    static void makeNodes() {
        node = new QuietNode();
        filter = new QuietFilter();
    }

    @AfterAll
    static void disposeNodes() {
        node.dispose();
        filter.dispose();
    }

    /** One forwarded operation as the toolkit makes it (testkit.Nodes with fixed arguments). */
    record Row(String operation, List<String> conversion, String javaCall, Kind kind) {
        /** The whole sequence on a node whose handle (an object row's result) is given. */
        List<String> calls(long self) {
            List<String> after = switch (kind) {
                case VALUE -> List.of("ExceptionOccurred() -> null");
                case FIELD -> List.of("ExceptionCheck() -> false", handleCall(FIELD));
                case SELF -> List.of("ExceptionCheck() -> false", handleCall(self));
                case FORMAT -> sequence("ExceptionCheck() -> false", readString("JavaFormat".length()));
                case NAME -> sequence("ExceptionOccurred() -> null", readString("javaName".length()));
            };
            int locals = conversion.size() > 0 ? 1 : 0;
            locals += kind == Kind.VALUE ? 0 : 1; // an object result
            return sequence(readString(operation.length()), GET_ENV, "ExceptionCheck() -> false", "NewLocalRef()",
                    conversion, javaCall, after, times(locals + 1, "DeleteLocalRef()"));
        }

        /** The sequence when the Java method throws. */
        List<String> failingCalls(String customClass) {
            int locals = conversion.size() > 0 ? 1 : 0;
            return sequence(readString(operation.length()), GET_ENV, "ExceptionCheck() -> false", "NewLocalRef()",
                    conversion, javaCall.replace(" -> true", " -> false").replace(" -> 42", " -> 0")
                            + (kind == Kind.VALUE ? "" : " -> null"),
                    "ExceptionOccurred()",
                    throwIllegalArgument("Exception raised during execution of " + customClass + "." + operation + "."),
                    "DeleteLocalRef()", times(locals + 1, "DeleteLocalRef()"));
        }

        @Override
        public String toString() {
            return operation;
        }
    }

    /** How the Java result is handled. */
    enum Kind { VALUE, FIELD, SELF, FORMAT, NAME }

    private static String handleCall(long handle) {
        return "CallLongMethodV(getNativeResourceHandleInternal()J) -> " + handle;
    }

    private static Row voidRow(String op, String signature, List<String> conversion) {
        return new Row(op, conversion, "CallVoidMethodV(" + op + signature + ")", Kind.VALUE);
    }

    private static Row actionRow(String op, String actionClass) {
        return voidRow(op, "(L" + (ACTIONS + actionClass).replace('.', '/') + ";)V", managedObject(ACTIONS + actionClass));
    }

    private static Row booleanRow(String op, String signature, List<String> conversion) {
        return new Row(op, conversion, "CallBooleanMethodV(" + op + signature + ") -> true", Kind.VALUE);
    }

    private static Row objectRow(String op, String signature, List<String> conversion, Kind kind) {
        return new Row(op, conversion, "CallObjectMethodV(" + op + signature + ")", kind);
    }

    static List<Row> rows() {
        String fieldResult = "(Ljava/lang/String;)Lcom/kestrum/corvel/fields/SoField;";
        List<Row> rows = new ArrayList<>(List.of(
                voidRow("touch", "()V", List.of()),
                objectRow("getName", "()Ljava/lang/String;", List.of(), Kind.NAME),
                voidRow("setName", "(Ljava/lang/String;)V", newString("renamed")),
                objectRow("getFileFormatName", "()Ljava/lang/String;", List.of(), Kind.FORMAT),
                booleanRow("readInstance", "(Lcom/kestrum/corvel/SoInput;S)Z", managedObject("com.kestrum.corvel.SoInput")),
                objectRow("getField", fieldResult, newString("f"), Kind.FIELD),
                objectRow("getEventIn", fieldResult, newString("f"), Kind.FIELD),
                objectRow("getEventOut", fieldResult, newString("f"), Kind.FIELD),
                voidRow("setOverride", "(Z)V", List.of()),
                booleanRow("isOverride", "()Z", List.of()),
                objectRow("copy", "(Z)Lcom/kestrum/corvel/nodes/SoNode;", List.of(), Kind.SELF),
                booleanRow("affectsState", "()Z", List.of()),
                voidRow("internalAddChild", "(Lcom/kestrum/corvel/nodes/SoNode;)V",
                        managedObject("com.kestrum.corvel.nodes.SoNode")),
                objectRow("getAlternateRep",
                        "(Lcom/kestrum/corvel/actions/SoAction;)Lcom/kestrum/corvel/nodes/SoNode;",
                        managedObject(ACTIONS + "SoAction"), Kind.SELF),
                booleanRow("isBoundingBoxIgnoring", "()Z", List.of()),
                actionRow("doAction", "SoAction"),
                actionRow("GLRender", "SoGLRenderAction"),
                actionRow("callback", "SoCallbackAction"),
                actionRow("getBoundingBox", "SoGetBoundingBoxAction"),
                actionRow("getMatrix", "SoGetMatrixAction"),
                actionRow("handleEvent", "SoHandleEventAction"),
                actionRow("pick", "SoPickAction"),
                actionRow("rayPick", "SoRayPickAction"),
                actionRow("search", "SoSearchAction"),
                actionRow("write", "SoWriteAction"),
                actionRow("getPrimitiveCount", "SoGetPrimitiveCountAction"),
                actionRow("distribute", "SoDistributeAction"),
                actionRow("GLRenderBelowPath", "SoGLRenderAction"),
                actionRow("GLRenderInPath", "SoGLRenderAction"),
                actionRow("GLRenderOffPath", "SoGLRenderAction"),
                voidRow("grabEventsSetup", "()V", List.of()),
                voidRow("grabEventsCleanup", "()V", List.of()),
                new Row("getRenderUnitID", List.of(), "CallIntMethodV(getRenderUnitID()I) -> 42", Kind.VALUE)));
        return rows;
    }

    static Stream<Row> nodeRows() {
        return rows().stream();
    }

    static Stream<Row> filterRows() {
        Row acceptCell = new Row("acceptCell", List.of(), "CallBooleanMethodV(acceptCell(IF)Z) -> true", Kind.VALUE);
        return Stream.concat(Stream.of(acceptCell),
                rows().stream().filter(r -> QuietFilter.OPERATIONS.contains(r.operation())));
    }

    private static JniCalls.Recording call(PoNode target, String operation) {
        long h = target.getNativeResourceHandleInternal();
        JniCalls.record(() -> Nodes.invoke(h, operation)); // the first run may load classes
        return JniCalls.record(() -> Nodes.invoke(h, operation));
    }

    private static JniCalls.Recording failingCall(PoNode target, String operation) {
        long h = target.getNativeResourceHandleInternal();
        JniCalls.recordThrowing(() -> Nodes.invoke(h, operation));
        JniCalls.Recording r = JniCalls.recordThrowing(() -> Nodes.invoke(h, operation));
        assertInstanceOf(IllegalArgumentException.class, r.thrown());
        return r;
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("nodeRows")
    void nodeOperation(Row row) {
        node.failing = null;
        JniCalls.Recording r = call(node, row.operation());
        assertEquals(row.calls(node.getNativeResourceHandleInternal()), r.calls());
        assertEquals(r.localReferencesCreated(), r.localReferencesDeleted(), "no local reference is left");
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("filterRows")
    void filterOperation(Row row) {
        filter.failing = null;
        JniCalls.Recording r = call(filter, row.operation());
        assertEquals(row.calls(filter.getNativeResourceHandleInternal()), r.calls());
        assertEquals(r.localReferencesCreated(), r.localReferencesDeleted(), "no local reference is left");
    }

    /** When the Java method throws: its exception reported as the cause of the operation's own. */
    @ParameterizedTest(name = "{0}")
    @MethodSource("nodeRows")
    void nodeOperationThatThrows(Row row) {
        node.failing = row.operation();
        try {
            assertEquals(row.failingCalls("CustomPoNode"), failingCall(node, row.operation()).calls());
        } finally {
            node.failing = null;
        }
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("filterRows")
    void filterOperationThatThrows(Row row) {
        filter.failing = row.operation();
        try {
            assertEquals(row.failingCalls("CustomPoCellFilter"), failingCall(filter, row.operation()).calls());
        } finally {
            filter.failing = null;
        }
    }

    /**
     * Later operations of a traversal in which an override threw find the exception pending:
     * they look it up and call nothing else.
     */
    @Test
    void anOperationCalledWhileAnExceptionIsPendingMakesNoOtherCall() {
        QuietNode first = new QuietNode();
        QuietNode second = new QuietNode();
        first.failing = "GLRender";
        try (SoGroup root = new SoGroup(); SoGLRenderAction render = new SoGLRenderAction()) {
            root.addChild(first);
            root.addChild(second);
            JniCalls.recordThrowing(() -> render.apply(root));
            JniCalls.Recording r = JniCalls.recordThrowing(() -> render.apply(root));
            assertInstanceOf(IllegalArgumentException.class, r.thrown());
            List<String> calls = r.calls();
            assertEquals(1, r.count("CallVoidMethodV"), calls.toString());
            assertEquals(List.of(GET_ENV, "ExceptionCheck() -> true"), calls.subList(calls.size() - 2, calls.size()));
        } finally {
            first.dispose();
            second.dispose();
        }
    }
}
