// A high-low-close chart: at each x a bar from the low to the high value
// with a mark at the close value.
//
// Behaviour of this toolkit (what a caller may rely on):
//  - The constructors run init(isDefault, num, x, high, low, close): the
//    default constructor with 1, 0 and null lists. init copies num values of
//    each list (none for a null pointer); it does not build.
//  - Its build makes one part a position that has all four values:
//    "hlc <x> <low>..<high> close <close>".
//  - Drawing (PoDrawing.h): each part as a black segment from (x, low) to
//    (x, high) and a mark of the close value to the right of it, a quarter
//    of the smallest gap between two x values long (a quarter of the
//    segment when there is no gap).
#pragma once

#include <Corvel/StandIn.h>

#include <Tavrel/PoBuiltParts.h>
#include <Tavrel/PoQuorvex.h>

#include <vector>

class PoHighLowClose : public PoQuorvex, public PoBuiltParts {
  PO_GRAPH_KIT_HEADER(PoHighLowClose)

 public:
  enum HorCloseBarPosition : int { LEFT = 0, MIDDLE = 1, RIGHT = 2 };

  PoHighLowClose() { init(1, 0, nullptr, nullptr, nullptr, nullptr); }
  PoHighLowClose(int num, const float* x, const float* high, const float* low, const float* close) {
    init(0, num, x, high, low, close);
  }

  void rebuild() override;

 protected:
  ~PoHighLowClose() override;
  TAVREL_STANDIN_ONLY void build() override;
  void init(int isDefault, int num, const float* x, const float* high, const float* low, const float* close);

 private:
  std::vector<float> xs;
  std::vector<float> highs;
  std::vector<float> lows;
  std::vector<float> closes;
};
