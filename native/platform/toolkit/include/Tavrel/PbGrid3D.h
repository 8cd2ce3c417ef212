// Base of the three-dimensional structured grids: numX x numY x numZ nodes;
// node (i, j, k) has the index (i * numY + j) * numZ + k, and cells number
// likewise with each count reduced by 1. Cell (i, j, k) has the nodes of the
// face k: (i, j), (i+1, j), (i+1, j+1), (i, j+1), then the same at k + 1.
//
// setGeometry is virtual: each grid reads x, y and z as it keeps them.
#pragma once

#include <Corvel/StandIn.h>

#include <Tavrel/PbMesh3D.h>

class PbGrid3D : public PbMesh3D {
 public:
  virtual void setGeometry(int numX, int numY, int numZ, const float* x, const float* y, const float* z) = 0;
  virtual SbVec3f getNodeCoord(int i, int j, int k) const;
  using PbMesh::getNodeCoord;
  TAVREL_ASSUMED void getDim(int& numX, int& numY, int& numZ) const;

  TAVREL_STANDIN_ONLY void cellNodes(int cellIndex, std::vector<int>& nodes) const override;

 protected:
  explicit PbGrid3D(int isDataDuplicated) : PbMesh3D(isDataDuplicated) {}
  PbGrid3D(const PbGrid3D&) = default;
  TAVREL_STANDIN_ONLY SbVec3f nodeCoord(int nodeIndex) const override;
  TAVREL_STANDIN_ONLY virtual SbVec3f nodeXYZ(int i, int j, int k) const = 0;
  TAVREL_STANDIN_ONLY void assignGrid(int numX, int numY, int numZ);
  TAVREL_STANDIN_ONLY void gridChanged();
  TAVREL_STANDIN_ONLY long nodeCount() const { return static_cast<long>(numX) * numY * numZ; }

  TAVREL_STANDIN_ONLY int numX = 0;
  TAVREL_STANDIN_ONLY int numY = 0;
  TAVREL_STANDIN_ONLY int numZ = 0;
};
