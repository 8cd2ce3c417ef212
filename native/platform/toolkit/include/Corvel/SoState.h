// The traversal state of one action application: a new one for each apply,
// dropped by the next apply or with the action.
//
// It holds one slot of the extension (this toolkit has no elements): the
// current cell filter, which a cell filter sets when a traversal goes through
// it and the mesh representations traversed after it read. Null until the
// first filter; it stays set to the end of the traversal or until the next
// filter, as nothing here scopes the state (a group does not, and there are no
// separators).
#pragma once

class SoAction;
class PoCellFilter;

class SoState {
 public:
  explicit SoState(SoAction* action);
  virtual ~SoState();
  SoAction* getAction() const { return action; }
  int getDepth() const { return depth; }
  void push() { ++depth; }
  void pop() { --depth; }

  const PoCellFilter* getCellFilter() const { return cellFilter; }
  void setCellFilter(const PoCellFilter* filter) { cellFilter = filter; }

 private:
  SoAction* action;
  int depth = 0;
  const PoCellFilter* cellFilter = nullptr;
};
