// Base of the representations of a two-dimensional mesh.
//
// setMesh(PbMesh2D*) hides PoMesh::setMesh: the stand-in keeps the 2D mesh in
// a member of its own, so the 2D
// getter returns what the 2D setter stored and PoMesh's getter what PoMesh's
// setter stored.
#pragma once

#include <Corvel/StandIn.h>

#include <Tavrel/PoMesh.h>

class PbMesh2D;

class PoMesh2D : public PoMesh {
  SO_KIT_HEADER(PoMesh2D)

 public:
  void setMesh(PbMesh2D* mesh);
  PbMesh2D* getMesh() const;

 protected:
  PoMesh2D();
  ~PoMesh2D() override;
  TAVREL_STANDIN_ONLY const PbMesh* drawnMesh() const override;

 private:
  PbMesh2D* mesh2D = nullptr;
};
