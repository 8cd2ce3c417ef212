// A single-value field holding a PbCartesianGrid3D (see PoSFMesh.h); setGeometry
// calls the held mesh's setGeometry with the same arguments.
#pragma once

#include <Tavrel/PbCartesianGrid3D.h>
#include <Tavrel/PoSFMesh.h>

class PoSFCartesianGrid3D : public PoSFMesh {
  PO_SF_MESH_HEADER(PoSFCartesianGrid3D, PbCartesianGrid3D)

  void setGeometry(int numX, int numY, int numZ, const float* x, const float* y, const float* z);
};
