// A probe point in a mesh. It reports, through four callbacks, when it moves,
// when it passes into another cell, when it enters the mesh and when it leaves
// it.
//
// Each event holds one callback function and one user-data pointer; a set call
// replaces the event's pair (a null function detaches the event). The probe
// calls function(userData, probe, cell) with the cell that contains the probe
// after the move, null when the probe is outside the mesh.
//
// moveTo(position, cell, cellIndex) moves the probe to a point whose
// containing cell has been found by the caller (the mesh's cell search; null
// and -1 outside the mesh). It raises, in this order:
//   1. leave-mesh   when the probe was inside and is now outside (cell null);
//   2. enter-mesh   when the probe was outside and is now inside;
//   3. change-cell  when the probe is inside and its cell index differs from
//                   the one before the move (entering counts as a change);
//   4. motion       always, last.
// The probe starts outside the mesh, at the origin. Cells are told apart by
// their index, since a mesh may hand out one cell object for every search.
// A callback may change the mesh's geometry (which frees its cells) or give
// the probe another mesh: the events that follow in the same move then carry
// no cell (null) rather than one that is freed or belongs to another mesh, and
// getCurrentCell() gives null until the probe next moves.
//
// raiseEvent(event, cell) raises one event at once with the given cell, as the
// probe does during a move; it changes nothing in the probe's state.
//
// The probe's place is its field "position", three numbers "x y z" (initially
// "0 0 0"). When an action traverses the probe and the field names another
// point than the last one probed (or the probe has not probed yet), the probe
// probes there: setPosition(point) searches the containing cell in the mesh
// set with setMesh (tolerance 1e-4; the previous cell is not used as a hint,
// since the mesh may have replaced its cells since) and moves there with
// moveTo. Without a mesh every point is
// outside. A field text that is not three numbers is ignored.
#pragma once

#include <Corvel/StandIn.h>

#include <Corvel/SbVec.h>
#include <Tavrel/PoMesh.h>

class PbCell;
class PoMeshProbePoint;

typedef void PoMeshProbePointCB(void* userData, PoMeshProbePoint* probe, const PbCell* cell);

class PoMeshProbePoint : public PoMesh {
  SO_KIT_HEADER(PoMeshProbePoint)

 public:
  enum Event : int { MOTION = 0, CHANGE_CELL = 1, ENTER_MESH = 2, LEAVE_MESH = 3 };

  struct Callback {
    TAVREL_STANDIN_ONLY PoMeshProbePointCB* function = nullptr;
    void* userData = nullptr;
  };

  PoMeshProbePoint();

  void setMotionCallback(PoMeshProbePointCB* function, void* userData);
  void setChangeCellCallback(PoMeshProbePointCB* function, void* userData);
  void setEnterMeshCallback(PoMeshProbePointCB* function, void* userData);
  void setLeaveMeshCallback(PoMeshProbePointCB* function, void* userData);

  // The pair installed for an event (a null function when detached).
  TAVREL_STANDIN_ONLY const Callback& getCallback(Event event) const { return callbacks[event]; }

  TAVREL_STANDIN_ONLY void moveTo(const SbVec3f& position, const PbCell* cell, long cellIndex);
  TAVREL_STANDIN_ONLY void setPosition(const SbVec3f& point);
  TAVREL_STANDIN_ONLY void raiseEvent(Event event, const PbCell* cell);

  TAVREL_STANDIN_ONLY const SbVec3f& getPosition() const { return position; }
  TAVREL_STANDIN_ONLY const PbCell* getCurrentCell() const { return currentCell; }
  TAVREL_STANDIN_ONLY long getCurrentCellIndex() const { return currentCellIndex; }
  TAVREL_STANDIN_ONLY bool isInsideMesh() const { return currentCellIndex >= 0; }

  void doAction(SoAction* action) override;
  void GLRender(SoGLRenderAction* action) override;
  void callback(SoCallbackAction* action) override;

 protected:
  ~PoMeshProbePoint() override;

 private:
  // Probes at the field's point when it is not the last point probed.
  void probeFieldPosition();
  // The current cell while it is still a cell of the probe's mesh, else null.
  const PbCell* validCell();

  Callback callbacks[4];
  SoField* positionField;
  bool probed = false;
  SbVec3f position;
  const PbCell* currentCell = nullptr;
  long currentCellIndex = -1;
  // The mesh the current cell belongs to, and its geometry version then.
  const PbMesh* cellMesh = nullptr;
  unsigned long cellMeshVersion = 0;
};
