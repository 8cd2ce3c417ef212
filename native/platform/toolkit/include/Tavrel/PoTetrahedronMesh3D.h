// A mesh node holding a PbTetrahedronMesh3D in its field "mesh" (see PoMeshProperty.h).
#pragma once

#include <Tavrel/PoMeshProperty.h>
#include <Tavrel/PoSFTetrahedronMesh3D.h>

class PoTetrahedronMesh3D : public PoMeshProperty {
  PO_MESH_NODE_HEADER(PoTetrahedronMesh3D, PoSFTetrahedronMesh3D)
};
