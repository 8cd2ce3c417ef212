// Vectors of a 3D mesh's vector data drawn as arrows with bodies.
#pragma once

#include <Tavrel/PoMesh3D.h>
#include <Tavrel/PoMeshVecTypes.h>

class PoMesh3DVec : public PoMesh3D, public PoMeshVecTypes {
  SO_KIT_HEADER(PoMesh3DVec)

 public:
  PoMesh3DVec();

 protected:
  ~PoMesh3DVec() override;
};
