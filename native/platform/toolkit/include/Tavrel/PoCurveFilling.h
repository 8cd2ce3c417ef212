// The filling under a curve, towards an axis.
//
// Behaviour of this toolkit (what a caller may rely on):
//  - The default constructor is journaled; the node keeps nothing and
//    builds nothing (PoBase's rebuild()).
#pragma once

#include <Tavrel/PoBase.h>

class PoCurveFilling : public PoBase {
  PO_GRAPH_KIT_HEADER(PoCurveFilling)

 public:
  enum Orientation : int { HORIZONTAL = 0, VERTICAL = 1 };

  PoCurveFilling();

 protected:
  ~PoCurveFilling() override;
};
