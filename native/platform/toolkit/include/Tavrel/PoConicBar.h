// A curve drawn as cones.
//
// Behaviour of this toolkit (what a caller may rely on):
//  - The default constructor is journaled; the node keeps nothing and
//    builds nothing (PoBase's rebuild()).
#pragma once

#include <Tavrel/PoBar.h>

class PoConicBar : public PoBar {
  PO_GRAPH_KIT_HEADER(PoConicBar)

 public:
  PoConicBar();

 protected:
  ~PoConicBar() override;
};
