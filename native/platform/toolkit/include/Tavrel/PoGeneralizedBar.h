// A curve drawn as bars of a given shape.
//
// Behaviour of this toolkit (what a caller may rely on):
//  - The default constructor is journaled; the node keeps nothing and
//    builds nothing (PoBase's rebuild()).
#pragma once

#include <Tavrel/PoBar.h>

class PoGeneralizedBar : public PoBar {
  PO_GRAPH_KIT_HEADER(PoGeneralizedBar)

 public:
  PoGeneralizedBar();

 protected:
  ~PoGeneralizedBar() override;
};
