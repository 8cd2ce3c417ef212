#include <gtest/gtest.h>

#include <Corvel/SoAction.h>
#include <Corvel/SoGroup.h>
#include <Corvel/SoState.h>
#include <Tavrel/PbLinearDataMapping.h>
#include <Tavrel/PbRegularCartesianGrid2D.h>
#include <Tavrel/PoMeshFilled.h>
#include <Tavrel/PoRegularCartesianGrid2D.h>
#include <Tavrel/PoSFRegularCartesianGrid2D.h>
#include <Tavrel/PoSFTriangleMesh2D.h>

#include <string>
#include <thread>
#include <vector>

#include "common/ToolkitCalls.h"

namespace {
// A container as the toolkit's nodes are: reference-counted, fields kept by name.
SoGroup* newNode() {
  SoGroup* node = new SoGroup;
  node->ref();
  return node;
}

// Converts by recording the order of the conversions.
struct RecordingConverter {
  std::vector<int> order;
  int operator()(int v) {
    order.push_back(v);
    return v * 10;
  }
};
}  // namespace

TEST(ToolkitCalls, ConvertsFromTheLastArgumentToTheFirstAndCallsInOrder) {
  RecordingConverter in;
  std::vector<int> received;
  tavrel::detail::callConvertedFromLast(
      in, [&](int a, int b, int c, int d) { received = {a, b, c, d}; }, std::make_tuple(1, 2, 3, 4),
      std::index_sequence_for<int, int, int, int>());
  EXPECT_EQ(in.order, (std::vector<int>{4, 3, 2, 1}));
  EXPECT_EQ(received, (std::vector<int>{10, 20, 30, 40}));
}

TEST(SoField, SetFieldTypeKeepsTheOtherFlags) {
  PoSFRegularCartesianGrid2D field;
  PoSFRegularCartesianGrid2D source;
  field.connectFrom(&source);
  ASSERT_TRUE(field.getNeedsEvaluation());
  ASSERT_TRUE(field.isDefault());
  field.setFieldType(6);
  EXPECT_EQ(field.getFieldType(), 6);
  EXPECT_TRUE(field.getNeedsEvaluation());
  EXPECT_TRUE(field.isDefault());
  field.setFieldType(9);
  EXPECT_EQ(field.getFieldType(), 1);
}

TEST(SoFieldData, ANameAddedAgainGetsTheNewField) {
  SoFieldData data;
  SoField a, b;
  data.addField(nullptr, "x", &a);
  data.addField(nullptr, "y", &a);
  data.addField(nullptr, "x", &b);
  ASSERT_EQ(data.getNumFields(), 2);
  EXPECT_EQ(data.findField("x"), &b);
  EXPECT_EQ(data.findField("y"), &a);
  EXPECT_EQ(std::string(b.getName().getString()), "x");
  data.removeField(&a);
  EXPECT_EQ(data.getNumFields(), 1);
  EXPECT_EQ(data.findField("y"), nullptr);
}

TEST(SoFieldContainer, FieldsAndContainersLetGoOfEachOther) {
  SoGroup* node = newNode();
  auto* field = new PoSFRegularCartesianGrid2D;
  field->setContainer(node);
  const_cast<SoFieldData*>(node->getFieldData())->addField(nullptr, "grid", field);
  EXPECT_EQ(node->getField("grid"), field);
  delete field;  // leaves the node
  EXPECT_EQ(node->getField("grid"), nullptr);
  EXPECT_EQ(node->getFieldData()->getNumFields(), 0);

  PoSFRegularCartesianGrid2D kept;
  kept.setContainer(node);
  const_cast<SoFieldData*>(node->getFieldData())->addField(nullptr, "kept", &kept);
  SoGroup* other = newNode();
  kept.setContainer(other);  // out of the first node's field data
  EXPECT_EQ(node->getField("kept"), nullptr);
  node->unref();
  other->unref();  // gone first: the field belongs to none
  EXPECT_EQ(kept.getContainer(), nullptr);
}

TEST(PoSFMesh, TheValueLivesInsideTheFieldAndIsCopiedIn) {
  PoSFRegularCartesianGrid2D field;
  const PbRegularCartesianGrid2D* inside = &field.getValue();
  PbRegularCartesianGrid2D grid(3, 4, 0, 0, 1, 1, 0);
  field.setValue(grid);
  EXPECT_EQ(&field.getValue(), inside);
  EXPECT_EQ(inside->numberOfNodes(), 12);
  EXPECT_FALSE(inside->isDataDuplicated());
  field.setGeometry(2, 2, 0, 0, 1, 1, nullptr);
  EXPECT_EQ(&field.getValue(), inside);
  EXPECT_EQ(grid.numberOfNodes(), 12);
}

TEST(PoSFMesh, EqualityComparesGeometryAndDataSets) {
  const float x[] = {0, 1, 1, 0}, y[] = {0, 0, 1, 1};
  const int cells[] = {0, 1, 2, 0, 2, 3}, other[] = {0, 1, 3, 1, 2, 3};
  PoSFTriangleMesh2D a, b;
  a.setGeometry(4, x, y, 2, cells);
  b.setGeometry(4, x, y, 2, cells);
  EXPECT_TRUE(a == b);
  const float values[] = {1, 2, 3, 4};
  a.addValuesSet(0, values, SbString("v"));
  EXPECT_TRUE(a != b);
  b.addValuesSet(0, values, SbString("w"));
  EXPECT_TRUE(a != b) << "names count";
  b.addValuesSet(0, values, SbString("v"));
  EXPECT_TRUE(a == b);
  b.setGeometry(4, x, y, 2, other);
  EXPECT_TRUE(a != b) << "cells count";
}

TEST(PoSFMesh, AConnectedFieldTakesTheOtherValueWhenRead) {
  PoSFRegularCartesianGrid2D source, field;
  field.connectFrom(&source);
  source.setGeometry(5, 2, 0, 0, 1, 1, nullptr);
  EXPECT_TRUE(field.getNeedsEvaluation());
  EXPECT_EQ(field.getValue().numberOfNodes(), 10);
  EXPECT_FALSE(field.getNeedsEvaluation());
  {
    PoSFRegularCartesianGrid2D gone;
    field.connectFrom(&gone);
  }
  EXPECT_EQ(field.getConnectedField(), nullptr) << "a destroyed source disconnects";
}

TEST(PoMeshProperty, MakesItsMeshCurrentAndTheStateHoldsTheNode) {
  SoGroup* root = newNode();
  auto* node = new PoRegularCartesianGrid2D;
  node->mesh.setGeometry(3, 3, 0, 0, 1, 1, nullptr);
  auto* filled = new PoMeshFilled;
  root->addChild(node);
  root->addChild(filled);
  SoGLRenderAction render;
  render.apply(root);
  EXPECT_EQ(filled->selectedCells(), (std::vector<int>{0, 1, 2, 3}));
  EXPECT_EQ(node->getRefCount(), 1) << "the state let go of the node when the apply ended";
  EXPECT_EQ(node->mesh.getContainer(), node);
  root->unref();
}

// Two traversals on two threads draw the same representation at once, under a
// mesh of four cells and under one without cells: each colours the cells it
// chose itself (a selection shared between them coloured the other's cells
// from its own, empty, values).
TEST(PoMesh, TraversalsOnTwoThreadsDrawTheSameNodeEachWithItsOwnCells) {
  auto* filled = new PoMeshFilled;
  filled->ref();
  filled->setDataMapping(new PbLinearDataMapping);
  SoGroup* roots[2];
  const int sizes[2] = {3, 1};  // 4 cells, none
  for (int k = 0; k < 2; ++k) {
    roots[k] = newNode();
    auto* grid = new PoRegularCartesianGrid2D;
    grid->mesh.setGeometry(sizes[k], sizes[k], 0, 0, 1, 1, nullptr);
    roots[k]->addChild(grid);
    roots[k]->addChild(filled);
  }
  std::vector<std::thread> threads;
  for (int k = 0; k < 2; ++k)
    threads.emplace_back([&roots, k] {
      SoGLRenderAction render;
      for (int i = 0; i < 20000; ++i) render.apply(roots[k]);
    });
  for (std::thread& t : threads) t.join();
  const std::vector<int> last = filled->selectedCells();
  EXPECT_TRUE(last.empty() || last == (std::vector<int>{0, 1, 2, 3}));
  for (SoGroup* root : roots) root->unref();
  filled->unref();
}
