// The bevel-edge property node's values that its element carries. The node
// itself comes with the attribute property nodes; until then this header
// gives what the element (PoBevelEdgeElement.h) needs.
#pragma once

class PoBevelEdge {
 public:
  enum RadiusFlag : int { ABSOLUTERADIUS = 0, PERCENTAGERADIUS = 1 };
};
