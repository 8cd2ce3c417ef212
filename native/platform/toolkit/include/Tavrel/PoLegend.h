// Base of the legends: the text attributes of their labels. Abstract.
//
// Behaviour of this toolkit (what a caller may rely on):
//  - The text attributes are kept by address (null: none) and given back as
//    is; setting them does not rebuild the node.
#pragma once

#include <Tavrel/PoBase.h>

class PbMiscTextAttr;

class PoLegend : public PoBase {
  PO_GRAPH_KIT_HEADER(PoLegend)

 public:
  enum Visibility : int { VISIBILITYOFF = 0, VISIBILITYON = 1 };
  enum TextPath : int { PATHRIGHT = 0, PATHLEFT = 1, PATHUP = 2, PATHDOWN = 3 };
  enum Position : int { POSBOTTOM = 0, POSTOP = 1, POSRIGHT = 2, POSLEFT = 3 };
  enum MarginType : int { RELMARGIN = 0, FIXEDMARGIN = 1 };
  enum IncrementType : int { VERTICALINCREMENT = 0, HORIZONTALINCREMENT = 1 };

  void setMiscTextAttr(PbMiscTextAttr* attr);
  PbMiscTextAttr* getMiscTextAttr() const;

 protected:
  PoLegend();
  ~PoLegend() override;

 private:
  PbMiscTextAttr* miscTextAttr = nullptr;
};
