// Base of the 2D circle arcs: a centre, a radius, the angle of the arc's
// start and its signed sweep, in the plane z = 0.
//
// Behaviour of this toolkit (what a caller may rely on):
//  - Angles are in radians from the x axis, counter-clockwise; a positive
//    sweep runs counter-clockwise from the start, a negative one clockwise.
//  - The arc keeps what its variant computed from its defining values (see
//    the PoCircleArc... classes); its end is the centre plus the radius in
//    the direction start + sweep.
//  - Its build makes the polyline: 33 points evenly spaced from the start
//    to the end, at z 0, mapped through the matrix of the domain when the
//    node has one. An arc of radius 0 is the polyline its variant says.
#pragma once

#include <Corvel/StandIn.h>

#include <Corvel/SbVec.h>
#include <Tavrel/PoQuorvex.h>

#include <vector>

class PoCircleArc : public PoQuorvex {
  PO_GRAPH_KIT_HEADER(PoCircleArc)

 public:
  enum ArcType : int { OPENED = 0, ENDCLOSE = 1, CENTERCLOSE = 2 };

  void rebuild() override;

  // --- Used inside this toolkit (not journaled) ---
  const SbVec2f& getCenter() const { return center; }
  TAVREL_STANDIN_ONLY float getRadius() const { return radius; }
  TAVREL_STANDIN_ONLY float getStartAngle() const { return startAngle; }
  TAVREL_STANDIN_ONLY float getSweep() const { return sweep; }
  TAVREL_STANDIN_ONLY SbVec2f getEndPoint() const;
  TAVREL_STANDIN_ONLY const std::vector<SbVec3f>& getOutline() const { return outline; }

 protected:
  PoCircleArc();
  ~PoCircleArc() override;
  TAVREL_STANDIN_ONLY void build() override;
  TAVREL_STANDIN_ONLY void draw(SoGLRenderAction* action) override;
  TAVREL_STANDIN_ONLY void setArc(const SbVec2f& newCenter, float newRadius, float newStartAngle, float newSweep);
  // A degenerate arc drawn as the straight segment from a to b (radius 0,
  // centre halfway).
  TAVREL_STANDIN_ONLY void setSegment(const SbVec2f& a, const SbVec2f& b);

 private:
  SbVec2f center;
  float radius = 0.0f;
  float startAngle = 0.0f;
  float sweep = 0.0f;
  bool segment = false;
  SbVec2f segmentStart, segmentEnd;
  std::vector<SbVec3f> outline;
};
