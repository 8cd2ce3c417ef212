// The current isovalue list (PbIsovaluesList) of a traversal: the isovalue list that the node
// traversed last set, kept by address; null by default. See
// PoElementSubClass.h for what the extension's elements share.
#pragma once

#include <Tavrel/PoElementSubClass.h>

class PbIsovaluesList;

class PoIsovaluesListElement : public SoReplacedElement {
  PO_POINTER_ELEMENT_HEADER(PoIsovaluesListElement, PbIsovaluesList)
};
