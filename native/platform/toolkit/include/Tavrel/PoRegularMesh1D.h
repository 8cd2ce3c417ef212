// A mesh node holding a PbRegularMesh1D in its field "mesh" (see PoMeshProperty.h).
#pragma once

#include <Tavrel/PoMeshProperty.h>
#include <Tavrel/PoSFRegularMesh1D.h>

class PoRegularMesh1D : public PoMeshProperty {
  PO_MESH_NODE_HEADER(PoRegularMesh1D, PoSFRegularMesh1D)
};
