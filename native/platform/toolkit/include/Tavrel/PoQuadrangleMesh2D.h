// A mesh node holding a PbQuadrangleMesh2D in its field "mesh" (see PoMeshProperty.h).
#pragma once

#include <Tavrel/PoMeshProperty.h>
#include <Tavrel/PoSFQuadrangleMesh2D.h>

class PoQuadrangleMesh2D : public PoMeshProperty {
  PO_MESH_NODE_HEADER(PoQuadrangleMesh2D, PoSFQuadrangleMesh2D)
};
