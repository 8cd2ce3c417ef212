// The axes of the graph stand-in: the graduations they compute and what they draw.

#include <gtest/gtest.h>

#include <Tavrel/PbDateFormatMapping.h>
#include <Tavrel/PoAngularAxis.h>
#include <Tavrel/PoLinearAxis.h>
#include <Tavrel/PoLogAxis.h>
#include <Tavrel/PoPolarLinAxis.h>
#include <Tavrel/PoTavrel.h>
#include <Tavrel/PoTimeAxis.h>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cmath>
#include <csignal>
#include <cstdio>
#include <fstream>
#include <new>
#include <string>
#include <thread>
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

namespace {
// Runs labels() in a child process with at most 1 GiB more address space than this process has,
// and for at most 30 seconds; returns the labels joined by spaces, or what ended the child ("out
// of memory", "timed out", ...). A graduation loop that never ends runs the
// child out of memory or time instead of this test program.
template <class F>
std::string labelsInAChild(F labels) {
  int out[2];
  if (pipe(out) != 0) return "no pipe";
  const pid_t pid = fork();
  if (pid == 0) {
    close(out[0]);
    unsigned long pages = 0;
    std::ifstream("/proc/self/statm") >> pages;
    const rlim_t limit = static_cast<rlim_t>(pages) * static_cast<rlim_t>(sysconf(_SC_PAGESIZE)) + (rlim_t{1} << 30);
    const rlimit memory{limit, limit};
    const rlimit seconds{60, 60};
    setrlimit(RLIMIT_AS, &memory);
    setrlimit(RLIMIT_CPU, &seconds);
    // The child leaves by _exit only: never back into the test program.
    try {
      std::string text;
      for (const std::string& label : labels()) text += (text.empty() ? "" : " ") + label;
      _exit(write(out[1], text.data(), text.size()) < 0 ? 2 : 0);
    } catch (const std::bad_alloc&) {
      _exit(3);
    } catch (...) {
      _exit(4);
    }
  }
  close(out[1]);
  if (pid < 0) {
    close(out[0]);
    return "no child";
  }
  int status = 0;
  const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(30);
  while (waitpid(pid, &status, WNOHANG) == 0) {
    if (std::chrono::steady_clock::now() > deadline) {
      kill(pid, SIGKILL);
      waitpid(pid, &status, 0);
      close(out[0]);
      return "timed out";
    }
    std::this_thread::sleep_for(std::chrono::milliseconds(10));
  }
  std::string text;
  char buffer[256];
  for (ssize_t n; (n = read(out[0], buffer, sizeof buffer)) > 0;) text.append(buffer, static_cast<std::size_t>(n));
  close(out[0]);
  if (WIFSIGNALED(status)) return "signal " + std::to_string(WTERMSIG(status));
  if (WIFEXITED(status) && WEXITSTATUS(status) == 3) return "out of memory";
  if (!WIFEXITED(status) || WEXITSTATUS(status) != 0) return "exit " + std::to_string(WEXITSTATUS(status));
  return text;
}
}  // namespace

TEST(PoLinearAxis, AZeroLengthAxisFarFromTheOriginHasItsOneGraduation) {
  // Past 2^53 adding 1 to a double changes nothing: the graduations are counted with an integer.
  EXPECT_EQ(labelsInAChild([] {
              return labelsOf<PoLinearAxis>(SbVec3f(1e20f, 0, 0), 1e20f, PoCartesianAxis::XY, 0.0f, 0.0f, 1.0f);
            }),
            "1e+20");
  EXPECT_EQ(labelsInAChild([] {
              return labelsOf<PoLinearAxis>(SbVec3f(0, -1e20f, 0), -1e20f, PoCartesianAxis::YX, 0.0f, 0.0f, 1.0f);
            }),
            "-1e+20");
  // The same with a step so small that the graduation's index is past 2^53.
  EXPECT_EQ(labelsInAChild([] {
              return labelsOf<PoLinearAxis>(SbVec3f(1, 0, 0), 1.0f, PoCartesianAxis::XY, 0.0f, 0.0f, 1e-17f);
            }),
            "1");
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

// --- what the axes draw -------------------------------------------------------------------

namespace {
using Primitive = SoGLRenderAction::Primitive;

// The drawing of a new axis's first build; the axis is released.
template <class Axis, class... Args>
std::vector<Primitive> drawingOf(Args... args) {
  PoTavrel::init();
  Axis* axis = new Axis(args...);
  axis->ref();
  axis->rebuild();
  std::vector<Primitive> drawing = axis->getDrawing();
  axis->unref();
  return drawing;
}

void expectPoint(const SbVec3f& actual, float x, float y) {
  EXPECT_NEAR(actual[0], x, 1e-5f);
  EXPECT_NEAR(actual[1], y, 1e-5f);
}

// A graduation's tick from (x, y) to (x, y) + side x tick, and its label half a tick further.
void expectGraduation(const Primitive* tick, float x, float y, SbVec2f side, float tick_, const char* label,
                      Primitive::Anchor anchor, Primitive::Baseline baseline) {
  SCOPED_TRACE(label);
  ASSERT_EQ(tick[0].kind, Primitive::LINE);
  ASSERT_EQ(tick[0].points.size(), 2u);
  expectPoint(tick[0].points[0], x, y);
  expectPoint(tick[0].points[1], x + side[0] * tick_, y + side[1] * tick_);
  ASSERT_EQ(tick[1].kind, Primitive::TEXT);
  EXPECT_EQ(tick[1].text, label);
  expectPoint(tick[1].points[0], x + 1.5f * side[0] * tick_, y + 1.5f * side[1] * tick_);
  EXPECT_EQ(tick[1].anchor, anchor);
  EXPECT_EQ(tick[1].baseline, baseline);
}
}  // namespace

TEST(PoAxis, AYAxisDrawsItsLineThenItsGraduationsOnTheLeftWhereTheirValuesLie) {
  // Along y from (1, 2) to y = 6, values 0 to 100: each value at its share of the way.
  const auto d = drawingOf<PoLinearAxis>(SbVec3f(1, 2, 0), 6.0f, PoCartesianAxis::YX, 0.0f, 100.0f, 50.0f);
  ASSERT_EQ(d.size(), 7u);
  ASSERT_EQ(d[0].kind, Primitive::LINE);
  ASSERT_EQ(d[0].points.size(), 2u);
  expectPoint(d[0].points[0], 1, 2);
  expectPoint(d[0].points[1], 1, 6);
  const float tick = 0.04f * 4;
  expectGraduation(&d[1], 1, 2, SbVec2f(-1, 0), tick, "0", Primitive::END, Primitive::CENTRAL);
  expectGraduation(&d[3], 1, 4, SbVec2f(-1, 0), tick, "50", Primitive::END, Primitive::CENTRAL);
  expectGraduation(&d[5], 1, 6, SbVec2f(-1, 0), tick, "100", Primitive::END, Primitive::CENTRAL);
}

TEST(PoAxis, ALogAxisPutsItsValuesAtTheShareOfTheirLogarithmWithLabelsHangingBelow) {
  // Along x from 2 to 6 over 1 to 100 (exponents 0 to 2): 10 is halfway.
  const auto d = drawingOf<PoLogAxis>(SbVec3f(2, 1, 0), 6.0f, PoCartesianAxis::XY, PoLogAxis::DECADELISTAUTO,
                                      nullptr, short{0}, 0.0f, 2.0f);
  ASSERT_EQ(d.size(), 7u);
  const float tick = 0.04f * 4;
  expectGraduation(&d[1], 2, 1, SbVec2f(0, -1), tick, "1", Primitive::MIDDLE, Primitive::HANGING);
  expectGraduation(&d[3], 4, 1, SbVec2f(0, -1), tick, "10", Primitive::MIDDLE, Primitive::HANGING);
  expectGraduation(&d[5], 6, 1, SbVec2f(0, -1), tick, "100", Primitive::MIDDLE, Primitive::HANGING);
}

TEST(PoAxis, APolarAxisGraduatesOnTheRightOfItsDirectionAndAnAngularOneOutwards) {
  // Upwards from (1, 0) to (1, 3): the right is +x.
  const auto polar = drawingOf<PoPolarLinAxis>(1.0f, 0.0f, 1.0f, 3.0f, 1.5f);
  ASSERT_EQ(polar.size(), 7u);
  expectGraduation(&polar[3], 1, 1.5f, SbVec2f(1, 0), 0.04f * 3, "1.5", Primitive::START, Primitive::CENTRAL);

  const auto angular = drawingOf<PoAngularAxis>(1.0f, 1.0f, 2.0f, 0.0f, 90.0f);
  ASSERT_EQ(angular.size(), 9u);
  ASSERT_EQ(angular[0].points.size(), 65u) << "the circle, closed";
  for (const SbVec3f& p : angular[0].points) EXPECT_NEAR(std::hypot(p[0] - 1, p[1] - 1), 2, 1e-5);
  const float tick = 0.04f * 2;
  expectGraduation(&angular[1], 3, 1, SbVec2f(1, 0), tick, "0", Primitive::START, Primitive::CENTRAL);
  expectGraduation(&angular[3], 1, 3, SbVec2f(0, 1), tick, "90", Primitive::MIDDLE, Primitive::BASELINE);
  expectGraduation(&angular[5], -1, 1, SbVec2f(-1, 0), tick, "180", Primitive::END, Primitive::CENTRAL);
  expectGraduation(&angular[7], 1, -1, SbVec2f(0, -1), tick, "270", Primitive::MIDDLE, Primitive::HANGING);
}

TEST(PoAxis, ATimeAxisDrawsEachDateAtItsCoordinate) {
  // Type Y at x = 5: days since 2000-01-01 along y, labels on the left.
  const auto d = drawingOf<PoTimeAxis>("2000-01-02", "2000-01-04", 5.0f, PoTimeAxis::Y);
  ASSERT_EQ(d.size(), 7u);
  expectPoint(d[0].points[0], 5, 1);
  expectPoint(d[0].points[1], 5, 3);
  expectGraduation(&d[3], 5, 2, SbVec2f(-1, 0), 0.04f * 2, "2000-01-03", Primitive::END, Primitive::CENTRAL);
}
