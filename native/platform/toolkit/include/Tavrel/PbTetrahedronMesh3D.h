// A three-dimensional mesh of tetrahedra: tetrahedronNodes lists 4 node
// indices per tetrahedron.
#pragma once

#include <Tavrel/PbIndexedMesh3D.h>

class PbTetrahedronMesh3D : public PbIndexedMesh3D {
 public:
  explicit PbTetrahedronMesh3D(int isDataDuplicated);
  PbTetrahedronMesh3D(const PbTetrahedronMesh3D& other);
  PbTetrahedronMesh3D& operator=(const PbTetrahedronMesh3D& other) = default;
  PbTetrahedronMesh3D(int numNodes, const float* x, const float* y, const float* z, int numTetrahedra,
                      const int* tetrahedronNodes, int isDataDuplicated);
  using PbIndexedMesh3D::setGeometry;
  virtual void setGeometry(int numNodes, const float* x, const float* y, const float* z, int numTetrahedra,
                           const int* tetrahedronNodes);
};
