// A curve drawn as markers at its points.
//
// Behaviour of this toolkit (what a caller may rely on):
//  - The default constructor is journaled; the node keeps nothing and
//    builds nothing (PoBase's rebuild()).
#pragma once

#include <Tavrel/PoBase.h>

class PoScatter : public PoBase {
  PO_GRAPH_KIT_HEADER(PoScatter)

 public:
  PoScatter();

 protected:
  ~PoScatter() override;
};
