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
#pragma once

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
  void build() override;
  void init(int isDefault, int numPoints, const SbVec2f* points, const float* lowVariation,
            const float* highVariation, VariationType variationType, ErrorCurveRep errorCurveRep);

 private:
  std::vector<SbVec2f> points;
  std::vector<float> low;
  std::vector<float> high;
  VariationType variationType = FIXEDVARIATION;
  ErrorCurveRep errorCurveRep = LINEBAR;
};
