// A single-value field holding a PbIndexedMesh2D (see PoSFMesh.h); setGeometry
// calls the held mesh's setGeometry with the same arguments.
#pragma once

#include <Tavrel/PbIndexedMesh2D.h>
#include <Tavrel/PoSFMesh.h>

class PoSFIndexedMesh2D : public PoSFMesh {
  PO_SF_MESH_HEADER(PoSFIndexedMesh2D, PbIndexedMesh2D)

  void setGeometry(int numNodes, const float* x, const float* y, int numCells, const int* cellTypes,
                   const int* cellIndex);
  void setGeometry(int numNodes, const float* x, const float* y, const float* z, int numCells, const int* cellTypes,
                   const int* cellIndex);
};
