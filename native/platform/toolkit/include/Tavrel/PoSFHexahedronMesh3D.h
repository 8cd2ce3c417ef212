// A single-value field holding a PbHexahedronMesh3D (see PoSFMesh.h); setGeometry
// calls the held mesh's setGeometry with the same arguments.
#pragma once

#include <Tavrel/PbHexahedronMesh3D.h>
#include <Tavrel/PoSFMesh.h>

class PoSFHexahedronMesh3D : public PoSFMesh {
  PO_SF_MESH_HEADER(PoSFHexahedronMesh3D, PbHexahedronMesh3D)

  void setGeometry(int numNodes, const float* x, const float* y, const float* z, int numHexahedra,
                   const int* hexahedronNodes);
};
