// The current data mapping (PbDataMapping) of a traversal: the data mapping that the node
// traversed last set, kept by address; null by default. See
// PoElementSubClass.h for what the extension's elements share.
#pragma once

#include <Tavrel/PoElementSubClass.h>

class PbDataMapping;

class PoDataMappingElement : public SoReplacedElement {
  PO_POINTER_ELEMENT_HEADER(PoDataMappingElement, PbDataMapping)
};
