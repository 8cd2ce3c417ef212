// Base of the 3D circles: a centre, a radius and the normal of the circle's
// plane.
//
// Behaviour of this toolkit (what a caller may rely on):
//  - A circle keeps the centre, radius and unit normal its variant computed
//    (see PoCircle3CenterRadius, PoCircle3ThreePoints). A zero normal is
//    taken as (0, 0, 1).
//  - Its build makes the outline: 64 points evenly spaced around the normal
//    (counter-clockwise seen from its tip) and the first again, mapped
//    through the matrix of the domain when the node has one.
//  - The leading int of the variants' init is 1 when the default
//    constructor calls it, 0 otherwise; it changes nothing.
#pragma once

#include <Corvel/StandIn.h>

#include <Corvel/SbVec.h>
#include <Tavrel/PoQuorvex.h>

#include <vector>

class PoCircle3 : public PoQuorvex {
  PO_GRAPH_KIT_HEADER(PoCircle3)

 public:
  void rebuild() override;

  // --- Used inside this toolkit (not journaled) ---
  const SbVec3f& getCenter() const { return center; }
  TAVREL_STANDIN_ONLY float getRadius() const { return radius; }
  TAVREL_STANDIN_ONLY const SbVec3f& getNormal() const { return normal; }
  TAVREL_STANDIN_ONLY const std::vector<SbVec3f>& getOutline() const { return outline; }

 protected:
  PoCircle3();
  ~PoCircle3() override;
  TAVREL_STANDIN_ONLY void build() override;
  TAVREL_STANDIN_ONLY void draw(SoGLRenderAction* action) override;
  TAVREL_STANDIN_ONLY void setCircle(const SbVec3f& newCenter, float newRadius, const SbVec3f& newNormal);

 private:
  SbVec3f center;
  float radius = 0.0f;
  SbVec3f normal{0.0f, 0.0f, 1.0f};
  std::vector<SbVec3f> outline;
};
