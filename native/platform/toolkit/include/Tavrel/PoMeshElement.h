// The current mesh of a traversal: a 1D, 2D or 3D mesh kept by address, null
// by default. A mesh node sets it to the mesh it holds when traversed
// (PoMeshProperty.h); the representations traversed afterwards that have no
// mesh of their own draw it (PoMesh.h). See PoElementSubClass.h.
//
// getMesh gives the mesh whatever its dimension; getMesh1D, getMesh2D and
// getMesh3D give it only when it was set as a mesh of that dimension (null
// otherwise). Unlike the other elements, this class has a commonInit of its
// own: it forgets the mesh as well as the node.
#pragma once

#include <Corvel/StandIn.h>

#include <Tavrel/PoElementSubClass.h>

class PbMesh;
class PbMesh1D;
class PbMesh2D;
class PbMesh3D;

class PoMeshElement : public SoReplacedElement {
  PO_ELEMENT_HEADER(PoMeshElement)
 public:
  static void set(SoState* state, SoNode* node, const PbMesh1D* mesh);
  static void set(SoState* state, SoNode* node, const PbMesh2D* mesh);
  static void set(SoState* state, SoNode* node, const PbMesh3D* mesh);
  static const PbMesh* getMesh(SoState* state);
  static const PbMesh1D* getMesh1D(SoState* state);
  static const PbMesh2D* getMesh2D(SoState* state);
  static const PbMesh3D* getMesh3D(SoState* state);

  void commonInit() override;

  // --- Used inside this toolkit (not journaled) ---
  // Sets a mesh of any dimension (the dimension is found from its class).
  static void setValue(SoState* state, SoNode* node, const PbMesh* mesh);
  TAVREL_STANDIN_ONLY static const PbMesh* current(SoState* state);

 private:
  const PbMesh* mesh = nullptr;
  const PbMesh1D* mesh1D = nullptr;
  const PbMesh2D* mesh2D = nullptr;
  const PbMesh3D* mesh3D = nullptr;
};
