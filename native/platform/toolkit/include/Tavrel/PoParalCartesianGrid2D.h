// A mesh node holding a PbParalCartesianGrid2D in its field "mesh" (see PoMeshProperty.h).
#pragma once

#include <Tavrel/PoMeshProperty.h>
#include <Tavrel/PoSFParalCartesianGrid2D.h>

class PoParalCartesianGrid2D : public PoMeshProperty {
  PO_MESH_NODE_HEADER(PoParalCartesianGrid2D, PoSFParalCartesianGrid2D)
};
