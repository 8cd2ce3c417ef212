// Vectors of a 3D mesh on a cross section, projected as chosen.
#pragma once

#include <Tavrel/PoMesh3D.h>

class PoMesh3DVecCrossSection : public PoMesh3D {
  SO_KIT_HEADER(PoMesh3DVecCrossSection)

 public:
  enum ProjectionTypes : int { NOPROJECTION = 0, PROJECTIONONPLANE = 1, PROJECTIONONNORMAL = 2 };

  PoMesh3DVecCrossSection();

 protected:
  ~PoMesh3DVecCrossSection() override;
};
