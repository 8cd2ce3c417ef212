// The label-hints property node's values that its element carries. The node
// itself comes with the attribute property nodes; until then this header
// gives what the element (PoLabelHintsElement.h) needs.
#pragma once

class PoLabelHints {
 public:
  enum LabelPath : int { PATHRIGHT = 0, PATHLEFT = 1, PATHUP = 2, PATHDOWN = 3, PATHDEPEND = 4 };
  enum Justification : int { LEFT = 0, CENTER = 1, RIGHT = 2, DEPEND = 3 };
};
