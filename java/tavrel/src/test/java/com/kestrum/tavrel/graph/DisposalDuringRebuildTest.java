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
 * A node disposed by its own rebuild listener keeps its reference until the call that rebuilt it
 * returns: the toolkit never finishes a rebuild on a freed node.
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
     * Each call with a pre- and a post-rebuild listener that dispose of the node (the only holder
     * of its reference), then use it; prints one line per call and "done".
     */
    public static void main(String[] args) {
        for (Map.Entry<String, Consumer<PoBase>> call : rebuildingCalls().entrySet()) {
            for (boolean pre : new boolean[] {true, false}) {
                PoBase node = rectangle();
                List<String> seen = new ArrayList<>();
                PoBase.RebuildListener disposeAndUse = n -> {
                    n.dispose();
                    seen.add("built=" + n.isBuilt());
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
            assertTrue(r.output().contains(call + " pre [built=false] disposed=true"), r::describe);
            assertTrue(r.output().contains(call + " post [built=true] disposed=true"), r::describe);
        }
        assertTrue(r.output().contains("done"), r::describe);
    }

    @Test
    void theReferenceIsGivenBackWhenTheCallReturns() {
        PoBase node = rectangle();
        long h = Natives.handle(node);
        Nodes.ref(h); // a second reference, to watch the count after the Java object is gone
        try {
            List<Integer> counts = new ArrayList<>();
            node.addPreRebuildListener(n -> {
                n.dispose();
                counts.add(refCount(h));
                n.touchKit(); // still usable: the rebuild in progress only marks it
            });
            node.rebuild();
            counts.add(refCount(h));
            assertEquals(List.of(2, 1), counts);
            assertTrue(node.isDisposed());
        } finally {
            Nodes.unref(h);
        }
    }

    private static int refCount(long node) {
        return (Integer) Natives.callStatic(SoNode.class, "getRefCountNative", node);
    }
}
