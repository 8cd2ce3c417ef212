#include <gtest/gtest.h>

#include <Corvel/SbName.h>
#include <Corvel/SoAction.h>
#include <Corvel/SoChildList.h>
#include <Corvel/SoGroup.h>
#include <Corvel/SoState.h>
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

namespace {
// Renders as a group does, and records what it sees first: the action's
// state, and, when it applies the action to `inner` during its own
// traversal, the state once that inner apply has returned. With `filter`, it
// renders the filter first and records the filter's reference count then.
class StateRecorder : public SoGroup {
 public:
  void GLRender(SoGLRenderAction* action) override {
    state = action->getState();
    if (filter != nullptr) {
      filter->GLRender(action);
      filterRefs = filter->getRefCount();
    }
    if (inner != nullptr) {
      action->apply(inner);
      stateAfterInner = action->getState();
    }
    SoGroup::GLRender(action);
  }

  SoNode* inner = nullptr;
  PoCellFilter* filter = nullptr;
  SoState* state = nullptr;
  SoState* stateAfterInner = nullptr;
  int filterRefs = 0;
};
}  // namespace

TEST(SoAction, HasAStateOnlyDuringApplyAndOneForEachApply) {
  StateRecorder* outer = new StateRecorder;
  StateRecorder* inner = new StateRecorder;
  outer->ref();
  inner->ref();
  outer->inner = inner;
  SoGLRenderAction render;
  EXPECT_EQ(render.getState(), nullptr);
  render.apply(outer);
  EXPECT_NE(outer->state, nullptr);
  EXPECT_NE(inner->state, nullptr);
  EXPECT_NE(inner->state, outer->state);
  EXPECT_EQ(outer->stateAfterInner, outer->state);
  EXPECT_EQ(render.getState(), nullptr);

  SoState other(&render);
  inner->state = &other;
  inner->GLRender(&render);  // a direct call, outside apply
  EXPECT_EQ(inner->state, nullptr);
  inner->unref();
  outer->unref();
}

TEST(SoState, HoldsAReferenceOnItsCurrentFilterUntilTheTraversalEnds) {
  NegativeValues* filter = new NegativeValues;
  filter->ref();
  StateRecorder* root = new StateRecorder;
  root->ref();
  root->filter = filter;
  SoGLRenderAction render;
  render.apply(root);
  EXPECT_EQ(root->filterRefs, 2);
  EXPECT_EQ(filter->getRefCount(), 1);

  // Outside apply the filter becomes no one's current filter: a representation
  // then selects every cell.
  const float x[] = {0, 1, 1, 0}, y[] = {0, 0, 1, 1};
  const int triangles[] = {0, 1, 2, 0, 2, 3};
  PbTriangleMesh2D mesh(4, x, y, 2, triangles, 1);
  const float perCell[] = {5, -5};
  mesh.addValuesSet(0, perCell, PbMesh::PER_CELL, SbString("v"));
  PoMeshFilled* filled = new PoMeshFilled;
  filled->ref();
  filled->setMesh(&mesh);
  filter->GLRender(&render);
  EXPECT_EQ(filter->getRefCount(), 1);
  filled->GLRender(&render);
  EXPECT_EQ(filled->selectedCells(), (std::vector<int>{0, 1}));
  filled->unref();
  root->unref();
  filter->unref();
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
