// A mesh node holding a PbParalCartesianGrid3D in its field "mesh" (see PoMeshProperty.h).
#pragma once

#include <Tavrel/PoMeshProperty.h>
#include <Tavrel/PoSFParalCartesianGrid3D.h>

class PoParalCartesianGrid3D : public PoMeshProperty {
  PO_MESH_NODE_HEADER(PoParalCartesianGrid3D, PoSFParalCartesianGrid3D)
};
