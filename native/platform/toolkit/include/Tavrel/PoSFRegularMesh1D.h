// A single-value field holding a PbRegularMesh1D (see PoSFMesh.h); setGeometry
// calls the held mesh's setGeometry with the same arguments.
#pragma once

#include <Tavrel/PbRegularMesh1D.h>
#include <Tavrel/PoSFMesh.h>

class PoSFRegularMesh1D : public PoSFMesh {
  PO_SF_MESH_HEADER(PoSFRegularMesh1D, PbRegularMesh1D)

  void setGeometry(int numNodes, float xmin, float xmax);
};
