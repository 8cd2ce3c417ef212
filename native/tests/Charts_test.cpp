// The curves, histograms, point fields and legends of the graph stand-in: they
// keep what they are given (as many elements as the count says) and list what
// they build and draw.

#include <gtest/gtest.h>

#include <Tavrel/PbIsovaluesList.h>
#include <Tavrel/PbLinearDataMapping.h>
#include <Tavrel/PoCurve.h>
#include <Tavrel/PoErrorCurve.h>
#include <Tavrel/PoItemLegend.h>
#include <Tavrel/PoLabelField.h>
#include <Tavrel/PoLinearValueLegend.h>
#include <Tavrel/PoMultipleHistogram.h>
#include <Tavrel/PoSingleHistogram.h>
#include <Tavrel/PoTavrel.h>

#include <string>
#include <vector>

namespace {
using Parts = std::vector<std::string>;

// Rebuilds the node and returns its parts; the node is released afterwards.
template <class Node>
Parts builtParts(Node* node) {
  node->ref();
  node->rebuild();
  Parts parts = node->getBuiltParts();
  node->unref();
  return parts;
}
}  // namespace

TEST(PoCurve, KeepsTheCountOfPointsItIsGivenAndDrawsThemAsAPolyline) {
  PoTavrel::init();
  const SbVec2f points[] = {SbVec2f(0, 1), SbVec2f(2, 3), SbVec2f(9, 9)};
  EXPECT_EQ(builtParts(new PoCurve(2, points, PoCurve::CURVESMOOTH)), Parts{"polyline (0, 1) (2, 3)"});
  EXPECT_EQ(builtParts(new PoCurve(2, points, PoCurve::CURVENONE)), Parts{"none"});
  EXPECT_EQ(builtParts(new PoCurve(3, nullptr, PoCurve::CURVEPOLYLINE)), Parts{"polyline"});
  EXPECT_EQ(builtParts(new PoCurve), Parts{"polyline"});
}

TEST(PoMultipleHistogram, ReadsTheValuesHistogramAfterHistogramWithBothNameLists) {
  PoTavrel::init();
  const float values[] = {1, 2, 3, 4, 5, 6};
  const char* histogNames[] = {"a", "b"};
  const char* valueNames[] = {"x", nullptr, "z"};
  EXPECT_EQ(builtParts(new PoMultipleHistogram(SbVec2f(0, 10), 6, PoHistogram::Y, 2, 3, values, histogNames,
                                               valueNames)),
            (Parts{"bar 10..11 height 1 \"a/x\"", "bar 11..12 height 2 \"a/\"", "bar 12..13 height 3 \"a/z\"",
                   "bar 13..14 height 4 \"b/x\"", "bar 14..15 height 5 \"b/\"", "bar 15..16 height 6 \"b/z\""}));
}

TEST(PoLabelField, JoinsStringAndValueAsTheConcatenationTypeSays) {
  PoTavrel::init();
  const SbVec2f points[] = {SbVec2f(1, 2)};
  const char* strings[] = {"t"};
  const float values[] = {0.5f};
  EXPECT_EQ(builtParts(new PoLabelField(1, points, strings, values, 0, PoLabelField::STRINGABOVEVALUE,
                                        PoLabelField::LEFT, PoLabelField::TOP)),
            Parts{"label (1, 2) \"t\" 0.5"});
  EXPECT_EQ(builtParts(new PoLabelField(1, points, strings, values, 0, PoLabelField::VALUEABOVESTRING,
                                        PoLabelField::LEFT, PoLabelField::TOP)),
            Parts{"label (1, 2) 0.5 \"t\""});
}

TEST(PoItemLegend, SharesTheHeightBetweenItsItemsFromTheTopDown) {
  PoTavrel::init();
  const char* names[] = {"one", "two", "three"};
  const SbColor colors[] = {SbColor(1, 0, 0), SbColor(0, 1, 0), SbColor(0, 0, 1)};
  EXPECT_EQ(builtParts(new PoItemLegend(SbVec2f(0, 0), SbVec2f(1, 3), 3, names, colors)),
            (Parts{"item (0, 2)..(1, 3) (1, 0, 0) \"one\"", "item (0, 1)..(1, 2) (0, 1, 0) \"two\"",
                   "item (0, 0)..(1, 1) (0, 0, 1) \"three\""}));
  EXPECT_EQ(builtParts(new PoItemLegend(SbVec2f(0, 0), SbVec2f(1, 1), 1, names, nullptr)),
            Parts{"item (0, 0)..(1, 1) none \"one\""});
}

// --- what they draw ------------------------------------------------------------------------

namespace {
using Primitive = SoGLRenderAction::Primitive;

// Rebuilds the node and returns its drawing; the node is released afterwards.
template <class Node>
std::vector<Primitive> drawingOf(Node* node) {
  node->ref();
  node->rebuild();
  std::vector<Primitive> drawing = node->getDrawing();
  node->unref();
  return drawing;
}

using Points = std::vector<SbVec3f>;
}  // namespace

TEST(PoSingleHistogram, DrawsARectangleAValueWithItsNameOnTheOriginsSideAndItsValueBeyond) {
  PoTavrel::init();
  // Type Y: the bars share y from 10 to 14 and reach out in x from 1.
  const float values[] = {2, -1};
  const char* names[] = {"up", "down"};
  const auto d = drawingOf(new PoSingleHistogram(SbVec2f(1, 10), 4, PoHistogram::Y, 2, values, names));
  ASSERT_EQ(d.size(), 6u);
  EXPECT_EQ(d[0].kind, Primitive::POLYGON);
  EXPECT_EQ(d[0].points, (Points{SbVec3f(1, 10.2f, 0), SbVec3f(1, 11.8f, 0), SbVec3f(3, 11.8f, 0),
                                 SbVec3f(3, 10.2f, 0)}));
  EXPECT_EQ(d[0].color, SbColor(0.27f, 0.51f, 0.71f));
  EXPECT_EQ(d[1].text, "up");
  EXPECT_EQ(d[1].points, Points{SbVec3f(0.8f, 11, 0)});
  EXPECT_EQ(d[1].anchor, Primitive::END);
  EXPECT_EQ(d[2].text, "2");
  EXPECT_EQ(d[2].points, Points{SbVec3f(3.2f, 11, 0)});
  EXPECT_EQ(d[2].anchor, Primitive::START);
  EXPECT_EQ(d[3].points[2], SbVec3f(0, 13.8f, 0)) << "a negative value reaches the other way";
  EXPECT_EQ(d[4].anchor, Primitive::START);
  EXPECT_EQ(d[5].text, "-1");
  EXPECT_EQ(d[5].points, Points{SbVec3f(-0.2f, 13, 0)});
  EXPECT_EQ(d[5].anchor, Primitive::END);
}

TEST(PoErrorCurve, EachRepresentationDrawsItsOwnParts) {
  PoTavrel::init();
  const SbVec2f points[] = {SbVec2f(0, 1), SbVec2f(2, 3)};
  const float low[] = {0.5f, 1}, high[] = {1, 0.5f};
  const auto filled = drawingOf(new PoErrorCurve(2, points, low, high, PoErrorCurve::FIXEDVARIATION,
                                                 PoErrorCurve::FILLED));
  ASSERT_EQ(filled.size(), 2u);
  EXPECT_EQ(filled[0].kind, Primitive::POLYGON);
  EXPECT_EQ(filled[0].points, (Points{SbVec3f(0, 0.5f, 0), SbVec3f(2, 2, 0), SbVec3f(2, 3.5f, 0), SbVec3f(0, 2, 0)}))
      << "the low ends in order, then the high ends back";
  EXPECT_EQ(filled[1].points, (Points{SbVec3f(0, 1, 0), SbVec3f(2, 3, 0)}));

  const auto lineBar = drawingOf(new PoErrorCurve(2, points, low, high, PoErrorCurve::FIXEDVARIATION,
                                                  PoErrorCurve::LINEBAR));
  ASSERT_EQ(lineBar.size(), 3u);
  EXPECT_EQ(lineBar[2].points, (Points{SbVec3f(2, 2, 0), SbVec3f(2, 3.5f, 0)}));

  const auto hlc = drawingOf(new PoErrorCurve(2, points, low, high, PoErrorCurve::FIXEDVARIATION,
                                              PoErrorCurve::HIGHLOWCLOSE));
  ASSERT_EQ(hlc.size(), 4u) << "no polyline: a bar and a mark a point";
  EXPECT_EQ(hlc[0].points, (Points{SbVec3f(0, 0.5f, 0), SbVec3f(0, 2, 0)}));
  EXPECT_EQ(hlc[1].points, (Points{SbVec3f(0, 1, 0), SbVec3f(0.5f, 1, 0)})) << "a quarter of the gap of 2";
}

TEST(PoLinearValueLegend, ListsAndDrawsTheValuesOfItsListInTheMappingsColours) {
  PoTavrel::init();
  PbIsovaluesList list(0, 10, 3);
  PbLinearDataMapping mapping;
  mapping.setValues(0, SbColor(0, 0, 1), 10, SbColor(1, 0, 0));
  auto* legend = new PoLinearValueLegend(SbVec2f(0, 0), SbVec2f(4, 3), PoLinearValueLegend::LINEARVALUES);
  legend->setIsovaluesList(&list);
  legend->setDataMapping(&mapping);
  legend->ref();
  legend->rebuild();
  EXPECT_EQ(legend->getBuiltParts(), (Parts{"frame (0, 0)..(4, 3)", "value 0 (0, 0, 1)", "value 5 (0.5, 0, 0.5)",
                                            "value 10 (1, 0, 0)"}));
  const auto& d = legend->getDrawing();
  ASSERT_EQ(d.size(), 7u) << "the frame, then a square and a text a value, from the bottom up";
  EXPECT_EQ(d[0].points.size(), 5u);
  EXPECT_EQ(d[1].color, SbColor(0, 0, 1));
  EXPECT_NEAR(d[1].points[0][0], 0.2f, 1e-6f);
  EXPECT_NEAR(d[1].points[0][1], 0.2f, 1e-6f);
  EXPECT_EQ(d[6].text, "10");
  EXPECT_EQ(d[6].points, Points{SbVec3f(1, 2.5f, 0)});
  legend->setIsovaluesList(nullptr);
  legend->rebuild();
  EXPECT_EQ(legend->getDrawing().size(), 1u) << "the frame alone";
  legend->unref();
}

TEST(PoLabelField, DrawsItsLabelsJustifiedAsGivenAndAboveOneAnother) {
  PoTavrel::init();
  const SbVec2f points[] = {SbVec2f(1, 2)};
  const char* strings[] = {"t"};
  const float values[] = {0.5f};
  const auto joined = drawingOf(new PoLabelField(1, points, strings, values, 1, PoLabelField::VALUEBEFORESTRING,
                                                 PoLabelField::RIGHT, PoLabelField::TOP));
  ASSERT_EQ(joined.size(), 1u);
  EXPECT_EQ(joined[0].text, "0.5 t");
  EXPECT_EQ(joined[0].points, Points{SbVec3f(1, 3, 0)}) << "moved up by the offset";
  EXPECT_EQ(joined[0].anchor, Primitive::END);
  EXPECT_EQ(joined[0].baseline, Primitive::HANGING);
  const auto above = drawingOf(new PoLabelField(1, points, strings, values, 0, PoLabelField::STRINGABOVEVALUE,
                                                PoLabelField::CENTER, PoLabelField::BASE));
  ASSERT_EQ(above.size(), 2u);
  EXPECT_EQ(above[0].text, "t");
  EXPECT_EQ(above[0].baseline, Primitive::BASELINE);
  EXPECT_EQ(above[1].text, "0.5");
  EXPECT_EQ(above[1].baseline, Primitive::HANGING);
  EXPECT_EQ(above[1].anchor, Primitive::MIDDLE);
}
