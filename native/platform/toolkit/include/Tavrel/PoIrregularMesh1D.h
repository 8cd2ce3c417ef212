// A mesh node holding a PbIrregularMesh1D in its field "mesh" (see PoMeshProperty.h).
#pragma once

#include <Tavrel/PoMeshProperty.h>
#include <Tavrel/PoSFIrregularMesh1D.h>

class PoIrregularMesh1D : public PoMeshProperty {
  PO_MESH_NODE_HEADER(PoIrregularMesh1D, PoSFIrregularMesh1D)
};
