package com.kestrum.tavrel.nodes;

import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertInstanceOf;
import static org.junit.jupiter.api.Assertions.assertThrows;
import static org.junit.jupiter.api.Assertions.assertTrue;

import com.kestrum.tavrel.testkit.Nodes;
import java.util.Arrays;
import java.util.List;
import java.util.Set;
import java.util.TreeSet;
import java.util.stream.Collectors;
import java.util.stream.Stream;
import org.junit.jupiter.api.AfterAll;
import org.junit.jupiter.api.BeforeAll;
import org.junit.jupiter.api.Test;
import org.junit.jupiter.params.ParameterizedTest;
import org.junit.jupiter.params.provider.Arguments;
import org.junit.jupiter.params.provider.MethodSource;

/**
 * Every forwarded operation of the Java-extensible node, called by the toolkit: it reaches the
 * Java override with converted arguments and gives the override's result to the toolkit; when
 * the override throws, the toolkit gets the row's value and an IllegalArgumentException with
 * the operation's message is left pending.
 */
class ForwardingTest {
    private static ScriptedNode node;

    @BeforeAll
    static void makeNode() {
        node = new ScriptedNode();
    }

    @AfterAll
    static void disposeNode() {
        node.dispose();
    }

    /** Operation, what the override sees, the toolkit's result, its result when the override throws. */
    static Stream<Arguments> rows() {
        return Stream.of(
                Arguments.of("touch", "touch", "", ""),
                Arguments.of("getName", "getName", "\"javaName\"", "\"\""),
                Arguments.of("setName", "setName renamed", "", ""),
                Arguments.of("getFileFormatName", "getFileFormatName", "\"JavaFormat\"", "null"),
                Arguments.of("readInstance", "readInstance SoInput 3", "true", "false"),
                Arguments.of("getField", "getField f", "<field>", "null"),
                Arguments.of("getEventIn", "getEventIn f", "<field>", "null"),
                Arguments.of("getEventOut", "getEventOut f", "<field>", "null"),
                Arguments.of("setOverride", "setOverride true", "", ""),
                Arguments.of("isOverride", "isOverride", "true", "false"),
                Arguments.of("copy", "copy true", "<self>", "null"),
                Arguments.of("affectsState", "affectsState", "true", "false"),
                Arguments.of("internalAddChild", "internalAddChild Group", "", ""),
                Arguments.of("getAlternateRep", "getAlternateRep SoAction", "<self>", "null"),
                Arguments.of("isBoundingBoxIgnoring", "isBoundingBoxIgnoring", "true", "false"),
                Arguments.of("doAction", "doAction SoAction", "", ""),
                Arguments.of("GLRender", "GLRender SoGLRenderAction", "", ""),
                Arguments.of("callback", "callback SoCallbackAction", "", ""),
                Arguments.of("getBoundingBox", "getBoundingBox SoGetBoundingBoxAction", "", ""),
                Arguments.of("getMatrix", "getMatrix SoGetMatrixAction", "", ""),
                Arguments.of("handleEvent", "handleEvent SoHandleEventAction", "", ""),
                Arguments.of("pick", "pick SoPickAction", "", ""),
                Arguments.of("rayPick", "rayPick SoRayPickAction", "", ""),
                Arguments.of("search", "search SoSearchAction", "", ""),
                Arguments.of("write", "write SoWriteAction", "", ""),
                Arguments.of("getPrimitiveCount", "getPrimitiveCount SoGetPrimitiveCountAction", "", ""),
                Arguments.of("distribute", "distribute SoDistributeAction", "", ""),
                Arguments.of("GLRenderBelowPath", "GLRenderBelowPath SoGLRenderAction", "", ""),
                Arguments.of("GLRenderInPath", "GLRenderInPath SoGLRenderAction", "", ""),
                Arguments.of("GLRenderOffPath", "GLRenderOffPath SoGLRenderAction", "", ""),
                Arguments.of("grabEventsSetup", "grabEventsSetup", "", ""),
                Arguments.of("grabEventsCleanup", "grabEventsCleanup", "", ""),
                Arguments.of("getRenderUnitID", "getRenderUnitID", "42", "0"));
    }

    private static String expected(String pattern) {
        return pattern.replace("<self>", Long.toString(node.getNativeResourceHandleInternal()))
                .replace("<field>", Long.toString(node.field));
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("rows")
    void overrideIsCalledAndItsResultReachesTheToolkit(String operation, String seen, String result, String ignored) {
        node.failing = null;
        node.calls.clear();
        assertEquals(expected(result), Nodes.call(node.getNativeResourceHandleInternal(), operation));
        assertEquals(List.of(seen), node.calls);
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("rows")
    void exceptionIsWrappedWithTheOperationsMessage(String operation, String seen, String ignored, String result) {
        node.failing = operation;
        node.calls.clear();
        IllegalArgumentException e = assertThrows(IllegalArgumentException.class,
                () -> Nodes.invoke(node.getNativeResourceHandleInternal(), operation));
        assertEquals("Exception raised during execution of CustomPoNode." + operation + ".", e.getMessage());
        assertInstanceOf(RuntimeException.class, e.getCause());
        assertEquals("boom " + operation, e.getCause().getMessage());
        assertEquals(result, Nodes.lastResult());
        assertEquals(List.of(seen), node.calls);
    }

    @Test
    void everyForwardedOperationIsInTheTable() {
        Set<String> table = rows().map(a -> (String) a.get()[0]).collect(Collectors.toCollection(TreeSet::new));
        Set<String> known = new TreeSet<>(Arrays.asList(Nodes.operationNames()));
        known.remove("acceptCell");
        assertEquals(known, table);
        assertTrue(table.size() >= 33);
    }

    @Test
    void objectResultThatIsNullGivesNullAndNoException() {
        PoNode nullField = new PoNode("NullFieldNode") {
            @Override
            public com.kestrum.corvel.fields.SoField getField(String name) {
                return null;
            }

            @Override
            public String getFileFormatName() {
                return null;
            }

            @Override
            public String getName() {
                return null;
            }
        };
        try {
            long h = nullField.getNativeResourceHandleInternal();
            assertEquals("null", Nodes.call(h, "getField"));
            assertEquals("null", Nodes.call(h, "getFileFormatName"));
            assertEquals("\"\"", Nodes.call(h, "getName"));
        } finally {
            nullField.dispose();
        }
    }
}
