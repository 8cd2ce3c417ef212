package com.kestrum.tavrel.nodes;

import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertNull;

import com.kestrum.corvel.fields.SoField;
import com.kestrum.corvel.misc.ManagedObjects;
import com.kestrum.tavrel.testkit.Gc;
import com.kestrum.tavrel.testkit.Nodes;
import java.lang.ref.WeakReference;
import java.util.ArrayList;
import java.util.List;
import org.junit.jupiter.api.Test;

/**
 * Views of a node's fields ({@code getField}) leave nothing behind: each holds one reference on
 * its node, given back when the view is disposed or, once it is unreachable, collected; none is
 * registered as a peer.
 */
class FieldViewLifetimeTest {
    @Test
    void disposedViewsGiveTheirNodeReferencesBackAtOnce() {
        try (PoIntervalCellFilter node = new PoIntervalCellFilter()) {
            long handle = node.getNativeResourceHandleInternal();
            int base = Nodes.refCount(handle);
            List<SoField> views = new ArrayList<>();
            for (String name : new String[] {"min", "max", "in", "min"}) {
                views.add(node.getField(name));
            }
            assertEquals(base + 4, Nodes.refCount(handle));
            for (SoField view : views) {
                assertNull(ManagedObjects.peerOf(view.getNativeResourceHandleInternal()), "a view is no peer");
                view.dispose();
                view.dispose();
            }
            assertEquals(base, Nodes.refCount(handle));
        }
    }

    @Test
    void droppedViewsAreCollectedAndGiveTheirNodeReferencesBack() throws InterruptedException {
        try (PoIntervalCellFilter node = new PoIntervalCellFilter()) {
            long handle = node.getNativeResourceHandleInternal();
            int base = Nodes.refCount(handle);
            for (int i = 0; i < 10_000; i++) {
                node.getField("max").get();
            }
            WeakReference<SoField> last = new WeakReference<>(node.getField("max"));
            Gc.collect(last);
            long deadline = System.nanoTime() + 10_000_000_000L;  // the cleaning thread gives them back
            while (Nodes.refCount(handle) != base && System.nanoTime() < deadline) {
                System.gc();
                Thread.sleep(10);
            }
            assertEquals(base, Nodes.refCount(handle), "every collected view gave its reference back");
        }
    }
}
