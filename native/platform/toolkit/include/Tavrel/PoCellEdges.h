// The edges of one cell of a mesh.
#pragma once

#include <Tavrel/PoMesh.h>

class PoCellEdges : public PoMesh {
  SO_KIT_HEADER(PoCellEdges)

 public:
  PoCellEdges();

 protected:
  ~PoCellEdges() override;
};
