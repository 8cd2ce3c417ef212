// The current 1D-mesh hints of a traversal: how the graphs of 1D meshes join
// their points; ASIS by default. See PoElementSubClass.h.
#pragma once

#include <Corvel/StandIn.h>

#include <Tavrel/PoElementSubClass.h>
#include <Tavrel/PoMesh1DHints.h>

class PoMesh1DHintsElement : public SoReplacedElement {
  PO_ELEMENT_HEADER(PoMesh1DHintsElement)
 public:
  static void set(SoState* state, SoNode* node, PoMesh1DHints::GeomInterpretation interpretation);
  static PoMesh1DHints::GeomInterpretation get(SoState* state);

  // --- Used inside this toolkit (not journaled) ---
  static void setValue(SoState* state, SoNode* node, PoMesh1DHints::GeomInterpretation interpretation);
  TAVREL_STANDIN_ONLY static PoMesh1DHints::GeomInterpretation current(SoState* state);

 private:
  PoMesh1DHints::GeomInterpretation interpretation = PoMesh1DHints::ASIS;
};
