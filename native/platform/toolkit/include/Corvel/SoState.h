// The traversal state of one action application: made when apply() starts and
// gone when it returns, so nothing in it outlives the traversal. An apply made
// during a traversal of the same action (a node applying the action again)
// gets a state of its own; the outer one is back when it returns. Outside an
// apply an action has no state (SoAction::getState() is null): a node
// operation called directly on a node, not through apply(), sees no state, so
// a cell filter it goes through becomes no one's current filter and a
// representation draws every cell.
//
// It holds one slot of the extension (this toolkit has no elements): the
// current cell filter, which a cell filter sets when a traversal goes through
// it and the mesh representations traversed after it read. Null until the
// first filter; it stays set to the end of the traversal or until the next
// filter, as nothing here scopes the state (a group does not, and there are no
// separators). The state holds a reference on its current filter, so a filter
// that everything else lets go of during the traversal stays alive until the
// next filter replaces it or the traversal ends.
#pragma once

class SoAction;
class SoBase;
class PoCellFilter;

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

 private:
  SoAction* action;
  int depth = 0;
  const PoCellFilter* cellFilter = nullptr;
  const SoBase* cellFilterNode = nullptr;
};
