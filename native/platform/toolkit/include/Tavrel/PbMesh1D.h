// Base of the one-dimensional meshes: n nodes along x (y = z = 0) and n - 1
// segments. A one-dimensional mesh has no cells in the sense of PbMesh:
// getCell and findContainingCell give null, getVolume and getArea give 0.
#pragma once

#include <Corvel/StandIn.h>

#include <Tavrel/PbMesh.h>

class PbMesh1D : public PbMesh {
 public:
  const PbCell* getCell(int cellIndex) const override;
  const PbCell* findContainingCell(const SbVec3f& point, float tolerance, SbVec3f& pcoord,
                                   const PbCell* adjacentCell) const override;
  const PbCell* findContainingCell(const SbVec3f& point, float tolerance, SbVec3f& pcoord) const override;
  float getVolume() const override;
  float getArea() const override;

 protected:
  explicit PbMesh1D(int isDataDuplicated) : PbMesh(isDataDuplicated) {}
  PbMesh1D(const PbMesh1D&) = default;
  const PbCell* findContainingCellProtected(const SbVec3f& point, float tolerance, SbVec3f& pcoord,
                                            const PbCell* adjacentCell) const override;
  TAVREL_STANDIN_ONLY static int segments(int numNodes) { return numNodes > 1 ? numNodes - 1 : 0; }
};
