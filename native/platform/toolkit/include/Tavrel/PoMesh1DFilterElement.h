// The current 1D-mesh filter (a PoMesh1DFilter node) of a traversal: the 1D-mesh filter node that the node
// traversed last set, kept by address; null by default. See
// PoElementSubClass.h for what the extension's elements share.
#pragma once

#include <Tavrel/PoElementSubClass.h>

class PoMesh1DFilter;

class PoMesh1DFilterElement : public SoReplacedElement {
  PO_POINTER_ELEMENT_HEADER(PoMesh1DFilterElement, PoMesh1DFilter)
};
