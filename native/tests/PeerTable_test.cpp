// The binding core's lock-free peer table (platform/corvel/src/PeerTable.h),
// with heap cells standing for JNI references: a reader dereferences its ref
// inside the table's protection, and freeing a ref deletes its cell, so a ref
// freed too early is a use after free (the sanitizer build reports it) and a
// ref of another key shows a wrong value.

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <condition_variable>
#include <mutex>
#include <random>
#include <thread>
#include <vector>

#include "platform/corvel/src/PeerTable.h"

namespace {

struct Cell {
  jlong key;
};
using Table = corvel::PeerTable<Cell*>;

struct FreeCell {
  std::atomic<long>* freed;
  void operator()(Cell* c) const {
    delete c;
    if (freed != nullptr) freed->fetch_add(1);
  }
};

jlong keyOf(int i) { return 0x7f0000001000 + 16 * static_cast<jlong>(i); }

// The key a found ref belongs to, 0 for none (read inside the protection).
jlong lookUp(Table& table, jlong key) {
  return table.find(key, [](Cell* c) { return c == nullptr ? jlong{0} : c->key; });
}

TEST(PeerTable, FindsWhatWasPutAndNotWhatWasRemovedAcrossGrowth) {
  Table table;
  std::atomic<long> freed{0};
  const int n = 5000;  // grows the array several times
  for (int i = 0; i < n; ++i) table.put(keyOf(i), new Cell{keyOf(i)}, FreeCell{&freed});
  EXPECT_EQ(static_cast<std::size_t>(n), table.size());
  for (int i = 0; i < n; ++i) ASSERT_EQ(keyOf(i), lookUp(table, keyOf(i))) << i;
  EXPECT_EQ(0, lookUp(table, keyOf(n)));
  for (int i = 0; i < n; i += 2) table.remove(keyOf(i), FreeCell{&freed});
  table.remove(keyOf(n + 7), FreeCell{&freed});  // none: nothing happens
  for (int i = 0; i < n; ++i) ASSERT_EQ(i % 2 == 0 ? 0 : keyOf(i), lookUp(table, keyOf(i))) << i;
  // A removed key registered again, and a key replaced: the new refs count.
  table.put(keyOf(0), new Cell{keyOf(0)}, FreeCell{&freed});
  table.put(keyOf(1), new Cell{keyOf(1)}, FreeCell{&freed});
  EXPECT_EQ(keyOf(0), lookUp(table, keyOf(0)));
  EXPECT_EQ(keyOf(1), lookUp(table, keyOf(1)));
  EXPECT_EQ(static_cast<std::size_t>(n / 2 + 1), table.size());
  table.collect(FreeCell{&freed});
  EXPECT_EQ(0u, table.pendingRefs());
  EXPECT_EQ(n / 2 + 1, freed.load());  // the removed ones and the replaced one
  for (int i = 0; i < n; ++i) table.remove(keyOf(i), FreeCell{&freed});
  table.collect(FreeCell{&freed});
  EXPECT_EQ(0u, table.size());
  EXPECT_EQ(n + 2, freed.load());
}

// Without readers, writes free what they take out in batches: what waits
// stays bounded however many keys come and go, and collect frees the rest.
TEST(PeerTable, RemovedRefsWaitInABoundedBatch) {
  Table table;
  std::atomic<long> freed{0};
  std::size_t most = 0;
  for (int i = 0; i < 10000; ++i) {
    table.put(keyOf(i % 100), new Cell{keyOf(i % 100)}, FreeCell{&freed});  // replaces after the first 100
    if (i % 3 == 0) table.remove(keyOf(i % 100), FreeCell{&freed});
    most = std::max(most, table.pendingRefs());
  }
  EXPECT_GT(most, 0u) << "removals free in batches, not one by one";
  EXPECT_LE(most, 64u);
  EXPECT_GT(freed.load(), 9000);
  for (int i = 0; i < 100; ++i) table.remove(keyOf(i), FreeCell{&freed});
  table.collect(FreeCell{&freed});
  EXPECT_EQ(0u, table.pendingRefs());
  EXPECT_EQ(10000, freed.load());
}

// A reader inside its use of a ref keeps it: replacing or removing the key
// frees the old ref only after the reader has left.
TEST(PeerTable, ARefInUseIsFreedOnlyAfterItsReaderLeaves) {
  Table table;
  std::atomic<long> freed{0};
  table.put(keyOf(1), new Cell{keyOf(1)}, FreeCell{&freed});
  std::mutex m;
  std::condition_variable cv;
  bool inside = false, release = false;
  jlong seen = 0;
  std::thread reader([&] {
    table.find(keyOf(1), [&](Cell* c) {
      std::unique_lock<std::mutex> lock(m);
      inside = true;
      cv.notify_all();
      cv.wait(lock, [&] { return release; });
      seen = c->key;  // still alive
      return 0;
    });
  });
  {
    std::unique_lock<std::mutex> lock(m);
    cv.wait(lock, [&] { return inside; });
  }
  table.put(keyOf(1), new Cell{keyOf(1)}, FreeCell{&freed});
  table.remove(keyOf(1), FreeCell{&freed});
  for (int i = 0; i < 100; ++i) table.put(keyOf(100 + i), new Cell{keyOf(100 + i)}, FreeCell{&freed});  // grows
  table.collect(FreeCell{&freed});
  EXPECT_EQ(0, freed.load());
  EXPECT_EQ(2u, table.pendingRefs());
  {
    std::lock_guard<std::mutex> lock(m);
    release = true;
  }
  cv.notify_all();
  reader.join();
  EXPECT_EQ(keyOf(1), seen);
  table.collect(FreeCell{&freed});
  EXPECT_EQ(2, freed.load());
  EXPECT_EQ(0u, table.pendingRefs());
  for (int i = 0; i < 100; ++i) table.remove(keyOf(100 + i), FreeCell{&freed});
  table.collect(FreeCell{&freed});
}

// Threads register, replace and unregister keys while others look them up:
// every ref found belongs to its key and is alive while used (the sanitizer
// build sees any early free), and in the end every ref is freed once.
TEST(PeerTable, StressOfWritersAndReaders) {
  Table table;
  std::atomic<long> made{0}, freed{0};
  std::atomic<bool> stop{false};
  const int keys = 512;
  std::vector<std::thread> threads;
  std::atomic<long> wrong{0}, hits{0};
  for (int w = 0; w < 3; ++w) {
    threads.emplace_back([&, w] {
      std::mt19937 random(17 + w);
      for (int round = 0; round < 40000; ++round) {
        int k = static_cast<int>(random() % keys);
        if (random() % 3 == 0) {
          table.remove(keyOf(k), FreeCell{&freed});
        } else {
          made.fetch_add(1);
          table.put(keyOf(k), new Cell{keyOf(k)}, FreeCell{&freed});
        }
      }
    });
  }
  for (int r = 0; r < 3; ++r) {
    threads.emplace_back([&, r] {
      std::mt19937 random(101 + r);
      while (!stop.load(std::memory_order_relaxed)) {
        jlong key = keyOf(static_cast<int>(random() % keys));
        jlong found = lookUp(table, key);
        if (found != 0 && found != key) wrong.fetch_add(1);
        if (found != 0) hits.fetch_add(1, std::memory_order_relaxed);
      }
    });
  }
  for (int w = 0; w < 3; ++w) threads[w].join();
  stop = true;
  for (std::size_t i = 3; i < threads.size(); ++i) threads[i].join();
  EXPECT_EQ(0, wrong.load());
  EXPECT_GT(hits.load(), 0);
  for (int k = 0; k < keys; ++k) table.remove(keyOf(k), FreeCell{&freed});
  table.collect(FreeCell{&freed});
  EXPECT_EQ(0u, table.size());
  EXPECT_EQ(0u, table.pendingRefs());
  EXPECT_EQ(made.load(), freed.load());
}

// Reader threads that come and go reuse the announcement slots of ended ones.
TEST(PeerTable, ShortLivedReaderThreads) {
  Table table;
  table.put(keyOf(3), new Cell{keyOf(3)}, FreeCell{nullptr});
  for (int round = 0; round < 50; ++round) {
    std::vector<std::thread> readers;
    for (int t = 0; t < 4; ++t)
      readers.emplace_back([&] { EXPECT_EQ(keyOf(3), lookUp(table, keyOf(3))); });
    for (std::thread& t : readers) t.join();
  }
  table.remove(keyOf(3), FreeCell{nullptr});
  table.collect(FreeCell{nullptr});
  EXPECT_EQ(0u, table.pendingRefs());
}

}  // namespace

// getManagedObject matches a class name by its address only when the text
// there can never change: a literal, not a buffer that a caller may reuse for
// another name.
#include "platform/corvel/src/ManagedObjectsClass.h"

#include <cstring>
#include <memory>

namespace {
char writableName[] = "com.kestrum.corvel.actions.SoGLRenderAction";

TEST(ClassNameAddresses, OnlyLiteralsAreMatchedByAddress) {
  EXPECT_TRUE(corvel::isPinnedLiteral("com.kestrum.corvel.actions.SoGLRenderAction"));
  EXPECT_FALSE(corvel::isPinnedLiteral(writableName));
  char onStack[64];
  std::strcpy(onStack, writableName);
  EXPECT_FALSE(corvel::isPinnedLiteral(onStack));
  std::unique_ptr<char[]> onHeap(new char[64]);
  std::strcpy(onHeap.get(), writableName);
  EXPECT_FALSE(corvel::isPinnedLiteral(onHeap.get()));
}
}  // namespace

// The binding core's own table of weak references to Java peers, driven
// through the natives that com.kestrum.corvel.misc.ManagedObjects calls, with
// real Java objects: threads attached to the test's JVM register, replace and
// unregister peers while others hand them to Java as local references. The
// JVM checks every JNI call (-Xcheck:jni): a weak reference used after its
// deletion is reported, and the runner fails on the report.
#include <CorvelJNI/JNIEnvHelper.h>

#include "JavaVM.h"

extern "C" {
JNIEXPORT void JNICALL Java_com_kestrum_corvel_misc_ManagedObjects_rememberPeerNative(JNIEnv*, jclass, jlong,
                                                                                     jobject);
JNIEXPORT void JNICALL Java_com_kestrum_corvel_misc_ManagedObjects_forgetPeerNative(JNIEnv*, jclass, jlong);
}

namespace {
TEST(PeerTableJni, RegisteringAndLookingUpFromManyThreads) {
  const int keys = 64;
  const jlong base = 0x5eed000000;  // addresses no other test registers
  jclass objectClass = nativetest::env()->FindClass("java/lang/Object");
  jclass objects = static_cast<jclass>(nativetest::env()->NewGlobalRef(objectClass));
  nativetest::env()->DeleteLocalRef(objectClass);
  std::atomic<bool> stop{false};
  std::atomic<long> found{0}, wrong{0};
  std::vector<std::thread> threads;
  for (int w = 0; w < 2; ++w) {
    threads.emplace_back([&, w] {
      JNIEnv* env = JNIEnvHelper::getEnv();
      std::mt19937 random(7 + w);
      for (int round = 0; round < 12000; ++round) {
        jlong address = base + 8 * static_cast<jlong>(random() % keys);
        if (random() % 3 == 0) {
          Java_com_kestrum_corvel_misc_ManagedObjects_forgetPeerNative(env, nullptr, address);
        } else {
          jobject peer = env->AllocObject(objects);
          Java_com_kestrum_corvel_misc_ManagedObjects_rememberPeerNative(env, nullptr, address, peer);
          env->DeleteLocalRef(peer);  // held weakly: some are collected while registered
        }
      }
    });
  }
  for (int r = 0; r < 2; ++r) {
    threads.emplace_back([&, r] {
      JNIEnv* env = JNIEnvHelper::getEnv();
      std::mt19937 random(70 + r);
      while (!stop.load(std::memory_order_relaxed)) {
        jobject peer = corvel::registeredPeer(env, base + 8 * static_cast<jlong>(random() % keys));
        if (peer == nullptr) continue;
        if (!env->IsInstanceOf(peer, objects)) wrong.fetch_add(1);
        found.fetch_add(1, std::memory_order_relaxed);
        env->DeleteLocalRef(peer);
      }
    });
  }
  nativetest::collectGarbage();  // on this thread, whose environment it uses
  threads[0].join();
  threads[1].join();
  stop = true;
  for (std::size_t i = 2; i < threads.size(); ++i) threads[i].join();
  EXPECT_EQ(0, wrong.load());
  EXPECT_GT(found.load(), 0);
  JNIEnv* env = nativetest::env();
  for (int k = 0; k < keys; ++k)
    Java_com_kestrum_corvel_misc_ManagedObjects_forgetPeerNative(env, nullptr, base + 8 * k);
  for (int k = 0; k < keys; ++k) EXPECT_EQ(nullptr, corvel::registeredPeer(env, base + 8 * k));
  env->DeleteGlobalRef(objects);
}
}  // namespace
