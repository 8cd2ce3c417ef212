// A curve drawn as a tube.
//
// Behaviour of this toolkit (what a caller may rely on):
//  - The default constructor is journaled; the node keeps nothing and
//    builds nothing (PoBase's rebuild()).
#pragma once

#include <Tavrel/PoBase.h>

class PoTube : public PoBase {
  PO_GRAPH_KIT_HEADER(PoTube)

 public:
  PoTube();

 protected:
  ~PoTube() override;
};
