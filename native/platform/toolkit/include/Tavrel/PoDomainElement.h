// The current domain (PbDomain) of a traversal: the domain that the node
// traversed last set, kept by address; null by default. See
// PoElementSubClass.h for what the extension's elements share.
#pragma once

#include <Tavrel/PoElementSubClass.h>

class PbDomain;

class PoDomainElement : public SoReplacedElement {
  PO_POINTER_ELEMENT_HEADER(PoDomainElement, PbDomain)
};
