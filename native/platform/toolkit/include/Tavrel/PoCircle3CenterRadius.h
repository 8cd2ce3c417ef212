// A 3D circle given by its centre, radius and the normal of its plane.
//
// Behaviour of this toolkit (what a caller may rely on):
//  - The default circle has the centre (0, 0, 0), the radius 1 and the
//    normal (0, 0, 1).
//  - A negative radius is taken as its absolute value; the normal is
//    normalised (a zero one is (0, 0, 1)).
#pragma once

#include <Tavrel/PoCircle3.h>

class PoCircle3CenterRadius : public PoCircle3 {
  PO_GRAPH_KIT_HEADER(PoCircle3CenterRadius)

 public:
  PoCircle3CenterRadius() { init(1, SbVec3f(0.0f, 0.0f, 0.0f), 1.0f, SbVec3f(0.0f, 0.0f, 1.0f)); }
  PoCircle3CenterRadius(const SbVec3f& center, float radius, const SbVec3f& normal) {
    init(0, center, radius, normal);
  }

 protected:
  ~PoCircle3CenterRadius() override;

 private:
  void init(int isDefault, const SbVec3f& center, float radius, const SbVec3f& normal);
};
