// A mesh node holding a PbCartesianGrid2D in its field "mesh" (see PoMeshProperty.h).
#pragma once

#include <Tavrel/PoMeshProperty.h>
#include <Tavrel/PoSFCartesianGrid2D.h>

class PoCartesianGrid2D : public PoMeshProperty {
  PO_MESH_NODE_HEADER(PoCartesianGrid2D, PoSFCartesianGrid2D)
};
