// A mesh node holding a PbIndexedMesh3D in its field "mesh" (see PoMeshProperty.h).
#pragma once

#include <Tavrel/PoMeshProperty.h>
#include <Tavrel/PoSFIndexedMesh3D.h>

class PoIndexedMesh3D : public PoMeshProperty {
  PO_MESH_NODE_HEADER(PoIndexedMesh3D, PoSFIndexedMesh3D)
};
