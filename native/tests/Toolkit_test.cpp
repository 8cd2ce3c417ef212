#include <gtest/gtest.h>

#include <Corvel/CallJournal.h>
#include <Corvel/SbBox.h>
#include <Corvel/SbString.h>
#include <Corvel/SbThreadMutex.h>
#include <Corvel/SoType.h>

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

TEST(SbThreadMutex, RecursiveMutexMayBeTakenTwice) {
  SbThreadMutex m(true);
  EXPECT_EQ(m.lock(), 0);
  EXPECT_EQ(m.lock(), 0);
  EXPECT_EQ(m.unlock(), 0);
  EXPECT_EQ(m.unlock(), 0);
}
