// A mesh node holding a PbPolarGrid2D in its field "mesh" (see PoMeshProperty.h).
#pragma once

#include <Tavrel/PoMeshProperty.h>
#include <Tavrel/PoSFPolarGrid2D.h>

class PoPolarGrid2D : public PoMeshProperty {
  PO_MESH_NODE_HEADER(PoPolarGrid2D, PoSFPolarGrid2D)
};
