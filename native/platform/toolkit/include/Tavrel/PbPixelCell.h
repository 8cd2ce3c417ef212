// A pixel cell (see PbCell.h).
#pragma once

#include <Tavrel/PbCell.h>

class PbPixelCell : public PbCell {
 public:
  // A cell of the mesh that is not attached to any of its cells.
  explicit PbPixelCell(const PbMesh* mesh);
  PbPixelCell(const PbPixelCell& other);

  // Attached to cell `index` of the mesh (used by the meshes; not journaled).
  PbPixelCell(const PbMesh* mesh, int index, const std::vector<int>& nodes);
};
