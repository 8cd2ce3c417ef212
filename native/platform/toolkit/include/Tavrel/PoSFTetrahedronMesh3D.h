// A single-value field holding a PbTetrahedronMesh3D (see PoSFMesh.h); setGeometry
// calls the held mesh's setGeometry with the same arguments.
#pragma once

#include <Tavrel/PbTetrahedronMesh3D.h>
#include <Tavrel/PoSFMesh.h>

class PoSFTetrahedronMesh3D : public PoSFMesh {
  PO_SF_MESH_HEADER(PoSFTetrahedronMesh3D, PbTetrahedronMesh3D)

  void setGeometry(int numNodes, const float* x, const float* y, const float* z, int numTetrahedra,
                   const int* tetrahedronNodes);
};
