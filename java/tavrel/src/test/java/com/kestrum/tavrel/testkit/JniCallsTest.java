package com.kestrum.tavrel.testkit;

import static org.junit.jupiter.api.Assertions.assertArrayEquals;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertInstanceOf;
import static org.junit.jupiter.api.Assertions.assertThrows;
import static org.junit.jupiter.api.Assertions.assertTrue;

import com.kestrum.corvel.SbVec3f;
import java.util.ArrayList;
import java.util.List;
import java.util.concurrent.CountDownLatch;
import java.util.concurrent.atomic.AtomicBoolean;
import org.junit.jupiter.api.Test;

/** The JNI call recorder: what it sees, on which thread, and that the JVM's checks still apply. */
class JniCallsTest {
    private static final Object[] TWO = {new SbVec3f(1, 2, 3), new SbVec3f(4, 5, 6)};

    @Test
    void recordsTheCallsInOrderWithTheirArgumentsAndCountsTheReferences() {
        Marshal.vec3fArray(TWO);
        JniCalls.Recording r = JniCalls.record(() -> assertArrayEquals(new float[] {1, 2, 3, 4, 5, 6},
                Marshal.vec3fArray(TWO)));
        List<String> expected = new ArrayList<>(List.of(
                "GetArrayLength() -> 2",
                "GetObjectArrayElement(0)",
                "GetObjectClass() -> Lcom/kestrum/corvel/SbVec3f;",
                "GetFieldID(Lcom/kestrum/corvel/SbVec3f;, \"array\", \"[F\")",
                "DeleteLocalRef()",
                "DeleteLocalRef()"));
        for (int i = 0; i < 2; i++) {
            expected.addAll(List.of("GetObjectArrayElement(" + i + ")", "GetObjectField(array)",
                    "GetFloatArrayElements()", "ReleaseFloatArrayElements(JNI_ABORT)", "DeleteLocalRef()",
                    "DeleteLocalRef()"));
        }
        expected.addAll(List.of("NewFloatArray(6)", "SetFloatArrayRegion(0, 6)"));
        assertEquals(expected, r.calls());
        assertEquals(3, r.count("GetObjectArrayElement"));
        assertEquals(7, r.localReferencesCreated(), "2 for element 0 and its class, 2 per element, the result");
        assertEquals(6, r.localReferencesDeleted());
        assertEquals(2, r.localReferencesPeak());
        assertEquals(0, r.globalReferencesCreated() + r.weakGlobalReferencesCreated());
    }

    @Test
    void countingKeepsTheCountsOnly() {
        JniCalls.Recording r = JniCalls.count(() -> Marshal.vec3fArray(TWO));
        assertEquals(List.of(), r.calls());
        assertEquals(3, r.count("GetObjectArrayElement"));
        assertEquals(2, r.count("ReleaseFloatArrayElements"));
        assertEquals(20, r.total());
    }

    @Test
    void nothingIsRecordedOutsideTheBlockOrOnOtherThreads() throws Exception {
        CountDownLatch recording = new CountDownLatch(1);
        CountDownLatch done = new CountDownLatch(1);
        AtomicBoolean otherCalled = new AtomicBoolean();
        Thread other = new Thread(() -> {
            try {
                recording.await();
                for (int i = 0; i < 100; i++) {
                    Marshal.vec3fArray(TWO);
                }
                otherCalled.set(true);
            } catch (InterruptedException e) {
                Thread.currentThread().interrupt();
            } finally {
                done.countDown();
            }
        });
        other.start();
        JniCalls.Recording r = JniCalls.record(() -> {
            recording.countDown();
            done.await();
        });
        other.join();
        assertTrue(otherCalled.get());
        assertEquals(List.of(), r.calls());
        assertEquals(0, r.total());
    }

    @Test
    void theJvmsChecksStillApplyToRecordedCalls() {
        JniWarnings.take();
        JniCalls.Recording r = JniCalls.record(JniWarnings::provokeExceptionPendingWarning);
        assertEquals(List.of(
                "FindClass(\"java/lang/IllegalStateException\") -> Ljava/lang/IllegalStateException;",
                "ThrowNew(Ljava/lang/IllegalStateException;, \"pending\") -> 0",
                "DeleteLocalRef()",
                "FindClass(\"java/lang/String\") -> Ljava/lang/String;",
                "ExceptionClear()",
                "DeleteLocalRef()"), r.calls());
        List<String> warnings = JniWarnings.take();
        assertEquals(1, warnings.size(), warnings.toString());
        assertEquals("WARNING in native method: JNI call made with exception pending", warnings.get(0));
    }

    @Test
    void aThrowingBlockIsRecordedAndItsThrowableKept() {
        JniCalls.Recording r = JniCalls.recordThrowing(() -> {
            Marshal.vec3fArray(TWO);
            throw new IllegalStateException("after the call");
        });
        assertInstanceOf(IllegalStateException.class, r.thrown());
        assertEquals(3, r.count("GetObjectArrayElement"));
        assertThrows(IllegalStateException.class, () -> JniCalls.record(() -> {
            throw new IllegalStateException("thrown again");
        }));
    }

    @Test
    void aThreadRecordsOneBlockAtATime() {
        assertThrows(IllegalStateException.class, () -> JniCalls.record(() -> JniCalls.record(() -> { })));
        assertEquals(0, JniCalls.record(() -> { }).total(), "the outer recording has ended");
    }

    /**
     * The toolkit's calls join the timeline where they are made, with the journal's text; a plain
     * recording has none, and the journal is left off; another thread's toolkit calls are not the
     * recording thread's.
     */
    @Test
    void toolkitCallsJoinTheTimelineOfTheirThreadOnly() throws InterruptedException {
        com.kestrum.tavrel.data.PbRegularCartesianGrid2D grid =
                new com.kestrum.tavrel.data.PbRegularCartesianGrid2D(2, 2, 0, 0, 1, 1, true);
        grid.addValuesSet(0, new float[4], "v");
        JniCalls.Recording r = JniCalls.recordWithToolkit(() -> grid.addValuesSet(1, new float[4], "w"));
        // the Java side asks the mesh its node count first (for the array's length)
        assertEquals(CoreCalls.sequence(CoreCalls.toolkit("PbMesh::getNumNodes()"), CoreCalls.readString(1),
                CoreCalls.array("Float", 4),
                CoreCalls.toolkit("PbMesh::addValuesSet(1, [0, 0, 0, 0], \"w\")")), r.calls());
        assertEquals(List.of("PbMesh::getNumNodes()", "PbMesh::addValuesSet(1, [0, 0, 0, 0], \"w\")"),
                r.toolkitCalls());
        assertEquals(List.of(), JniCalls.record(() -> grid.addValuesSet(1, new float[4], "w")).toolkitCalls());
        Thread other = new Thread(() -> grid.getValuesSetName(0));
        JniCalls.Recording quiet = JniCalls.recordWithToolkit(() -> {
            other.start();
            other.join();
        });
        assertEquals(List.of(), quiet.toolkitCalls(), "another thread's toolkit calls");
        Journal.start();
        grid.getValuesSetName(0);
        assertEquals(1, Journal.stop().size(), "the journal still records on its own");
    }
}
