// A 2D arc given by its centre and two points.
//
// Behaviour of this toolkit (what a caller may rely on):
//  - The radius is the distance from the centre to the first point, which
//    is the start; the second point gives only the direction of the end.
//    The arc runs counter-clockwise from the start to that direction, its
//    sweep in (0, 2 pi] (a full circle when both directions are the same).
//  - A first point on the centre gives an arc of radius 0.
//  - The default arc: centre (0, 0), from (1, 0) to (0, 1).
#pragma once

#include <Tavrel/PoCircleArc.h>

class PoCircleArcCtrTwoPts : public PoCircleArc {
  PO_GRAPH_KIT_HEADER(PoCircleArcCtrTwoPts)

 public:
  PoCircleArcCtrTwoPts() { init(SbVec2f(0.0f, 0.0f), SbVec2f(1.0f, 0.0f), SbVec2f(0.0f, 1.0f)); }
  PoCircleArcCtrTwoPts(const SbVec2f& center, const SbVec2f& p1, const SbVec2f& p2) { init(center, p1, p2); }

 protected:
  ~PoCircleArcCtrTwoPts() override;

 private:
  void init(const SbVec2f& center, const SbVec2f& p1, const SbVec2f& p2);
};
