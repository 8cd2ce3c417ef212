package com.kestrum.tavrel.data;

import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertInstanceOf;
import static org.junit.jupiter.api.Assertions.assertNotSame;
import static org.junit.jupiter.api.Assertions.assertSame;

import com.kestrum.corvel.misc.ManagedObjects;
import com.kestrum.tavrel.testkit.JniCalls;
import com.kestrum.tavrel.testkit.Toolkit;
import org.junit.jupiter.api.Test;

/**
 * The binding core's lookup of the Java object for an address, as native code makes it: a
 * registered peer comes back without a call into Java (the binding core keeps a weak reference to
 * each peer, in step with the Java table), anything else through one Java call with the class,
 * which is resolved by name only once.
 */
class ManagedObjectLookupTest {
    private static final String MESH = "com.kestrum.tavrel.data.PbMesh";
    private static final String MESH_2D = "com.kestrum.tavrel.data.PbMesh2D";
    private static final String JAVA_CALL =
            "CallStaticObjectMethodV(Lcom/kestrum/corvel/misc/ManagedObjects;, getManagedObject(Ljava/lang/Class;J)Ljava/lang/Object;)";

    private static PbIrregularMesh1D mesh() {
        return new PbIrregularMesh1D(3, new float[] {0, 1, 2});
    }

    /**
     * One lookup, recorded, after a lookup of the same class name for another mesh (the first
     * lookup of a class name resolves it).
     */
    private static JniCalls.Recording lookUp(String className, long address, Object[] found) {
        Toolkit.managedObject(className, mesh().getNativeResourceHandleInternal());
        return JniCalls.record(() -> found[0] = Toolkit.managedObject(className, address));
    }

    @Test
    void aRegisteredPeerComesBackWithoutACallIntoJava() {
        PbIrregularMesh1D mesh = mesh();
        Object[] found = new Object[1];
        JniCalls.Recording r = lookUp(MESH, mesh.getNativeResourceHandleInternal(), found);
        assertSame(mesh, found[0]);
        assertEquals(0, r.count("CallStaticObjectMethodV"), r.calls().toString());
        assertEquals(1, r.count("NewLocalRef"), r.calls().toString());
        assertEquals(1, r.count("IsInstanceOf"), r.calls().toString());
    }

    /** (A mesh's wrapper registers as the peer of its address in turn.) */
    @Test
    void aPeerOfAnotherClassGivesAWrapperOfTheClassAskedFor() {
        PbIrregularMesh1D mesh = mesh();
        Object[] found = new Object[1];
        JniCalls.Recording r = lookUp(MESH_2D, mesh.getNativeResourceHandleInternal(), found);
        assertInstanceOf(PbMesh2D.class, found[0]);
        assertEquals(1, r.calls().stream().filter(JAVA_CALL::equals).count(), r.calls().toString());
    }

    @Test
    void aDisposedPeerIsNoLongerFound() {
        PbIrregularMesh1D mesh = mesh();
        long address = mesh.getNativeResourceHandleInternal();
        mesh.dispose();
        Object[] found = new Object[1];
        JniCalls.Recording r = lookUp(MESH, address, found);
        assertNotSame(mesh, found[0]);
        assertEquals(address, ((PbMesh) found[0]).getNativeResourceHandleInternal());
        assertEquals(1, r.calls().stream().filter(JAVA_CALL::equals).count(), r.calls().toString());
    }

    @Test
    void aPeerRegisteredAgainForTheAddressReplacesTheFirst() {
        PbIrregularMesh1D mesh = mesh();
        long address = mesh.getNativeResourceHandleInternal();
        PbIrregularMesh1D other = mesh();
        ManagedObjects.registerPeer(address, other);
        try {
            assertSame(other, Toolkit.managedObject(MESH, address));
        } finally {
            ManagedObjects.unregisterPeer(address, other);
        }
        assertNotSame(other, Toolkit.managedObject(MESH, address));
        assertNotSame(mesh, Toolkit.managedObject(MESH, address));
    }
}
