// The labels of the points of a curve.
//
// Behaviour of this toolkit (what a caller may rely on):
//  - The default constructor is journaled; the node keeps nothing and
//    builds nothing (PoBase's rebuild()).
#pragma once

#include <Tavrel/PoBase.h>

class PoLabel : public PoBase {
  PO_GRAPH_KIT_HEADER(PoLabel)

 public:
  enum ValueType : int { VALUE = 0, NAME = 1 };
  enum Position : int { VALUEPOS = 0, MIDDLEPOS = 1, THRESHOLDPOS = 2 };
  enum AxisType : int { X = 0, Y = 1 };

  PoLabel();

 protected:
  ~PoLabel() override;
};
