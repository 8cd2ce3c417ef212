// A single-value field holding a PbParalCartesianGrid2D (see PoSFMesh.h); setGeometry
// calls the held mesh's setGeometry with the same arguments.
#pragma once

#include <Tavrel/PbParalCartesianGrid2D.h>
#include <Tavrel/PoSFMesh.h>

class PoSFParalCartesianGrid2D : public PoSFMesh {
  PO_SF_MESH_HEADER(PoSFParalCartesianGrid2D, PbParalCartesianGrid2D)

  void setGeometry(int numX, int numY, const float* x, const float* y, const float* z);
};
