#include <gtest/gtest.h>

#include <Corvel/CallJournal.h>
#include <Corvel/SbBox.h>
#include <Corvel/SbString.h>
#include <Corvel/SbThreadMutex.h>
#include <Corvel/SoType.h>

#include <atomic>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "platform/toolkit/src/common/CachedCast.h"

TEST(CallJournal, RendersArgumentsAndOnlyRecordsWhenOn) {
  CallJournal::setEnabled(false);
  CallJournal::clear();
  CallJournal::record("X::ignored", 1);
  EXPECT_TRUE(CallJournal::lines().empty());

  CallJournal::setEnabled(true);
  const float values[] = {1, 2.5f, -3};
  const SbVec3f* noVectors = nullptr;
  std::vector<float> many(10, 0.5f);
  CallJournal::record("PbMesh::addValuesSet", 2, journalArray(values, 3), SbString("t"), journalArray(noVectors, 4),
                      journalArray(many.data(), 10), static_cast<const char*>(nullptr), true,
                      SbBox3f(0, 0, 0, 1, 2, 3));
  CallJournal::setEnabled(false);
  auto lines = CallJournal::lines();
  ASSERT_EQ(lines.size(), 1u);
  EXPECT_EQ(lines[0],
            "PbMesh::addValuesSet(2, [1, 2.5, -3], \"t\", null, "
            "[0.5, 0.5, 0.5, 0.5, 0.5, 0.5, 0.5, 0.5, ... n=10], null, true, (0, 0, 0)..(1, 2, 3))");
  CallJournal::clear();
}

TEST(SoType, CreateFindAndDerive) {
  SoType root = SoType::createType(SoType::badType(), "TestRoot");
  SoType child = SoType::createType(root, "TestChild", nullptr, 7);
  EXPECT_FALSE(child.isBad());
  EXPECT_EQ(SoType::fromName("TestChild"), child);
  EXPECT_STREQ(child.getName().getString(), "TestChild");
  EXPECT_EQ(child.getParent(), root);
  EXPECT_EQ(child.getData(), 7);
  EXPECT_TRUE(child.isDerivedFrom(root));
  EXPECT_FALSE(root.isDerivedFrom(child));
  EXPECT_TRUE(SoType::fromName("NoSuchType").isBad());
  EXPECT_EQ(SoType(), SoType::badType());

  // A second type of the same name is a new type; the name finds the newest.
  SoType again = SoType::createType(root, "TestChild");
  EXPECT_NE(again, child);
  EXPECT_EQ(SoType::fromName("TestChild"), again);
}

TEST(SoType, CreatesInstancesThroughItsFunction) {
  static SoType seen;
  SoType t = SoType::createType(SoType::badType(), "Creatable", [](SoType* type) -> void* {
    seen = *type;
    return new int(5);
  });
  int* made = static_cast<int*>(t.createInstance());
  ASSERT_NE(made, nullptr);
  EXPECT_EQ(*made, 5);
  EXPECT_EQ(seen, t);
  delete made;
  EXPECT_EQ(SoType::fromName("TestRoot").createInstance(), nullptr);
}

// Many threads make types while others walk the parents of the types made so far: every
// type a reader can see is complete (its name, parent and data), without a lock.
TEST(SoType, TypesMadeWhileOthersReadThemAreWhole) {
  SoType root = SoType::createType(SoType::badType(), "ConcurrentRoot", nullptr, 1);
  std::atomic<bool> stop{false};
  std::atomic<int> bad{0};
  std::vector<std::thread> readers;
  for (int r = 0; r < 2; ++r) {
    readers.emplace_back([&] {
      while (!stop.load()) {
        for (int key = SoType::getNumTypes(); key > 0; --key) {
          SoType t = SoType::fromName("ConcurrentRoot");
          if (!t.isDerivedFrom(root) || t.getData() != 1) bad.fetch_add(1);
        }
      }
    });
  }
  std::vector<std::thread> writers;
  for (int w = 0; w < 2; ++w) {
    writers.emplace_back([&, w] {
      SoType parent = root;
      for (int i = 0; i < 1500; ++i) {
        SoType t = SoType::createType(parent, ("Concurrent" + std::to_string(w) + "_" + std::to_string(i)).c_str(), nullptr, 2);
        if (t.getParent() != parent || !t.isDerivedFrom(root) || t.getData() != 2) bad.fetch_add(1);
        parent = t;
      }
    });
  }
  for (auto& t : writers) t.join();
  stop = true;
  for (auto& t : readers) t.join();
  EXPECT_EQ(bad.load(), 0);
  EXPECT_TRUE(SoType::fromName("Concurrent1_1499").isDerivedFrom(SoType::fromName("Concurrent1_0")));
}

namespace {
struct CastBase {
  virtual ~CastBase() = default;
  int base = 1;
};
struct CastMixin {
  virtual ~CastMixin() = default;
  int mixin = 2;
};
struct CastPlain : CastBase {};
struct CastBoth : CastBase, CastMixin {};
struct CastMixinFirst : CastMixin, CastBase {};
template <int N>
struct CastMany : CastBase, CastMixin {
  int many = N;
};
template <int N>
CastBase* manyObject() {
  static CastMany<N> object;
  return &object;
}
template <int... N>
void castEach(std::integer_sequence<int, N...>, int& right) {
  ((right += (tk::cachedCast<CastMixin>(manyObject<N>()) == static_cast<CastMixin*>(static_cast<CastMany<N>*>(manyObject<N>())))), ...);
}
}  // namespace

// The cached answer is the cast's own, for each most-derived class: a failure, or the pointer
// moved to the base (a cross cast lands on the base at its own offset in each class).
TEST(CachedCast, AnswersAsDynamicCastForEachClass) {
  CastPlain plain;
  CastBoth both;
  CastMixinFirst first;
  for (int round = 0; round < 3; ++round) {  // the first round fills the table, the others read it
    EXPECT_EQ(tk::cachedCast<CastMixin>(static_cast<CastBase*>(&plain)), nullptr);
    EXPECT_EQ(tk::cachedCast<CastMixin>(static_cast<CastBase*>(&both)), static_cast<CastMixin*>(&both));
    EXPECT_EQ(tk::cachedCast<CastMixin>(static_cast<CastBase*>(&first)), static_cast<CastMixin*>(&first));
    EXPECT_EQ(tk::cachedCast<const CastMixin>(static_cast<const CastBase*>(&both))->mixin, 2);
    EXPECT_EQ(tk::cachedCast<CastBoth>(static_cast<CastMixin*>(&both)), &both);
    EXPECT_EQ(tk::cachedCast<CastBoth>(static_cast<CastMixin*>(&first)), nullptr);
    EXPECT_EQ(tk::cachedCast<CastMixin>(static_cast<CastBase*>(nullptr)), nullptr);
  }
  // More classes than the table holds: the ones past it are cast each time, still right.
  int right = 0;
  castEach(std::make_integer_sequence<int, 530>(), right);
  castEach(std::make_integer_sequence<int, 530>(), right);
  EXPECT_EQ(right, 1060);
}

TEST(SbThreadMutex, RecursiveMutexMayBeTakenTwice) {
  SbThreadMutex m(true);
  EXPECT_EQ(m.lock(), 0);
  EXPECT_EQ(m.lock(), 0);
  EXPECT_EQ(m.unlock(), 0);
  EXPECT_EQ(m.unlock(), 0);
}
