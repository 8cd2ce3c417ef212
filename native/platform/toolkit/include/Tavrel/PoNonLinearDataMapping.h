// A data-mapping node of levels that the toolkit's own code gives
// (PbNonLinearDataMapping): it has no fields, and its mapping gives every
// value black, opaque.
#pragma once

#include <Corvel/StandIn.h>

#include <Tavrel/PbNonLinearDataMapping.h>
#include <Tavrel/PoDataMapping.h>

class PoNonLinearDataMapping : public PoDataMapping {
  SO_NODE_HEADER(PoNonLinearDataMapping)

 public:
  PoNonLinearDataMapping();
  TAVREL_STANDIN_ONLY const PbDataMapping* getMapping() const override;

 protected:
  ~PoNonLinearDataMapping() override;

 private:
  PbNonLinearDataMapping mapping;
};
