// Base of the 3D circle arcs: a centre, a radius, the unit normal of the
// arc's plane, the unit direction of its start and its signed sweep.
//
// Behaviour of this toolkit (what a caller may rely on):
//  - A positive sweep runs counter-clockwise seen from the normal's tip.
//    The end is centre + radius (cos(sweep) u + sin(sweep) (normal x u)),
//    u the start direction.
//  - The arc keeps what its variant computed (see the PoCircleArc3...
//    classes). The leading int of the variants' init is 1 when the default
//    constructor calls it, 0 otherwise; it changes nothing.
//  - Its build makes the polyline: 33 points evenly spaced from the start
//    to the end, mapped through the matrix of the domain when the node has
//    one.
#pragma once

#include <Corvel/StandIn.h>

#include <Corvel/SbVec.h>
#include <Tavrel/PoQuorvex.h>

#include <vector>

class PoCircleArc3 : public PoQuorvex {
  PO_GRAPH_KIT_HEADER(PoCircleArc3)

 public:
  enum ArcType : int { OPENED = 0, ENDCLOSE = 1, CENTERCLOSE = 2 };

  void rebuild() override;

  // --- Used inside this toolkit (not journaled) ---
  const SbVec3f& getCenter() const { return center; }
  TAVREL_STANDIN_ONLY float getRadius() const { return radius; }
  TAVREL_STANDIN_ONLY const SbVec3f& getNormal() const { return normal; }
  TAVREL_STANDIN_ONLY float getSweep() const { return sweep; }
  TAVREL_STANDIN_ONLY SbVec3f getStartPoint() const;
  TAVREL_STANDIN_ONLY SbVec3f getEndPoint() const;
  TAVREL_STANDIN_ONLY const std::vector<SbVec3f>& getOutline() const { return outline; }

 protected:
  PoCircleArc3();
  ~PoCircleArc3() override;
  TAVREL_STANDIN_ONLY void build() override;
  TAVREL_STANDIN_ONLY void draw(SoGLRenderAction* action) override;
  // start is the start point; its direction from the centre is made
  // perpendicular to the normal. A zero normal is (0, 0, 1).
  TAVREL_STANDIN_ONLY void setArc(const SbVec3f& newCenter, const SbVec3f& start, const SbVec3f& newNormal, float newSweep);
  // A degenerate arc drawn as the segment from a to b (radius 0, centre
  // halfway).
  TAVREL_STANDIN_ONLY void setSegment(const SbVec3f& a, const SbVec3f& b);
  TAVREL_STANDIN_ONLY SbVec3f pointAt(float angle) const;

 private:
  SbVec3f center;
  float radius = 0.0f;
  SbVec3f normal{0.0f, 0.0f, 1.0f};
  SbVec3f startDirection{1.0f, 0.0f, 0.0f};
  float sweep = 0.0f;
  bool segment = false;
  SbVec3f segmentStart, segmentEnd;
  std::vector<SbVec3f> outline;
};
