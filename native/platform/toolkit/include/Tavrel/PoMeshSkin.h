// The outer faces of a 3D mesh.
#pragma once

#include <Tavrel/PoMesh3D.h>

class PoMeshSkin : public PoMesh3D {
  SO_KIT_HEADER(PoMeshSkin)

 public:
  PoMeshSkin();

 protected:
  ~PoMeshSkin() override;
};
