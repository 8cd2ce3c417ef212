// Points with a low and a high error in x and in y each.
//
// Behaviour of this toolkit (what a caller may rely on):
//  - The constructors run init(isDefault, num, points, xLow, xHigh, yLow,
//    yHigh, variationType, flag1, flag2): the default constructor with 1, 0,
//    null lists, FIXEDVARIATION, 1 and 1. init copies num points and num
//    values of each list (none for a null pointer) and keeps the two flags
//    as given; it does not build.
//  - Its build makes one part a point that has all four errors, the errors
//    taken as fixed offsets whatever the variation type:
//    "error <point> x <x - xLow>..<x + xHigh> y <y - yLow>..<y + yHigh>".
//  - Drawing (PoDrawing.h): each error as a black cross of the two segments
//    of its part.
#pragma once

#include <Corvel/StandIn.h>

#include <Corvel/SbVec.h>
#include <Tavrel/PoBuiltParts.h>
#include <Tavrel/PoQuorvex.h>

#include <vector>

class PoBiErrorPointField : public PoQuorvex, public PoBuiltParts {
  PO_GRAPH_KIT_HEADER(PoBiErrorPointField)

 public:
  enum VariationType : int {
    FIXEDVARIATION = 0,
    RELVARIATION = 1,
    PERCENTFIXEDVARIATION = 2,
    PERCENTRELVARIATION = 3
  };

  PoBiErrorPointField() { init(1, 0, nullptr, nullptr, nullptr, nullptr, nullptr, FIXEDVARIATION, 1, 1); }
  PoBiErrorPointField(int num, const SbVec2f* points, const float* xLow, const float* xHigh, const float* yLow,
                      const float* yHigh, VariationType variationType, int flag1, int flag2) {
    init(0, num, points, xLow, xHigh, yLow, yHigh, variationType, flag1, flag2);
  }

  void rebuild() override;

 protected:
  ~PoBiErrorPointField() override;
  TAVREL_STANDIN_ONLY void build() override;
  void init(int isDefault, int num, const SbVec2f* points, const float* xLow, const float* xHigh,
            const float* yLow, const float* yHigh, VariationType variationType, int flag1, int flag2);

 private:
  std::vector<SbVec2f> points;
  std::vector<float> xLow, xHigh, yLow, yHigh;
};
