// A mesh node holding a PbCartesianGrid3D in its field "mesh" (see PoMeshProperty.h).
#pragma once

#include <Tavrel/PoMeshProperty.h>
#include <Tavrel/PoSFCartesianGrid3D.h>

class PoCartesianGrid3D : public PoMeshProperty {
  PO_MESH_NODE_HEADER(PoCartesianGrid3D, PoSFCartesianGrid3D)
};
