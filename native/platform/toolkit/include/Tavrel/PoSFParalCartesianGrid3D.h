// A single-value field holding a PbParalCartesianGrid3D (see PoSFMesh.h); setGeometry
// calls the held mesh's setGeometry with the same arguments.
#pragma once

#include <Tavrel/PbParalCartesianGrid3D.h>
#include <Tavrel/PoSFMesh.h>

class PoSFParalCartesianGrid3D : public PoSFMesh {
  PO_SF_MESH_HEADER(PoSFParalCartesianGrid3D, PbParalCartesianGrid3D)

  void setGeometry(int numX, int numY, int numZ, const float* x, const float* y, const float* z);
};
