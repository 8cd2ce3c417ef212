package com.kestrum.tavrel.internal;

import com.kestrum.corvel.misc.NativeObject;
import com.kestrum.tavrel.data.PbCartesianGrid2D;
import com.kestrum.tavrel.data.PbCartesianGrid3D;
import com.kestrum.tavrel.data.PbHexahedronMesh3D;
import com.kestrum.tavrel.data.PbIndexedMesh2D;
import com.kestrum.tavrel.data.PbIndexedMesh3D;
import com.kestrum.tavrel.data.PbIrregularMesh1D;
import com.kestrum.tavrel.data.PbMesh;
import com.kestrum.tavrel.data.PbParalCartesianGrid2D;
import com.kestrum.tavrel.data.PbParalCartesianGrid3D;
import com.kestrum.tavrel.data.PbPolarGrid2D;
import com.kestrum.tavrel.data.PbQuadrangleMesh2D;
import com.kestrum.tavrel.data.PbRegularCartesianGrid2D;
import com.kestrum.tavrel.data.PbRegularCartesianGrid3D;
import com.kestrum.tavrel.data.PbRegularMesh1D;
import com.kestrum.tavrel.data.PbTetrahedronMesh3D;
import com.kestrum.tavrel.data.PbTriangleMesh2D;
import java.lang.ref.Cleaner;
import java.util.Collections;
import java.util.Map;
import java.util.Queue;
import java.util.Set;
import java.util.WeakHashMap;
import java.util.concurrent.ConcurrentHashMap;
import java.util.concurrent.ConcurrentLinkedQueue;
import java.util.function.LongFunction;

/**
 * Internal to the product: Java objects for meshes that live inside other native objects (the
 * mesh of a mesh node, the value of a mesh field), and the record of their geometry changes.
 *
 * <p>A view is an object of the mesh's own class that is never freed on its own. It holds its
 * owner (the node or field whose native object contains the mesh) for as long as the view is
 * reachable: disposing the owner then disposes the owner's Java object at once, but its native
 * object, and with it the mesh, is let go only once no view of it is reachable any more. That
 * happens on a Java thread that makes a mesh node or field call (these methods, and the
 * constructors of nodes and fields), never on the collector's thread, so that the toolkit is not
 * used by two threads because of a collection.
 */
public final class MeshViews {
    private static final Cleaner CLEANER = Cleaner.create();
    /** The owners whose views have been collected, to be let go by a Java thread. */
    private static final Queue<NativeObject> UNHELD = new ConcurrentLinkedQueue<>();
    /** The owner of each view that is still reachable. */
    private static final Map<PbMesh, NativeObject> OWNERS = Collections.synchronizedMap(new WeakHashMap<>());

    private static final Map<Class<?>, LongFunction<? extends PbMesh>> VIEWS = Map.ofEntries(
            Map.entry(PbCartesianGrid2D.class, CartesianGrid2D::new),
            Map.entry(PbCartesianGrid3D.class, CartesianGrid3D::new),
            Map.entry(PbParalCartesianGrid2D.class, ParalCartesianGrid2D::new),
            Map.entry(PbParalCartesianGrid3D.class, ParalCartesianGrid3D::new),
            Map.entry(PbRegularCartesianGrid2D.class, RegularCartesianGrid2D::new),
            Map.entry(PbRegularCartesianGrid3D.class, RegularCartesianGrid3D::new),
            Map.entry(PbPolarGrid2D.class, PolarGrid2D::new),
            Map.entry(PbIndexedMesh2D.class, IndexedMesh2D::new),
            Map.entry(PbIndexedMesh3D.class, IndexedMesh3D::new),
            Map.entry(PbTriangleMesh2D.class, TriangleMesh2D::new),
            Map.entry(PbQuadrangleMesh2D.class, QuadrangleMesh2D::new),
            Map.entry(PbTetrahedronMesh3D.class, TetrahedronMesh3D::new),
            Map.entry(PbHexahedronMesh3D.class, HexahedronMesh3D::new),
            Map.entry(PbIrregularMesh1D.class, IrregularMesh1D::new),
            Map.entry(PbRegularMesh1D.class, RegularMesh1D::new));

    private MeshViews() {}

    /**
     * A view of the mesh of that class at the address (non-zero), inside the owner's native
     * object; holds the owner while the view is reachable.
     *
     * @throws IllegalStateException when the owner has been disposed
     */
    public static <M extends PbMesh> M view(Class<M> meshClass, long address, NativeObject owner) {
        releaseUnreachable();
        LongFunction<? extends PbMesh> maker = VIEWS.get(meshClass);
        if (maker == null) {
            throw new IllegalArgumentException("no view of " + meshClass.getName());
        }
        Holds.hold(owner);
        return meshClass.cast(viewOnHold(maker, address, owner));
    }

    /**
     * A view made by the maker, for which the caller has just taken a hold on the owner: the
     * view keeps that hold while it is reachable (released here if the view cannot be made).
     */
    private static PbMesh viewOnHold(LongFunction<? extends PbMesh> maker, long address, NativeObject owner) {
        PbMesh view;
        try {
            view = maker.apply(address);
        } catch (RuntimeException | Error e) {
            Holds.release(owner);
            throw e;
        }
        CLEANER.register(view, () -> UNHELD.add(owner));
        OWNERS.put(view, owner);
        return view;
    }

    /**
     * The mesh given to an object that keeps its address beyond the call (a representation's or
     * probe's mesh, a cell made from the mesh): refuses a view tied to a traversal (the mesh of a
     * traversal's state, {@code PoMeshElement.getMesh}), which lives only as long as the
     * traversal, while its mesh node may go as soon as it ends. Null and disposed meshes pass,
     * for the caller's own checks.
     *
     * @return the mesh
     * @throws IllegalArgumentException when the mesh is a view tied to a traversal
     */
    public static <M extends PbMesh> M keepable(M mesh) {
        return JavaViews.keepable(mesh, "mesh", "give the mesh node's getMesh() instead");
    }

    /**
     * For an object that keeps the address of a mesh (a representation, a cell made from the
     * mesh): when the mesh is a view of a mesh that lives inside a node or field, a new hold on
     * that owner, so that the mesh stays alive as long as the hold does, whatever becomes of the
     * view and of the owner's Java object; null for a mesh that lives on its own, and for null.
     *
     * @throws IllegalArgumentException when the mesh is a view tied to a traversal ({@link #keepable})
     */
    public static OwnerHold holdOwnerOf(PbMesh mesh) {
        keepable(mesh);
        NativeObject owner = mesh == null ? null : OWNERS.get(mesh);
        if (owner == null) {
            return null;
        }
        // The view is reachable here and holds the owner, so its native object is still there.
        Holds.holdOnceMore(owner);
        return new OwnerHold(owner, mesh.getClass(), mesh.getNativeResourceHandleInternal());
    }

    /**
     * For an object made from a mesh that keeps the mesh's address for as long as it exists
     * (a cell made from a mesh): keeps the mesh alive while the holder is reachable when the mesh
     * lives inside a node or field (see {@link #holdOwnerOf}).
     */
    public static void holdWhileReachable(Object holder, PbMesh mesh) {
        OwnerHold hold = holdOwnerOf(mesh);
        if (hold != null) {
            CLEANER.register(holder, hold::releaseLater);
        }
    }

    /**
     * Runs the action once the holder has been collected, on the cleaning thread: the action must
     * not call the toolkit, nor refer to the holder.
     */
    public static void onUnreachable(Object holder, Runnable action) {
        CLEANER.register(holder, action);
    }

    /**
     * A hold on the node or field that a mesh lives in (see {@link #holdOwnerOf}). It refers to
     * the owner's Java object, so that the owner is not collected (which would free it) while
     * the hold lasts.
     */
    public static final class OwnerHold {
        /** The holds kept for good: their owners stay allocated. */
        private static final Set<OwnerHold> KEPT = ConcurrentHashMap.newKeySet();

        private final NativeObject owner;
        private final Class<? extends PbMesh> meshClass;
        private final long address;
        private volatile boolean released;

        private OwnerHold(NativeObject owner, Class<?> viewClass, long address) {
            this.owner = owner;
            this.meshClass = viewClass.getSuperclass().asSubclass(PbMesh.class);
            this.address = address;
        }

        /** The address of the held mesh. */
        public long address() {
            return address;
        }

        /** A new view of the held mesh, with a hold of its own on the owner. */
        public PbMesh view() {
            if (released) {
                throw new IllegalStateException("the hold on the mesh has been released");
            }
            Holds.holdOnceMore(owner);
            return viewOnHold(VIEWS.get(meshClass), address, owner);
        }

        /** Ends the hold (once; later calls do nothing), on the calling thread. */
        public void release() {
            if (!released) {
                released = true;
                Holds.release(owner);
            }
        }

        /**
         * Keeps the hold for good, for a holder whose native object may outlive anything Java can
         * see (a representation that a scene still references when its Java object goes): the
         * owner then stays allocated. Does nothing once the hold has ended.
         */
        public void keepForGood() {
            if (!released) {
                released = true;
                KEPT.add(this);
            }
        }

        /**
         * Ends the hold on the next Java thread that makes a mesh node or field call (for a
         * cleaning action, which must not call the toolkit).
         */
        public void releaseLater() {
            if (!released) {
                released = true;
                UNHELD.add(owner);
            }
        }
    }

    /** Lets go of the owners of the views that have been collected (on the calling thread). */
    public static void releaseUnreachable() {
        for (NativeObject owner = UNHELD.poll(); owner != null; owner = UNHELD.poll()) {
            Holds.release(owner);
        }
    }

    /**
     * Records a change of geometry of the native mesh at the address: the cells of it handed out
     * so far stop working, whichever Java object of the mesh they came from.
     */
    public static void geometryChanged(long meshAddress) {
        releaseUnreachable();
        CartesianGrid2D.changedAt(meshAddress);
    }

    /** The holds a view keeps on its owner (see NativeObject's holds). */
    private abstract static class Holds extends NativeObject {
        private Holds() {
            super(0);
        }

        static void hold(NativeObject owner) {
            enter(owner, "owner");
        }

        static void holdOnceMore(NativeObject owner) {
            holdAgain(owner);
        }

        static void release(NativeObject owner) {
            leave(owner);
        }
    }

    private static final class CartesianGrid2D extends PbCartesianGrid2D {
        CartesianGrid2D(long address) {
            super(address);
        }

        static void changedAt(long address) {
            geometryChangedAt(address);
        }
    }

    private static final class CartesianGrid3D extends PbCartesianGrid3D {
        CartesianGrid3D(long address) {
            super(address);
        }
    }

    private static final class ParalCartesianGrid2D extends PbParalCartesianGrid2D {
        ParalCartesianGrid2D(long address) {
            super(address);
        }
    }

    private static final class ParalCartesianGrid3D extends PbParalCartesianGrid3D {
        ParalCartesianGrid3D(long address) {
            super(address);
        }
    }

    private static final class RegularCartesianGrid2D extends PbRegularCartesianGrid2D {
        RegularCartesianGrid2D(long address) {
            super(address);
        }
    }

    private static final class RegularCartesianGrid3D extends PbRegularCartesianGrid3D {
        RegularCartesianGrid3D(long address) {
            super(address);
        }
    }

    private static final class PolarGrid2D extends PbPolarGrid2D {
        PolarGrid2D(long address) {
            super(address);
        }
    }

    private static final class IndexedMesh2D extends PbIndexedMesh2D {
        IndexedMesh2D(long address) {
            super(address);
        }
    }

    private static final class IndexedMesh3D extends PbIndexedMesh3D {
        IndexedMesh3D(long address) {
            super(address);
        }
    }

    private static final class TriangleMesh2D extends PbTriangleMesh2D {
        TriangleMesh2D(long address) {
            super(address);
        }
    }

    private static final class QuadrangleMesh2D extends PbQuadrangleMesh2D {
        QuadrangleMesh2D(long address) {
            super(address);
        }
    }

    private static final class TetrahedronMesh3D extends PbTetrahedronMesh3D {
        TetrahedronMesh3D(long address) {
            super(address);
        }
    }

    private static final class HexahedronMesh3D extends PbHexahedronMesh3D {
        HexahedronMesh3D(long address) {
            super(address);
        }
    }

    private static final class IrregularMesh1D extends PbIrregularMesh1D {
        IrregularMesh1D(long address) {
            super(address);
        }
    }

    private static final class RegularMesh1D extends PbRegularMesh1D {
        RegularMesh1D(long address) {
            super(address);
        }
    }
}
