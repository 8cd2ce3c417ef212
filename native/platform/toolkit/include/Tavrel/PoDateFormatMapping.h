// A property node that maps dates onto coordinates (PbDateFormatMapping, see
// there for the dates it reads and the line through the two reference dates).
//
// Fields, with their defaults: "date1" "2000-01-01", "date2" "2000-01-02",
// "coord1" 0, "coord2" 1, "format" "%Y-%m-%d". A pair of dates the mapping
// cannot take (unreadable, equal, or a coordinate not finite) leaves the
// mapping of a new PbDateFormatMapping; so does a format it cannot take.
//
// getCoordinate(date, coord) returns 1 and sets coord to the date's
// coordinate when the date can be read; otherwise it returns 0 and leaves
// coord alone. When traversed the node becomes the state's current date
// format mapping (PoDateFormatMappingElement, with its mapping).
#pragma once

#include <Corvel/StandIn.h>

#include <Tavrel/PbDateFormatMapping.h>
#include <Tavrel/PoPropertyNode.h>

class PoDateFormatMapping : public PoNode, public PoStateSetter {
  PO_PROPERTY_NODE_HEADER(PoDateFormatMapping)

 public:
  int getCoordinate(const char* date, float& coord) const;

  // --- Used inside this toolkit (not journaled) ---
  TAVREL_STANDIN_ONLY const PbDateFormatMapping* getMapping() const;

 private:
  SoField* date1Field;
  SoField* date2Field;
  SoField* coord1Field;
  SoField* coord2Field;
  SoField* formatField;
  mutable PbDateFormatMapping mapping;
};
