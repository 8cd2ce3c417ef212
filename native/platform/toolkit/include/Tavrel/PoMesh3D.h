// Base of the representations of a three-dimensional mesh.
//
// setMesh(PbMesh3D*) hides PoMesh::setMesh; as for PoMesh2D, the stand-in
// keeps the 3D mesh in a member of its own.
#pragma once

#include <Corvel/StandIn.h>

#include <Tavrel/PoMesh.h>

class PbMesh3D;

class PoMesh3D : public PoMesh {
  SO_KIT_HEADER(PoMesh3D)

 public:
  void setMesh(PbMesh3D* mesh);
  PbMesh3D* getMesh() const;

 protected:
  PoMesh3D();
  ~PoMesh3D() override;
  TAVREL_STANDIN_ONLY const PbMesh* drawnMesh() const override;

 private:
  PbMesh3D* mesh3D = nullptr;
};
