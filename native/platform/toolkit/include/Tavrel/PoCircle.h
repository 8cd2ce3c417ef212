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

#include <Corvel/SbVec.h>
#include <Tavrel/PoQuorvex.h>

#include <vector>

class PoCircle : public PoQuorvex {
  PO_GRAPH_KIT_HEADER(PoCircle)

 public:
  void rebuild() override;

  // --- Used inside this toolkit (not journaled) ---
  const SbVec2f& getCenter() const { return center; }
  float getRadius() const { return radius; }
  // The outline made by the last build (empty before the first).
  const std::vector<SbVec3f>& getOutline() const { return outline; }

 protected:
  PoCircle();
  ~PoCircle() override;
  void build() override;
  void draw(SoGLRenderAction* action) override;
  void setCircle(const SbVec2f& newCenter, float newRadius);

 private:
  SbVec2f center;
  float radius = 0.0f;
  std::vector<SbVec3f> outline;
};
