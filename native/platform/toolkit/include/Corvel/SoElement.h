// Elements: the current value of one kind of attribute during a traversal.
//
// A traversal state (SoState.h) keeps one stack of elements per stack index.
// Each concrete element class registers its type and takes a stack index of
// its own in initClass (createStackIndex); getClassStackIndex is -1 before.
// An element key (createElementKey) is a small number handed out once per
// call, 1 upward; badElementKey() (0) is never handed out.
//
// Rules of this toolkit (what a caller may rely on):
//  - The state makes the elements of a stack with the type enabled for that
//    stack index (SoAction::enableElement; by default the type that created
//    the index) and owns them: they are deleted with the state.
//  - init(state) gives a new bottom element its default value; push(state)
//    is called on an element that becomes the top of its stack above the
//    previous top (getNextInStack), after its depth is set; pop(state, prev)
//    is called on the element that becomes the top again, prev being the one
//    that was just popped (flagged popped). SoElement's push and pop do
//    nothing; init does nothing.
//  - capture(state) calls captureThis(state) only when the state's cache flag
//    is set (SoState::setCacheOpen); SoElement::captureThis records the
//    element in the state's list of captured elements (SoState::getCaptured).
//  - getNextFree is the element that a popped stack keeps for reuse above this
//    one: the next push at that place reuses it instead of making a new one.
//  - getElementKey is badElementKey() and getClassStackIndexInternal the stack
//    index the state gave the element, unless a class says otherwise.
//  - The element operations that the Java binding calls (the static set/get
//    of the element classes, createStackIndex, createElementKey, the type
//    queries) record one call-journal line each; the virtual operations that
//    the state calls do not.
#pragma once

#include <Corvel/StandIn.h>

#include <Corvel/SbBase.h>
#include <Corvel/SoType.h>

#include <cstdio>

class SoState;

class SoElement {
 public:
  static void initClass();
  static SoType getClassTypeId();

  virtual SoType getTypeId() const;
  virtual ~SoElement();
  virtual void push(SoState* state);
  virtual void pop(SoState* state, const SoElement* prevTopElement);
  virtual void print(FILE* fp) const;
  virtual void commonInit();
  virtual void init(SoState* state);
  virtual SbBool matches(const SoElement* element) const = 0;
  virtual SoElement* copyMatchInfo() const = 0;
  virtual unsigned short getElementKey() const;
  virtual int getClassStackIndexInternal() const;
  virtual void dyingReference();
  virtual void captureThis(SoState* state) const;

  static int createStackIndex(SoType id);
  static unsigned short createElementKey();
  static unsigned short badElementKey() { return 0; }
  TAVREL_STANDIN_ONLY static int getNumStackIndices();
  // The type that created the stack index (the bad type for an unknown one).
  TAVREL_STANDIN_ONLY static SoType getIdFromStackIndex(int stackIndex);

  TAVREL_STANDIN_ONLY int getDepth() const { return depth; }

 protected:
  SoElement();

  // Calls captureThis when the state's cache flag is set.
  TAVREL_ASSUMED void capture(SoState* state) const;

  TAVREL_STANDIN_ONLY SoElement* getNextInStack() const { return nextInStack; }
  TAVREL_STANDIN_ONLY SoElement* getNextFree() const { return nextFree; }
  TAVREL_STANDIN_ONLY void setTypeId(SoType type) { typeId = type; }
  TAVREL_STANDIN_ONLY void setStackIndex(int index) { stackIndex = index; }

  // The top element of the stack, made writable for the state's current
  // depth (pushed when the top is from a lower depth); null when the state
  // could not make an element.
  TAVREL_STANDIN_ONLY static SoElement* getElement(SoState* state, int stackIndex);
  // createStackIndex without its journal line (element classes' initClass).
  TAVREL_STANDIN_ONLY static int makeStackIndex(SoType id);
  // The top element, without pushing; captured (capture) when found.
  TAVREL_STANDIN_ONLY static const SoElement* getConstElement(SoState* state, int stackIndex);

  TAVREL_ASSUMED SoType typeId;
  TAVREL_ASSUMED int stackIndex = -1;
  TAVREL_STANDIN_ONLY int depth = 0;
  TAVREL_ASSUMED bool popped = false;
  TAVREL_ASSUMED SoElement* nextInStack = nullptr;
  TAVREL_ASSUMED SoElement* nextFree = nullptr;

  friend class SoState;
};

// Defined here so that it needs no toolkit symbol of its own.
#include <Corvel/SoState.h>

inline void SoElement::capture(SoState* state) const {
  if (state->isCacheOpen()) captureThis(state);
}
