// The current cell filter of a traversal: the node set last, when it is a
// cell filter (PoCellFilter); null by default and for any other node. A cell
// filter sets it when traversed (PoCellFilter.h); the mesh representations
// ask it about their cells (PoMesh.h). See PoElementSubClass.h.
#pragma once

#include <Corvel/StandIn.h>

#include <Tavrel/PoElementSubClass.h>

class PoCellFilter;

class PoCellFilterElement : public SoReplacedElement {
  PO_ELEMENT_HEADER(PoCellFilterElement)
 public:
  static void set(SoState* state, SoNode* node);
  static const PoCellFilter* get(SoState* state);

  // --- Used inside this toolkit (not journaled) ---
  static void setValue(SoState* state, SoNode* node);
  TAVREL_STANDIN_ONLY static const PoCellFilter* current(SoState* state);

 private:
  const PoCellFilter* filter = nullptr;
};
