// The toolkit stand-in's attribute property nodes: their fields, the filters
// they ship, the domain's transform, dates as coordinates, the profiles, and
// what a representation after them in a group draws with.

#include <gtest/gtest.h>

#include <Corvel/SoAction.h>
#include <Corvel/SoGroup.h>
#include <Corvel/SoSeparator.h>
#include <Corvel/SoState.h>
#include <Tavrel/PbIrregularMesh1D.h>
#include <Tavrel/PbLinearDataMapping.h>
#include <Tavrel/PoCircularProfile.h>
#include <Tavrel/PoCoordinateListFilter.h>
#include <Tavrel/PoDateFormatMapping.h>
#include <Tavrel/PoDomain.h>
#include <Tavrel/PoIndexListFilter.h>
#include <Tavrel/PoIntervalCellFilter.h>
#include <Tavrel/PoIsovaluesList.h>
#include <Tavrel/PoLinearDataMapping.h>
#include <Tavrel/PoMesh1DFilterElement.h>
#include <Tavrel/PoMeshFilled.h>
#include <Tavrel/PoNonLinearDataMapping2.h>
#include <Tavrel/PoPeriodFilter.h>
#include <Tavrel/PoPeriodIndexFilter.h>
#include <Tavrel/PoProfileCoordinate2.h>
#include <Tavrel/PoRegularCartesianGrid2D.h>
#include <Tavrel/PoSquareProfile.h>

#include <cmath>
#include <string>
#include <vector>

namespace {
template <class T>
T* made() {
  T* node = new T;
  node->ref();
  return node;
}

void set(SoNode* node, const char* field, const char* text) { node->getField(field)->setValueString(text); }

std::string text(const SoNode* node, const char* field) { return node->getField(field)->getValueString().getString(); }

// A 1D mesh of nodes at x with values y in set 0.
PbIrregularMesh1D mesh1D(const std::vector<float>& x, const std::vector<float>& y) {
  PbIrregularMesh1D mesh(static_cast<int>(x.size()), x.data());
  mesh.addValuesSet(0, y.data(), SbString("y"));
  return mesh;
}
}  // namespace

TEST(PoIntervalCellFilter, KeepsTheCellsInItsIntervalBoundsIncludedOrThoseOutsideIt) {
  auto* filter = made<PoIntervalCellFilter>();
  const float values[] = {-1.0f, 0.25f, 0.5f, 0.75f, 2.0f, NAN};
  set(filter, "min", "0.25");
  set(filter, "max", "0.75");
  EXPECT_EQ(PoCellFilter::selectCells(filter, 6, values), (std::vector<int>{1, 2, 3}));
  set(filter, "in", "FALSE");
  EXPECT_EQ(PoCellFilter::selectCells(filter, 6, values), (std::vector<int>{0, 4, 5}));
  set(filter, "in", "maybe");  // unreadable: the default, TRUE
  set(filter, "max", "");      // unreadable: the default, 1
  EXPECT_EQ(PoCellFilter::selectCells(filter, 6, values), (std::vector<int>{1, 2, 3}));
  filter->unref();
}

TEST(PoMesh1DFilter, EachFilterKeepsThePointsItNames) {
  // x: 0 0.4 1 1.5 2 3.2; y (values set 0): 5 6 7 6 5 4
  const PbIrregularMesh1D mesh = mesh1D({0, 0.4f, 1, 1.5f, 2, 3.2f}, {5, 6, 7, 6, 5, 4});
  auto* coordinates = made<PoCoordinateListFilter>();
  auto* indices = made<PoIndexListFilter>();
  auto* period = made<PoPeriodFilter>();
  auto* every = made<PoPeriodIndexFilter>();
  struct Case {
    const char* what;
    PoMesh1DFilter* filter;
    std::vector<std::pair<const char*, const char*>> fields;
    std::vector<int> kept;
  };
  const std::vector<Case> cases = {
      {"no filter keeps every point", nullptr, {}, {0, 1, 2, 3, 4, 5}},
      {"coordinates: none listed", coordinates, {}, {}},
      {"coordinates along x", coordinates, {{"coordinates", "1.5 0 9"}}, {0, 3}},
      {"coordinates along y", coordinates, {{"axis", "1"}, {"coordinates", "6"}}, {1, 3}},
      {"indices, any order, out of range ignored", indices, {{"index", "4 1 -1 99 1"}}, {1, 4}},
      {"one point per unit of x", period, {}, {0, 2, 4, 5}},
      {"one point per 2 of y", period, {{"axis", "1"}, {"period", "2"}}, {0, 2, 4}},
      {"a period of 0 keeps every point", period, {{"axis", "0"}, {"period", "0"}}, {0, 1, 2, 3, 4, 5}},
      {"every point by default", every, {}, {0, 1, 2, 3, 4, 5}},
      {"every second from 1", every, {{"start", "1"}, {"period", "2"}}, {1, 3, 5}},
      {"a period below 1 counts as 1", every, {{"start", "4"}, {"period", "-3"}}, {4, 5}},
  };
  for (const Case& c : cases) {
    for (const auto& [name, value] : c.fields) set(c.filter, name, value);
    EXPECT_EQ(PoMesh1DFilter::selectPoints(c.filter, mesh), c.kept) << c.what;
  }
  for (SoNode* n : std::vector<SoNode*>{coordinates, indices, period, every}) n->unref();
}

TEST(PoDomain, ComputesItsMatrixFromItsBoxAndTransformType) {
  auto* domain = made<PoDomain>();
  domain->setValues(SbVec3f(1, 2, 3), SbVec3f(3, 6, 4), PoDomain::ASIS);
  const SbMatrix* matrix = domain->getMatrixTransform();
  // TRANSFORM01: each axis on its own onto [0, 1]; row vectors, translation in the last row.
  EXPECT_FLOAT_EQ((*matrix)[0][0], 0.5f);
  EXPECT_FLOAT_EQ((*matrix)[1][1], 0.25f);
  EXPECT_FLOAT_EQ((*matrix)[2][2], 1.0f);
  EXPECT_FLOAT_EQ((*matrix)[3][0], -0.5f);
  EXPECT_FLOAT_EQ((*matrix)[3][1], -0.5f);
  set(domain, "transformType", "1");  // SCALEXFIXED: every axis with x's scale
  EXPECT_EQ(domain->getMatrixTransform(), matrix) << "the same matrix, brought up to date";
  EXPECT_FLOAT_EQ((*matrix)[1][1], 0.5f);
  EXPECT_FLOAT_EQ((*matrix)[2][2], 0.5f);
  domain->setValues(SbVec2f(0, 0), SbVec2f(4, 2), PoDomain::MINBOUNDINGCUBE);
  EXPECT_EQ(text(domain, "min"), "0 0 0") << "the box as given, z 0";
  EXPECT_TRUE(domain->getDomain()->is2D());
  EXPECT_FLOAT_EQ(domain->getDomain()->box().getMin()[1], -1.0f) << "grown to a square";
  EXPECT_EQ(domain->getTransform(), nullptr);
  domain->unref();
}

TEST(PoDateFormatMapping, ConvertsDatesThroughItsFields) {
  auto* mapping = made<PoDateFormatMapping>();
  float coord = -7.0f;
  EXPECT_EQ(mapping->getCoordinate("2000-01-03", coord), 1);
  EXPECT_FLOAT_EQ(coord, 2.0f) << "one unit a day from 2000-01-01";
  set(mapping, "date2", "2000-01-11");
  set(mapping, "coord2", "100");
  EXPECT_EQ(mapping->getCoordinate("2000-01-06 12:00", coord), 1);
  EXPECT_FLOAT_EQ(coord, 55.0f);
  coord = -7.0f;
  EXPECT_EQ(mapping->getCoordinate("next Tuesday", coord), 0);
  EXPECT_FLOAT_EQ(coord, -7.0f) << "nothing written for a date it cannot read";
  set(mapping, "date2", "2000-01-01");  // equal dates: the default mapping
  EXPECT_EQ(mapping->getCoordinate("2000-01-02", coord), 1);
  EXPECT_FLOAT_EQ(coord, 1.0f);
  mapping->unref();
}

TEST(PoProfile, ProfilesGiveTheirPolygons) {
  auto* circle = made<PoCircularProfile>();
  set(circle, "radius", "2");
  set(circle, "numPoints", "4");
  const std::vector<SbVec2f> points = circle->getPoints();
  ASSERT_EQ(points.size(), 4u);
  EXPECT_FLOAT_EQ(points[1][1], 2.0f);
  auto* square = made<PoSquareProfile>();
  EXPECT_EQ(square->getPoints()[0], SbVec2f(-0.5f, -0.5f));
  auto* given = made<PoProfileCoordinate2>();
  set(given, "point", "0 0 1 0 1 1 7");
  EXPECT_EQ(given->getPoints().size(), 3u) << "the odd number at the end is ignored";
  for (SoNode* n : std::vector<SoNode*>{circle, square, given}) n->unref();
}

TEST(PropertyNodes, ARepresentationAfterThemDrawsWithTheirAttributes) {
  auto* root = made<SoGroup>();
  auto* grid = new PoRegularCartesianGrid2D;  // 3 x 2 cells, a value per cell
  grid->mesh.setGeometry(4, 3, 0, 0, 3, 2, nullptr);
  const float values[] = {0.0f, 0.2f, 0.4f, 0.6f, 0.8f, 1.0f};
  grid->addValuesSet(0, values, PoMeshProperty::PER_CELL, SbString("v"));
  auto* mapping = new PoLinearDataMapping;  // 0 black to 1 red
  set(mapping, "color2", "1 0 0");
  auto* isovalues = new PoIsovaluesList;
  isovalues->setRegularIsoList(0.0f, 1.0f, 3);
  auto* domain = new PoDomain;
  domain->setValues(SbVec2f(0, 0), SbVec2f(3, 2), PoDomain::ASIS);
  auto* filter = new PoIntervalCellFilter;
  set(filter, "min", "0.3");
  set(filter, "max", "0.7");
  auto* filled = new PoMeshFilled;
  for (SoNode* n : std::vector<SoNode*>{grid, mapping, isovalues, domain, filter, filled}) root->addChild(n);
  SoGLRenderAction render;
  render.apply(root);
  EXPECT_EQ(text(filled, "drawnCells"), "2 3");
  EXPECT_EQ(text(filled, "cellColors"), "0.400000006 0 0 0.600000024 0 0");
  EXPECT_EQ(text(filled, "isovalues"), "0 0.5 1");
  EXPECT_EQ(text(filled, "domain"), "0 0 0 3 2 0");

  // Its own mapping comes first; a separator keeps the attributes inside it.
  PbLinearDataMapping own;
  own.setValues(0.0f, SbColor(0, 0, 1), 1.0f, SbColor(0, 0, 1));
  filled->setDataMapping(&own);
  render.apply(root);
  EXPECT_EQ(text(filled, "cellColors"), "0 0 1 0 0 1");
  filled->setDataMapping(nullptr);
  auto* scoped = made<SoGroup>();
  auto* separator = new SoSeparator;
  separator->addChild(mapping);
  separator->addChild(isovalues);
  scoped->addChild(grid);
  scoped->addChild(separator);
  scoped->addChild(filled);
  render.apply(scoped);
  EXPECT_EQ(text(filled, "drawnCells"), "0 1 2 3 4 5");
  EXPECT_EQ(text(filled, "cellColors"), "");
  EXPECT_EQ(text(filled, "isovalues"), "");
  scoped->unref();
  root->unref();
}

TEST(PropertyNodes, A1DFilterBecomesTheCurrentOneWhenTraversed) {
  auto* root = made<SoGroup>();
  auto* filter = new PoIndexListFilter;
  root->addChild(filter);
  struct Probe : SoGroup {
    const PoMesh1DFilter* seen = nullptr;
    void GLRender(SoGLRenderAction* action) override { seen = PoMesh1DFilterElement::current(action->getState()); }
  };
  auto* probe = new Probe;
  root->addChild(probe);
  SoGLRenderAction render;
  render.apply(root);
  EXPECT_EQ(probe->seen, filter);
  root->unref();
}

TEST(PoNonLinearDataMapping2, TakesItsValuesAndColoursFromItsFields) {
  auto* node = made<PoNonLinearDataMapping2>();
  set(node, "value", "0 1");
  set(node, "color", "1 0 0  0 1 0  0 0 1");
  const PbDataMapping* mapping = node->getMapping();
  EXPECT_EQ(mapping->colorOf(-1.0f), SbColor(1, 0, 0));
  EXPECT_EQ(mapping->colorOf(0.5f), SbColor(0, 1, 0));
  EXPECT_EQ(mapping->colorOf(2.0f), SbColor(0, 0, 1));
  set(node, "type", "1");  // LINEARPERLEVEL: colour i at value i
  EXPECT_EQ(node->getMapping()->colorOf(0.5f), SbColor(0.5f, 0.5f, 0));
  node->unref();
}
