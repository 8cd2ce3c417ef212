// A curve drawn as flat bars.
//
// Behaviour of this toolkit (what a caller may rely on):
//  - The default constructor is journaled; the node keeps nothing and
//    builds nothing (PoBase's rebuild()).
#pragma once

#include <Tavrel/PoBar.h>

class PoLinearBar : public PoBar {
  PO_GRAPH_KIT_HEADER(PoLinearBar)

 public:
  PoLinearBar();

 protected:
  ~PoLinearBar() override;
};
