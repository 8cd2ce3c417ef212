// Base of the mesh nodes: property nodes that hold a mesh in a mesh field
// (their member "mesh", see PoSFMesh.h) and attach data sets to it.
//
// Behaviour of this toolkit (what a caller may rely on):
//  - When an action traverses a mesh node (any action operation of PoNode,
//    and doAction), the node makes its mesh (evaluated first, see SoField.h)
//    the current mesh of the action's state (PoMeshElement), so that the
//    representations traversed after it that have no mesh of their own draw
//    it (PoMesh.h). Outside apply an action has no state: nothing is set.
//  - getMesh gives the address of the mesh inside the node's field: the same
//    for the node's whole life.
//  - The data-set operations add the set to that mesh, as the field's own
//    operations do (PoSFMesh.h); each concrete node journals them under its
//    own class name.
//  - A node's field belongs to the node (SoField::getContainer) but is not in
//    its field data: getField does not find it.
#pragma once

#include <Corvel/StandIn.h>

#include <Corvel/SbString.h>
#include <Corvel/SbVec.h>
#include <Tavrel/PoNode.h>

class PbMesh;
class PoSFMesh;

class PoMeshProperty : public PoNode {
  SO_NODE_HEADER(PoMeshProperty)

 public:
  enum DataBinding { PER_CELL = 0, PER_NODE = 1 };

  virtual const PbMesh* getMesh() const = 0;
  virtual void addValuesSet(int set, const float* values, const SbString& name) = 0;
  virtual void addValuesSet(int set, const float* values, DataBinding binding, const SbString& name) = 0;
  virtual void addStringsSet(int set, const SbString* strings, const SbString& name) = 0;
  virtual void addVecsSet(int set, const SbVec3f* vectors, const SbString& name) = 0;

  void doAction(SoAction* action) override;

  // --- Used inside this toolkit (not journaled) ---
  // Makes the node's mesh the current mesh of the action's state, if the
  // action has one.
  TAVREL_STANDIN_ONLY void makeCurrent(SoAction* action) const;

 protected:
  PoMeshProperty();
  ~PoMeshProperty() override;
  // The node's mesh field.
  TAVREL_STANDIN_ONLY virtual PoSFMesh& meshField() const = 0;
};

// The members every mesh node declares: FieldClass is the class of its field.
#define PO_MESH_NODE_HEADER(className, FieldClass)                                                      \
  SO_NODE_HEADER(className)                                                                             \
                                                                                                        \
 public:                                                                                                \
  className();                                                                                          \
  TAVREL_ASSUMED FieldClass mesh;                                                                                      \
  const PbMesh* getMesh() const override;                                                              \
  void addValuesSet(int set, const float* values, const SbString& name) override;                     \
  void addValuesSet(int set, const float* values, DataBinding binding, const SbString& name) override; \
  void addStringsSet(int set, const SbString* strings, const SbString& name) override;                \
  void addVecsSet(int set, const SbVec3f* vectors, const SbString& name) override;                    \
                                                                                                        \
 protected:                                                                                             \
  ~className() override;                                                                                \
  PoSFMesh& meshField() const override;                                                                 \
                                                                                                        \
 public:
