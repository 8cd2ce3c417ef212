// Vectors of a 2D mesh's vector data drawn as arrows with bodies.
#pragma once

#include <Tavrel/PoMesh2D.h>
#include <Tavrel/PoMeshVecTypes.h>

class PoMesh2DVec : public PoMesh2D, public PoMeshVecTypes {
  SO_KIT_HEADER(PoMesh2DVec)

 public:
  PoMesh2DVec();

 protected:
  ~PoMesh2DVec() override;
};
