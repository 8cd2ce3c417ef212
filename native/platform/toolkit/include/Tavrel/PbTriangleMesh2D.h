// A two-dimensional mesh of triangles: triangleNodes lists 3 node indices per
// triangle. setGeometry without triangles triangulates the nodes as a fan
// around node 0, in the order given (right for a convex polygon given in
// order): numNodes - 2 triangles (none for fewer than 3 nodes).
#pragma once

#include <Tavrel/PbIndexedMesh2D.h>

class PbTriangleMesh2D : public PbIndexedMesh2D {
 public:
  explicit PbTriangleMesh2D(int isDataDuplicated);
  PbTriangleMesh2D(const PbTriangleMesh2D& other);
  PbTriangleMesh2D& operator=(const PbTriangleMesh2D& other) = default;
  PbTriangleMesh2D(int numNodes, const float* x, const float* y, int numTriangles, const int* triangleNodes,
                   int isDataDuplicated);
  PbTriangleMesh2D(int numNodes, const float* x, const float* y, const float* z, int numTriangles,
                   const int* triangleNodes, int isDataDuplicated);
  using PbIndexedMesh2D::setGeometry;
  void setGeometry(int numNodes, const float* x, const float* y, int numTriangles, const int* triangleNodes);
  void setGeometry(int numNodes, const float* x, const float* y);
  void setGeometry(int numNodes, const float* x, const float* y, const float* z, int numTriangles,
                   const int* triangleNodes);
};
