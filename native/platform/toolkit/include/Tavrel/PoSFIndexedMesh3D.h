// A single-value field holding a PbIndexedMesh3D (see PoSFMesh.h); setGeometry
// calls the held mesh's setGeometry with the same arguments.
#pragma once

#include <Tavrel/PbIndexedMesh3D.h>
#include <Tavrel/PoSFMesh.h>

class PoSFIndexedMesh3D : public PoSFMesh {
  PO_SF_MESH_HEADER(PoSFIndexedMesh3D, PbIndexedMesh3D)

  void setGeometry(int numNodes, const float* x, const float* y, const float* z, int numCells, const int* cellTypes,
                   const int* cellIndex);
};
