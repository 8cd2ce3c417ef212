// A plane section through a 3D mesh.
//
// The cross-section method is a plain member with inline accessors: setting it
// calls no library function and notifies nothing.
#pragma once

#include <Corvel/StandIn.h>

#include <Tavrel/PoMesh3D.h>

class PoMeshCrossSection : public PoMesh3D {
  SO_KIT_HEADER(PoMeshCrossSection)

 public:
  enum CrossSectionMethods : int { DEFAULT = 0, ISOSURFACE = 1, INTERSECTION = 2 };

  PoMeshCrossSection();

  void setCrossSectionMethod(CrossSectionMethods method) { crossSectionMethod = method; }
  TAVREL_STANDIN_ONLY CrossSectionMethods getCrossSectionMethod() const { return crossSectionMethod; }

 protected:
  ~PoMeshCrossSection() override;

 private:
  CrossSectionMethods crossSectionMethod = DEFAULT;
};
