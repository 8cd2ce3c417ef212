// The edges of the cells of a 2D mesh.
#pragma once

#include <Tavrel/PoMesh2D.h>

class PoMeshLines : public PoMesh2D {
  SO_KIT_HEADER(PoMeshLines)

 public:
  PoMeshLines();

 protected:
  ~PoMeshLines() override;
};
