// A mesh node holding a PbRegularCartesianGrid3D in its field "mesh" (see PoMeshProperty.h).
#pragma once

#include <Tavrel/PoMeshProperty.h>
#include <Tavrel/PoSFRegularCartesianGrid3D.h>

class PoRegularCartesianGrid3D : public PoMeshProperty {
  PO_MESH_NODE_HEADER(PoRegularCartesianGrid3D, PoSFRegularCartesianGrid3D)
};
