// The traversal state of one action application: made when apply() starts and
// gone when it returns, so nothing in it outlives the traversal. An apply made
// during a traversal of the same action (a node applying the action again)
// gets a state of its own; the outer one is back when it returns. Outside an
// apply an action has no state (SoAction::getState() is null): a node
// operation called directly on a node, not through apply(), sees no state, so
// it sets no element and a representation draws every cell of its own mesh.
//
// The state keeps one stack of elements per stack index (SoElement.h), made
// on first use: its bottom element is made with the type enabled for the
// index and initialised (init). push() and pop() open and close a depth
// (SoSeparator does around its children; groups do not): an element written
// at a deeper depth is pushed above the previous top and popped with the
// depth, the previous top coming back. The state owns its elements and
// deletes them when it goes (a Java element's native object included).
//
// The extension's elements name the node that set them and the state's
// elements hold a reference on that node (SoReplacedElement.h): a cell filter
// or mesh node that everything else lets go of during the traversal stays
// alive (and with it the mesh it holds) until an element names another node
// in its place or the traversal ends. The mesh representations read the
// current cell filter and mesh from PoCellFilterElement and PoMeshElement.
//
// The cache flag (off by default) stands for an open render cache: while it
// is set, reading an element (SoElement::getConstElement) captures it, and
// SoElement::captureThis records it in getCaptured().
#pragma once

#include <Corvel/StandIn.h>

#include <vector>

class SoAction;
class SoElement;

class SoState {
 public:
  explicit SoState(SoAction* action);
  virtual ~SoState();
  SoState(const SoState&) = delete;
  SoState& operator=(const SoState&) = delete;
  TAVREL_STANDIN_ONLY SoAction* getAction() const { return action; }
  TAVREL_STANDIN_ONLY int getDepth() const { return depth; }
  void push();
  void pop();

  TAVREL_STANDIN_ONLY bool isCacheOpen() const { return cacheOpen; }
  TAVREL_STANDIN_ONLY void setCacheOpen(bool open);
  // The elements captured while the cache flag was set, in order.
  TAVREL_STANDIN_ONLY const std::vector<const SoElement*>& getCaptured() const { return captured; }
  TAVREL_STANDIN_ONLY void addCaptured(const SoElement* element);

  // The top element of a stack (made on first use); null when no element
  // could be made for it (an unknown index, or a type that made none).
  TAVREL_STANDIN_ONLY SoElement* getElement(int stackIndex);
  TAVREL_STANDIN_ONLY const SoElement* getConstElement(int stackIndex);
  // The top element made writable at the current depth (SoElement.h).
  TAVREL_STANDIN_ONLY SoElement* getElementForWriting(int stackIndex);

 private:
  SoElement* make(int stackIndex);

  SoAction* action;
  int depth = 0;
  bool cacheOpen = false;
  std::vector<SoElement*> tops;       // per stack index; null until first use
  std::vector<SoElement*> owned;      // every element made, deleted with the state
  std::vector<const SoElement*> captured;
};
