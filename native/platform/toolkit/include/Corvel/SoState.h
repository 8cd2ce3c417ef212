// The traversal state of one action application: made when apply() starts and
// gone when it returns, so nothing in it outlives the traversal. An apply made
// during a traversal of the same action (a node applying the action again)
// gets a state of its own; the outer one is back when it returns. Outside an
// apply an action has no state (SoAction::getState() is null): a node
// operation called directly on a node, not through apply(), sees no state, so
// a cell filter it goes through becomes no one's current filter and a
// representation draws every cell.
//
// It holds two slots of the extension (this toolkit has no elements): the
// current cell filter, which a cell filter sets when a traversal goes through
// it, and the current mesh, which a mesh node (PoMeshProperty) sets to its
// mesh when a traversal goes through it; the mesh representations traversed
// afterwards read both. Each is null until the first such node; it stays set
// to the end of the traversal or until the next node of its kind, as nothing
// here scopes the state (a group does not, and there are no separators). The
// state holds a reference on the node of each slot, so a filter or mesh node
// that everything else lets go of during the traversal stays alive (and with
// it the mesh it holds) until the next one replaces it or the traversal ends.
#pragma once

class SoAction;
class SoBase;
class PoCellFilter;
class PbMesh;

class SoState {
 public:
  explicit SoState(SoAction* action);
  virtual ~SoState();
  SoState(const SoState&) = delete;
  SoState& operator=(const SoState&) = delete;
  SoAction* getAction() const { return action; }
  int getDepth() const { return depth; }
  void push() { ++depth; }
  void pop() { --depth; }

  const PoCellFilter* getCellFilter() const { return cellFilter; }
  // Makes filter the current cell filter; node is the same object seen as a
  // reference-counted base, on which the state holds its reference.
  void setCellFilter(const PoCellFilter* filter, const SoBase* node);

  const PbMesh* getMesh() const { return mesh; }
  // Makes mesh the current mesh; node is the mesh node that holds it, on which
  // the state holds its reference.
  void setMesh(const PbMesh* mesh, const SoBase* node);

 private:
  // Replaces the node a slot references (the new reference first: it may be
  // the same node).
  static void hold(const SoBase*& slot, const SoBase* node);

  SoAction* action;
  int depth = 0;
  const PoCellFilter* cellFilter = nullptr;
  const SoBase* cellFilterNode = nullptr;
  const PbMesh* mesh = nullptr;
  const SoBase* meshNode = nullptr;
};
