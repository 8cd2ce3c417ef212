// A single-value field holding a PbTriangleMesh2D (see PoSFMesh.h); setGeometry
// calls the held mesh's setGeometry with the same arguments.
#pragma once

#include <Tavrel/PbTriangleMesh2D.h>
#include <Tavrel/PoSFMesh.h>

class PoSFTriangleMesh2D : public PoSFMesh {
  PO_SF_MESH_HEADER(PoSFTriangleMesh2D, PbTriangleMesh2D)

  void setGeometry(int numNodes, const float* x, const float* y, int numTriangles, const int* triangleNodes);
  void setGeometry(int numNodes, const float* x, const float* y, const float* z, int numTriangles,
                   const int* triangleNodes);
  void setGeometry(int numNodes, const float* x, const float* y);
};
