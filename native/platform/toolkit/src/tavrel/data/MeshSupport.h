// Helpers shared by the mesh classes of this toolkit.
#pragma once

#include <Tavrel/PbCell.h>
#include <Tavrel/PbMesh.h>

#include <vector>

namespace tk {
// Copies count values (zeros for a null source).
inline void copyInto(std::vector<float>& target, const float* source, long count) {
  if (count < 0) count = 0;
  if (source == nullptr)
    target.assign(count, 0.0f);
  else
    target.assign(source, source + count);
}

// A cell of the kind over the mesh's nodes of that cell (null for none).
inline PbCell* gridCell(const PbMesh* mesh, PbCell::Kind kind, int cellIndex) {
  std::vector<int> nodes;
  mesh->cellNodes(cellIndex, nodes);
  return nodes.empty() ? nullptr : PbCell::make(kind, mesh, cellIndex, nodes);
}
}  // namespace tk
