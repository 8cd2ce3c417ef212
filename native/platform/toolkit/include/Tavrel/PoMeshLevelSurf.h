// The surface of a 3D mesh where its values equal a level.
#pragma once

#include <Tavrel/PoMesh3D.h>

class PoMeshLevelSurf : public PoMesh3D {
  SO_KIT_HEADER(PoMeshLevelSurf)

 public:
  enum SurfOrientations : int { ORIENTEDTOMIN = 0, ORIENTEDTOMAX = 1 };

  PoMeshLevelSurf();

 protected:
  ~PoMeshLevelSurf() override;
};
