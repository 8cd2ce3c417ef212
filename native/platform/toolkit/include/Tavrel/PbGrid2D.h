// Base of the two-dimensional structured grids: numX x numY nodes; node
// (i, j) has the index i * numY + j, cell (i, j) the index i * (numY - 1) + j.
// Cell (i, j) has the nodes (i, j), (i+1, j), (i+1, j+1), (i, j+1).
//
// setGeometry(numX, numY, x, y[, z]) is virtual: each grid reads x and y as
// it keeps them (see each class); z, when given, is one elevation per node.
#pragma once

#include <Corvel/StandIn.h>

#include <Tavrel/PbMesh2D.h>

class PbGrid2D : public PbMesh2D {
 public:
  virtual void setGeometry(int numX, int numY, const float* x, const float* y) = 0;
  virtual void setGeometry(int numX, int numY, const float* x, const float* y, const float* z) = 0;
  virtual SbVec3f getNodeCoord(int i, int j) const;
  using PbMesh::getNodeCoord;
  TAVREL_ASSUMED void getDim(int& numX, int& numY) const;

  TAVREL_STANDIN_ONLY void cellNodes(int cellIndex, std::vector<int>& nodes) const override;

 protected:
  explicit PbGrid2D(int isDataDuplicated) : PbMesh2D(isDataDuplicated) {}
  PbGrid2D(const PbGrid2D&) = default;
  TAVREL_STANDIN_ONLY SbVec3f nodeCoord(int nodeIndex) const override;
  TAVREL_STANDIN_ONLY virtual SbVec2f nodeXY(int i, int j) const = 0;
  // Sets the counts and the elevations (z may be null, for none).
  TAVREL_STANDIN_ONLY void assignGrid(int numX, int numY, const float* z);
  // The geometry is in place: counts, bounding box, cells.
  TAVREL_STANDIN_ONLY void gridChanged();
  // Elevations, when the grid has them.
  TAVREL_STANDIN_ONLY const float* elevations() const { return zs.empty() ? nullptr : zs.data(); }
  TAVREL_STANDIN_ONLY void setElevations(const float* z);
  TAVREL_STANDIN_ONLY long nodeCount() const { return static_cast<long>(numX) * numY; }

  TAVREL_STANDIN_ONLY int numX = 0;
  TAVREL_STANDIN_ONLY int numY = 0;
  TAVREL_STANDIN_ONLY std::vector<float> zs;
};
