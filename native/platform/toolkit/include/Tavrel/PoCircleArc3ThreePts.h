// A 3D arc through three points: from the first, through the second, to the
// third.
//
// Behaviour of this toolkit (what a caller may rely on):
//  - The arc lies on the circle through the three points (see
//    PoCircle3ThreePoints), whose normal (p2 - p1) x (p3 - p1) makes the
//    way from the first point through the second to the third a positive
//    sweep.
//  - Collinear points: the straight segment from the first point to the
//    third (radius 0, centre halfway).
//  - The default arc: from (1, 0, 0) through (0, 1, 0) to (-1, 0, 0).
#pragma once

#include <Tavrel/PoCircleArc3.h>

class PoCircleArc3ThreePts : public PoCircleArc3 {
  PO_GRAPH_KIT_HEADER(PoCircleArc3ThreePts)

 public:
  PoCircleArc3ThreePts() {
    init(1, SbVec3f(1.0f, 0.0f, 0.0f), SbVec3f(0.0f, 1.0f, 0.0f), SbVec3f(-1.0f, 0.0f, 0.0f));
  }
  PoCircleArc3ThreePts(const SbVec3f& p1, const SbVec3f& p2, const SbVec3f& p3) { init(0, p1, p2, p3); }

 protected:
  ~PoCircleArc3ThreePts() override;

 private:
  void init(int isDefault, const SbVec3f& p1, const SbVec3f& p2, const SbVec3f& p3);
};
