// A voxel cell (see PbCell.h).
#pragma once

#include <Tavrel/PbCell.h>

class PbVoxelCell : public PbCell {
 public:
  // A cell of the mesh that is not attached to any of its cells.
  explicit PbVoxelCell(const PbMesh* mesh);
  PbVoxelCell(const PbVoxelCell& other);

  // Attached to cell `index` of the mesh (used by the meshes; not journaled).
  PbVoxelCell(const PbMesh* mesh, int index, const std::vector<int>& nodes);
};
