package com.kestrum.tavrel.misc.callbacks;

import static com.kestrum.tavrel.testkit.CoreCalls.toolkit;
import static com.kestrum.tavrel.testkit.CoreCalls.toolkitByName;
import static com.kestrum.tavrel.testkit.CoreCalls.GET_ENV;
import static com.kestrum.tavrel.testkit.CoreCalls.sequence;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertInstanceOf;
import static org.junit.jupiter.api.Assertions.assertTrue;

import com.kestrum.tavrel.data.PoMeshProbePoint;
import com.kestrum.tavrel.graph.PoBase;
import com.kestrum.tavrel.graph.PoRectangle;
import com.kestrum.tavrel.testkit.Bridges;
import com.kestrum.tavrel.testkit.Gc;
import com.kestrum.tavrel.testkit.JniCalls;
import com.kestrum.tavrel.testkit.Journal;
import com.kestrum.tavrel.testkit.Probes;
import com.kestrum.tavrel.testkit.Registrations;
import java.lang.ref.WeakReference;
import java.util.Arrays;
import java.util.List;
import java.util.function.Function;
import java.util.stream.Stream;
import org.junit.jupiter.api.Test;
import org.junit.jupiter.params.ParameterizedTest;
import org.junit.jupiter.params.provider.Arguments;
import org.junit.jupiter.params.provider.MethodSource;

/**
 * The JNI calls of the callback bridges (an event: one environment lookup, the pending-exception
 * check, the liveness test, one class and one method lookup, one Java call) and of their
 * registration with a probe (the user data stored in "userData", then the toolkit's setter, which
 * the recording shows among the JNI calls).
 */
class BridgeCallsTest {
    private static final String PROBE_CB = "Lcom/kestrum/tavrel/misc/callbacks/PoProbeCB;";
    private static final String REBUILD_CB = "Lcom/kestrum/tavrel/misc/callbacks/PoRebuildCB;";
    private static final long CELL = 0xce11L;
    private static final long NODE = 0xb0deL;

    /** What testkit.Probes.raise reads before it raises one event. */
    private static final List<String> RAISE_ONE = List.of("GetArrayLength() -> 1", "GetIntArrayRegion(0, 1)",
            "GetLongArrayRegion(0, 1)");

    /** The calls of one event that reaches the Java callback object of the class. */
    private static List<String> event(String callbackClass, String signature) {
        return List.of(GET_ENV, "ExceptionCheck() -> false", "NewLocalRef()",
                "GetObjectClass() -> " + callbackClass,
                "GetMethodID(" + callbackClass + ", \"invokeNativ\", \"" + signature + "\")",
                "CallVoidMethodV(invokeNativ" + signature + ")",
                "DeleteLocalRef()", "DeleteLocalRef()");
    }

    /** A bridge whose Java callback object runs a listener, raised as its toolkit object raises it. */
    private interface Bridge extends AutoCloseable {
        /** Raises n events in one native call. */
        void raise(int n);

        @Override
        void close();
    }

    /** The probe bridge, set for the probe's motion event. */
    private static Bridge probeBridge(Runnable listener) {
        PoMeshProbePoint probe = new PoMeshProbePoint();
        probe.setMotionCallback(new PoProbeCB((p, cell, cellHandle, data) -> listener.run()), "data");
        long handle = probe.getNativeResourceHandleInternal();
        return new Bridge() {
            @Override
            public void raise(int n) {
                int[] events = new int[n];
                long[] cells = new long[n];
                Arrays.fill(cells, CELL);
                Probes.raise(handle, events, cells);
            }

            @Override
            public void close() {
                probe.dispose();
            }
        };
    }

    /** The rebuild bridge, raised as a graph node raises it before or after rebuilding. */
    private static Bridge rebuildBridge(Runnable listener) {
        PoRebuildCB callback = new PoRebuildCB((node, nodeHandle, data) -> listener.run());
        return new Bridge() {
            @Override
            public void raise(int n) {
                Bridges.raiseRebuilds(callback.getNativeResourceHandleInternal(), NODE, n);
            }

            @Override
            public void close() {}
        };
    }

    static Stream<Arguments> bridges() {
        return Stream.of(
                Arguments.of("PoProbeCallback", (Function<Runnable, Bridge>) BridgeCallsTest::probeBridge,
                        sequence(RAISE_ONE, event(PROBE_CB, "(JJ)V"))),
                Arguments.of("PoRebuildCallback", (Function<Runnable, Bridge>) BridgeCallsTest::rebuildBridge,
                        event(REBUILD_CB, "(J)V")));
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("bridges")
    void anEventLooksTheMethodUpAndCallsJavaOnce(String bridge, Function<Runnable, Bridge> make,
            List<String> expected) {
        try (Bridge b = make.apply(() -> { })) {
            b.raise(1);
            JniCalls.Recording r = JniCalls.record(() -> b.raise(1));
            assertEquals(expected, r.calls());
            assertEquals(r.localReferencesCreated(), r.localReferencesDeleted());
        }
    }

    /** Later events of the native call in which a listener threw find its exception pending. */
    @ParameterizedTest(name = "{0}")
    @MethodSource("bridges")
    void eventsAfterAListenerThrewOnlyLookAtTheException(String bridge, Function<Runnable, Bridge> make,
            List<String> ignored) {
        try (Bridge b = make.apply(() -> {
            throw new IllegalStateException("listener");
        })) {
            JniCalls.Recording r = JniCalls.recordThrowing(() -> b.raise(2));
            assertInstanceOf(IllegalStateException.class, r.thrown());
            List<String> calls = r.calls();
            assertEquals(1, r.count("CallVoidMethodV"), calls.toString());
            assertEquals(List.of(GET_ENV, "ExceptionCheck() -> true"), calls.subList(calls.size() - 2, calls.size()));
        }
    }

    @Test
    void anEventForACollectedCallbackObjectOnlyTestsItsReference() throws Exception {
        PoRebuildCB callback = new PoRebuildCB((node, nodeHandle, data) -> { });
        long bridge = callback.getNativeResourceHandleInternal();
        WeakReference<PoRebuildCB> reference = new WeakReference<>(callback);
        callback = null;
        Gc.collect(reference);
        JniCalls.Recording r = JniCalls.record(() -> Bridges.raiseRebuild(bridge, NODE));
        assertEquals(List.of(GET_ENV, "ExceptionCheck() -> false", "NewLocalRef() -> null"), r.calls());
    }

    /** A callback object's bridge holds it through one weak global reference, made once. */
    @Test
    void aCallbackObjectIsHeldByOneWeakReference() {
        JniCalls.Recording r = JniCalls.record(() -> new PoProbeCB((p, cell, cellHandle, data) -> { }));
        assertEquals(1, r.weakGlobalReferencesCreated());
        assertEquals(0, r.globalReferencesCreated());
        assertEquals(0, r.weakGlobalReferencesDeleted() + r.globalReferencesDeleted());
    }

    /** The calls of the block with the toolkit's, each toolkit call by its function's name. */
    private static List<String> withToolkit(JniCalls.Block block) {
        return toolkitByName(JniCalls.recordWithToolkit(block).calls());
    }

    /** A probe's four setters. */
    interface Setter {
        void set(PoMeshProbePoint probe, PoProbeCB callback, Object userData);
    }

    static Stream<Arguments> setters() {
        return Stream.of(
                Arguments.of("Motion", (Setter) PoMeshProbePoint::setMotionCallback),
                Arguments.of("ChangeCell", (Setter) PoMeshProbePoint::setChangeCellCallback),
                Arguments.of("EnterMesh", (Setter) PoMeshProbePoint::setEnterMeshCallback),
                Arguments.of("LeaveMesh", (Setter) PoMeshProbePoint::setLeaveMeshCallback));
    }

    private static List<String> storeUserData(boolean isNull) {
        return storeUserData(PROBE_CB, isNull);
    }

    private static List<String> storeUserData(String callbackClass, boolean isNull) {
        return List.of("GetObjectClass() -> " + callbackClass,
                "GetFieldID(" + callbackClass + ", \"userData\", \"Ljava/lang/Object;\")",
                "SetObjectField(userData" + (isNull ? ", null)" : ")"),
                "DeleteLocalRef()");
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("setters")
    void registrationStoresTheUserDataThenCallsTheSetter(String event, Setter setter) {
        PoMeshProbePoint probe = new PoMeshProbePoint();
        PoProbeCB callback = new PoProbeCB((p, cell, cellHandle, data) -> { });
        try {
            setter.set(probe, callback, "warm-up");
            String toolkit = toolkit("PoMeshProbePoint::set" + event + "Callback");
            assertEquals(sequence(storeUserData(false), toolkit), withToolkit(() -> setter.set(probe, callback, "data")));
            assertEquals(sequence(storeUserData(true), toolkit), withToolkit(() -> setter.set(probe, callback, null)));
            assertEquals(List.of(toolkit), withToolkit(() -> setter.set(probe, null, "ignored")),
                    "detaching touches no Java object");
        } finally {
            probe.dispose();
        }
    }

    /** A graph node's two rebuild registrations. */
    interface RebuildSetter {
        void set(PoBase node, PoRebuildCB callback, Object userData);
    }

    static Stream<Arguments> rebuildSetters() {
        return Stream.of(
                Arguments.of("PreRebuild", (RebuildSetter) PoBase::addPreRebuildCallback),
                Arguments.of("PostRebuild", (RebuildSetter) PoBase::addPostRebuildCallback));
    }

    /**
     * The rebuild registration of graph nodes has the probe's shape: the user data stored, then
     * the one toolkit call; a null callback object touches no Java object.
     */
    @ParameterizedTest(name = "{0}")
    @MethodSource("rebuildSetters")
    void rebuildRegistrationStoresTheUserDataThenCallsTheToolkit(String event, RebuildSetter setter) {
        String rebuildCb = "Lcom/kestrum/tavrel/misc/callbacks/PoRebuildCB;";
        PoRectangle node = new PoRectangle();
        PoRebuildCB callback = new PoRebuildCB((n, handle, data) -> { });
        try {
            setter.set(node, callback, "warm-up");
            String toolkit = toolkit("PoBase::add" + event + "Callback");
            assertEquals(sequence(storeUserData(rebuildCb, false), toolkit),
                    withToolkit(() -> setter.set(node, callback, "data")));
            assertEquals(sequence(storeUserData(rebuildCb, true), toolkit),
                    withToolkit(() -> setter.set(node, callback, null)));
            assertEquals(List.of(toolkit), withToolkit(() -> setter.set(node, null, "ignored")),
                    "a null callback object touches no Java object");
        } finally {
            node.dispose();
        }
    }

    /**
     * A callback object whose class has no field "userData": nothing is stored, NoSuchFieldError
     * is left pending, and the toolkit's setter is called all the same.
     */
    @Test
    void registrationCallsTheSetterEvenWhenTheUserDataCannotBeStored() {
        PoMeshProbePoint probe = new PoMeshProbePoint();
        PoProbeCB callback = new PoProbeCB((p, cell, cellHandle, data) -> { });
        long handle = probe.getNativeResourceHandleInternal();
        long bridge = callback.getNativeResourceHandleInternal();
        try {
            Registrations.setMotionCallback(handle, callback, "warm-up", bridge);
            Journal.start();
            JniCalls.Recording r = JniCalls.recordThrowing(
                    () -> Registrations.setMotionCallback(handle, new Object(), "data", bridge));
            List<String> journal = Journal.stop();
            assertInstanceOf(NoSuchFieldError.class, r.thrown());
            assertEquals(List.of("GetObjectClass() -> Ljava/lang/Object;",
                    "GetFieldID(Ljava/lang/Object;, \"userData\", \"Ljava/lang/Object;\") -> null",
                    "DeleteLocalRef()"), r.calls());
            assertEquals(List.of("PoMeshProbePoint::setMotionCallback(fn, 0x" + Long.toHexString(bridge) + ")"),
                    journal);
            assertTrue(Probes.hasCallbackFunction(handle, Probes.MOTION));
            assertEquals(bridge, Probes.callbackUserData(handle, Probes.MOTION));
        } finally {
            probe.dispose();
        }
    }
}
