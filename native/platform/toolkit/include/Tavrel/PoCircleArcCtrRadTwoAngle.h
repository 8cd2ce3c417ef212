// A 2D arc given by its centre, its radius and the angles of its two ends.
//
// Behaviour of this toolkit (what a caller may rely on):
//  - The arc runs from the first angle to the second (radians): the sweep is
//    their difference, counter-clockwise when the second is larger.
//  - A negative radius is taken as its absolute value.
//  - The default arc: centre (0, 0), radius 1, from 0 to pi / 2.
#pragma once

#include <Tavrel/PoCircleArc.h>

class PoCircleArcCtrRadTwoAngle : public PoCircleArc {
  PO_GRAPH_KIT_HEADER(PoCircleArcCtrRadTwoAngle)

 public:
  PoCircleArcCtrRadTwoAngle() { init(SbVec2f(0.0f, 0.0f), 1.0f, 0.0f, 1.5707964f); }
  PoCircleArcCtrRadTwoAngle(const SbVec2f& center, float radius, float angle1, float angle2) {
    init(center, radius, angle1, angle2);
  }

 protected:
  ~PoCircleArcCtrRadTwoAngle() override;

 private:
  void init(const SbVec2f& center, float radius, float angle1, float angle2);
};
