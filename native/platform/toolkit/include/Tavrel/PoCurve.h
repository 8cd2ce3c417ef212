// A 2D curve through a list of points.
//
// Behaviour of this toolkit (what a caller may rely on):
//  - The constructors run init(isDefault, numPoints, points, curveRep): the
//    default constructor init(1, 0, null, CURVEPOLYLINE), the other one
//    init(0, ...) with its arguments. init copies numPoints points (none for a
//    null pointer) and keeps the representation; it does not build.
//  - Its build makes one part: "polyline" followed by the points in order,
//    or "none" for the representation CURVENONE. The other representations
//    draw the same polyline in this toolkit.
//  - Drawing (PoDrawing.h): the polyline as a black line (nothing for
//    CURVENONE or a curve without points).
#pragma once

#include <Corvel/StandIn.h>

#include <Corvel/SbVec.h>
#include <Tavrel/PoBuiltParts.h>
#include <Tavrel/PoQuorvex.h>

#include <vector>

class PoCurve : public PoQuorvex, public PoBuiltParts {
  PO_GRAPH_KIT_HEADER(PoCurve)

 public:
  enum FilterType : int { INACTIVE = 0, ALLPOINTS = 1, INDEXPERIOD = 2, INDEXLIST = 3, XPERIOD = 4, XLIST = 5 };
  enum CurveRep : int {
    CURVENONE = 0,
    CURVEPOLYLINE = 1,
    CURVESMOOTH = 2,
    CURVESTAIRSX = 3,
    CURVESTAIRSY = 4,
    CURVEHISTOX = 5,
    CURVEHISTOY = 6,
    CURVESTAIRS2X = 7,
    CURVESTAIRS2Y = 8
  };

  PoCurve() { init(1, 0, nullptr, CURVEPOLYLINE); }
  PoCurve(int numPoints, const SbVec2f* points, CurveRep curveRep = CURVEPOLYLINE) {
    init(0, numPoints, points, curveRep);
  }

  void rebuild() override;

  // --- Used inside this toolkit (not journaled) ---
  TAVREL_STANDIN_ONLY const std::vector<SbVec2f>& getPoints() const { return points; }

 protected:
  ~PoCurve() override;
  TAVREL_STANDIN_ONLY void build() override;
  void init(int isDefault, int numPoints, const SbVec2f* points, CurveRep curveRep);

 private:
  std::vector<SbVec2f> points;
  CurveRep curveRep = CURVEPOLYLINE;
};
