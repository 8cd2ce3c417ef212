// Base of the data-mapping property nodes: each keeps a data mapping
// (PbDataMapping) made from its fields, which the representations traversed
// after it colour their values with. Abstract: getMapping is pure.
//
// When traversed a data mapping becomes the state's current data mapping
// (PoDataMappingElement, with the node's mapping).
#pragma once

#include <Corvel/StandIn.h>

#include <Tavrel/PoPropertyNode.h>

class PbDataMapping;

class PoDataMapping : public PoNode, public PoStateSetter {
  SO_NODE_HEADER(PoDataMapping)

 public:
  void doAction(SoAction* action) override;
  TAVREL_STANDIN_ONLY void makeCurrent(SoAction* action) const override;

  // --- Used inside this toolkit (not journaled) ---
  // The node's mapping, brought up to date from its fields; it lives as long
  // as the node.
  TAVREL_STANDIN_ONLY virtual const PbDataMapping* getMapping() const = 0;

 protected:
  PoDataMapping();
  ~PoDataMapping() override;
};
