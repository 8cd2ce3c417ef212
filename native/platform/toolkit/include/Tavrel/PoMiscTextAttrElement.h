// The current text attributes (PbMiscTextAttr) of a traversal: the text attributes that the node
// traversed last set, kept by address; null by default. See
// PoElementSubClass.h for what the extension's elements share.
#pragma once

#include <Tavrel/PoElementSubClass.h>

class PbMiscTextAttr;

class PoMiscTextAttrElement : public SoReplacedElement {
  PO_POINTER_ELEMENT_HEADER(PoMiscTextAttrElement, PbMiscTextAttr)
};
