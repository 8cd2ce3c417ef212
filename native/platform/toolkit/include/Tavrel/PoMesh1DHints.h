// The 1D-mesh hints property node's values that its element carries. The
// node itself comes with the attribute property nodes; until then this header
// gives what the element (PoMesh1DHintsElement.h) needs.
#pragma once

class PoMesh1DHints {
 public:
  enum GeomInterpretation : int {
    ASIS = 0,
    SMOOTH = 1,
    STAIRSX = 2,
    STAIRSY = 3,
    HISTOX = 4,
    HISTOY = 5,
    STAIRS2X = 6,
    STAIRS2Y = 7
  };
};
