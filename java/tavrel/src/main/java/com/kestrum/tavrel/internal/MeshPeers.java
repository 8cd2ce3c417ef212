package com.kestrum.tavrel.internal;

import com.kestrum.corvel.misc.ManagedObjects;
import com.kestrum.tavrel.data.PbCell;
import com.kestrum.tavrel.data.PbMesh;
import com.kestrum.tavrel.data.PbMesh2D;
import com.kestrum.tavrel.data.PbMesh3D;
import java.lang.invoke.MethodHandles;

/**
 * Internal to the product: the Java object for the native address of a mesh or cell, for the
 * classes of other packages that receive such addresses from native code (representation
 * nodes, probe callbacks). Not part of the public API.
 *
 * <p>A mesh address gives the Java object that created the mesh when there is one (a live
 * registered peer of the expected kind), otherwise a new view of the kind asked for; the
 * address must be that of a mesh of that kind. A cell address gives a view without a known
 * mesh (a cell obtained from a mesh is only valid until that mesh changes). Address 0 gives
 * null.
 */
public final class MeshPeers {
    /** Makes views; installed once by {@link PbMesh}. */
    public interface Factory {
        PbMesh mesh(long address);

        PbMesh2D mesh2D(long address);

        PbMesh3D mesh3D(long address);

        PbCell cell(long address);
    }

    private static volatile Factory factory;

    private MeshPeers() {}

    /** Called by {@link PbMesh} when it is initialised; later calls are ignored. */
    public static synchronized void install(Factory views) {
        if (factory == null) {
            factory = views;
        }
    }

    private static Factory factory() {
        if (factory == null) {
            try {
                MethodHandles.lookup().ensureInitialized(PbMesh.class);
            } catch (IllegalAccessException e) {
                throw new IllegalStateException(e);
            }
        }
        return factory;
    }

    public static PbMesh meshOf(long address) {
        if (address == 0) {
            return null;
        }
        Object peer = ManagedObjects.peerOf(address);
        return peer instanceof PbMesh ? (PbMesh) peer : factory().mesh(address);
    }

    public static PbMesh2D mesh2DOf(long address) {
        if (address == 0) {
            return null;
        }
        Object peer = ManagedObjects.peerOf(address);
        return peer instanceof PbMesh2D ? (PbMesh2D) peer : factory().mesh2D(address);
    }

    public static PbMesh3D mesh3DOf(long address) {
        if (address == 0) {
            return null;
        }
        Object peer = ManagedObjects.peerOf(address);
        return peer instanceof PbMesh3D ? (PbMesh3D) peer : factory().mesh3D(address);
    }

    public static PbCell cellOf(long address) {
        if (address == 0) {
            return null;
        }
        Object peer = ManagedObjects.peerOf(address);
        return peer instanceof PbCell ? (PbCell) peer : factory().cell(address);
    }
}
