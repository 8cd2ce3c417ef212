// Base of the three-dimensional meshes.
#pragma once

#include <Corvel/StandIn.h>

#include <Tavrel/PbMesh.h>

class PbMesh3D : public PbMesh {
 protected:
  explicit PbMesh3D(int isDataDuplicated) : PbMesh(isDataDuplicated) {}
  PbMesh3D(const PbMesh3D&) = default;
  TAVREL_STANDIN_ONLY PbCell* newCell(int cellIndex) const override;
};
