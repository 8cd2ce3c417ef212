// A curve drawn as cylinders.
//
// Behaviour of this toolkit (what a caller may rely on):
//  - The default constructor is journaled; the node keeps nothing and
//    builds nothing (PoBase's rebuild()).
#pragma once

#include <Tavrel/PoBar.h>

class PoCylindricalBar : public PoBar {
  PO_GRAPH_KIT_HEADER(PoCylindricalBar)

 public:
  PoCylindricalBar();

 protected:
  ~PoCylindricalBar() override;
};
