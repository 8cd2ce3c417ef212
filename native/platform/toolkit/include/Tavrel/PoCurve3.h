// A 3D curve through a list of points.
//
// Behaviour of this toolkit (what a caller may rely on):
//  - The constructors run init(isDefault, numPoints, points, curveRep): the
//    default constructor init(1, 0, null, CURVEPOLYLINE), the other one
//    init(0, ...) with its arguments. init copies numPoints points (none for a
//    null pointer); it does not build.
//  - Its build makes one part: "polyline" followed by the points in order,
//    or "none" for CURVENONE (CURVESMOOTH draws the polyline too).
//  - Drawing (PoDrawing.h): the polyline as a black line (nothing for
//    CURVENONE or a curve without points); the picture drops z.
#pragma once

#include <Corvel/StandIn.h>

#include <Corvel/SbVec.h>
#include <Tavrel/PoBuiltParts.h>
#include <Tavrel/PoQuorvex.h>

#include <vector>

class PoCurve3 : public PoQuorvex, public PoBuiltParts {
  PO_GRAPH_KIT_HEADER(PoCurve3)

 public:
  enum CurveRep : int { CURVENONE = 0, CURVEPOLYLINE = 1, CURVESMOOTH = 2 };

  PoCurve3() { init(1, 0, nullptr, CURVEPOLYLINE); }
  PoCurve3(int numPoints, const SbVec3f* points, CurveRep curveRep = CURVEPOLYLINE) {
    init(0, numPoints, points, curveRep);
  }

  void rebuild() override;

 protected:
  ~PoCurve3() override;
  TAVREL_STANDIN_ONLY void build() override;
  void init(int isDefault, int numPoints, const SbVec3f* points, CurveRep curveRep);

 private:
  std::vector<SbVec3f> points;
  CurveRep curveRep = CURVEPOLYLINE;
};
