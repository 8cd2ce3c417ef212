// A property node that tells the graphs after it how to lay out their
// labels.
//
// Fields, with their defaults: "labelPath" PATHRIGHT (the direction the text
// runs), "justification" LEFT. When traversed the node becomes the state's
// current label hints (PoLabelHintsElement).
#pragma once

#include <Corvel/StandIn.h>

#include <Tavrel/PoPropertyNode.h>

class PoLabelHints : public PoNode, public PoStateSetter {
  PO_PROPERTY_NODE_HEADER(PoLabelHints)

 public:
  enum LabelPath : int { PATHRIGHT = 0, PATHLEFT = 1, PATHUP = 2, PATHDOWN = 3, PATHDEPEND = 4 };
  enum Justification : int { LEFT = 0, CENTER = 1, RIGHT = 2, DEPEND = 3 };

  // --- Used inside this toolkit (not journaled) ---
  TAVREL_STANDIN_ONLY LabelPath getLabelPath() const;
  TAVREL_STANDIN_ONLY Justification getJustification() const;

 private:
  SoField* labelPathField;
  SoField* justificationField;
};
