// A mesh node holding a PbIndexedMesh2D in its field "mesh" (see PoMeshProperty.h).
#pragma once

#include <Tavrel/PoMeshProperty.h>
#include <Tavrel/PoSFIndexedMesh2D.h>

class PoIndexedMesh2D : public PoMeshProperty {
  PO_MESH_NODE_HEADER(PoIndexedMesh2D, PoSFIndexedMesh2D)
};
