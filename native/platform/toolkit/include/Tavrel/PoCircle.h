// Base of the 2D circles: a centre and a radius in the plane z = 0, in the
// coordinates of the node's domain.
//
// Behaviour of this toolkit (what a caller may rely on):
//  - A circle keeps the centre and radius its variant computed from its
//    defining values (see PoCircleCenterRadius, PoCircleThreePoints).
//  - Its build makes the outline: 64 points evenly spaced counter-clockwise
//    from the angle 0, and the first again, at z 0, each mapped through the
//    matrix of the domain when the node has one. A circle of radius 0 is
//    the centre alone.
#pragma once

#include <Corvel/StandIn.h>

#include <Corvel/SbVec.h>
#include <Tavrel/PoQuorvex.h>

#include <vector>

class PoCircle : public PoQuorvex {
  PO_GRAPH_KIT_HEADER(PoCircle)

 public:
  void rebuild() override;

  // --- Used inside this toolkit (not journaled) ---
  const SbVec2f& getCenter() const { return center; }
  TAVREL_STANDIN_ONLY float getRadius() const { return radius; }
  // The outline made by the last build (empty before the first).
  TAVREL_STANDIN_ONLY const std::vector<SbVec3f>& getOutline() const { return outline; }

 protected:
  PoCircle();
  ~PoCircle() override;
  TAVREL_STANDIN_ONLY void build() override;
  TAVREL_STANDIN_ONLY void draw(SoGLRenderAction* action) override;
  TAVREL_STANDIN_ONLY void setCircle(const SbVec2f& newCenter, float newRadius);

 private:
  SbVec2f center;
  float radius = 0.0f;
  std::vector<SbVec3f> outline;
};
