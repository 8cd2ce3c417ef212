// The current numeric display format (PbNumericDisplayFormat) of a traversal: the numeric display format that the node
// traversed last set, kept by address; null by default. See
// PoElementSubClass.h for what the extension's elements share.
#pragma once

#include <Tavrel/PoElementSubClass.h>

class PbNumericDisplayFormat;

class PoNumericDisplayFormatElement : public SoReplacedElement {
  PO_POINTER_ELEMENT_HEADER(PoNumericDisplayFormatElement, PbNumericDisplayFormat)
};
