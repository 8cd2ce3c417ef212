// The shape of one cell of a mesh.
#pragma once

#include <Tavrel/PoMesh.h>

class PoCellShape : public PoMesh {
  SO_KIT_HEADER(PoCellShape)

 public:
  PoCellShape();

 protected:
  ~PoCellShape() override;
};
