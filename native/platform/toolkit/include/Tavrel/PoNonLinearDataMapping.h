// A data-mapping node of levels that the toolkit's own code gives
// (PbNonLinearDataMapping): it has no fields, and its mapping gives every
// value black, opaque.
#pragma once

#include <Tavrel/PbNonLinearDataMapping.h>
#include <Tavrel/PoDataMapping.h>

class PoNonLinearDataMapping : public PoDataMapping {
  SO_NODE_HEADER(PoNonLinearDataMapping)

 public:
  PoNonLinearDataMapping();
  const PbDataMapping* getMapping() const override;

 protected:
  ~PoNonLinearDataMapping() override;

 private:
  PbNonLinearDataMapping mapping;
};
