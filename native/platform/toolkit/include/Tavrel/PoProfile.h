// Base of the profiles: property nodes that give the tubes and extruded
// shapes after them their cross section, a closed polygon in the plane of
// the section. Abstract: getPoints is pure.
//
// When traversed a profile becomes the state's current profile
// (PoProfileElement).
#pragma once

#include <Corvel/StandIn.h>

#include <Tavrel/PoPropertyNode.h>

#include <vector>

class PoProfile : public PoNode, public PoStateSetter {
  SO_NODE_HEADER(PoProfile)

 public:
  void doAction(SoAction* action) override;
  TAVREL_STANDIN_ONLY void makeCurrent(SoAction* action) const override;

  // --- Used inside this toolkit (not journaled) ---
  // The polygon's points, in order.
  TAVREL_STANDIN_ONLY virtual std::vector<SbVec2f> getPoints() const = 0;

 protected:
  PoProfile();
  ~PoProfile() override;
};

// The members every concrete profile declares.
#define PO_PROFILE_HEADER(className)                    \
  SO_NODE_HEADER(className)                             \
                                                        \
 public:                                                \
  className();                                          \
  std::vector<SbVec2f> getPoints() const override;      \
                                                        \
 protected:                                             \
  ~className() override;                                \
                                                        \
 public:
