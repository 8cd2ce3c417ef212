// The curves, histograms, point fields and legends of the graph stand-in: they
// keep what they are given (as many elements as the count says) and list what
// they build.

#include <gtest/gtest.h>

#include <Tavrel/PoCurve.h>
#include <Tavrel/PoItemLegend.h>
#include <Tavrel/PoLabelField.h>
#include <Tavrel/PoMultipleHistogram.h>
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
