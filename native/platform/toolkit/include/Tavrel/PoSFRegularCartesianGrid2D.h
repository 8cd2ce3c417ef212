// A single-value field holding a PbRegularCartesianGrid2D (see PoSFMesh.h); setGeometry
// calls the held mesh's setGeometry with the same arguments.
#pragma once

#include <Tavrel/PbRegularCartesianGrid2D.h>
#include <Tavrel/PoSFMesh.h>

class PoSFRegularCartesianGrid2D : public PoSFMesh {
  PO_SF_MESH_HEADER(PoSFRegularCartesianGrid2D, PbRegularCartesianGrid2D)

  void setGeometry(int numX, int numY, float xmin, float ymin, float xmax, float ymax, const float* z);
};
