// A cell of a mesh: triangle, quadrangle, pixel, tetrahedron, pyramid, wedge,
// hexahedron or voxel. The subclasses only fix the shape; PbCell does the work.
//
// Behaviour of this toolkit (what a caller may rely on):
//  - A cell returned by a mesh (getCell, findContainingCell) belongs to the
//    mesh and stays valid until the mesh's geometry changes or the mesh dies.
//    It knows its index in the mesh, its node indices and node coordinates.
//  - A cell made by a constructor from a mesh alone is not attached to any
//    cell of that mesh: its index is -1 and it has no nodes. Its measures are
//    0, its bounding box is empty, getBounds leaves its outputs untouched,
//    locatePoint finds nothing (0) and interpolation gives 0. The copy
//    constructor copies everything, nodes included.
//  - Node order and parametric coordinates (u, v, w), every one in [0, 1]:
//      triangle    (0,0) (1,0) (0,1)                       u, v >= 0, u + v <= 1
//      quadrangle, pixel  (0,0) (1,0) (1,1) (0,1)          bilinear
//      tetrahedron (0,0,0) (1,0,0) (0,1,0) (0,0,1)         u + v + w <= 1
//      pyramid     base quadrangle at w = 0, apex at w = 1
//      wedge       triangle (0,1,2) at w = 0, (3,4,5) at w = 1
//      hexahedron, voxel  quadrangle (0..3) at w = 0, (4..7) at w = 1
//    Two-dimensional cells work in the xy plane: the z of their nodes is
//    ignored by locatePoint, and w is always 0 for them.
//  - Facets of a two-dimensional cell are its edges (triangle 3, quadrangle 4);
//    tetrahedron 4, pyramid 5, wedge 5, hexahedron 6.
//  - getArea is the area of a two-dimensional cell (0 for three-dimensional
//    ones); getVolume is the volume of a three-dimensional cell (0 for
//    two-dimensional ones). Both split the cell into triangles or tetrahedra.
//  - getBounds(xmin, ymin, zmin, xmax, ymax, zmax) gives the bounding box's
//    corners in that parameter order; getCenter is the mean of the nodes.
//  - locatePoint finds the parametric coordinates of a point by Newton
//    iteration and returns 1 when the point lies in the cell, 0 otherwise
//    (pcoord then holds the last estimate). The tolerance widens the cell in
//    parametric units: 0.01 accepts points up to 1% of the cell outside it.
//  - getValue interpolates a per-node data set of the whole mesh: values and
//    vectors are indexed by the cell's node indices (the mesh's node
//    numbering). A null array gives 0 (or the null vector).
//  - getDerivs (quadrangle, pyramid, wedge, hexahedron) writes 3 x N floats for
//    a cell type of N nodes: N derivatives of the shape functions by u, then N
//    by v, then N by w.
#pragma once

#include <Corvel/StandIn.h>

#include <Corvel/SbBox.h>
#include <Corvel/SbVec.h>

#include <vector>

class PbMesh;

class PbCell {
 public:
  virtual ~PbCell();

  int getNumFacets() const;
  int getNumEdges() const;
  int getNumNodes() const;
  int getIndex() const;
  int getNodeIndex(int i) const;
  SbVec3f getNodeCoord(int i) const;

  virtual float getLongestEdgeLength() const;
  virtual float getVolume() const;
  virtual float getArea() const;
  virtual SbBox3f getBoundingBox() const;
  virtual void getBounds(float& xmin, float& ymin, float& zmin, float& xmax, float& ymax, float& zmax) const;
  virtual SbVec3f getCenter() const;
  virtual int locatePoint(const SbVec3f& point, float tolerance, SbVec3f& pcoord) const;
  virtual float getValue(const SbVec3f& pcoord, const float* values) const;
  virtual SbVec3f getValue(const SbVec3f& pcoord, const SbVec3f* vectors) const;
  float getValue(const float* pcoord, const float* values) const;
  SbVec3f getValue(const float* pcoord, const SbVec3f* vectors) const;

  // The mesh the cell belongs to (the one given to the constructor).
  const PbMesh* getMesh() const { return mesh; }

  // --- Used by the meshes of this toolkit (not journaled) ---
  enum class Kind { Triangle, Quadrangle, Pixel, Tetrahedron, Pyramid, Wedge, Hexahedron, Voxel };
  // The kind of cell with that many nodes, for a mesh of dimension 2 or 3;
  // false when there is none.
  TAVREL_STANDIN_ONLY static bool kindOf(int dimension, int numNodes, Kind& kind);
  // A new cell of the kind, attached to cell `index` of the mesh.
  TAVREL_STANDIN_ONLY static PbCell* make(Kind kind, const PbMesh* mesh, int index, const std::vector<int>& nodes);
  // Parametric coordinates without the journal; see locatePoint.
  TAVREL_STANDIN_ONLY int locate(const SbVec3f& point, float tolerance, SbVec3f& pcoord) const;
  TAVREL_STANDIN_ONLY float volume() const;
  TAVREL_STANDIN_ONLY float area() const;
  SbBox3f box() const;

  TAVREL_STANDIN_ONLY struct Shape;

 protected:
  PbCell(const Shape& shape, const PbMesh* mesh);
  PbCell(const PbCell& other) = default;
  TAVREL_STANDIN_ONLY void attach(int index, const std::vector<int>& nodes);
  // Shape-function derivatives into derivs (3 x N floats).
  TAVREL_STANDIN_ONLY void derivatives(const SbVec3f& pcoord, float* derivs) const;

 private:
  // Number of per-node values the cell reads (its largest node index + 1).
  long valueSpan() const;
  float interpolate(const SbVec3f& pcoord, const float* values) const;
  SbVec3f interpolate(const SbVec3f& pcoord, const SbVec3f* vectors) const;

  const Shape* shape;
  const PbMesh* mesh;
  int index = -1;
  std::vector<int> nodeIndices;
  std::vector<SbVec3f> nodeCoords;
};
