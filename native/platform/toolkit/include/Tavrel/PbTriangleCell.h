// A triangle cell (see PbCell.h).
#pragma once

#include <Tavrel/PbCell.h>

class PbTriangleCell : public PbCell {
 public:
  // A cell of the mesh that is not attached to any of its cells.
  explicit PbTriangleCell(const PbMesh* mesh);
  PbTriangleCell(const PbTriangleCell& other);

  // Attached to cell `index` of the mesh (used by the meshes; not journaled).
  PbTriangleCell(const PbMesh* mesh, int index, const std::vector<int>& nodes);
};
