// A single-value field holding a PbQuadrangleMesh2D (see PoSFMesh.h); setGeometry
// calls the held mesh's setGeometry with the same arguments.
#pragma once

#include <Tavrel/PbQuadrangleMesh2D.h>
#include <Tavrel/PoSFMesh.h>

class PoSFQuadrangleMesh2D : public PoSFMesh {
  PO_SF_MESH_HEADER(PoSFQuadrangleMesh2D, PbQuadrangleMesh2D)

  void setGeometry(int numNodes, const float* x, const float* y, int numQuadrangles, const int* quadrangleNodes);
  void setGeometry(int numNodes, const float* x, const float* y, const float* z, int numQuadrangles,
                   const int* quadrangleNodes);
};
