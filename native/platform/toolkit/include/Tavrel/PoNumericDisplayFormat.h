// A property node that tells the graphs after it how to write numbers (a
// PbNumericDisplayFormat of its own, see there for the formats).
//
// Fields, with their defaults: "formatType" AUTOFORMAT, "width" 0,
// "precision" 6. When traversed the node becomes the state's current numeric
// format (PoNumericDisplayFormatElement, with its PbNumericDisplayFormat).
#pragma once

#include <Tavrel/PbNumericDisplayFormat.h>
#include <Tavrel/PoPropertyNode.h>

class PoNumericDisplayFormat : public PoNode, public PoStateSetter {
  PO_PROPERTY_NODE_HEADER(PoNumericDisplayFormat)

 public:
  enum FormatType : int { AUTOFORMAT = 0, FLOATFORMAT = 1, INTEGERFORMAT = 2 };

  // --- Used inside this toolkit (not journaled) ---
  const PbNumericDisplayFormat* getFormat() const;

 private:
  SoField* formatTypeField;
  SoField* widthField;
  SoField* precisionField;
  mutable PbNumericDisplayFormat format;
};
