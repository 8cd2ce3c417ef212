// The node indices of one cell of a mesh, written beside its nodes.
#pragma once

#include <Tavrel/PoMesh.h>

class PoCellIndices : public PoMesh {
  SO_KIT_HEADER(PoCellIndices)

 public:
  PoCellIndices();

 protected:
  ~PoCellIndices() override;
};
