// A 3D arc given by its centre and two points.
//
// Behaviour of this toolkit (what a caller may rely on):
//  - The radius is the distance from the centre to the first point, the
//    start. The plane is the one of the three points, its normal
//    (p1 - centre) x (p2 - centre) normalised, so the arc runs the short way
//    (sweep in [0, pi]) towards the direction of the second point.
//  - When the three points are collinear the normal is (0, 0, 1) and the
//    sweep pi if the second point lies beyond the centre, 0 otherwise.
//  - The default arc: centre (0, 0, 0), from (1, 0, 0) to (0, 1, 0).
#pragma once

#include <Tavrel/PoCircleArc3.h>

class PoCircleArc3CtrTwoPts : public PoCircleArc3 {
  PO_GRAPH_KIT_HEADER(PoCircleArc3CtrTwoPts)

 public:
  PoCircleArc3CtrTwoPts() {
    init(1, SbVec3f(0.0f, 0.0f, 0.0f), SbVec3f(1.0f, 0.0f, 0.0f), SbVec3f(0.0f, 1.0f, 0.0f));
  }
  PoCircleArc3CtrTwoPts(const SbVec3f& center, const SbVec3f& p1, const SbVec3f& p2) { init(0, center, p1, p2); }

 protected:
  ~PoCircleArc3CtrTwoPts() override;

 private:
  void init(int isDefault, const SbVec3f& center, const SbVec3f& p1, const SbVec3f& p2);
};
