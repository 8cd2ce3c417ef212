package com.kestrum.tavrel.data;

import java.lang.ref.Reference;
import java.lang.ref.ReferenceQueue;
import java.lang.ref.WeakReference;
import java.util.Map;
import java.util.concurrent.ConcurrentHashMap;
import java.util.concurrent.atomic.AtomicLong;

/**
 * Counts the changes of geometry of one native mesh; a mesh frees its cells at each. Every Java
 * object of the same native mesh shares one counter (a mesh's own object and a view of it agree),
 * and each cell view compares the count it was made at.
 *
 * <p>The counters are found by native address in a table that holds them weakly: a counter lives
 * while a Java object of its mesh or one of its cells does, and its entry goes with it. A
 * process-wide count of the changes of every mesh serves the cells whose mesh is not known.
 */
final class GeometryChanges {
    private static final Map<Long, Entry> BY_MESH = new ConcurrentHashMap<>();
    private static final ReferenceQueue<GeometryChanges> COLLECTED = new ReferenceQueue<>();
    private static final AtomicLong ALL_MESHES = new AtomicLong();

    private final AtomicLong count = new AtomicLong();

    private GeometryChanges() {}

    /** A table entry, queued in COLLECTED once its counter has been collected. */
    private static final class Entry extends WeakReference<GeometryChanges> {
        private final long mesh;

        Entry(long mesh, GeometryChanges changes) {
            super(changes, COLLECTED);
            this.mesh = mesh;
        }
    }

    /** The counter of the native mesh at the address. */
    static GeometryChanges of(long mesh) {
        for (Reference<?> r = COLLECTED.poll(); r != null; r = COLLECTED.poll()) {
            BY_MESH.remove(((Entry) r).mesh, r);
        }
        while (true) {
            Entry entry = BY_MESH.get(mesh);
            GeometryChanges existing = entry == null ? null : entry.get();
            if (existing != null) {
                return existing;
            }
            GeometryChanges fresh = new GeometryChanges();
            Entry replacement = new Entry(mesh, fresh);
            if (entry == null ? BY_MESH.putIfAbsent(mesh, replacement) == null
                    : BY_MESH.replace(mesh, entry, replacement)) {
                return fresh;
            }
        }
    }

    /** The number of geometry changes of every mesh so far. */
    static long ofAllMeshes() {
        return ALL_MESHES.get();
    }

    /** Records a change of this mesh's geometry. */
    void changed() {
        count.incrementAndGet();
        ALL_MESHES.incrementAndGet();
    }

    /** The number of changes of this mesh's geometry so far. */
    long count() {
        return count.get();
    }
}
