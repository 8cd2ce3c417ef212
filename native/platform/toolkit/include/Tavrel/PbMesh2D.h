// Base of the two-dimensional meshes. Their nodes lie in the xy plane, with
// an optional z per node (an elevation; 0 without one).
//
//  - addVecsSet with SbVec2f vectors stores them as a vecs set of SbVec3f with
//    z = 0 (one per node; null data as for SbVec3f sets).
//  - get2DBoundingBox is the box of the nodes' x and y.
//  - getFaultMesh builds a new PbIndexedMesh2D with the same nodes (z
//    included) and cells as this mesh, and copies every per-node values set
//    into it, asking the functor about each value (i = set index, j = node
//    index) and putting getUndef(set) in place of undefined ones. The fault
//    line (count, nodes, vectors) and the extrapolation method are not used
//    further by this toolkit. The new mesh belongs to the caller.
#pragma once

#include <Corvel/StandIn.h>

#include <Tavrel/PbMesh.h>

class PbDefinedValue;

class PbMesh2D : public PbMesh {
 public:
  enum ExtrapolationMethod { USE_ADJACENT_DERIVS = 0, USE_ADJACENT_VALUES = 1 };

  using PbMesh::addVecsSet;
  void addVecsSet(int set, const SbVec2f* vectors, const SbString& name);
  TAVREL_ASSUMED virtual SbBox2f get2DBoundingBox() const;
  PbMesh2D* getFaultMesh(int numFaultNodes, const int* faultNodes, const SbVec3f* faultVectors,
                         ExtrapolationMethod method, PbDefinedValue& definedValue) const;

 protected:
  explicit PbMesh2D(int isDataDuplicated) : PbMesh(isDataDuplicated) {}
  PbMesh2D(const PbMesh2D&) = default;
  TAVREL_STANDIN_ONLY PbCell* newCell(int cellIndex) const override;
  TAVREL_STANDIN_ONLY int searchDimensions() const override { return 2; }
};
