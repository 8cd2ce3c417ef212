// A 2D circle given by its centre and radius.
//
// Behaviour of this toolkit (what a caller may rely on):
//  - The default circle has the centre (0, 0) and the radius 1.
//  - A negative radius is taken as its absolute value; 0 gives a circle
//    that is its centre alone.
#pragma once

#include <Tavrel/PoCircle.h>

class PoCircleCenterRadius : public PoCircle {
  PO_GRAPH_KIT_HEADER(PoCircleCenterRadius)

 public:
  PoCircleCenterRadius() { init(SbVec2f(0.0f, 0.0f), 1.0f); }
  PoCircleCenterRadius(const SbVec2f& center, float radius) { init(center, radius); }

 protected:
  ~PoCircleCenterRadius() override;

 private:
  void init(const SbVec2f& center, float radius);
};
