// The facets of one cell of a mesh.
#pragma once

#include <Tavrel/PoMesh.h>

class PoCellFacets : public PoMesh {
  SO_KIT_HEADER(PoCellFacets)

 public:
  PoCellFacets();

 protected:
  ~PoCellFacets() override;
};
