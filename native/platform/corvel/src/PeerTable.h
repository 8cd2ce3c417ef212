// A table from native addresses to references, read without a lock.
//
// The binding core looks a registered Java peer up on every forwarded call of
// a traversal (PeerTable.cpp), from any thread, while other threads register
// and unregister peers. Readers take no lock and write no shared cache line:
//
//  - The table is an open-addressing array of slots {key, ref}, each an atomic
//    word. Writers are serialised by a mutex; a new key is placed in an empty
//    slot (its ref written before its key is published), a removed key keeps
//    its slot with a null ref (a tombstone, reused only by the same key), so a
//    reader that has matched a key never sees another key's ref in that slot.
//    When live keys and tombstones fill half the array, the writer copies the
//    live entries into a new array (twice the live count, at least 64 slots)
//    and publishes it; readers still in the old one finish there.
//  - A ref taken out of the table (replaced or removed) and an array replaced
//    are not freed at once: a reader may still be using them. Each reader
//    thread announces itself in a slot of its own (an epoch, 0 when outside),
//    writers tag what they retire with the epoch they close, and free it, in
//    a later write, once no reader announced an epoch at or before that tag.
//    Writers free in batches: once kBatch things wait, the write that adds
//    the last frees all that no reader can still use (readers are short, a
//    probe and one use of the ref, so that is nearly always all of them), so
//    that the barrier below is paid once a batch rather than once a write.
//    At most about kBatch refs outlive their removal; a replaced array goes
//    with the next write.
//  - The announcement must be visible to writers before the reader reads the
//    table. Where the kernel offers process-wide barriers (membarrier, Linux
//    4.14 and later, unless a sandbox forbids it), the reader's side is a
//    plain store and a writer that is about to free something makes every
//    running thread of the process pass a full barrier first (a fraction of a
//    microsecond, paid once a batch); elsewhere
//    the reader's store is itself a full barrier (an atomic exchange). Either
//    way readers on different threads write no shared memory.
//
// Ref is a pointer-like type whose null value means "none". A reader's use of
// a ref happens inside find's protection, so a ref is never freed while it is
// being used. The freeing of refs is the caller's (a function given to the
// writing operations, which may be called for refs retired by earlier ones).
#pragma once

#include <jni.h>
#include <linux/membarrier.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <cstdlib>
#include <cstdint>
#include <mutex>
#include <vector>

namespace corvel {

// The reader announcements, one slot per thread that ever read; a thread's
// slot is released for reuse when the thread ends.
class PeerReaders {
 public:
  struct Slot {
    std::atomic<std::uint64_t> epoch{0};  // 0: not reading
    std::atomic<bool> used{true};
    Slot* next = nullptr;
  };

  // The calling thread's slot (made or reused on its first read).
  static Slot* mine() {
    if (slot == nullptr) slot = acquire();
    return slot;
  }

  // Announces the reader at the current epoch, visible to writers before the
  // reader's next loads (with the writers' heavyBarrier).
  static void enter(Slot* slot) {
    const std::uint64_t e = globalEpoch.load(std::memory_order_relaxed);
    if (asymmetric()) {
      slot->epoch.store(e, std::memory_order_relaxed);
      std::atomic_signal_fence(std::memory_order_seq_cst);
    } else {
      slot->epoch.exchange(e, std::memory_order_seq_cst);
    }
  }

  static void leave(Slot* slot) { slot->epoch.store(0, std::memory_order_release); }

  // A full barrier on this thread and, where readers only store, on every
  // running thread of the process.
  static void heavyBarrier() {
    std::atomic_thread_fence(std::memory_order_seq_cst);
    if (asymmetric() && syscall(__NR_membarrier, MEMBARRIER_CMD_PRIVATE_EXPEDITED, 0, 0) != 0) std::abort();
  }

  static std::atomic<std::uint64_t>& epoch() { return globalEpoch; }

  // The smallest epoch announced by a reader now, or UINT64_MAX with none.
  static std::uint64_t oldestReader() {
    std::uint64_t oldest = UINT64_MAX;
    for (Slot* s = head.load(std::memory_order_acquire); s != nullptr; s = s->next) {
      std::uint64_t e = s->epoch.load(std::memory_order_acquire);
      if (e != 0) oldest = std::min(oldest, e);
    }
    return oldest;
  }

 private:
  struct Release {
    Slot* slot = nullptr;
    ~Release() {
      if (slot == nullptr) return;
      // A read made later by this ending thread (from another thread-exit
      // destructor) takes a slot afresh instead of sharing this one.
      PeerReaders::slot = nullptr;
      slot->epoch.store(0, std::memory_order_release);
      slot->used.store(false, std::memory_order_release);
    }
  };

  static Slot* acquire() {
    Slot* found = nullptr;
    for (Slot* s = head.load(std::memory_order_acquire); s != nullptr && found == nullptr; s = s->next) {
      bool freeSlot = false;
      if (s->used.compare_exchange_strong(freeSlot, true, std::memory_order_acq_rel)) found = s;
    }
    if (found == nullptr) {
      found = new Slot();  // never freed: reused by later threads
      Slot* first = head.load(std::memory_order_relaxed);
      do {
        found->next = first;
      } while (!head.compare_exchange_weak(first, found, std::memory_order_release, std::memory_order_relaxed));
    }
    static thread_local Release release;
    release.slot = found;
    return found;
  }

  // Whether the process is registered for expedited process-wide barriers
  // (decided once, before the first reader or writer).
  static bool asymmetric() {
    static const bool registered = syscall(__NR_membarrier, MEMBARRIER_CMD_REGISTER_PRIVATE_EXPEDITED, 0, 0) == 0;
    return registered;
  }

  // The calling thread's slot, once it has one.
  static inline thread_local Slot* slot __attribute__((tls_model("initial-exec"))) = nullptr;
  static inline std::atomic<Slot*> head{nullptr};
  static inline std::atomic<std::uint64_t> globalEpoch{1};
};

template <class Ref>
class PeerTable {
 public:
  PeerTable() : current(new Array(kMinSlots)) {}
  ~PeerTable() {  // only when no thread uses the table any more
    delete current.load();
    for (Retired& r : retiredArrays) delete r.array;
  }
  PeerTable(const PeerTable&) = delete;
  PeerTable& operator=(const PeerTable&) = delete;

  // use(ref) for the key's ref (null when the key has none), inside the
  // protection that keeps the ref from being freed; returns what use returns.
  template <class Use>
  auto find(jlong key, Use use) {
    PeerReaders::Slot* me = PeerReaders::mine();
    // Announce first, then read: a writer that took a ref out before this
    // point sees the announcement or was seen by the reads.
    PeerReaders::enter(me);
    const Array* a = current.load(std::memory_order_acquire);
    Ref ref = a->find(key);
    auto result = use(ref);
    PeerReaders::leave(me);
    return result;
  }

  // Sets the key's ref; the replaced one is retired. freeRef(ref) is called
  // for the retired refs that no reader can still use.
  template <class Free>
  void put(jlong key, Ref ref, Free freeRef) {
    std::lock_guard<std::mutex> lock(writers);
    Array* a = current.load(std::memory_order_relaxed);
    Slot* slot = a->slotFor(key);
    if (slot == nullptr) {
      a = grown(a, 1);
      slot = a->slotFor(key);
    }
    Ref old = slot->ref.exchange(ref, std::memory_order_release);
    if (slot->key.load(std::memory_order_relaxed) != key) {
      slot->key.store(key, std::memory_order_release);  // published after its ref
      ++a->used;
    } else if (old == Ref()) {
      --a->tombstones;
    }
    ++a->live;
    if (old != Ref()) {
      --a->live;
      retire(old);
    }
    reclaimBatch(freeRef);
  }

  // Removes the key's ref (nothing when it has none); it is retired.
  template <class Free>
  void remove(jlong key, Free freeRef) {
    std::lock_guard<std::mutex> lock(writers);
    Array* a = current.load(std::memory_order_relaxed);
    Slot* slot = a->existing(key);
    if (slot != nullptr) {
      Ref old = slot->ref.exchange(Ref(), std::memory_order_release);
      if (old != Ref()) {
        --a->live;
        ++a->tombstones;
        retire(old);
      }
    }
    reclaimBatch(freeRef);
  }

  // The number of keys with a ref, and of retired refs not yet freed (tests).
  std::size_t size() {
    std::lock_guard<std::mutex> lock(writers);
    return current.load(std::memory_order_relaxed)->live;
  }
  std::size_t pendingRefs() {
    std::lock_guard<std::mutex> lock(writers);
    return retiredRefs.size();
  }

  // Frees what no reader can still use now, however few things wait (writers
  // do it once a batch is full).
  template <class Free>
  void collect(Free freeRef) {
    std::lock_guard<std::mutex> lock(writers);
    reclaim(freeRef);
  }

 private:
  static constexpr std::size_t kMinSlots = 64;
  static constexpr std::size_t kBatch = 64;

  struct Slot {
    std::atomic<jlong> key{0};  // 0: empty (address 0 is never a key)
    std::atomic<Ref> ref{Ref()};
  };

  struct Array {
    explicit Array(std::size_t n) : mask(n - 1), slots(new Slot[n]) {}
    ~Array() { delete[] slots; }
    const std::size_t mask;
    Slot* const slots;
    std::size_t used = 0;  // slots with a key (live and tombstones); writers only
    std::size_t live = 0;
    std::size_t tombstones = 0;

    static std::size_t hash(jlong key) {
      std::uint64_t h = static_cast<std::uint64_t>(key) * 0x9E3779B97F4A7C15ull;
      return static_cast<std::size_t>(h >> 32);
    }
    Ref find(jlong key) const {
      for (std::size_t i = hash(key) & mask;; i = (i + 1) & mask) {
        jlong k = slots[i].key.load(std::memory_order_acquire);
        if (k == key) return slots[i].ref.load(std::memory_order_acquire);
        if (k == 0) return Ref();
      }
    }
    Slot* existing(jlong key) {
      for (std::size_t i = hash(key) & mask;; i = (i + 1) & mask) {
        jlong k = slots[i].key.load(std::memory_order_relaxed);
        if (k == key) return &slots[i];
        if (k == 0) return nullptr;
      }
    }
    // The key's slot, or an empty one for it; null when a new key would fill
    // more than half the array.
    Slot* slotFor(jlong key) {
      if (Slot* s = existing(key)) return s;
      if (2 * (used + 1) > mask + 1) return nullptr;
      for (std::size_t i = hash(key) & mask;; i = (i + 1) & mask)
        if (slots[i].key.load(std::memory_order_relaxed) == 0) return &slots[i];
    }
  };

  struct Retired {
    std::uint64_t tag;
    Ref ref;
    Array* array;
  };

  // A new array with the live entries of a and room for more, published.
  Array* grown(Array* a, std::size_t more) {
    std::size_t n = kMinSlots;
    while (n < 4 * (a->live + more)) n *= 2;
    Array* b = new Array(n);
    for (std::size_t i = 0; i <= a->mask; ++i) {
      Ref r = a->slots[i].ref.load(std::memory_order_relaxed);
      if (r == Ref()) continue;
      Slot* s = b->slotFor(a->slots[i].key.load(std::memory_order_relaxed));
      s->ref.store(r, std::memory_order_relaxed);
      s->key.store(a->slots[i].key.load(std::memory_order_relaxed), std::memory_order_relaxed);
      ++b->used;
      ++b->live;
    }
    current.store(b, std::memory_order_release);
    retiredArrays.push_back({closeEpoch(), Ref(), a});
    return b;
  }

  // Closes the current epoch: readers announced at or before the tag may
  // still see what was taken out before this.
  static std::uint64_t closeEpoch() {
    std::atomic_thread_fence(std::memory_order_seq_cst);
    return PeerReaders::epoch().fetch_add(1, std::memory_order_seq_cst);
  }

  void retire(Ref ref) { retiredRefs.push_back({closeEpoch(), ref, nullptr}); }

  template <class Free>
  void reclaimBatch(Free freeRef) {
    // A replaced array (rare, and large) goes at once.
    if (retiredRefs.size() >= kBatch || !retiredArrays.empty()) reclaim(freeRef);
  }

  template <class Free>
  void reclaim(Free freeRef) {
    if (retiredRefs.empty() && retiredArrays.empty()) return;
    PeerReaders::heavyBarrier();
    const std::uint64_t oldest = PeerReaders::oldestReader();
    auto done = [oldest](const Retired& r) { return r.tag < oldest; };
    for (Retired& r : retiredRefs)
      if (done(r)) freeRef(r.ref);
    retiredRefs.erase(std::remove_if(retiredRefs.begin(), retiredRefs.end(), done), retiredRefs.end());
    for (Retired& r : retiredArrays)
      if (done(r)) delete r.array;
    retiredArrays.erase(std::remove_if(retiredArrays.begin(), retiredArrays.end(), done), retiredArrays.end());
  }

  std::atomic<Array*> current;
  std::mutex writers;
  std::vector<Retired> retiredRefs;    // writers only
  std::vector<Retired> retiredArrays;  // writers only
};

}  // namespace corvel
