// The mesh nodes: PoMeshProperty and the fifteen nodes that hold a mesh field.

#include <Tavrel/PoMeshElement.h>
#include <Corvel/CallJournal.h>
#include <Corvel/SoAction.h>
#include <Corvel/SoState.h>
#include <Tavrel/PoCartesianGrid2D.h>
#include <Tavrel/PoCartesianGrid3D.h>
#include <Tavrel/PoHexahedronMesh3D.h>
#include <Tavrel/PoIndexedMesh2D.h>
#include <Tavrel/PoIndexedMesh3D.h>
#include <Tavrel/PoIrregularMesh1D.h>
#include <Tavrel/PoMeshProperty.h>
#include <Tavrel/PoParalCartesianGrid2D.h>
#include <Tavrel/PoParalCartesianGrid3D.h>
#include <Tavrel/PoPolarGrid2D.h>
#include <Tavrel/PoQuadrangleMesh2D.h>
#include <Tavrel/PoRegularCartesianGrid2D.h>
#include <Tavrel/PoRegularCartesianGrid3D.h>
#include <Tavrel/PoRegularMesh1D.h>
#include <Tavrel/PoTetrahedronMesh3D.h>
#include <Tavrel/PoTriangleMesh2D.h>

// --- PoMeshProperty --------------------------------------------------------------------

SO_NODE_ABSTRACT_SOURCE(PoMeshProperty, PoNode, "PoMeshProperty")

PoMeshProperty::PoMeshProperty() = default;
PoMeshProperty::~PoMeshProperty() = default;

void PoMeshProperty::doAction(SoAction* action) {
  CallJournal::record("PoMeshProperty::doAction", static_cast<const void*>(action));
  makeCurrent(action);
  traverseChildren(action);
}

void PoMeshProperty::makeCurrent(SoAction* action) const {
  SoState* state = action != nullptr ? action->getState() : nullptr;
  if (state == nullptr) return;
  PoSFMesh& field = meshField();
  field.evaluate();
  PoMeshElement::setValue(state, const_cast<PoMeshProperty*>(this), &field.heldMesh());
}

// --- the fifteen nodes -------------------------------------------------------------------

// Type, construction and the five operations of one mesh node, each journaled
// under the node's class name.
#define PO_MESH_NODE_SOURCE(className)                                                                     \
  SO_NODE_SOURCE(className, PoMeshProperty, #className)                                                    \
  className::className() {                                                                                 \
    CallJournal::record(#className "::" #className);                                                       \
    mesh.attachTo(this);                                                                                   \
  }                                                                                                        \
  className::~className() = default;                                                                       \
  PoSFMesh& className::meshField() const { return const_cast<PoSFMesh&>(static_cast<const PoSFMesh&>(mesh)); } \
  const PbMesh* className::getMesh() const {                                                               \
    CallJournal::record(#className "::getMesh");                                                           \
    return &mesh.getValue();                                                                               \
  }                                                                                                        \
  void className::addValuesSet(int set, const float* values, const SbString& name) {                      \
    mesh.addValuesSetAs(#className "::addValuesSet", set, values, name);                                   \
  }                                                                                                        \
  void className::addValuesSet(int set, const float* values, DataBinding binding, const SbString& name) { \
    mesh.addValuesSetAs(#className "::addValuesSet", set, values, binding, name);                          \
  }                                                                                                        \
  void className::addStringsSet(int set, const SbString* strings, const SbString& name) {                 \
    mesh.addStringsSetAs(#className "::addStringsSet", set, strings, name);                                \
  }                                                                                                        \
  void className::addVecsSet(int set, const SbVec3f* vectors, const SbString& name) {                     \
    mesh.addVecsSetAs(#className "::addVecsSet", set, vectors, name);                                      \
  }

PO_MESH_NODE_SOURCE(PoCartesianGrid2D)
PO_MESH_NODE_SOURCE(PoCartesianGrid3D)
PO_MESH_NODE_SOURCE(PoParalCartesianGrid2D)
PO_MESH_NODE_SOURCE(PoParalCartesianGrid3D)
PO_MESH_NODE_SOURCE(PoRegularCartesianGrid2D)
PO_MESH_NODE_SOURCE(PoRegularCartesianGrid3D)
PO_MESH_NODE_SOURCE(PoPolarGrid2D)
PO_MESH_NODE_SOURCE(PoIndexedMesh2D)
PO_MESH_NODE_SOURCE(PoIndexedMesh3D)
PO_MESH_NODE_SOURCE(PoTriangleMesh2D)
PO_MESH_NODE_SOURCE(PoQuadrangleMesh2D)
PO_MESH_NODE_SOURCE(PoTetrahedronMesh3D)
PO_MESH_NODE_SOURCE(PoHexahedronMesh3D)
PO_MESH_NODE_SOURCE(PoIrregularMesh1D)
PO_MESH_NODE_SOURCE(PoRegularMesh1D)
