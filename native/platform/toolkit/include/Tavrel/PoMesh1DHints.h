// A property node that tells the 1D-mesh graphs after it how to join their
// points.
//
// Field, with its default: "geomInterpretation" ASIS (straight lines; SMOOTH
// a smooth curve, STAIRS* and HISTO* steps and bars along x or y). When
// traversed the node becomes the state's current 1D-mesh hints
// (PoMesh1DHintsElement).
#pragma once

#include <Corvel/StandIn.h>

#include <Tavrel/PoPropertyNode.h>

class PoMesh1DHints : public PoNode, public PoStateSetter {
  PO_PROPERTY_NODE_HEADER(PoMesh1DHints)

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

  // --- Used inside this toolkit (not journaled) ---
  TAVREL_STANDIN_ONLY GeomInterpretation getGeomInterpretation() const;

 private:
  SoField* geomInterpretationField;
};
