// A single-value field holding a PbIrregularMesh1D (see PoSFMesh.h); setGeometry
// calls the held mesh's setGeometry with the same arguments.
#pragma once

#include <Tavrel/PbIrregularMesh1D.h>
#include <Tavrel/PoSFMesh.h>

class PoSFIrregularMesh1D : public PoSFMesh {
  PO_SF_MESH_HEADER(PoSFIrregularMesh1D, PbIrregularMesh1D)

  void setGeometry(int numNodes, const float* x);
};
