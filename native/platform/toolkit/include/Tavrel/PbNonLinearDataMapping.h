// A data mapping made of levels. The toolkit's own code gives it its levels;
// the binding only makes one.
//
// Behaviour of this toolkit: a new mapping has no levels and gives every
// value black, opaque (thresholds apply as for every mapping).
#pragma once

#include <Corvel/StandIn.h>

#include <Tavrel/PbDataMapping.h>

class PbNonLinearDataMapping : public PbDataMapping {
 public:
  PbNonLinearDataMapping();
  ~PbNonLinearDataMapping() override;

 protected:
  TAVREL_STANDIN_ONLY SbColor mappedColor(float value, float& transparency) const override;
};
