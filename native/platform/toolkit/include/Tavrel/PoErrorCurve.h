// A 2D curve with an error bar at each point.
//
// Behaviour of this toolkit (what a caller may rely on):
//  - The constructors run init(isDefault, numPoints, points, lowVariation,
//    highVariation, variationType, errorCurveRep): the default constructor
//    with 1, 0 and null lists, FIXEDVARIATION, LINEBAR. init copies
//    numPoints points and numPoints values of each list (none for a null
//    pointer); it does not build.
//  - Its build makes "polyline" with the points, then one part
//    "bar (x, low)..(x, high)" a point that has both variations. With the
//    variations l and h of a point (x, y): FIXEDVARIATION gives y - l and
//    y + h; RELVARIATION y - l|y| and y + h|y|; the PERCENT types the same
//    with l/100 and h/100.
//  - Drawing (PoDrawing.h), by representation: LINEBAR, the polyline and
//    each bar as a black segment; FILLED, the band between the low and the
//    high ends of the bars as a pale blue (0.75, 0.85, 0.95) polygon (the
//    low ends in order, then the high ends back), then the polyline;
//    HIGHLOWCLOSE, each bar and a mark of the point's y to the right of it,
//    a quarter of the smallest gap between two x values long (a quarter of
//    the bar's height when there is no gap), without the polyline.
#pragma once

#include <Corvel/StandIn.h>

#include <Corvel/SbVec.h>
#include <Tavrel/PoBuiltParts.h>
#include <Tavrel/PoQuorvex.h>

#include <vector>

class PoErrorCurve : public PoQuorvex, public PoBuiltParts {
  PO_GRAPH_KIT_HEADER(PoErrorCurve)

 public:
  enum VariationType : int {
    FIXEDVARIATION = 0,
    RELVARIATION = 1,
    PERCENTFIXEDVARIATION = 2,
    PERCENTRELVARIATION = 3
  };
  enum ErrorCurveRep : int { HIGHLOWCLOSE = 0, LINEBAR = 1, FILLED = 2 };

  PoErrorCurve() { init(1, 0, nullptr, nullptr, nullptr, FIXEDVARIATION, LINEBAR); }
  PoErrorCurve(int numPoints, const SbVec2f* points, const float* lowVariation, const float* highVariation,
               VariationType variationType, ErrorCurveRep errorCurveRep) {
    init(0, numPoints, points, lowVariation, highVariation, variationType, errorCurveRep);
  }

  void rebuild() override;

 protected:
  ~PoErrorCurve() override;
  TAVREL_STANDIN_ONLY void build() override;
  void init(int isDefault, int numPoints, const SbVec2f* points, const float* lowVariation,
            const float* highVariation, VariationType variationType, ErrorCurveRep errorCurveRep);

 private:
  std::vector<SbVec2f> points;
  std::vector<float> low;
  std::vector<float> high;
  VariationType variationType = FIXEDVARIATION;
  ErrorCurveRep errorCurveRep = LINEBAR;
};
