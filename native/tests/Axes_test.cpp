// The axes of the graph stand-in: the graduations they compute.

#include <gtest/gtest.h>

#include <Tavrel/PbDateFormatMapping.h>
#include <Tavrel/PoAngularAxis.h>
#include <Tavrel/PoLinearAxis.h>
#include <Tavrel/PoLogAxis.h>
#include <Tavrel/PoTavrel.h>
#include <Tavrel/PoTimeAxis.h>

#include <string>
#include <vector>

namespace {
// The labels of a new axis's first build; the axis is released.
template <class Axis, class... Args>
std::vector<std::string> labelsOf(Args... args) {
  PoTavrel::init();
  Axis* axis = new Axis(args...);
  axis->ref();
  axis->rebuild();
  std::vector<std::string> labels;
  for (const PoAxis::Graduation& g : axis->graduations()) labels.push_back(g.label.getString());
  axis->unref();
  return labels;
}

using Labels = std::vector<std::string>;
}  // namespace

TEST(PoLinearAxis, AnAutomaticStepIsOneTwoOrFiveTimesAPowerOfTenAtLeastATenthOfTheSpan) {
  EXPECT_EQ(labelsOf<PoLinearAxis>(SbVec3f(0, 0, 0), 0.5f, PoCartesianAxis::XY, 0.0f, 0.0f, 0.0f),
            (Labels{"0", "0.05", "0.1", "0.15", "0.2", "0.25", "0.3", "0.35", "0.4", "0.45", "0.5"}));
  EXPECT_EQ(labelsOf<PoLinearAxis>(SbVec3f(0, 0, 0), 0.0f, PoCartesianAxis::XY, -30.0f, 120.0f, 0.0f),
            (Labels{"-20", "0", "20", "40", "60", "80", "100", "120"}));
}

TEST(PoLinearAxis, SettingsThatWouldMakeMoreThan65535GraduationsMakeNone) {
  EXPECT_TRUE((labelsOf<PoLinearAxis>(SbVec3f(0, 0, 0), 70000.0f, PoCartesianAxis::XY, 0.0f, 0.0f, 1.0f).empty()));
  EXPECT_EQ((labelsOf<PoLinearAxis>(SbVec3f(0, 0, 0), 65534.0f, PoCartesianAxis::XY, 0.0f, 0.0f, 1.0f).size()),
            65535u);
}

TEST(PoLogAxis, TenPowersAreDecimalsFromMinus3To4AndPowersBeyond) {
  EXPECT_EQ(labelsOf<PoLogAxis>(SbVec3f(-4, 0, 0), 6.0f, PoCartesianAxis::XY, PoLogAxis::DECADELISTAUTO, nullptr,
                                short{0}, 0.0f, 0.0f),
            (Labels{"10^-4", "0.001", "0.01", "0.1", "1", "10", "100", "1000", "10000", "10^5", "10^6"}));
  const unsigned short digits[] = {3, 0, 12, 3};
  EXPECT_EQ(labelsOf<PoLogAxis>(SbVec3f(0, 0, 0), 0.0f, PoCartesianAxis::XY, PoLogAxis::DECADELISTNONAUTO, digits,
                                short{4}, 2.0f, 0.0f),
            (Labels{"30", "3"}))
      << "downwards, the digit 3 only: digits outside 1 to 9 and repeats are left out";
}

TEST(PoAngularAxis, AnglesAreBroughtIntoOneTurn) {
  EXPECT_EQ(labelsOf<PoAngularAxis>(0.0f, 0.0f, 1.0f, -90.0f, 120.0f), (Labels{"270", "30", "150"}));
  EXPECT_EQ(labelsOf<PoAngularAxis>(0.0f, 0.0f, 1.0f, 0.0f, 400.0f).size(), 12u) << "a step above 360 is 30";
}

TEST(PoTimeAxis, UnderADayTheGraduationsAreTheWholeHours) {
  PoTavrel::init();
  PoTimeAxis* axis = new PoTimeAxis("2024-03-10 21:30", "2024-03-11 00:00", 0.0f, PoTimeAxis::X);
  axis->ref();
  PbDateFormatMapping mapping("2024-03-10", "2024-03-11", 0.0f, 24.0f, "%H:%M");
  axis->setDateFormatMapping(&mapping);
  Labels labels;
  for (const PoAxis::Graduation& g : axis->graduations()) labels.push_back(g.label.getString());
  EXPECT_EQ(labels, (Labels{"22:00", "23:00", "00:00"}));
  EXPECT_DOUBLE_EQ(axis->graduations().front().value, 22.0);
  axis->setDateFormatMapping(nullptr);
  axis->unref();
  EXPECT_TRUE(labelsOf<PoTimeAxis>("2024-02-30", "2024-03-01", 0.0f, PoTimeAxis::X).empty()) << "no such date";
}
