package com.kestrum.tavrel.graph;

import static com.kestrum.tavrel.graph.GraphNodes.rectangle;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertFalse;
import static org.junit.jupiter.api.Assertions.assertTrue;

import com.kestrum.corvel.actions.SoAction;
import com.kestrum.corvel.actions.SoGLRenderAction;
import com.kestrum.corvel.misc.NativeObject;
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
import java.util.function.Supplier;
import org.junit.jupiter.api.Test;

/**
 * A node disposed by its own rebuild listener is disposed in Java at once but keeps its native
 * reference until the call that rebuilt it returns: the toolkit never finishes a rebuild on a
 * freed node. The same holds for the object argument of such a call (the action of a render,
 * an attribute object), which a later event of the same call still finds allocated: under the
 * sanitizer build, a use of either once freed aborts the child JVM.
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

    /**
     * A call of a node family that may rebuild its node, with the object argument it holds (null
     * for none): the node's maker, the argument's maker and the call.
     */
    private record HeldCall(Supplier<PoBase> node, Supplier<NativeObject> argument,
            BiConsumer<PoBase, NativeObject> call) {}

    /** One call of each family of calls that may rebuild their node, by name. */
    private static Map<String, HeldCall> callsHoldingTheirArguments() {
        Map<String, HeldCall> calls = new LinkedHashMap<>();
        calls.put("PoBase.setDomain", new HeldCall(GraphNodes::rectangle, PbDomain::new,
                (n, a) -> n.setDomain((PbDomain) a)));
        calls.put("PoAxis.setMiscTextAttr", new HeldCall(PoLinearAxis::new, PbMiscTextAttr::new,
                (n, a) -> ((PoAxis) n).setMiscTextAttr((PbMiscTextAttr) a)));
        calls.put("PoLinearAxis.setFormat", new HeldCall(PoLinearAxis::new, DisposalDuringRebuildTest::format,
                (n, a) -> ((PoLinearAxis) n).setFormat((PbNumericDisplayFormat) a)));
        calls.put("PoPolarLinAxis.setFormat", new HeldCall(PoPolarLinAxis::new, DisposalDuringRebuildTest::format,
                (n, a) -> ((PoPolarLinAxis) n).setFormat((PbNumericDisplayFormat) a)));
        calls.put("PoTimeAxis.setDateFormatMapping", new HeldCall(PoTimeAxis::new, PbDateFormatMapping::new,
                (n, a) -> ((PoTimeAxis) n).setDateFormatMapping((PbDateFormatMapping) a)));
        calls.put("PoPieChart.setMiscTextAttr", new HeldCall(PoPieChart2D::new, PbMiscTextAttr::new,
                (n, a) -> ((PoPieChart) n).setMiscTextAttr((PbMiscTextAttr) a)));
        calls.put("PoPieChart.setFormat", new HeldCall(PoPieChart2D::new, DisposalDuringRebuildTest::format,
                (n, a) -> ((PoPieChart) n).setFormat((PbNumericDisplayFormat) a)));
        calls.put("PoPieChart.setSliceToTranslate", new HeldCall(PoPieChart2D::new, () -> null,
                (n, a) -> ((PoPieChart) n).setSliceToTranslate(0, 1)));
        calls.put("PoAutoCubeAxis.GLRender", new HeldCall(PoAutoCubeAxis::new, SoGLRenderAction::new, (n, a) -> {
            n.setUpdateMethod(PoBase.UpdateMethodTypes.UPDATEMETHODONACTION);
            n.touchKit();
            ((PoAutoCubeAxis) n).GLRender((SoGLRenderAction) a);
        }));
        return calls;
    }

    private static PbNumericDisplayFormat format() {
        return new PbNumericDisplayFormat(PbNumericDisplayFormat.FormatTypes.values()[0], 6, 2);
    }

    /**
     * Each call with a pre-rebuild listener that disposes of the node and of the argument, and a
     * post-rebuild listener of the same rebuild that reads both native objects (the node's
     * reference count, an action's count of traversed nodes), as the toolkit may after an event;
     * prints one line per call.
     */
    private static void disposeTheArgumentsDuringTheCall() {
        for (Map.Entry<String, HeldCall> entry : callsHoldingTheirArguments().entrySet()) {
            HeldCall held = entry.getValue();
            PoBase node = held.node().get();
            NativeObject argument = held.argument().get();
            long nodeHandle = Natives.handle(node);
            long argumentHandle = argument == null ? 0 : Natives.handle(argument);
            List<String> seen = new ArrayList<>();
            node.addPreRebuildListener(n -> {
                n.dispose();
                if (argument != null) {
                    argument.dispose();
                }
            });
            node.addPostRebuildListener(n -> {
                seen.add("references " + Nodes.refCount(nodeHandle));
                if (argument instanceof SoAction) {
                    seen.add("traversed " + Natives.callStatic(SoAction.class, "getNodesTraversedNative",
                            argumentHandle));
                }
                n.dispose();
            });
            held.call().accept(node, argument);
            System.out.println(entry.getKey() + " " + seen + " disposed=" + node.isDisposed()
                    + (argument == null ? "" : "/" + argument.isDisposed()));
        }
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
        disposeTheArgumentsDuringTheCall();
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
        for (String call : callsHoldingTheirArguments().keySet()) {
            String argument = call.endsWith("setSliceToTranslate") ? "" : "/true";
            String read = call.endsWith("GLRender") ? ", traversed 0" : "";
            assertTrue(r.output().contains(call + " [references 2" + read + "] disposed=true" + argument),
                    () -> call + ": " + r.describe());
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
