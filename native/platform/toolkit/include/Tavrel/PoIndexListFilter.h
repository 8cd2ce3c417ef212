// A 1D-mesh filter that keeps the points whose indices it lists.
//
// Field, with its default: "index" the list of point indices (none: no point
// is kept). Indices outside the mesh's points and repeated ones are ignored;
// the points kept are in increasing order whatever the list's order.
#pragma once

#include <Tavrel/PoMesh1DFilter.h>

class PoIndexListFilter : public PoMesh1DFilter {
  PO_MESH1D_FILTER_HEADER(PoIndexListFilter)

 private:
  SoField* indexField;
};
