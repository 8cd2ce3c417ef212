// The outline of a 2D mesh.
#pragma once

#include <Tavrel/PoMesh2D.h>

class PoMeshLimit : public PoMesh2D {
  SO_KIT_HEADER(PoMeshLimit)

 public:
  PoMeshLimit();

 protected:
  ~PoMeshLimit() override;
};
