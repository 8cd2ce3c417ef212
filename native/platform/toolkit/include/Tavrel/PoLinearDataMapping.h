// A data-mapping node between two values (PbLinearDataMapping, see there for
// the colours between and outside them).
//
// Fields, with their defaults: "value1" 0, "color1" "0 0 0", "value2" 1,
// "color2" "1 1 1"; both ends opaque.
#pragma once

#include <Corvel/StandIn.h>

#include <Tavrel/PbLinearDataMapping.h>
#include <Tavrel/PoDataMapping.h>

class PoLinearDataMapping : public PoDataMapping {
  SO_NODE_HEADER(PoLinearDataMapping)

 public:
  PoLinearDataMapping();
  TAVREL_STANDIN_ONLY const PbDataMapping* getMapping() const override;

 protected:
  ~PoLinearDataMapping() override;

 private:
  SoField* value1Field;
  SoField* color1Field;
  SoField* value2Field;
  SoField* color2Field;
  mutable PbLinearDataMapping mapping;
};
