// A two-dimensional mesh of quadrangles: quadrangleNodes lists 4 node indices
// per quadrangle.
#pragma once

#include <Tavrel/PbIndexedMesh2D.h>

class PbQuadrangleMesh2D : public PbIndexedMesh2D {
 public:
  explicit PbQuadrangleMesh2D(int isDataDuplicated);
  PbQuadrangleMesh2D(const PbQuadrangleMesh2D& other);
  PbQuadrangleMesh2D& operator=(const PbQuadrangleMesh2D& other) = default;
  PbQuadrangleMesh2D(int numNodes, const float* x, const float* y, int numQuadrangles, const int* quadrangleNodes,
                     int isDataDuplicated);
  PbQuadrangleMesh2D(int numNodes, const float* x, const float* y, const float* z, int numQuadrangles,
                     const int* quadrangleNodes, int isDataDuplicated);
  using PbIndexedMesh2D::setGeometry;
  void setGeometry(int numNodes, const float* x, const float* y, int numQuadrangles, const int* quadrangleNodes);
  void setGeometry(int numNodes, const float* x, const float* y, const float* z, int numQuadrangles,
                   const int* quadrangleNodes);
};
