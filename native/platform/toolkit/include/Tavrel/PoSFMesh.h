// Base of the single-value mesh fields: fields whose value is a whole mesh,
// held by value inside the field.
//
// Behaviour of this toolkit (what a caller may rely on):
//  - The mesh lives inside the field for the field's whole life: getValue()
//    always gives the same address, and setValue (a copy of the given mesh,
//    see PbMesh.h on assignment) and setGeometry (the held mesh's own
//    setGeometry with the same arguments) change it in place. Both free the
//    cells the mesh handed out so far.
//  - A new field holds an empty mesh (data-duplication flag 1 where the mesh
//    class has one).
//  - The data-set operations add the set to the held mesh, as the mesh's own
//    operations do (PbMesh.h); the binding of addValuesSet is one of
//    PoMeshProperty::DataBinding, whose values are those of PbMesh's.
//  - Every change of the value (setValue, setGeometry, the data-set
//    operations) makes the fields connected from this one need evaluation
//    (SoField.h); evaluating a mesh field copies the connected field's mesh
//    when it is a mesh field of the same class.
//  - operator== compares the held meshes (PbMesh::sameMeshAs); it gives 1 or 0.
#pragma once

#include <Corvel/StandIn.h>

#include <Corvel/SbString.h>
#include <Corvel/SbVec.h>
#include <Corvel/SoField.h>
#include <Tavrel/PoMeshProperty.h>

class PbMesh;

class PoSFMesh : public SoField {
 public:
  static SoType getClassTypeId();
  SoType getTypeId() const override;

  void addValuesSet(int set, const float* values, const SbString& name);
  void addValuesSet(int set, const float* values, PoMeshProperty::DataBinding binding, const SbString& name);
  void addStringsSet(int set, const SbString* strings, const SbString& name);
  void addVecsSet(int set, const SbVec3f* vectors, const SbString& name);

  // --- Used inside this toolkit (not journaled) ---
  // The held mesh, without evaluating the field.
  TAVREL_STANDIN_ONLY virtual PbMesh& heldMesh() const = 0;
  // The data-set operations journaled under the caller's function name (a
  // mesh node's own operations).
  TAVREL_STANDIN_ONLY void addValuesSetAs(const char* function, int set, const float* values, const SbString& name);
  TAVREL_STANDIN_ONLY void addValuesSetAs(const char* function, int set, const float* values, PoMeshProperty::DataBinding binding,
                      const SbString& name);
  TAVREL_STANDIN_ONLY void addStringsSetAs(const char* function, int set, const SbString* strings, const SbString& name);
  TAVREL_STANDIN_ONLY void addVecsSetAs(const char* function, int set, const SbVec3f* vectors, const SbString& name);

 protected:
  PoSFMesh();
  ~PoSFMesh() override;
};

// The members every mesh field declares: MeshClass is the class of the held
// mesh. getValue is inline, as in the toolkit: it evaluates the field first
// when the field says it must.
#define PO_SF_MESH_HEADER(className, MeshClass)                        \
 public:                                                               \
  TAVREL_STANDIN_ONLY typedef MeshClass ValueType;                                         \
  static SoType getClassTypeId();                                      \
  SoType getTypeId() const override;                                   \
  className();                                                         \
  ~className() override;                                               \
  const MeshClass& getValue() const {                                  \
    evaluate();                                                        \
    return value;                                                      \
  }                                                                    \
  void setValue(const MeshClass& mesh);                                \
  int operator==(const className& other) const;                        \
  int operator!=(const className& other) const { return !(*this == other); } \
  PbMesh& heldMesh() const override;                                   \
                                                                       \
 protected:                                                            \
  void copyValueFrom(const SoField& other) override;                   \
                                                                       \
 private:                                                              \
  MeshClass value;                                                     \
                                                                       \
 public:
