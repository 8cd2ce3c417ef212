package com.kestrum.tavrel.nodes;

import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertFalse;
import static org.junit.jupiter.api.Assertions.assertInstanceOf;
import static org.junit.jupiter.api.Assertions.assertNotEquals;
import static org.junit.jupiter.api.Assertions.assertNull;
import static org.junit.jupiter.api.Assertions.assertSame;
import static org.junit.jupiter.api.Assertions.assertThrows;
import static org.junit.jupiter.api.Assertions.assertTrue;

import com.kestrum.corvel.actions.SoAction;
import com.kestrum.corvel.actions.SoCallbackAction;
import com.kestrum.corvel.actions.SoGLRenderAction;
import com.kestrum.corvel.actions.SoWriteAction;
import com.kestrum.corvel.misc.ManagedObjects;
import com.kestrum.corvel.nodes.SoGroup;
import com.kestrum.corvel.nodes.SoNode;
import com.kestrum.tavrel.testkit.Journal;
import com.kestrum.tavrel.testkit.Nodes;
import com.kestrum.tavrel.testkit.Toolkit;
import java.lang.ref.WeakReference;
import java.lang.reflect.Method;
import java.util.ArrayList;
import java.util.List;
import java.util.concurrent.atomic.AtomicInteger;
import java.util.stream.Collectors;
import org.junit.jupiter.api.Test;
import org.junit.jupiter.params.ParameterizedTest;
import org.junit.jupiter.params.provider.CsvSource;

/** Java nodes in real toolkit traversals, their types, their creation and their lifetime. */
class PoNodeTest {
    /** Counts the render traversals that reach it and lets the toolkit go on below it. */
    static final class CountingNode extends PoNode {
        final List<String> seen = new ArrayList<>();

        CountingNode(String name) {
            super("CountingNode");
            setName(name);
        }

        @Override
        public void GLRender(SoGLRenderAction action) {
            seen.add(getName());
            super.GLRender(action);
        }
    }

    /** Overrides nothing but doAction's absence: every operation reaches the toolkit. */
    static final class PlainNode extends PoNode {
        PlainNode() {
            super("PlainNode");
        }
    }

    /** Throws from GLRender with its own message, after counting the call. */
    static final class FailingNode extends PoNode {
        final String message;
        int calls;

        FailingNode(String message) {
            super("FailingNode");
            this.message = message;
        }

        @Override
        public void GLRender(SoGLRenderAction action) {
            calls++;
            throw new IllegalStateException(message);
        }
    }

    private static long h(SoNode n) {
        return n.getNativeResourceHandleInternal();
    }

    @Test
    void renderTraversalReachesOverridesAndSuperTraversesTheChildren() {
        try (CountingNode parent = new CountingNode("parent");
                CountingNode child1 = new CountingNode("child1");
                CountingNode child2 = new CountingNode("child2");
                SoGroup root = new SoGroup();
                SoGLRenderAction render = new SoGLRenderAction()) {
            assertEquals(-1, Nodes.numChildren(h(parent)), "no child list before the first child");
            Nodes.addChild(h(parent), h(child1));
            Nodes.addChild(h(parent), h(child2));
            assertEquals(2, Nodes.numChildren(h(parent)));
            root.addChild(parent);
            root.addChild(child2);

            Journal.start();
            render.apply(root);
            List<String> journal = Journal.stop();

            assertEquals(List.of("parent"), parent.seen);
            assertEquals(List.of("child1"), child1.seen);
            assertEquals(List.of("child2", "child2"), child2.seen, "under the parent and under the group");
            assertEquals(4, journal.stream().filter(l -> l.startsWith("PoNode::GLRender(")).count(),
                    "one toolkit call per super call: " + journal);
            assertEquals(5, render.getNodesTraversed());
        }
    }

    @Test
    void overridesReceiveTheJavaActionThatWasApplied() {
        List<SoAction> received = new ArrayList<>();
        try (PoNode node = new PoNode("ActionReceiver") {
                    @Override
                    public void callback(SoCallbackAction action) {
                        received.add(action);
                    }
                };
                SoCallbackAction action = new SoCallbackAction()) {
            action.apply(node);
            assertEquals(1, received.size());
            assertSame(action, received.get(0));
        }
    }

    /** Operation on a node that overrides nothing, its result, and the toolkit calls it makes. */
    @ParameterizedTest(name = "{0}")
    @CsvSource(delimiter = '|', value = {
        "touch             | ''        | SoBase::touch()",
        "setName           | ''        | SoBase::setName(\"renamed\")",
        "getFileFormatName | \"PlainNode\" | ''",
        "readInstance      | false     | SoFieldContainer::readInstance",
        "getField          | null      | SoFieldContainer::getField(\"f\")",
        "getEventIn        | null      | SoFieldContainer::getEventIn(\"f\")",
        "getEventOut       | null      | SoFieldContainer::getEventOut(\"f\")",
        "setOverride       | ''        | SoNode::setOverride(1)",
        "affectsState      | true      | ''",
        "getAlternateRep   | null      | ''",
        "isBoundingBoxIgnoring | false | ''",
        "GLRender          | ''        | PoNode::GLRender",
        "callback          | ''        | PoNode::callback",
        "getBoundingBox    | ''        | PoNode::getBoundingBox",
        "getMatrix         | ''        | PoNode::getMatrix",
        "handleEvent       | ''        | PoNode::handleEvent",
        "pick              | ''        | PoNode::pick",
        "rayPick           | ''        | PoNode::pick",
        "search            | ''        | PoNode::search",
        "write             | ''        | PoNode::write",
        "getPrimitiveCount | ''        | PoNode::getPrimitiveCount",
        "distribute        | ''        | ''",
        "GLRenderBelowPath | ''        | PoNode::GLRender",
        "GLRenderInPath    | ''        | PoNode::GLRender",
        "GLRenderOffPath   | ''        | ''",
        "grabEventsSetup   | ''        | ''",
        "grabEventsCleanup | ''        | ''",
        "getRenderUnitID   | 0         | ''",
    })
    void javaDefaultsReachTheToolkitOnceWithoutRecursion(String operation, String result, String call) {
        try (PlainNode node = new PlainNode()) {
            Journal.start();
            assertEquals(result, Nodes.call(h(node), operation));
            List<String> journal = Journal.stop();
            if (!call.isEmpty()) {
                assertEquals(1, journal.stream().filter(l -> l.startsWith(call)).count(), journal.toString());
            }
        }
    }

    @Test
    void javaDefaultsKeepTheToolkitsState() {
        try (PlainNode node = new PlainNode()) {
            Nodes.call(h(node), "setName");
            assertEquals("\"renamed\"", Nodes.call(h(node), "getName"));
            assertEquals("renamed", node.getName());
            assertEquals("false", Nodes.call(h(node), "isOverride"));
            Nodes.call(h(node), "setOverride");
            assertEquals("true", Nodes.call(h(node), "isOverride"));
            Nodes.call(h(node), "internalAddChild");
            assertEquals(1, Nodes.numChildren(h(node)));
            try (SoWriteAction write = new SoWriteAction()) {
                write.apply(node);
                assertEquals("PlainNode {\nGroup {}\n}\n", write.getOutput());
            }
        }
    }

    @Test
    void copyMakesAnotherJavaObjectOfTheClassThroughTheType() {
        try (PlainNode node = new PlainNode()) {
            SoNode copy = node.copy(false);
            assertInstanceOf(PlainNode.class, copy);
            assertNotEquals(h(node), h(copy));
            assertEquals("PlainNode", copy.getTypeName());
            copy.dispose();
        }
    }

    @Test
    void doActionWithoutOverrideIsRefusedAsPureVirtual() {
        try (PlainNode node = new PlainNode(); SoGLRenderAction action = new SoGLRenderAction()) {
            Journal.start();
            // Catchable by name: the checked refusal of the toolkit is the cause.
            UnsupportedOperationException direct = assertThrows(UnsupportedOperationException.class,
                    () -> node.doAction(action));
            assertEquals(List.of(), Journal.stop());
            assertEquals("PoNode.doAction has no toolkit implementation: a Java class must override it"
                    + " (Call of a pure virtual method: PoNode::doAction)", direct.getMessage());
            assertInstanceOf(IllegalAccessException.class, direct.getCause());
            assertEquals("Call of a pure virtual method: PoNode::doAction", direct.getCause().getMessage());

            IllegalArgumentException e = assertThrows(IllegalArgumentException.class,
                    () -> Nodes.applyGenericAction(h(node)));
            assertEquals("Exception raised during execution of CustomPoNode.doAction.", e.getMessage());
            assertInstanceOf(UnsupportedOperationException.class, e.getCause());
            assertInstanceOf(IllegalAccessException.class, e.getCause().getCause());
        }
    }

    /** Each Impl entry point: the toolkit's PoNode behaviour for a Java node, the node's own otherwise. */
    @ParameterizedTest(name = "{0}")
    @CsvSource({"callback, SoCallbackAction", "GLRender, SoGLRenderAction", "getBoundingBox, SoGetBoundingBoxAction",
        "getMatrix, SoGetMatrixAction", "handleEvent, SoHandleEventAction", "pick, SoPickAction",
        "search, SoSearchAction", "write, SoWriteAction", "getPrimitiveCount, SoGetPrimitiveCountAction"})
    void implEntryPointsCallPoNodeForJavaNodesAndTheVirtualOtherwise(String operation, String actionClass)
            throws Exception {
        Method impl = PoNode.class.getDeclaredMethod(operation + "Impl", long.class, long.class);
        impl.setAccessible(true);
        try (ScriptedNode node = new ScriptedNode();
                SoAction action = (SoAction) Class.forName("com.kestrum.corvel.actions." + actionClass)
                        .getConstructor().newInstance()) {
            Journal.start();
            impl.invoke(node, h(node), action.getNativeResourceHandleInternal());
            List<String> journal = Journal.stop();
            assertEquals(List.of("PoNode::" + operation + "(0x"
                    + Long.toHexString(action.getNativeResourceHandleInternal()) + ")"), journal);
            assertTrue(node.calls.stream().noneMatch(c -> c.startsWith(operation + " ")),
                    "the Java override is not called: " + node.calls);

            long toolkitNode = Nodes.newToolkitNode();
            Nodes.ref(toolkitNode);
            Journal.start();
            impl.invoke(node, toolkitNode, action.getNativeResourceHandleInternal());
            assertEquals(List.of("ToolkitNode::" + operation + "()"), Journal.stop());
            Nodes.unref(toolkitNode);
        }
    }

    @Test
    void doActionImplRunsTheVirtualOfAToolkitNode() throws Exception {
        Method impl = PoNode.class.getDeclaredMethod("doActionImpl", long.class, long.class);
        impl.setAccessible(true);
        long toolkitNode = Nodes.newToolkitNode();
        Nodes.ref(toolkitNode);
        try (PlainNode node = new PlainNode(); SoGLRenderAction action = new SoGLRenderAction()) {
            Journal.start();
            impl.invoke(node, toolkitNode, action.getNativeResourceHandleInternal());
            assertEquals(List.of("ToolkitNode::doAction()"), Journal.stop());
        } finally {
            Nodes.unref(toolkitNode);
        }
    }

    @Test
    void afterAnExceptionTheRestOfTheTraversalSkipsJava() {
        try (FailingNode first = new FailingNode("first");
                FailingNode second = new FailingNode("second");
                CountingNode after = new CountingNode("after");
                SoGroup root = new SoGroup();
                SoGLRenderAction render = new SoGLRenderAction()) {
            root.addChild(first);
            root.addChild(second);
            root.addChild(after);
            IllegalArgumentException e = assertThrows(IllegalArgumentException.class, () -> render.apply(root));
            assertEquals("Exception raised during execution of CustomPoNode.GLRender.", e.getMessage());
            assertInstanceOf(IllegalStateException.class, e.getCause());
            assertEquals("first", e.getCause().getMessage());
            assertEquals(1, first.calls);
            assertEquals(0, second.calls);
            assertEquals(List.of(), after.seen);
            assertEquals(4, render.getNodesTraversed(), "the toolkit's traversal went on");

            // The next traversal starts clean.
            try (SoGLRenderAction again = new SoGLRenderAction()) {
                again.apply(after);
                assertEquals(List.of("after"), after.seen);
            }
        }
    }

    @Test
    void fileFormatNameBufferIsReusedByTheNextCall() {
        String[] format = {"First"};
        try (PoNode node = new PoNode("FormatNode") {
                    @Override
                    public String getFileFormatName() {
                        return format[0];
                    }
                }) {
            assertEquals("First", Nodes.fileFormatName(h(node)));
            long first = Nodes.fileFormatNamePointer();
            format[0] = "Second";
            assertEquals("Second", Nodes.fileFormatName(h(node)));
            assertEquals(first, Nodes.fileFormatNamePointer(), "same buffer");
            format[0] = "Third";
            Nodes.fileFormatName(h(node));
            assertEquals("Third", Nodes.lastFileFormatNameText(), "the earlier pointer now reads the new name");
            format[0] = null;
            assertNull(Nodes.fileFormatName(h(node)));

            format[0] = "Written";
            try (SoWriteAction write = new SoWriteAction()) {
                write.apply(node);
                assertEquals("Written {}\n", write.getOutput());
            }
        }
    }

    @Test
    void typeCreatedTwiceTakesTwoIndicesAndFindTakesNone() throws Exception {
        Method init = PoNode.class.getDeclaredMethod("initCustomClass", long.class, Object.class, boolean.class,
                String.class);
        init.setAccessible(true);
        try (PlainNode node = new PlainNode()) {
            Journal.start();
            init.invoke(node, h(node), node, true, "TwiceMade");
            int firstIndex = Nodes.typeData(h(node));
            init.invoke(node, h(node), node, true, "TwiceMade");
            int secondIndex = Nodes.typeData(h(node));
            List<String> created = Journal.stop();
            assertEquals(firstIndex + 1, secondIndex);
            assertEquals(List.of(
                    "SoNode::getNextActionMethodIndex()", "PoNode::getClassTypeId()",
                    "SoType::createType(<PoNode>, \"TwiceMade\", fn, " + firstIndex + ")",
                    "SoNode::incNextActionMethodIndex()",
                    "SoNode::getNextActionMethodIndex()", "PoNode::getClassTypeId()",
                    "SoType::createType(<PoNode>, \"TwiceMade\", fn, " + secondIndex + ")",
                    "SoNode::incNextActionMethodIndex()"), created);

            Journal.start();
            init.invoke(node, h(node), node, false, "TwiceMade");
            assertEquals(List.of("SoType::fromName(\"TwiceMade\")"), Journal.stop());
            assertEquals(secondIndex, Nodes.typeData(h(node)), "the newest type of the name");
            assertEquals("PoNode", Toolkit.parentTypeName("TwiceMade"));
        }
    }

    @Test
    void classTypeIsNodeUnderPoNodeAndTheJavaClassReportsPoNode() {
        assertEquals("PoNode", PoNode.getClassTypeName());
        assertEquals("PoNode", Toolkit.parentTypeName("Node"));
        try (PlainNode a = new PlainNode(); PlainNode b = new PlainNode()) {
            assertEquals("PlainNode", Nodes.typeName(h(a)));
            assertEquals(Nodes.typeData(h(a)), Nodes.typeData(h(b)), "later objects find the class's type");
            assertEquals("PoNode", Toolkit.parentTypeName("PlainNode"));
            assertFalse(Nodes.isBuiltIn(h(a)));
            assertEquals(0, Nodes.numFieldDataEntries(h(a)));
        }
    }

    @Test
    void nodeBeforeItsTypeAndPeerHasTheZeroTypeAndCallsNoJava() throws Exception {
        Method ctor = PoNode.class.getDeclaredMethod("ctorImpl");
        ctor.setAccessible(true);
        long bare = (long) ctor.invoke(null);
        Nodes.ref(bare);
        try {
            assertTrue(Nodes.typeIsBad(bare));
            assertEquals(-1, Nodes.numChildren(bare));
            assertEquals("false", Nodes.call(bare, "isOverride"));
            assertEquals("null", Nodes.call(bare, "getFileFormatName"));
            assertEquals(0, Nodes.renderMode(bare));
        } finally {
            Nodes.unref(bare);
        }
    }

    /** A node the toolkit can make from the type name alone. */
    static final class MadeByTheToolkit extends PoNode {
        static final AtomicInteger MADE = new AtomicInteger();

        MadeByTheToolkit() {
            super("MadeByTheToolkit");
            MADE.incrementAndGet();
        }
    }

    @Test
    void toolkitCreatesJavaNodesFromTheTypeNameOnAnyThread() {
        new MadeByTheToolkit().dispose();
        for (boolean onNewThread : new boolean[] {false, true}) {
            int before = MadeByTheToolkit.MADE.get();
            long address = Nodes.createInstance("MadeByTheToolkit", onNewThread);
            assertNotEquals(0, address);
            assertEquals(before + 1, MadeByTheToolkit.MADE.get());
            Object peer = ManagedObjects.peerOf(address);
            assertInstanceOf(MadeByTheToolkit.class, peer);
            assertEquals("MadeByTheToolkit", Nodes.typeName(address));
            ((PoNode) peer).dispose();
        }
        assertEquals(0, Nodes.createInstance("NoJavaClassHasThisType", false));
    }

    static final class Racer0 extends PoNode {
        Racer0() {
            super("Racer0");
        }
    }

    static final class Racer1 extends PoNode {
        Racer1() {
            super("Racer1");
        }
    }

    static final class Racer2 extends PoNode {
        Racer2() {
            super("Racer2");
        }
    }

    static final class Racer3 extends PoNode {
        Racer3() {
            super("Racer3");
        }
    }

    @Test
    void classesRegisterFromSeveralThreadsAtOnce() throws Exception {
        List<java.util.function.Supplier<PoNode>> makers =
                List.of(Racer0::new, Racer1::new, Racer2::new, Racer3::new, Racer0::new, Racer1::new);
        java.util.concurrent.CyclicBarrier start = new java.util.concurrent.CyclicBarrier(makers.size());
        List<PoNode> made = java.util.Collections.synchronizedList(new ArrayList<>());
        List<Throwable> failures = java.util.Collections.synchronizedList(new ArrayList<>());
        List<Thread> threads = new ArrayList<>();
        Journal.start();
        for (java.util.function.Supplier<PoNode> maker : makers) {
            Thread t = new Thread(() -> {
                try {
                    start.await();
                    made.add(maker.get());
                } catch (Throwable e) {
                    failures.add(e);
                }
            });
            threads.add(t);
            t.start();
        }
        for (Thread t : threads) {
            t.join();
        }
        List<String> journal = Journal.stop();
        assertEquals(List.of(), failures);
        List<Integer> indices = new ArrayList<>();
        for (int i = 0; i < 4; i++) {
            String name = "Racer" + i;
            assertEquals(1, journal.stream().filter(l -> l.startsWith("SoType::createType(<PoNode>, \"" + name + "\""))
                    .count(), name + " is created once");
            indices.add(Toolkit.typeData(name));
        }
        assertEquals(4, indices.stream().distinct().count(), "each type has its own index: " + indices);
        for (PoNode n : made) {
            assertEquals(n.getClass().getSimpleName(), Nodes.typeName(h(n)));
            n.dispose();
        }
    }

    @Test
    void typeNamesBelongToOneClass() {
        new PlainNode().dispose();
        IllegalArgumentException taken = assertThrows(IllegalArgumentException.class,
                () -> new PoNode("PlainNode") {});
        assertTrue(taken.getMessage().contains("belongs to"), taken.getMessage());
        assertThrows(IllegalArgumentException.class, () -> new PoNode() {});
        IllegalArgumentException renamed = assertThrows(IllegalArgumentException.class, () -> new CountingNodeRenamed());
        assertTrue(renamed.getMessage().contains("not \"Other\""), renamed.getMessage());
    }

    /** Gives another name than its class's first object did. */
    static final class CountingNodeRenamed extends PoNode {
        static boolean first = true;

        CountingNodeRenamed() {
            super(nextName());
        }

        private static String nextName() {
            if (first) {
                first = false;
                new CountingNodeRenamed().dispose();
                return "Other";
            }
            return "CountingNodeRenamed";
        }
    }

    @Test
    void renderModeIsAskedOnceWhenTheNodeIsMade() {
        try (PoNode core = new PoNode("CoreNode") {
                    @Override
                    public RenderModes getRenderEngineMode() {
                        return RenderModes.CORE_RENDERING;
                    }
                }) {
            assertEquals(2, Nodes.renderMode(h(core)));
        }
        IllegalArgumentException e = assertThrows(IllegalArgumentException.class, () -> new PoNode("BadModeNode") {
            @Override
            public RenderModes getRenderEngineMode() {
                throw new UnsupportedOperationException("no mode");
            }
        });
        assertEquals("Exception raised during execution of CustomPoNode.initRenderEngineMode.", e.getMessage());
        assertEquals("no mode", e.getCause().getMessage());
    }

    @Test
    void forwardedCallsStopOnceTheJavaObjectIsGone() throws Exception {
        long handle = abandonedNode();
        try {
            for (int i = 0; i < 100 && ManagedObjects.peerOf(handle) != null; i++) {
                System.gc();
                Thread.sleep(10);
            }
            // The weak reference of the native node is cleared with the Java object.
            WeakReference<Object> probe = new WeakReference<>(new Object());
            for (int i = 0; i < 100 && probe.get() != null; i++) {
                System.gc();
                Thread.sleep(10);
            }
            Journal.start();
            assertEquals("false", Nodes.call(handle, "isOverride"));
            assertEquals("", Nodes.call(handle, "touch"));
            assertEquals(List.of(), Journal.stop().stream().filter(l -> l.startsWith("SoBase::touch"))
                    .collect(Collectors.toList()));
        } finally {
            Nodes.unref(handle);
        }
    }

    private static long abandonedNode() {
        PlainNode node = new PlainNode();
        long handle = h(node);
        Nodes.ref(handle);
        node.dispose();
        return handle;
    }

    @Test
    void constructionRunsUnderTheInitializerGuardAndDestructionReleasesTheChildren() {
        Journal.start();
        PlainNode node = new PlainNode();
        List<String> made = Journal.stop();
        assertTrue(made.contains("SoBaseInitializer::SoBaseInitializer(0x" + Long.toHexString(h(node)) + ")"),
                made.toString());
        assertTrue(made.contains("SoType::fromName(\"PlainNode\")") || made.stream().anyMatch(
                l -> l.startsWith("SoType::createType(<PoNode>, \"PlainNode\"")), made.toString());
        try (PlainNode child = new PlainNode()) { // a peer: reaching Java adds no wrapper reference
            Nodes.addChild(h(node), h(child));
            assertEquals(2, child.getRefCount());
            node.dispose();
            assertEquals(1, child.getRefCount(), "the node's child list went with the node");
        }
    }

    @Test
    void disposedNodeIsNoLongerThePeerOfItsAddress() {
        PlainNode node = new PlainNode();
        long handle = h(node);
        assertSame(node, ManagedObjects.peerOf(handle));
        node.dispose();
        assertNull(ManagedObjects.peerOf(handle));
        node.dispose();
    }
}
