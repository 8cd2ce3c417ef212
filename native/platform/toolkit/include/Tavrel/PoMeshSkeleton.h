// Lines of a 3D mesh along its three index directions.
#pragma once

#include <Tavrel/PoMesh3D.h>

class PoMeshSkeleton : public PoMesh3D {
  SO_KIT_HEADER(PoMeshSkeleton)

 public:
  PoMeshSkeleton();

 protected:
  ~PoMeshSkeleton() override;
};
