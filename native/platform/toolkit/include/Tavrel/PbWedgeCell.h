// A wedge cell (see PbCell.h).
#pragma once

#include <Tavrel/PbCell.h>

class PbWedgeCell : public PbCell {
 public:
  // A cell of the mesh that is not attached to any of its cells.
  explicit PbWedgeCell(const PbMesh* mesh);
  PbWedgeCell(const PbWedgeCell& other);
  // Derivatives of the shape functions at pcoord (see PbCell.h for the layout).
  void getDerivs(const SbVec3f& pcoord, float* derivs) const;

  // Attached to cell `index` of the mesh (used by the meshes; not journaled).
  PbWedgeCell(const PbMesh* mesh, int index, const std::vector<int>& nodes);
};
