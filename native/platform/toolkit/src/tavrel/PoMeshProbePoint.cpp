#include <Corvel/CallJournal.h>
#include <Tavrel/PbCell.h>
#include <Tavrel/PbMesh.h>
#include <Tavrel/PoMeshProbePoint.h>

#include <cstdio>

SO_KIT_SOURCE(PoMeshProbePoint, PoMesh, "PoMeshProbePoint", {"probeMarker"})

PoMeshProbePoint::PoMeshProbePoint() : positionField(addOwnField("position")) {
  CallJournal::record("PoMeshProbePoint::PoMeshProbePoint");
  positionField->setValueString("0 0 0");
}

void PoMeshProbePoint::setPosition(const SbVec3f& point) {
  CallJournal::record("PoMeshProbePoint::setPosition", point);
  const PbMesh* mesh = getMesh();
  const PbCell* cell = nullptr;
  if (mesh != nullptr) {
    SbVec3f pcoord;
    cell = mesh->findContainingCell(point, 1e-4f, pcoord);
  }
  probed = true;
  moveTo(point, cell, cell != nullptr ? cell->getIndex() : -1);
}

void PoMeshProbePoint::probeFieldPosition() {
  float x, y, z;
  char extra;
  if (std::sscanf(positionField->getValueString().getString(), "%f %f %f %c", &x, &y, &z, &extra) != 3) return;
  SbVec3f point(x, y, z);
  if (!probed || point != position) setPosition(point);
}

void PoMeshProbePoint::doAction(SoAction* action) {
  probeFieldPosition();
  PoMesh::doAction(action);
}

void PoMeshProbePoint::GLRender(SoGLRenderAction* action) {
  probeFieldPosition();
  PoMesh::GLRender(action);
}

void PoMeshProbePoint::callback(SoCallbackAction* action) {
  probeFieldPosition();
  PoMesh::callback(action);
}
PoMeshProbePoint::~PoMeshProbePoint() = default;

void PoMeshProbePoint::setMotionCallback(PoMeshProbePointCB* function, void* userData) {
  CallJournal::record("PoMeshProbePoint::setMotionCallback", journalFn(function), userData);
  callbacks[MOTION] = Callback{function, userData};
}

void PoMeshProbePoint::setChangeCellCallback(PoMeshProbePointCB* function, void* userData) {
  CallJournal::record("PoMeshProbePoint::setChangeCellCallback", journalFn(function), userData);
  callbacks[CHANGE_CELL] = Callback{function, userData};
}

void PoMeshProbePoint::setEnterMeshCallback(PoMeshProbePointCB* function, void* userData) {
  CallJournal::record("PoMeshProbePoint::setEnterMeshCallback", journalFn(function), userData);
  callbacks[ENTER_MESH] = Callback{function, userData};
}

void PoMeshProbePoint::setLeaveMeshCallback(PoMeshProbePointCB* function, void* userData) {
  CallJournal::record("PoMeshProbePoint::setLeaveMeshCallback", journalFn(function), userData);
  callbacks[LEAVE_MESH] = Callback{function, userData};
}

void PoMeshProbePoint::raiseEvent(Event event, const PbCell* cell) {
  // Copied first: a callback may replace its own registration.
  Callback callback = callbacks[event];
  if (callback.function != nullptr) callback.function(callback.userData, this, cell);
}

void PoMeshProbePoint::moveTo(const SbVec3f& newPosition, const PbCell* cell, long cellIndex) {
  const bool wasInside = isInsideMesh();
  const long previousIndex = currentCellIndex;
  position = newPosition;
  currentCell = cellIndex >= 0 ? cell : nullptr;
  currentCellIndex = cellIndex >= 0 ? cellIndex : -1;
  cellMesh = currentCell != nullptr ? currentCell->getMesh() : nullptr;
  cellMeshVersion = cellMesh != nullptr ? cellMesh->getGeometryVersion() : 0;
  const bool inside = isInsideMesh();

  // Each event may change the mesh or its geometry: the cell is checked before each.
  if (wasInside && !inside) raiseEvent(LEAVE_MESH, nullptr);
  if (!wasInside && inside) raiseEvent(ENTER_MESH, validCell());
  if (inside && currentCellIndex != previousIndex) raiseEvent(CHANGE_CELL, validCell());
  raiseEvent(MOTION, validCell());
}

const PbCell* PoMeshProbePoint::validCell() {
  if (currentCell != nullptr &&
      (cellMesh != getMesh() || cellMesh == nullptr || cellMesh->getGeometryVersion() != cellMeshVersion)) {
    currentCell = nullptr;
    cellMesh = nullptr;
  }
  return currentCell;
}
