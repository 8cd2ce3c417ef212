// The contour lines of a 3D mesh's values on a cross section.
#pragma once

#include <Tavrel/PoMesh3D.h>

class PoMeshCrossContour : public PoMesh3D {
  SO_KIT_HEADER(PoMeshCrossContour)

 public:
  PoMeshCrossContour();

 protected:
  ~PoMeshCrossContour() override;
};
