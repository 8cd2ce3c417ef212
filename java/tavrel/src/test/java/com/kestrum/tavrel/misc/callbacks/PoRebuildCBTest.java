package com.kestrum.tavrel.misc.callbacks;

import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertNull;
import static org.junit.jupiter.api.Assertions.assertSame;
import static org.junit.jupiter.api.Assertions.assertThrows;

import com.kestrum.corvel.misc.ManagedObjects;
import com.kestrum.corvel.nodekits.SoBaseKit;
import com.kestrum.tavrel.data.PoMeshSkin;
import com.kestrum.tavrel.testkit.Bridges;
import com.kestrum.tavrel.testkit.Debug;
import com.kestrum.tavrel.testkit.Gc;
import java.lang.ref.WeakReference;
import java.util.ArrayList;
import java.util.List;
import java.util.concurrent.atomic.AtomicInteger;
import org.junit.jupiter.api.Test;

/** The rebuild bridge, raised directly as a graph node raises it. */
class PoRebuildCBTest {
    private static final String REAL_CALLBACK = "DEBUG: NTV MTHD->PoRebuildCallback::RealCallback\n";
    private static final String INVOKE = "DEBUG: NTV MTHD->PoRebuildCallback::invoke\n";
    private static final String FREED = "DEBUG: Java callback object has been freed!\n";

    private record Call(SoBaseKit node, long nodeHandle, Object userData) {}

    @Test
    void aRebuildEventCallsTheListenerWithTheNodesHandle() throws Exception {
        List<Call> calls = new ArrayList<>();
        PoRebuildCB callback = new PoRebuildCB((node, nodeHandle, data) -> calls.add(new Call(node, nodeHandle, data)));
        PoMeshSkin registered = new PoMeshSkin();
        long registeredHandle = registered.getNativeResourceHandleInternal();
        ManagedObjects.registerPeer(registeredHandle, registered);
        try {
            List<String> lines = Debug.capture(() -> {
                Bridges.raiseRebuild(callback.getNativeResourceHandleInternal(), 0xb0de0L);
                Bridges.raiseRebuild(callback.getNativeResourceHandleInternal(), registeredHandle);
            });
            assertEquals(List.of(REAL_CALLBACK, INVOKE, REAL_CALLBACK, INVOKE), lines);
            assertEquals(2, calls.size());
            assertEquals(new Call(null, 0xb0de0L, null), calls.get(0));
            assertSame(registered, calls.get(1).node());
            assertEquals(registeredHandle, calls.get(1).nodeHandle());
        } finally {
            ManagedObjects.unregisterPeer(registeredHandle);
            registered.dispose();
        }
    }

    @Test
    void aCollectedCallbackObjectIsReportedAndNotCalled() throws Exception {
        AtomicInteger calls = new AtomicInteger();
        PoRebuildCB callback = new PoRebuildCB((node, nodeHandle, data) -> calls.incrementAndGet());
        long bridge = callback.getNativeResourceHandleInternal();
        WeakReference<PoRebuildCB> reference = new WeakReference<>(callback);
        callback = null;
        Gc.collect(reference);

        List<String> lines = Debug.capture(() -> Bridges.raiseRebuild(bridge, 0xb0de0L));

        assertEquals(List.of(REAL_CALLBACK, INVOKE, FREED), lines);
        assertEquals(0, calls.get());
    }

    @Test
    void aListenerExceptionSurfacesWhenTheRaisingCallReturns() {
        PoRebuildCB callback = new PoRebuildCB((node, nodeHandle, data) -> {
            throw new UnsupportedOperationException("rebuild refused");
        });
        UnsupportedOperationException thrown = assertThrows(UnsupportedOperationException.class,
                () -> Bridges.raiseRebuild(callback.getNativeResourceHandleInternal(), 0xb0de0L));
        assertEquals("rebuild refused", thrown.getMessage());
        assertNull(callback.getUserData());
        assertThrows(NullPointerException.class, () -> new PoRebuildCB(null));
    }
}
