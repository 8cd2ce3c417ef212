package com.kestrum.tavrel.graph;

import static com.kestrum.tavrel.graph.GraphNodes.rectangle;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertFalse;
import static org.junit.jupiter.api.Assertions.assertTrue;

import com.kestrum.corvel.actions.SoGLRenderAction;
import com.kestrum.corvel.nodes.SoNode;
import com.kestrum.tavrel.testkit.ChildJvm;
import com.kestrum.tavrel.testkit.Natives;
import com.kestrum.tavrel.testkit.Nodes;
import java.util.ArrayList;
import java.util.LinkedHashMap;
import java.util.List;
import java.util.Map;
import java.util.function.BiConsumer;
import java.util.function.Consumer;
import org.junit.jupiter.api.Test;

/**
 * A node disposed by its own rebuild listener is disposed in Java at once but keeps its native
 * reference until the call that rebuilt it returns: the toolkit never finishes a rebuild on a
 * freed node.
 */
class DisposalDuringRebuildTest {
    /** The calls that rebuild a node, with the update method they need. */
    private static Map<String, Consumer<PoBase>> rebuildingCalls() {
        Map<String, Consumer<PoBase>> calls = new LinkedHashMap<>();
        calls.put("rebuild", PoBase::rebuild);
        calls.put("touchKit", PoBase::touchKit);
        calls.put("setDomain", n -> n.setDomain(new PbDomain()));
        calls.put("GLRender", n -> render(n, SoNode::GLRender));
        calls.put("GLRenderInPath", n -> render(n, SoNode::GLRenderInPath)); // the toolkit's calls GLRender
        return calls;
    }

    /** A change that waits for a traversal, then the node's render operation called directly. */
    private static void render(PoBase node, BiConsumer<SoNode, SoGLRenderAction> operation) {
        node.setUpdateMethod(PoBase.UpdateMethodTypes.UPDATEMETHODONACTION);
        node.touchKit();
        try (SoGLRenderAction render = new SoGLRenderAction()) {
            operation.accept(node, render);
        }
    }

    /**
     * Each call with a pre- or a post-rebuild listener that disposes of the node (the only holder
     * of its reference), then tries to use it; prints one line per call and "done".
     */
    public static void main(String[] args) {
        for (Map.Entry<String, Consumer<PoBase>> call : rebuildingCalls().entrySet()) {
            for (boolean pre : new boolean[] {true, false}) {
                PoBase node = rectangle();
                List<String> seen = new ArrayList<>();
                PoBase.RebuildListener disposeAndUse = n -> {
                    n.dispose();
                    try {
                        n.isBuilt();
                        seen.add("usable");
                    } catch (IllegalStateException e) {
                        seen.add("refused");
                    }
                };
                if (pre) {
                    node.addPreRebuildListener(disposeAndUse);
                } else {
                    node.addPostRebuildListener(disposeAndUse);
                }
                call.getValue().accept(node);
                System.out.println(call.getKey() + (pre ? " pre " : " post ") + seen + " disposed=" + node.isDisposed());
            }
        }
        System.out.println("done");
    }

    @Test
    void disposalInsideAListenerDoesNotFreeTheNodeBeforeTheRebuildingCallReturns() throws Exception {
        ChildJvm.Result r = ChildJvm.run(DisposalDuringRebuildTest.class);
        assertFalse(r.crashed(), r::describe);
        assertEquals(0, r.exitCode(), r::describe);
        for (String call : rebuildingCalls().keySet()) {
            assertTrue(r.output().contains(call + " pre [refused] disposed=true"), r::describe);
            assertTrue(r.output().contains(call + " post [refused] disposed=true"), r::describe);
        }
        assertTrue(r.output().contains("done"), r::describe);
    }

    @Test
    void theReferenceIsGivenBackWhenTheCallReturnsAndLaterListenersGetANewView() {
        PoBase node = rectangle();
        long h = Natives.handle(node);
        Nodes.ref(h); // a reference of the test's own, to watch the count once the Java object is gone
        try {
            List<Integer> counts = new ArrayList<>();
            List<PoBase> received = new ArrayList<>();
            node.addPreRebuildListener(n -> {
                n.dispose();
                counts.add(refCount(h)); // the test's and the held one
            });
            node.addPostRebuildListener(received::add);
            node.rebuild();
            PoBase view = received.get(0);
            counts.add(refCount(h)); // the test's and the view's
            view.dispose();
            counts.add(refCount(h));
            assertEquals(List.of(2, 2, 1), counts);
            assertTrue(node.isDisposed());
            assertTrue(view != node, "the post-rebuild listener got a new view");
        } finally {
            Nodes.unref(h);
        }
    }

    private static int refCount(long node) {
        return (Integer) Natives.callStatic(SoNode.class, "getRefCountNative", node);
    }
}
