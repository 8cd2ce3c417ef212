// A tetrahedron cell (see PbCell.h).
#pragma once

#include <Tavrel/PbCell.h>

class PbTetrahedronCell : public PbCell {
 public:
  // A cell of the mesh that is not attached to any of its cells.
  explicit PbTetrahedronCell(const PbMesh* mesh);
  PbTetrahedronCell(const PbTetrahedronCell& other);

  // Attached to cell `index` of the mesh (used by the meshes; not journaled).
  PbTetrahedronCell(const PbMesh* mesh, int index, const std::vector<int>& nodes);
};
