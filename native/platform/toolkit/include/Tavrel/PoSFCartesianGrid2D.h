// A single-value field holding a PbCartesianGrid2D (see PoSFMesh.h); setGeometry
// calls the held mesh's setGeometry with the same arguments.
#pragma once

#include <Tavrel/PbCartesianGrid2D.h>
#include <Tavrel/PoSFMesh.h>

class PoSFCartesianGrid2D : public PoSFMesh {
  PO_SF_MESH_HEADER(PoSFCartesianGrid2D, PbCartesianGrid2D)

  void setGeometry(int numX, int numY, const float* x, const float* y, const float* z);
};
