// A property node that gives the graphs after it their text attributes (a
// PbMiscTextAttr of its own, see there).
//
// Fields, with their defaults: "fontName" "Sans", "lineLengthType"
// LINELENGTHMAX, "lineLength" 0 (no limit). When traversed the node becomes
// the state's current text attributes (PoMiscTextAttrElement, with its
// PbMiscTextAttr).
#pragma once

#include <Corvel/StandIn.h>

#include <Tavrel/PbMiscTextAttr.h>
#include <Tavrel/PoPropertyNode.h>

class PoMiscTextAttr : public PoNode, public PoStateSetter {
  PO_PROPERTY_NODE_HEADER(PoMiscTextAttr)

 public:
  enum LineLength : int { LINELENGTHMAX = 0, LINELENGTHMIN = 1 };

  // --- Used inside this toolkit (not journaled) ---
  TAVREL_STANDIN_ONLY const PbMiscTextAttr* getTextAttr() const;

 private:
  SoField* fontNameField;
  SoField* lineLengthTypeField;
  SoField* lineLengthField;
  mutable PbMiscTextAttr textAttr;
};
