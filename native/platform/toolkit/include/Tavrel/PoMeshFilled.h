// The cells of a 2D mesh filled with the colours of their values.
#pragma once

#include <Tavrel/PoMesh2D.h>

class PoMeshFilled : public PoMesh2D {
  SO_KIT_HEADER(PoMeshFilled)

 public:
  PoMeshFilled();

 protected:
  ~PoMeshFilled() override;
};
