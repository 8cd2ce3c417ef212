// A 2D arc through three points: from the first, through the second, to the
// third.
//
// Behaviour of this toolkit (what a caller may rely on):
//  - The arc lies on the circle through the three points (see
//    PoCircleThreePoints); it starts at the first point and ends at the
//    third, counter-clockwise when that way passes the second, clockwise
//    otherwise.
//  - Collinear points have no such circle: the arc is then the straight
//    segment from the first point to the third, with the radius 0 and the
//    centre halfway between them.
//  - The default arc: from (1, 0) through (0, 1) to (-1, 0).
#pragma once

#include <Tavrel/PoCircleArc.h>

class PoCircleArcThreePts : public PoCircleArc {
  PO_GRAPH_KIT_HEADER(PoCircleArcThreePts)

 public:
  PoCircleArcThreePts() { init(SbVec2f(1.0f, 0.0f), SbVec2f(0.0f, 1.0f), SbVec2f(-1.0f, 0.0f)); }
  PoCircleArcThreePts(const SbVec2f& p1, const SbVec2f& p2, const SbVec2f& p3) { init(p1, p2, p3); }

 protected:
  ~PoCircleArcThreePts() override;

 private:
  void init(const SbVec2f& p1, const SbVec2f& p2, const SbVec2f& p3);
};
