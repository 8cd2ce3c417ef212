package com.kestrum.tavrel.data;

import static org.junit.jupiter.api.Assertions.assertFalse;
import static org.junit.jupiter.api.Assertions.assertSame;
import static org.junit.jupiter.api.Assertions.assertTrue;
import static org.junit.jupiter.params.provider.Arguments.arguments;

import com.kestrum.corvel.actions.SoCallbackAction;
import com.kestrum.corvel.misc.ManagedObjects;
import com.kestrum.corvel.misc.NativeObject;
import com.kestrum.tavrel.testkit.Gc;
import java.lang.ref.WeakReference;
import java.lang.reflect.Field;
import java.util.Map;
import java.util.function.Supplier;
import java.util.stream.Stream;
import org.junit.jupiter.params.ParameterizedTest;
import org.junit.jupiter.params.provider.Arguments;
import org.junit.jupiter.params.provider.MethodSource;

/** Objects that register as peers leave nothing in the peer table once disposed or collected. */
class PeerRegistrationTest {
    static Stream<Arguments> selfRegisteringObjects() {
        return Stream.of(
                arguments("PbRegularMesh1D", (Supplier<NativeObject>) PbRegularMesh1D::new),
                arguments("PbTriangleMesh2D", (Supplier<NativeObject>) () -> new PbTriangleMesh2D(false)),
                arguments("PbRegularCartesianGrid3D", (Supplier<NativeObject>) () -> new PbRegularCartesianGrid3D(
                        2, 2, 2, 0, 0, 0, 1, 1, 1, false)),
                arguments("PbTriangleCell", (Supplier<NativeObject>) () -> new PbTriangleCell(new PbTriangleMesh2D(false))),
                arguments("PbHexahedronCell", (Supplier<NativeObject>) () -> new PbHexahedronCell(
                        new PbIndexedMesh3D(false))),
                arguments("PoMeshProbePoint", (Supplier<NativeObject>) PoMeshProbePoint::new),
                arguments("SoCallbackAction", (Supplier<NativeObject>) SoCallbackAction::new));
    }

    @SuppressWarnings("unchecked")
    private static Map<Long, ?> table() throws ReflectiveOperationException {
        Field field = ManagedObjects.class.getDeclaredField("PEERS");
        field.setAccessible(true);
        return (Map<Long, ?>) field.get(null);
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("selfRegisteringObjects")
    void disposalUnregisters(String name, Supplier<NativeObject> make) throws Exception {
        NativeObject object = make.get();
        long handle = object.getNativeResourceHandleInternal();
        assertSame(object, ManagedObjects.peerOf(handle));
        object.dispose();
        assertFalse(table().containsKey(handle), name + " left its entry behind");
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("selfRegisteringObjects")
    void theEntryOfACollectedPeerIsDroppedByTheNextRegistration(String name, Supplier<NativeObject> make)
            throws Exception {
        WeakReference<NativeObject> ref = new WeakReference<>(make.get());
        long handle = ref.get().getNativeResourceHandleInternal();
        assertTrue(table().containsKey(handle));
        Gc.collect(ref);
        // A registration at an address no native object has (odd) makes no native object whose
        // address could be the collected one's.
        Object other = new Object();
        for (int i = 0; i < 100 && table().containsKey(handle); i++) {
            Thread.sleep(10);  // the collected reference is queued by another thread
            ManagedObjects.registerPeer(1, other);
            ManagedObjects.unregisterPeer(1, other);
        }
        assertFalse(table().containsKey(handle), name + " left its entry behind");
    }
}
