#include <gtest/gtest.h>

#include <Corvel/SbName.h>
#include <Corvel/SoAction.h>
#include <Corvel/SoChildList.h>
#include <Corvel/SoGroup.h>
#include <Tavrel/PoCellFilter.h>

#include <string>

TEST(SbName, EqualTextIsOneEntryThatOutlivesTheName) {
  const char* text;
  {
    SbName a(std::string("InternedName"));
    text = a.getString();
  }
  SbName b("InternedName");
  EXPECT_EQ(b.getString(), text);
  EXPECT_STREQ(text, "InternedName");
  EXPECT_EQ(SbName(), SbName(static_cast<const char*>(nullptr)));
  EXPECT_TRUE(!SbName(""));
  EXPECT_EQ(SbName("abc").getLength(), 3);
}

namespace {
// Accepts cells whose value is negative.
class NegativeValues : public PoCellFilter {
 public:
  SbBool acceptCell(int, float value) const override { return value < 0; }
};
}  // namespace

TEST(PoCellFilter, SelectsCellsByAskingTheFilterAboutEachCell) {
  NegativeValues filter;
  const float values[] = {1, -1, 0, -2};
  EXPECT_EQ(PoCellFilter::selectCells(&filter, 4, values), (std::vector<int>{1, 3}));
  EXPECT_EQ(PoCellFilter::selectCells(nullptr, 3, nullptr), (std::vector<int>{0, 1, 2}));
  EXPECT_EQ(PoCellFilter::selectCells(&filter, 2, nullptr), (std::vector<int>{}));
}

TEST(SoGroup, WritesAndTraversesItsChildrenInOrder) {
  SoGroup* root = new SoGroup;
  root->ref();
  SoGroup* inner = new SoGroup;
  root->addChild(inner);
  root->addChild(inner);
  EXPECT_EQ(inner->getRefCount(), 2);
  SoWriteAction write;
  write.apply(root);
  EXPECT_EQ(write.getOutput(), "Group {\nGroup {}\nGroup {}\n}\n");
  EXPECT_EQ(write.getNodesTraversed(), 3);
  EXPECT_EQ(root->getTypeId().getName(), SbName("Group"));
  EXPECT_TRUE(root->getTypeId().canCreateInstance());
  root->unref();
}
