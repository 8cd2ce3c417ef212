// A three-dimensional mesh of hexahedra: hexahedronNodes lists 8 node indices
// per hexahedron (the bottom face, then the top face, in the same turn).
#pragma once

#include <Tavrel/PbIndexedMesh3D.h>

class PbHexahedronMesh3D : public PbIndexedMesh3D {
 public:
  explicit PbHexahedronMesh3D(int isDataDuplicated);
  PbHexahedronMesh3D(const PbHexahedronMesh3D& other);
  PbHexahedronMesh3D& operator=(const PbHexahedronMesh3D& other) = default;
  PbHexahedronMesh3D(int numNodes, const float* x, const float* y, const float* z, int numHexahedra,
                     const int* hexahedronNodes, int isDataDuplicated);
  using PbIndexedMesh3D::setGeometry;
  void setGeometry(int numNodes, const float* x, const float* y, const float* z, int numHexahedra,
                   const int* hexahedronNodes);
};
