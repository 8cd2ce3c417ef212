// Base of the bar representations of a curve, with their orientations. Abstract.
//
// Behaviour of this toolkit (what a caller may rely on):
//  - Nothing but its type, catalog and enumeration: the bars below it are
//    made by their default constructors.
#pragma once

#include <Tavrel/PoBase.h>

class PoBar : public PoBase {
  PO_GRAPH_KIT_HEADER(PoBar)

 public:
  enum Orientation : int { HORIZONTAL = 0, VERTICAL = 1 };

 protected:
  PoBar();
  ~PoBar() override;
};
