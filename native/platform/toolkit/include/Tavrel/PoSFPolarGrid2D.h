// A single-value field holding a PbPolarGrid2D (see PoSFMesh.h); setGeometry
// calls the held mesh's setGeometry with the same arguments.
#pragma once

#include <Tavrel/PbPolarGrid2D.h>
#include <Tavrel/PoSFMesh.h>

class PoSFPolarGrid2D : public PoSFMesh {
  PO_SF_MESH_HEADER(PoSFPolarGrid2D, PbPolarGrid2D)

  void setGeometry(int numX, int numY, const float* x, const float* y, const float* z);
};
