// A 3D circle through three points.
//
// Behaviour of this toolkit (what a caller may rely on):
//  - The circle lies in the plane of the three points; its centre is at
//    equal distance from them; its normal is (p2 - p1) x (p3 - p1),
//    normalised.
//  - Collinear points: the circle whose diameter joins the two points
//    farthest apart, with the normal (0, 0, 1).
//  - The default circle goes through (1, 0, 0), (0, 1, 0) and (-1, 0, 0).
#pragma once

#include <Tavrel/PoCircle3.h>

class PoCircle3ThreePoints : public PoCircle3 {
  PO_GRAPH_KIT_HEADER(PoCircle3ThreePoints)

 public:
  PoCircle3ThreePoints() {
    init(1, SbVec3f(1.0f, 0.0f, 0.0f), SbVec3f(0.0f, 1.0f, 0.0f), SbVec3f(-1.0f, 0.0f, 0.0f));
  }
  PoCircle3ThreePoints(const SbVec3f& p1, const SbVec3f& p2, const SbVec3f& p3) { init(0, p1, p2, p3); }

 protected:
  ~PoCircle3ThreePoints() override;

 private:
  void init(int isDefault, const SbVec3f& p1, const SbVec3f& p2, const SbVec3f& p3);
};
