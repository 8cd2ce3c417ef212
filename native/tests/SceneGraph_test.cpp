#include <gtest/gtest.h>

#include <Corvel/SbName.h>
#include <Corvel/SoAction.h>
#include <Corvel/SoChildList.h>
#include <Corvel/SoGroup.h>
#include <Tavrel/PbTriangleMesh2D.h>
#include <Tavrel/PoCellFilter.h>
#include <Tavrel/PoMeshFilled.h>

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

TEST(PoMesh, AsksTheCellFilterTraversedBeforeItAboutEachCellWithItsValue) {
  const float x[] = {0, 1, 1, 0}, y[] = {0, 0, 1, 1};
  const int triangles[] = {0, 1, 2, 0, 2, 3};
  PbTriangleMesh2D mesh(4, x, y, 2, triangles, 1);
  const float perNode[] = {3, -3, -6, 6};  // cell means -2 and 1
  mesh.addValuesSet(0, perNode, SbString("v"));
  SoGroup* root = new SoGroup;
  root->ref();
  PoMeshFilled* before = new PoMeshFilled;
  PoMeshFilled* after = new PoMeshFilled;
  before->setMesh(&mesh);
  after->setMesh(&mesh);
  root->addChild(before);
  root->addChild(new NegativeValues);
  root->addChild(after);

  SoCallbackAction callback;
  callback.apply(root);
  EXPECT_EQ(before->selectedCells(), (std::vector<int>{0, 1}));
  EXPECT_EQ(after->selectedCells(), (std::vector<int>{0}));

  const float perCell[] = {5, -5};
  mesh.addValuesSet(0, perCell, PbMesh::PER_CELL, SbString("v"));
  SoGLRenderAction render;
  render.apply(root);
  EXPECT_EQ(after->selectedCells(), (std::vector<int>{1}));

  mesh.removeValuesSet(0);  // every cell's value is 0 then
  render.apply(root);
  EXPECT_EQ(after->selectedCells(), (std::vector<int>{}));
  EXPECT_EQ(before->selectedCells(), (std::vector<int>{0, 1}));
  before->setMesh(static_cast<PbMesh2D*>(nullptr));  // nothing to ask about
  callback.apply(root);
  EXPECT_EQ(before->selectedCells(), (std::vector<int>{}));
  root->unref();
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
