package com.kestrum.tavrel.graph;

import static com.kestrum.tavrel.graph.GraphNodes.builds;
import static com.kestrum.tavrel.graph.GraphNodes.outline;
import static com.kestrum.tavrel.graph.GraphNodes.rectangle;
import static com.kestrum.tavrel.testkit.Natives.handle;
import static com.kestrum.tavrel.testkit.Natives.pointer;
import static org.junit.jupiter.api.Assertions.assertArrayEquals;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertFalse;
import static org.junit.jupiter.api.Assertions.assertNotSame;
import static org.junit.jupiter.api.Assertions.assertNull;
import static org.junit.jupiter.api.Assertions.assertSame;
import static org.junit.jupiter.api.Assertions.assertThrows;
import static org.junit.jupiter.api.Assertions.assertTrue;

import com.kestrum.corvel.actions.SoCallbackAction;
import com.kestrum.corvel.actions.SoGLRenderAction;
import com.kestrum.corvel.actions.SoGetBoundingBoxAction;
import com.kestrum.corvel.actions.SoWriteAction;
import com.kestrum.corvel.nodes.SoGroup;
import com.kestrum.corvel.nodes.SoNode;
import com.kestrum.tavrel.misc.callbacks.PoRebuildCB;
import com.kestrum.tavrel.testkit.Graphs;
import com.kestrum.tavrel.testkit.Journal;
import com.kestrum.tavrel.testkit.Natives;
import java.util.ArrayList;
import java.util.List;
import java.util.concurrent.atomic.AtomicReference;
import java.util.function.Consumer;
import java.util.stream.Stream;
import org.junit.jupiter.api.AfterEach;
import org.junit.jupiter.api.BeforeEach;
import org.junit.jupiter.api.Test;
import org.junit.jupiter.params.ParameterizedTest;
import org.junit.jupiter.params.provider.Arguments;
import org.junit.jupiter.params.provider.MethodSource;

/** The graph node base: changes, rebuilds, rebuild events in Java, the domain. */
class PoBaseTest {
    private PoBase node;

    @BeforeEach
    void makeNode() {
        node = rectangle();
    }

    @AfterEach
    void disposeNode() {
        node.dispose();
    }

    /** Listeners that note their events in the journal, between the toolkit's lines. */
    private void noteEvents(PoBase target) {
        target.addPreRebuildListener(n -> Journal.note("pre modified=" + n.isModified() + " builds=" + builds(n)));
        target.addPostRebuildListener(n -> Journal.note("post modified=" + n.isModified() + " built=" + n.isBuilt()
                + " builds=" + builds(n)));
    }

    @Test
    void aRebuildCallsThePreListenersThenBuildsThenCallsThePostListeners() {
        noteEvents(node);
        Journal.start();
        node.rebuild();
        assertEquals(List.of("PoRectangle::rebuild()", "pre modified=true builds=0", "PoRectangle::build()",
                "post modified=false built=true builds=1"), Journal.stop());
        assertTrue(node.isBuilt());
        assertFalse(node.isModified());
    }

    @Test
    void listenersReceiveTheNodeAndCallbackObjectsTheirUserData() {
        List<PoBase> seen = new ArrayList<>();
        List<Object> data = new ArrayList<>();
        node.addPreRebuildListener(seen::add);
        PoRebuildCB callback = new PoRebuildCB((kit, nodeHandle, userData) -> {
            assertSame(node, kit);
            assertEquals(handle(node), nodeHandle);
            data.add(userData);
        });
        node.addPostRebuildCallback(callback, "first");
        node.addPostRebuildCallback(callback, "second"); // the last user data stays in the callback object
        node.rebuild();
        assertEquals(List.of(node), seen);
        assertEquals(List.of("second", "second"), data);
        assertEquals(2, Graphs.numCallbacks(handle(node), false));
        assertEquals(handle(callback), Graphs.callbackUserData(handle(node), false, 1));
    }

    @Test
    void aRebuildOnAnotherJavaThreadCallsTheListenersInOrderOnThatThread() throws Exception {
        List<String> threads = new ArrayList<>();
        noteEvents(node);
        node.addPreRebuildListener(n -> threads.add(Thread.currentThread().getName()));
        node.addPostRebuildListener(n -> threads.add(Thread.currentThread().getName()));
        AtomicReference<Throwable> failure = new AtomicReference<>();
        Thread worker = new Thread(() -> {
            try {
                node.rebuild();
            } catch (Throwable t) {
                failure.set(t);
            }
        }, "rebuilder");
        Journal.start();
        worker.start();
        worker.join();
        List<String> calls = Journal.stop();
        assertNull(failure.get());
        assertEquals(List.of("PoRectangle::rebuild()", "pre modified=true builds=0", "PoRectangle::build()",
                "post modified=false built=true builds=1"), calls);
        assertEquals(List.of("rebuilder", "rebuilder"), threads);
    }

    /** The calls that change the node, and what the journal shows of them. */
    static Stream<Arguments> changes() {
        return Stream.of(
                Arguments.of("PoBase::touchKit()", (Consumer<PoBase>) PoBase::touchKit),
                Arguments.of("PoBase::setDomain(null)", (Consumer<PoBase>) n -> n.setDomain(null)));
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("changes")
    void theUpdateMethodDecidesWhetherAChangeRebuildsAtOnceOrAtTheNextTraversal(String call, Consumer<PoBase> change) {
        assertEquals(PoBase.UpdateMethodTypes.UPDATEMETHODIMMEDIATE, node.getUpdateMethod());
        Journal.start();
        change.accept(node);
        assertEquals(List.of(call, "PoRectangle::rebuild()", "PoRectangle::build()"), Journal.stop());

        node.setUpdateMethod(PoBase.UpdateMethodTypes.UPDATEMETHODONACTION);
        assertEquals(PoBase.UpdateMethodTypes.UPDATEMETHODONACTION, node.getUpdateMethod());
        change.accept(node);
        assertEquals(1, builds(node));
        assertTrue(node.isModified());
        try (SoGLRenderAction render = new SoGLRenderAction(); SoWriteAction write = new SoWriteAction()) {
            write.apply(node); // not a traversal that builds
            assertEquals(1, builds(node));
            render.apply(node);
            assertEquals(2, builds(node));
            render.apply(node); // unchanged: not rebuilt again
            assertEquals(2, builds(node));
        }
    }

    @Test
    void renderCallbackAndBoundingBoxTraversalsBuildAModifiedNode() {
        try (SoGroup root = new SoGroup(); SoCallbackAction callback = new SoCallbackAction();
                SoGetBoundingBoxAction box = new SoGetBoundingBoxAction()) {
            root.addChild(node);
            callback.apply(root);
            assertEquals(1, builds(node));
            node.setUpdateMethod(PoBase.UpdateMethodTypes.UPDATEMETHODONACTION);
            node.touchKit();
            node.getBoundingBox(box); // the operation called directly
            assertEquals(2, builds(node));
        }
    }

    @Test
    void aListenerExceptionSurfacesFromTheCallThatRebuiltAndLaterEventsAreDropped() {
        List<String> posts = new ArrayList<>();
        node.addPreRebuildListener(n -> {
            throw new UnsupportedOperationException("not now");
        });
        node.addPostRebuildListener(n -> posts.add("post"));
        UnsupportedOperationException e = assertThrows(UnsupportedOperationException.class, node::rebuild);
        assertEquals("not now", e.getMessage());
        assertEquals(List.of(), posts);
        assertTrue(node.isBuilt(), "the toolkit went on with the rebuild");

        node.setUpdateMethod(PoBase.UpdateMethodTypes.UPDATEMETHODONACTION);
        node.touchKit();
        try (SoGLRenderAction render = new SoGLRenderAction()) {
            assertThrows(UnsupportedOperationException.class, () -> render.apply(node));
        }
    }

    @Test
    void aRegistrationWithoutBridgeReachesTheToolkitAsNullAndLeavesTheCallbackObjectAlone() {
        PoRebuildCB callback = new PoRebuildCB((kit, h, data) -> {});
        node.addPreRebuildCallback(callback, "kept");
        long h = handle(node);
        Journal.start();
        Natives.callDeclared(PoBase.class, node, "addPreRebuildCallbackImpl", h, callback, "ignored", 0L);
        Natives.callDeclared(PoBase.class, node, "addPostRebuildCallbackImpl", h, callback, "ignored", 0L);
        assertEquals(List.of("PoBase::addPreRebuildCallback(null, null)", "PoBase::addPostRebuildCallback(null, null)"),
                Journal.stop());
        assertEquals("kept", callback.getUserData());
        assertEquals(0, Graphs.numCallbacks(h, true), "the stand-in removes them");
    }

    @Test
    void aRegistrationWithABridgeStoresTheUserDataAndGivesTheBridgeAsToolkitData() {
        PoRebuildCB callback = new PoRebuildCB((kit, h, data) -> {});
        node.addPreRebuildCallback(callback, "first");
        assertEquals("first", callback.getUserData());
        Journal.start();
        node.addPreRebuildCallback(callback, null);
        assertEquals(List.of("PoBase::addPreRebuildCallback(fn, " + pointer(handle(callback)) + ")"), Journal.stop());
        assertNull(callback.getUserData(), "null user data is stored as null");

        Journal.start();
        node.addPostRebuildCallback(null, "anything");
        assertEquals(List.of("PoBase::addPostRebuildCallback(null, null)"), Journal.stop());
    }

    @Test
    void rebuildingANodeWhoseClassBuildsNothingChangesNothing() {
        PoBase plain = GraphNodes.plain();
        try {
            plain.addPreRebuildListener(n -> Journal.note("pre"));
            Journal.start();
            plain.rebuild();
            plain.touchKit();
            assertEquals(List.of("PoBase::rebuild()", "PoBase::touchKit()", "PoBase::rebuild()"), Journal.stop());
            assertTrue(plain.isModified());
            assertFalse(plain.isBuilt());
            assertEquals(0, builds(plain));
            assertEquals("PoChart", plain.getTypeName());
        } finally {
            plain.dispose();
        }
    }

    @Test
    void theDomainIsKeptByAddressAndItsConnectedChangesReachTheNodeAtItsNextTraversal() {
        PbDomain domain = new PbDomain(0, 0, 2, 4, PbDomain.BoundingBoxTypes.ASIS);
        Journal.start();
        node.setDomain(domain);
        PbDomain got = node.getDomain();
        assertEquals(List.of("PoBase::setDomain(" + pointer(handle(domain)) + ")", "PoRectangle::rebuild()",
                "PoRectangle::build()", "PoBase::getDomain()"), Journal.stop());
        assertSame(domain, got);
        assertArrayEquals(new float[] {0, 0, 0, 0.5f, 0, 0, 0.5f, 0.25f, 0, 0, 0.25f, 0, 0, 0, 0}, outline(node));

        try (SoGLRenderAction render = new SoGLRenderAction()) {
            domain.setDomain(0, 0, 1, 1, PbDomain.BoundingBoxTypes.ASIS);
            render.apply(node);
            assertEquals(2, builds(node));
            domain.enableConnection(false);
            domain.touch();
            render.apply(node);
            assertEquals(2, builds(node), "a disconnected domain's changes are not followed");
        }
        node.setDomain(null);
        assertNull(node.getDomain());
    }

    @Test
    void aDomainWhoseJavaHandleWasReleasedStillServesTheNode() {
        PbDomain domain = new PbDomain(0, 0, 4, 4, PbDomain.BoundingBoxTypes.ASIS);
        long address = handle(domain);
        node.setDomain(domain);
        domain.dispose();
        assertThrows(IllegalStateException.class, domain::get2DDomain);

        node.rebuild();
        assertEquals(0.25f, outline(node)[6], "the outline still goes through the domain");
        PbDomain view = node.getDomain();
        assertNotSame(domain, view);
        assertEquals(address, handle(view));
        assertEquals(new com.kestrum.corvel.SbBox2f(0, 0, 4, 4), view.get2DDomain());
        assertThrows(IllegalStateException.class, () -> node.setDomain(domain));
    }

    @Test
    void theProcessWideValuesRoundTrip() {
        try {
            for (PoBase.NodeWriteFormats f : PoBase.NodeWriteFormats.values()) {
                PoBase.setNodeWriteFormat(f);
                assertEquals(f, PoBase.getNodeWriteFormat());
            }
            for (PoBase.TextTypes t : PoBase.TextTypes.values()) {
                PoBase.setTextType(t);
                assertEquals(t, PoBase.getTextType());
            }
            PoBase.setVRML2Mode(true);
            assertTrue(PoBase.isVRML2Mode());
            Journal.start();
            PoBase.setVRML2Mode(false);
            assertEquals(List.of("PoBase::setVRML2Mode(0)"), Journal.stop());
            assertFalse(PoBase.isVRML2Mode());
        } finally {
            PoBase.setNodeWriteFormat(PoBase.NodeWriteFormats.FOLDNODEWRITEFORMAT);
            PoBase.setTextType(PoBase.TextTypes.SOTEXT3);
            PoBase.setVRML2Mode(false);
        }
    }

    @Test
    void argumentsAndTheNodeAreCheckedBeforeAnyNativeCall() {
        PbDomain disposedDomain = new PbDomain();
        disposedDomain.dispose();
        PoRebuildCB disposedCallback = new PoRebuildCB((kit, h, data) -> {});
        disposedCallback.dispose();
        try (SoGroup group = new SoGroup()) {
            Journal.start();
            assertThrows(NullPointerException.class, () -> node.setUpdateMethod(null));
            assertThrows(NullPointerException.class, () -> node.addPreRebuildListener(null));
            assertThrows(NullPointerException.class, () -> PoBase.setNodeWriteFormat(null));
            assertThrows(NullPointerException.class, () -> PoBase.setTextType(null));
            assertThrows(IllegalStateException.class, () -> node.setDomain(disposedDomain));
            assertThrows(IllegalStateException.class, () -> node.addPostRebuildCallback(disposedCallback, null));
            assertThrows(IllegalArgumentException.class, () -> PoBase.of(group));
            assertEquals(List.of("SoType::fromName(\"PoBase\")"), Journal.stop());
        }
        assertNull(PoBase.of(null));
        assertSame(node, PoBase.of(node));
        assertNull(SoNode.createInstance("PoBase"), "an abstract type makes no node");
        assertNull(SoNode.createInstance("NoSuchType"));

        PoBase gone = rectangle();
        gone.dispose();
        gone.dispose();
        Journal.start();
        List<Runnable> calls = List.of(gone::rebuild, gone::touchKit, gone::isBuilt, gone::isModified,
                gone::getDomain, () -> gone.setDomain(null), () -> gone.addPreRebuildListener(n -> {}),
                () -> gone.addPostRebuildCallback(null, null), gone::getUpdateMethod,
                () -> gone.setUpdateMethod(PoBase.UpdateMethodTypes.UPDATEMETHODONACTION));
        for (Runnable call : calls) {
            assertThrows(IllegalStateException.class, call::run);
        }
        assertEquals(List.of(), Journal.stop());
    }
}
