// Vectors of a 3D mesh on a regular grid laid over a cross section.
#pragma once

#include <Tavrel/PoMesh3D.h>

class PoMesh3DVecGridCrossSection : public PoMesh3D {
  SO_KIT_HEADER(PoMesh3DVecGridCrossSection)

 public:
  PoMesh3DVecGridCrossSection();

 protected:
  ~PoMesh3DVecGridCrossSection() override;
};
