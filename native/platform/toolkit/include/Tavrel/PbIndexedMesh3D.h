// An unstructured three-dimensional mesh of tetrahedra, pyramids, wedges and
// hexahedra.
//
// The geometry is (numNodes, x, y, z, numCells, cellTypes, cellIndex):
// cellTypes[c] is the number of nodes of cell c (4 tetrahedron, 5 pyramid,
// 6 wedge, 8 hexahedron; a cell of any other count has no PbCell), and
// cellIndex lists the node indices of every cell, cell after cell.
//
// The mesh keeps its node arrays: getCoordinates and getNodes give x, y and z
// (numNodes each); setCoordinates replaces each non-null array.
#pragma once

#include <Corvel/StandIn.h>

#include <Tavrel/PbIndexedNodes.h>
#include <Tavrel/PbMesh3D.h>

class PbIndexedMesh3D : public PbMesh3D {
 public:
  explicit PbIndexedMesh3D(int isDataDuplicated);
  PbIndexedMesh3D(const PbIndexedMesh3D& other);
  PbIndexedMesh3D& operator=(const PbIndexedMesh3D& other) = default;
  PbIndexedMesh3D(int numNodes, const float* x, const float* y, const float* z, int numCells, const int* cellTypes,
                  const int* cellIndex, int isDataDuplicated);

  void setGeometry(int numNodes, const float* x, const float* y, const float* z, int numCells, const int* cellTypes,
                   const int* cellIndex);
  void getNodes(int& numNodes, const float*& x, const float*& y, const float*& z) const;

  void setCoordinates(const float* x, const float* y, const float* z) override;
  void getCoordinates(const float*& x, const float*& y, const float*& z, int& nx, int& ny, int& nz) const override;
  TAVREL_STANDIN_ONLY void cellNodes(int cellIndex, std::vector<int>& nodes) const override;

 protected:
  // Constructors without the journal, for subclasses.
  TAVREL_STANDIN_ONLY struct Quiet {};
  explicit PbIndexedMesh3D(Quiet, int isDataDuplicated) : PbMesh3D(isDataDuplicated) {}
  PbIndexedMesh3D(const PbIndexedMesh3D& other, Quiet)
      : PbMesh3D(other), geometry(other.geometry) {}
  TAVREL_STANDIN_ONLY SbVec3f nodeCoord(int nodeIndex) const override;
  TAVREL_STANDIN_ONLY void assign(int numNodes, const float* x, const float* y, const float* z, int numCells, const int* cellTypes,
              int fixed, const int* cellIndex);

 private:
  PbIndexedNodes geometry;
};
