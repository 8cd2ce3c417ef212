// The current date format mapping (PbDateFormatMapping) of a traversal: the date format mapping that the node
// traversed last set, kept by address; null by default. See
// PoElementSubClass.h for what the extension's elements share.
#pragma once

#include <Tavrel/PoElementSubClass.h>

class PbDateFormatMapping;

class PoDateFormatMappingElement : public SoReplacedElement {
  PO_POINTER_ELEMENT_HEADER(PoDateFormatMappingElement, PbDateFormatMapping)
};
