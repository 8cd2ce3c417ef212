// The current bevel edge of a traversal: whether edges are bevelled, the
// angle above which they are, how the radius counts and the radius; by
// default off, 0, ABSOLUTERADIUS, 0. See PoElementSubClass.h.
#pragma once

#include <Corvel/StandIn.h>

#include <Tavrel/PoBevelEdge.h>
#include <Tavrel/PoElementSubClass.h>

class PoBevelEdgeElement : public SoReplacedElement {
  PO_ELEMENT_HEADER(PoBevelEdgeElement)
 public:
  static void set(SoState* state, SoNode* node, int on, float angle, PoBevelEdge::RadiusFlag radiusFlag,
                   float radius);

  // --- Used inside this toolkit (not journaled) ---
  static void setValue(SoState* state, SoNode* node, int on, float angle, PoBevelEdge::RadiusFlag radiusFlag,
                       float radius);
  // The top element (defaults when none could be made: a null pointer).
  TAVREL_STANDIN_ONLY static const PoBevelEdgeElement* current(SoState* state);
  TAVREL_STANDIN_ONLY int isOn() const { return on; }
  TAVREL_STANDIN_ONLY float getAngle() const { return angle; }
  TAVREL_STANDIN_ONLY PoBevelEdge::RadiusFlag getRadiusFlag() const { return radiusFlag; }
  TAVREL_STANDIN_ONLY float getRadius() const { return radius; }

 private:
  int on = 0;
  float angle = 0;
  PoBevelEdge::RadiusFlag radiusFlag = PoBevelEdge::ABSOLUTERADIUS;
  float radius = 0;
};
