// A 3D arc given by its centre, its start point, its angle and the normal of
// its plane.
//
// Behaviour of this toolkit (what a caller may rely on):
//  - The radius is the distance from the centre to the start point once the
//    point is brought into the plane through the centre perpendicular to the
//    normal; the sweep is the angle (radians).
//  - The default arc: centre (0, 0, 0), point (1, 0, 0), angle pi / 2,
//    normal (0, 0, 1).
#pragma once

#include <Tavrel/PoCircleArc3.h>

class PoCircleArc3CtrPtAngle : public PoCircleArc3 {
  PO_GRAPH_KIT_HEADER(PoCircleArc3CtrPtAngle)

 public:
  PoCircleArc3CtrPtAngle() {
    init(1, SbVec3f(0.0f, 0.0f, 0.0f), SbVec3f(1.0f, 0.0f, 0.0f), 1.5707964f, SbVec3f(0.0f, 0.0f, 1.0f));
  }
  PoCircleArc3CtrPtAngle(const SbVec3f& center, const SbVec3f& point, float angle, const SbVec3f& normal) {
    init(0, center, point, angle, normal);
  }

 protected:
  ~PoCircleArc3CtrPtAngle() override;

 private:
  void init(int isDefault, const SbVec3f& center, const SbVec3f& point, float angle, const SbVec3f& normal);
};
