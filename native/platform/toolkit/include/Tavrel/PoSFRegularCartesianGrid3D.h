// A single-value field holding a PbRegularCartesianGrid3D (see PoSFMesh.h); setGeometry
// calls the held mesh's setGeometry with the same arguments.
#pragma once

#include <Tavrel/PbRegularCartesianGrid3D.h>
#include <Tavrel/PoSFMesh.h>

class PoSFRegularCartesianGrid3D : public PoSFMesh {
  PO_SF_MESH_HEADER(PoSFRegularCartesianGrid3D, PbRegularCartesianGrid3D)

  void setGeometry(int numX, int numY, int numZ, float xmin, float ymin, float zmin, float xmax, float ymax,
                   float zmax);
};
