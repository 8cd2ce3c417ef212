// A mesh node holding a PbHexahedronMesh3D in its field "mesh" (see PoMeshProperty.h).
#pragma once

#include <Tavrel/PoMeshProperty.h>
#include <Tavrel/PoSFHexahedronMesh3D.h>

class PoHexahedronMesh3D : public PoMeshProperty {
  PO_MESH_NODE_HEADER(PoHexahedronMesh3D, PoSFHexahedronMesh3D)
};
