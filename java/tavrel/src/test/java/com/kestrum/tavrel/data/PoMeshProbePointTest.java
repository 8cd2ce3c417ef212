package com.kestrum.tavrel.data;

import static com.kestrum.tavrel.testkit.Probes.CHANGE_CELL;
import static com.kestrum.tavrel.testkit.Probes.ENTER_MESH;
import static com.kestrum.tavrel.testkit.Probes.LEAVE_MESH;
import static com.kestrum.tavrel.testkit.Probes.MOTION;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertFalse;
import static org.junit.jupiter.api.Assertions.assertNotSame;
import static org.junit.jupiter.api.Assertions.assertNull;
import static org.junit.jupiter.api.Assertions.assertSame;
import static org.junit.jupiter.api.Assertions.assertThrows;
import static org.junit.jupiter.api.Assertions.assertTrue;

import com.kestrum.corvel.misc.ManagedObjects;
import com.kestrum.tavrel.misc.callbacks.PoProbeCB;
import com.kestrum.tavrel.testkit.Debug;
import com.kestrum.tavrel.testkit.Gc;
import com.kestrum.tavrel.testkit.Journal;
import com.kestrum.tavrel.testkit.Probes;
import com.kestrum.tavrel.testkit.Representations;
import java.lang.ref.WeakReference;
import java.lang.reflect.Method;
import java.util.Arrays;
import java.util.List;
import java.util.concurrent.CopyOnWriteArrayList;
import java.util.concurrent.atomic.AtomicInteger;
import java.util.function.Function;
import java.util.stream.Collectors;
import org.junit.jupiter.api.AfterEach;
import org.junit.jupiter.api.BeforeEach;
import org.junit.jupiter.api.Test;
import org.junit.jupiter.params.ParameterizedTest;
import org.junit.jupiter.params.provider.EnumSource;

/** The probe point's four callbacks, from registration to the Java listener. */
class PoMeshProbePointTest {
    private static final String REAL_CALLBACK = "DEBUG: NTV MTHD->PoProbeCallback::RealCallback\n";
    private static final String INVOKE = "DEBUG: NTV MTHD->PoProbeCallback::invoke\n";
    private static final String FREED = "DEBUG: Java callback object has been freed!\n";
    private static final long CELL_A = 0xce11a0L;
    private static final long CELL_B = 0xce11b0L;
    private static final int[] ALL_EVENTS = {MOTION, CHANGE_CELL, ENTER_MESH, LEAVE_MESH};

    /** One event as a listener saw it. */
    private record Event(String tag, PoMeshProbePoint probe, PbCell cell, long cellHandle, Object userData,
            Thread thread) {
        String brief() {
            return tag + "@" + Long.toHexString(cellHandle);
        }
    }

    /** Sets a callback object on a probe. */
    @FunctionalInterface
    private interface SetCallback {
        void set(PoMeshProbePoint probe, PoProbeCB callback, Object userData);
    }

    /** The four setters and getters, with the number of their event in the toolkit. */
    enum Setter {
        MOTION_SETTER(MOTION, "Motion", PoMeshProbePoint::setMotionCallback, PoMeshProbePoint::getMotionCallback),
        CHANGE_CELL_SETTER(CHANGE_CELL, "ChangeCell", PoMeshProbePoint::setChangeCellCallback,
                PoMeshProbePoint::getChangeCellCallback),
        ENTER_MESH_SETTER(ENTER_MESH, "EnterMesh", PoMeshProbePoint::setEnterMeshCallback,
                PoMeshProbePoint::getEnterMeshCallback),
        LEAVE_MESH_SETTER(LEAVE_MESH, "LeaveMesh", PoMeshProbePoint::setLeaveMeshCallback,
                PoMeshProbePoint::getLeaveMeshCallback);

        final int event;
        final String name;
        final SetCallback set;
        final Function<PoMeshProbePoint, PoProbeCB> get;

        Setter(int event, String name, SetCallback set, Function<PoMeshProbePoint, PoProbeCB> get) {
            this.event = event;
            this.name = name;
            this.set = set;
            this.get = get;
        }
    }

    private final List<Event> events = new CopyOnWriteArrayList<>();
    private PoMeshProbePoint probe;
    private long handle;

    @BeforeEach
    void makeProbe() {
        probe = new PoMeshProbePoint();
        handle = probe.getNativeResourceHandleInternal();
    }

    @AfterEach
    void disposeProbe() {
        if (probe != null) {
            probe.dispose();
        }
    }

    private PoProbeCB recorder(String tag) {
        return new PoProbeCB((p, cell, cellHandle, data) ->
                events.add(new Event(tag, p, cell, cellHandle, data, Thread.currentThread())));
    }

    private List<String> briefs() {
        return events.stream().map(Event::brief).collect(Collectors.toList());
    }

    private static long[] cells(long cell, int count) {
        long[] cells = new long[count];
        Arrays.fill(cells, cell);
        return cells;
    }

    @ParameterizedTest
    @EnumSource(Setter.class)
    void eachSetterReachesOnlyItsOwnEvent(Setter setter) throws Exception {
        PoProbeCB callback = recorder(setter.name);
        long bridge = callback.getNativeResourceHandleInternal();
        Journal.start();
        setter.set.set(probe, callback, "data of " + setter.name);
        assertEquals(List.of("PoMeshProbePoint::set" + setter.name + "Callback(fn, 0x" + Long.toHexString(bridge) + ")"),
                Journal.stop());
        for (int event : ALL_EVENTS) {
            assertEquals(event == setter.event, Probes.hasCallbackFunction(handle, event), "event " + event);
            assertEquals(event == setter.event ? bridge : 0, Probes.callbackUserData(handle, event));
        }
        assertSame(callback, setter.get.apply(probe));

        List<String> lines = Debug.capture(() -> Probes.raise(handle, ALL_EVENTS, cells(CELL_A, 4)));

        assertEquals(List.of(REAL_CALLBACK, INVOKE), lines);
        assertEquals(1, events.size());
        Event e = events.get(0);
        assertEquals(setter.name, e.tag());
        assertSame(probe, e.probe(), "the probe arrives as its own Java object");
        assertEquals(CELL_A, e.cellHandle());
        assertEquals(CELL_A, e.cell().getNativeResourceHandleInternal(), "a view of the cell");
        assertEquals("data of " + setter.name, e.userData());
        assertSame(Thread.currentThread(), e.thread());
    }

    @Test
    void detachingWithBridgeZeroLeavesTheUserDataAsItWas() throws Exception {
        PoProbeCB callback = recorder("motion");
        probe.setMotionCallback(callback, "first");
        Method setImpl = PoMeshProbePoint.class.getDeclaredMethod("setMotionCallbackImpl", long.class,
                PoProbeCB.class, Object.class, long.class);
        setImpl.setAccessible(true);

        Journal.start();
        setImpl.invoke(probe, handle, callback, "second", 0L);
        assertEquals(List.of("PoMeshProbePoint::setMotionCallback(null, null)"), Journal.stop());
        assertEquals("first", callback.getUserData());
        assertFalse(Probes.hasCallbackFunction(handle, MOTION));
        assertEquals(0, Probes.callbackUserData(handle, MOTION));
        assertEquals(List.of(), Debug.capture(() -> Probes.raise(handle, MOTION, CELL_A)));
        assertTrue(events.isEmpty());

        // Through the Java API: null detaches, and the probe lets go of the callback object.
        probe.setMotionCallback(callback, "third");
        probe.setMotionCallback(null, "ignored");
        assertNull(probe.getMotionCallback());
        assertEquals("third", callback.getUserData());
        assertFalse(Probes.hasCallbackFunction(handle, MOTION));
    }

    @Test
    void aSecondRegistrationReplacesTheUserDataAndNullIsStored() {
        PoProbeCB callback = recorder("motion");
        probe.setMotionCallback(callback, "first");
        probe.setMotionCallback(callback, "second");
        assertEquals("second", callback.getUserData());
        Probes.raise(handle, MOTION, CELL_A);
        probe.setMotionCallback(callback, null);
        assertNull(callback.getUserData());
        Probes.raise(handle, MOTION, CELL_A);

        assertEquals(2, events.size());
        assertEquals("second", events.get(0).userData());
        assertNull(events.get(1).userData());
    }

    @Test
    void anEventWithoutACellPassesZero() {
        probe.setLeaveMeshCallback(recorder("leave"), null);
        Probes.raise(handle, LEAVE_MESH, 0);
        assertEquals(List.of("leave@0"), briefs());
        assertNull(events.get(0).cell());
    }

    @Test
    void oneCallbackObjectServesSeveralEventsAndProbes() {
        PoMeshProbePoint other = new PoMeshProbePoint();
        try {
            PoProbeCB callback = recorder("shared");
            probe.setEnterMeshCallback(callback, "data");
            other.setLeaveMeshCallback(callback, "data");
            Probes.raise(handle, ENTER_MESH, CELL_A);
            Probes.raise(other.getNativeResourceHandleInternal(), LEAVE_MESH, CELL_B);
            assertEquals(List.of("shared@ce11a0", "shared@ce11b0"), briefs());
            assertSame(probe, events.get(0).probe());
            assertSame(other, events.get(1).probe());
            Probes.raise(handle, ENTER_MESH, CELL_A);
            assertSame(probe, events.get(2).probe());
            // a probe disposed, and a new one (perhaps at the same address) with the same callback
            other.dispose();
            PoMeshProbePoint next = new PoMeshProbePoint();
            try {
                next.setLeaveMeshCallback(callback, "data");
                Probes.raise(next.getNativeResourceHandleInternal(), LEAVE_MESH, CELL_B);
                assertSame(next, events.get(3).probe());
            } finally {
                next.dispose();
            }
        } finally {
            other.dispose();
        }
    }

    @Test
    void aProbeWithoutARegisteredJavaObjectArrivesAsAViewWithItsOwnReference() {
        probe.setMotionCallback(recorder("motion"), null);
        ManagedObjects.unregisterPeer(handle);
        Probes.raise(handle, new int[] {MOTION, MOTION}, new long[] {0, 0});

        PoMeshProbePoint view = events.get(0).probe();
        assertNotSame(probe, view);
        assertEquals(handle, view.getNativeResourceHandleInternal());
        assertSame(view, events.get(1).probe(), "the view serves the later events");
        assertEquals(2, probe.getRefCount());
        view.dispose();
        assertEquals(1, probe.getRefCount());
    }

    @Test
    void aCollectedCallbackObjectIsReportedAndNotCalled() throws Exception {
        AtomicInteger calls = new AtomicInteger();
        Representations.ref(handle); // as a scene graph would: the native probe outlives its Java object
        try {
            WeakReference<PoProbeCB> callback = registerAndLetGo(calls);
            Gc.collect(callback);

            List<String> lines = Debug.capture(() -> Probes.raise(handle, new int[] {MOTION, ENTER_MESH},
                    new long[] {CELL_A, CELL_A}));

            assertEquals(List.of(REAL_CALLBACK, INVOKE, FREED, REAL_CALLBACK, INVOKE, FREED), lines);
            assertEquals(0, calls.get());
        } finally {
            Representations.unref(handle);
        }
    }

    /** Registers a callback object on a probe whose Java object is then dropped with it. */
    private WeakReference<PoProbeCB> registerAndLetGo(AtomicInteger calls) {
        PoProbeCB callback = new PoProbeCB((p, cell, cellHandle, data) -> calls.incrementAndGet());
        probe.setMotionCallback(callback, "data");
        probe.setEnterMeshCallback(callback, "data");
        probe = null;
        return new WeakReference<>(callback);
    }

    @Test
    void aListenerExceptionSurfacesWhenTheRaisingCallReturnsAndDropsLaterEvents() throws Exception {
        probe.setMotionCallback(new PoProbeCB((p, cell, cellHandle, data) -> {
            throw new IllegalStateException("from the listener");
        }), null);
        probe.setEnterMeshCallback(recorder("enter"), null);

        List<String> lines = Debug.capture(() -> {
            IllegalStateException thrown = assertThrows(IllegalStateException.class,
                    () -> Probes.raise(handle, new int[] {MOTION, ENTER_MESH}, new long[] {CELL_A, CELL_A}));
            assertEquals("from the listener", thrown.getMessage());
        });

        assertEquals(List.of(REAL_CALLBACK, INVOKE, REAL_CALLBACK, INVOKE), lines);
        assertTrue(events.isEmpty(), "the second event meets the pending exception and calls nothing");
        Probes.raise(handle, ENTER_MESH, CELL_B);
        assertEquals(List.of("enter@ce11b0"), briefs());
    }

    @Test
    void eventsRaisedOnANativeThreadReachJava() {
        probe.setChangeCellCallback(recorder("change"), "threaded");
        Probes.raiseOnNativeThread(handle, new int[] {CHANGE_CELL, CHANGE_CELL}, new long[] {CELL_A, 0});

        assertEquals(List.of("change@ce11a0", "change@0"), briefs());
        for (Event e : events) {
            assertNotSame(Thread.currentThread(), e.thread());
            assertSame(probe, e.probe());
            assertEquals("threaded", e.userData());
        }
    }

    @Test
    void aSubclassOfTheCallbackClassReceivesEventsToo() {
        PoProbeCB callback = new PoProbeCB((p, cell, cellHandle, data) ->
                events.add(new Event("sub", p, cell, cellHandle, data, Thread.currentThread()))) {};
        probe.setMotionCallback(callback, "sub data");
        Probes.raise(handle, MOTION, CELL_A);
        assertEquals(List.of("sub@ce11a0"), briefs());
        assertEquals("sub data", callback.getUserData());
    }

    @Test
    void movingTheProbeRaisesItsEventsInOrder() {
        // The probe hands on the cells it is given only while they are cells of its own mesh.
        PbRegularCartesianGrid2D grid = new PbRegularCartesianGrid2D(3, 2, 0, 0, 2, 1, true);
        probe.setMesh(grid);
        long cellA = grid.getCell(0).getNativeResourceHandleInternal();
        long cellB = grid.getCell(1).getNativeResourceHandleInternal();
        for (Setter s : Setter.values()) {
            s.set.set(probe, recorder(s.name), null);
        }
        Probes.moveTo(handle, -1, 0, 0, 0, -1);
        Probes.moveTo(handle, 0.25f, 0, 0, cellA, 0);
        Probes.moveTo(handle, 0.5f, 0, 0, cellA, 0);
        Probes.moveTo(handle, 1.5f, 0, 0, cellB, 1);
        Probes.moveTo(handle, 3, 0, 0, 0, -1);

        String a = Long.toHexString(cellA);
        String b = Long.toHexString(cellB);
        assertEquals(List.of("Motion@0",
                "EnterMesh@" + a, "ChangeCell@" + a, "Motion@" + a,
                "Motion@" + a,
                "ChangeCell@" + b, "Motion@" + b,
                "LeaveMesh@0", "Motion@0"), briefs());
    }

    @Test
    void settersCheckTheProbeAndTheCallbackObject() {
        PoProbeCB disposed = recorder("disposed");
        disposed.dispose();
        assertThrows(IllegalStateException.class, () -> probe.setMotionCallback(disposed, null));
        assertThrows(NullPointerException.class, () -> new PoProbeCB(null));
        PoMeshProbePoint gone = probe;
        probe.dispose();
        probe = null;
        assertThrows(IllegalStateException.class, () -> gone.setLeaveMeshCallback(null, null));
    }
}
