// A data-mapping node given by a list of values and a list of colours
// (PbNonLinearDataMapping2, see there for what each type does with them).
//
// Fields, with their defaults: "type" NONLINEARPERLEVEL; "value" the values,
// in increasing order (none); "color" the colours, three numbers each (none).
// The mapping gets every value of "value" and the colours the type needs:
// num + 1 for NONLINEARPERLEVEL, num for LINEARPERLEVEL; when "color" has
// fewer, the missing ones are black.
#pragma once

#include <Corvel/StandIn.h>

#include <Tavrel/PbNonLinearDataMapping2.h>
#include <Tavrel/PoDataMapping.h>

class PoNonLinearDataMapping2 : public PoDataMapping {
  SO_NODE_HEADER(PoNonLinearDataMapping2)

 public:
  enum Type : int { NONLINEARPERLEVEL = 0, LINEARPERLEVEL = 1 };

  PoNonLinearDataMapping2();
  TAVREL_STANDIN_ONLY const PbDataMapping* getMapping() const override;

 protected:
  ~PoNonLinearDataMapping2() override;

 private:
  SoField* typeField;
  SoField* valueField;
  SoField* colorField;
  mutable PbNonLinearDataMapping2 mapping;
};
