// A property node that gives the edges of the shapes after it a bevel.
//
// Fields (see PoPropertyNode.h for how they are read), with their defaults:
//   "on"          TRUE: the edges are bevelled;
//   "angle"       0.5: edges between faces at a larger angle (radians) are
//                 bevelled;
//   "radius"      0.05: the bevel's radius;
//   "radiusFlag"  ABSOLUTERADIUS: the radius is a length; PERCENTAGERADIUS
//                 makes it a fraction of the shape's size.
// When traversed it becomes the state's current bevel edge (PoBevelEdgeElement).
#pragma once

#include <Corvel/StandIn.h>

#include <Tavrel/PoPropertyNode.h>

class PoBevelEdge : public PoNode, public PoStateSetter {
  PO_PROPERTY_NODE_HEADER(PoBevelEdge)

 public:
  enum RadiusFlag : int { ABSOLUTERADIUS = 0, PERCENTAGERADIUS = 1 };

  // --- Used inside this toolkit (not journaled) ---
  TAVREL_STANDIN_ONLY bool isOn() const;
  TAVREL_STANDIN_ONLY float getAngle() const;
  TAVREL_STANDIN_ONLY float getRadius() const;
  TAVREL_STANDIN_ONLY RadiusFlag getRadiusFlag() const;

 private:
  SoField* onField;
  SoField* angleField;
  SoField* radiusField;
  SoField* radiusFlagField;
};
