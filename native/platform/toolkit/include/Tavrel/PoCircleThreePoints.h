// A 2D circle through three points.
//
// Behaviour of this toolkit (what a caller may rely on):
//  - The centre is the point at equal distance from the three points, the
//    radius that distance.
//  - Collinear points (also two or three equal ones) have no such circle:
//    the circle is then the one whose diameter joins the two points farthest
//    apart (radius 0 when the three are equal).
//  - The default circle goes through (1, 0), (0, 1) and (-1, 0): centre
//    (0, 0), radius 1.
#pragma once

#include <Tavrel/PoCircle.h>

class PoCircleThreePoints : public PoCircle {
  PO_GRAPH_KIT_HEADER(PoCircleThreePoints)

 public:
  PoCircleThreePoints() { init(SbVec2f(1.0f, 0.0f), SbVec2f(0.0f, 1.0f), SbVec2f(-1.0f, 0.0f)); }
  PoCircleThreePoints(const SbVec2f& p1, const SbVec2f& p2, const SbVec2f& p3) { init(p1, p2, p3); }

 protected:
  ~PoCircleThreePoints() override;

 private:
  void init(const SbVec2f& p1, const SbVec2f& p2, const SbVec2f& p3);
};
