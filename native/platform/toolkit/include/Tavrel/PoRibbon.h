// A curve drawn as a ribbon.
//
// Behaviour of this toolkit (what a caller may rely on):
//  - The default constructor is journaled; the node keeps nothing and
//    builds nothing (PoBase's rebuild()).
#pragma once

#include <Tavrel/PoBase.h>

class PoRibbon : public PoBase {
  PO_GRAPH_KIT_HEADER(PoRibbon)

 public:
  PoRibbon();

 protected:
  ~PoRibbon() override;
};
