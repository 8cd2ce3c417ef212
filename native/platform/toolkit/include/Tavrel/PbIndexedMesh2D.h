// An unstructured two-dimensional mesh of triangles and quadrangles.
//
// The geometry is (numNodes, x, y[, z], numCells, cellTypes, cellIndex):
// cellTypes[c] is the number of nodes of cell c (3 for a triangle, 4 for a
// quadrangle; a cell of any other count has no PbCell), and cellIndex lists
// the node indices of every cell, cell after cell. z, when given, is one
// elevation per node.
//
// The mesh keeps its node arrays: getCoordinates and getNodes give x, y
// (numNodes each) and z (null without elevations); setCoordinates replaces
// each non-null array. The element orientation is kept and reported; this
// toolkit does not reorder nodes for it.
#pragma once

#include <Corvel/StandIn.h>

#include <Tavrel/PbIndexedNodes.h>
#include <Tavrel/PbMesh2D.h>

class PbIndexedMesh2D : public PbMesh2D {
 public:
  enum ElemOrientation { ORIENTATION_AS_IS = 0, ORIENTATION_Z_POS = 1, ORIENTATION_Z_NEG = 2 };

  explicit PbIndexedMesh2D(int isDataDuplicated);
  PbIndexedMesh2D(const PbIndexedMesh2D& other);
  PbIndexedMesh2D& operator=(const PbIndexedMesh2D& other) = default;
  PbIndexedMesh2D(int numNodes, const float* x, const float* y, int numCells, const int* cellTypes,
                  const int* cellIndex, int isDataDuplicated);
  PbIndexedMesh2D(int numNodes, const float* x, const float* y, const float* z, int numCells, const int* cellTypes,
                  const int* cellIndex, int isDataDuplicated);

  void setGeometry(int numNodes, const float* x, const float* y, int numCells, const int* cellTypes,
                   const int* cellIndex);
  void setGeometry(int numNodes, const float* x, const float* y, const float* z, int numCells, const int* cellTypes,
                   const int* cellIndex);
  void getNodes(int& numNodes, const float*& x, const float*& y, const float*& z) const;
  void getNodes(int& numNodes, const float*& x, const float*& y) const;
  TAVREL_ASSUMED virtual void setElemOrientation(ElemOrientation orientation);
  TAVREL_STANDIN_ONLY ElemOrientation getElemOrientation() const { return orientation; }

  void setCoordinates(const float* x, const float* y, const float* z) override;
  void getCoordinates(const float*& x, const float*& y, const float*& z, int& nx, int& ny, int& nz) const override;
  TAVREL_STANDIN_ONLY void cellNodes(int cellIndex, std::vector<int>& nodes) const override;

 protected:
  // Constructors without the journal, for subclasses and for this toolkit.
  TAVREL_STANDIN_ONLY struct Quiet {};
  explicit PbIndexedMesh2D(Quiet, int isDataDuplicated) : PbMesh2D(isDataDuplicated) {}
  PbIndexedMesh2D(const PbIndexedMesh2D& other, Quiet)
      : PbMesh2D(other),
        geometry(other.geometry),
        orientation(other.orientation) {}
  friend class PbMesh2D;
  TAVREL_STANDIN_ONLY SbVec3f nodeCoord(int nodeIndex) const override;
  // Replaces the geometry; cellTypes may be null when every cell has `fixed` nodes.
  TAVREL_STANDIN_ONLY void assign(int numNodes, const float* x, const float* y, const float* z, int numCells, const int* cellTypes,
              int fixed, const int* cellIndex);

 private:
  PbIndexedNodes geometry;
  ElemOrientation orientation = ORIENTATION_AS_IS;
};
