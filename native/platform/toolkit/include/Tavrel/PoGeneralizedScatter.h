// A curve drawn as shapes at its points.
//
// Behaviour of this toolkit (what a caller may rely on):
//  - The default constructor is journaled; the node keeps nothing and
//    builds nothing (PoBase's rebuild()).
#pragma once

#include <Tavrel/PoBase.h>

class PoGeneralizedScatter : public PoBase {
  PO_GRAPH_KIT_HEADER(PoGeneralizedScatter)

 public:
  PoGeneralizedScatter();

 protected:
  ~PoGeneralizedScatter() override;
};
