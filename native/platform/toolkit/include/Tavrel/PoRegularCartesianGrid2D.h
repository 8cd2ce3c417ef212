// A mesh node holding a PbRegularCartesianGrid2D in its field "mesh" (see PoMeshProperty.h).
#pragma once

#include <Tavrel/PoMeshProperty.h>
#include <Tavrel/PoSFRegularCartesianGrid2D.h>

class PoRegularCartesianGrid2D : public PoMeshProperty {
  PO_MESH_NODE_HEADER(PoRegularCartesianGrid2D, PoSFRegularCartesianGrid2D)
};
