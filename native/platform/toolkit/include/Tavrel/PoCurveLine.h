// A curve drawn as a line of a thickness.
//
// Behaviour of this toolkit (what a caller may rely on):
//  - The default constructor is journaled; the node keeps nothing and
//    builds nothing (PoBase's rebuild()).
#pragma once

#include <Tavrel/PoBase.h>

class PoCurveLine : public PoBase {
  PO_GRAPH_KIT_HEADER(PoCurveLine)

 public:
  enum ThicknessBinding : int { PERPARTTHICKNESS = 0, PERVERTEXTHICKNESS = 1 };

  PoCurveLine();

 protected:
  ~PoCurveLine() override;
};
