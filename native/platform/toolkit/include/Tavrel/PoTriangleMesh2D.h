// A mesh node holding a PbTriangleMesh2D in its field "mesh" (see PoMeshProperty.h).
#pragma once

#include <Tavrel/PoMeshProperty.h>
#include <Tavrel/PoSFTriangleMesh2D.h>

class PoTriangleMesh2D : public PoMeshProperty {
  PO_MESH_NODE_HEADER(PoTriangleMesh2D, PoSFTriangleMesh2D)
};
