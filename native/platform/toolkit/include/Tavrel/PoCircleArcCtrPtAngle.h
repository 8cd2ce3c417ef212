// A 2D arc given by its centre, its start point and its angle.
//
// Behaviour of this toolkit (what a caller may rely on):
//  - The radius is the distance from the centre to the point, the start the
//    point's direction, the sweep the angle (radians, counter-clockwise when
//    positive). A point on the centre gives an arc of radius 0.
//  - The default arc: centre (0, 0), point (1, 0), angle pi / 2.
#pragma once

#include <Tavrel/PoCircleArc.h>

class PoCircleArcCtrPtAngle : public PoCircleArc {
  PO_GRAPH_KIT_HEADER(PoCircleArcCtrPtAngle)

 public:
  PoCircleArcCtrPtAngle() { init(SbVec2f(0.0f, 0.0f), SbVec2f(1.0f, 0.0f), 1.5707964f); }
  PoCircleArcCtrPtAngle(const SbVec2f& center, const SbVec2f& point, float angle) { init(center, point, angle); }

 protected:
  ~PoCircleArcCtrPtAngle() override;

 private:
  void init(const SbVec2f& center, const SbVec2f& point, float angle);
};
