// What the extension's thirteen element classes share (PoBevelEdgeElement.h
// and the others). Each is a SoReplacedElement with a type of its own
// (registered by initClass, named like the class), a stack index of its own
// (created by initClass; getClassStackIndex is -1 before) and a value, which
// the node traversed last sets through the class's static set (SoState.h).
//
// Rules of these classes (what a caller may rely on):
//  - set(state, node, value...) makes the top element of the class's stack
//    writable at the state's depth (SoElement.h), names the node in it (the
//    state's element then holds a reference on the node) and stores the
//    value; nothing happens when the state cannot make the element.
//  - get(state) reads the top element (capturing it when the state's cache
//    flag is set): the value last set, or the default value (null, or 0) when
//    none was set or no element could be made.
//  - init gives an element the default value and names no node.
//  - getClassTypeId, getClassStackIndex, set and get record one call-journal
//    line each (attribute objects and nodes as addresses); the operations
//    under "Used inside this toolkit" do not. Values kept by address are not
//    owned: the caller keeps them alive while the state can read them.
#pragma once

#include <Corvel/SoReplacedElement.h>
#include <Corvel/SoType.h>

#define PO_ELEMENT_HEADER(className)     \
 public:                                 \
  static void initClass();               \
  static SoType getClassTypeId();        \
  static int getClassStackIndex();       \
  className();                           \
  ~className() override;                 \
  void init(SoState* state) override;    \
                                         \
 private:                                \
  static SoType s_classTypeId;           \
  static int s_classStackIndex;          \
  /* registers the class on first use */ \
  static int registeredStackIndex();               \
                                         \
 public:

// An element whose value is one object kept by address.
#define PO_POINTER_ELEMENT_HEADER(className, ValueType)                      \
  PO_ELEMENT_HEADER(className)                                               \
  static void set(SoState* state, SoNode* node, const ValueType* value);     \
  static const ValueType* get(SoState* state);                               \
                                                                             \
  /* --- Used inside this toolkit (not journaled) --- */                     \
  static void setValue(SoState* state, SoNode* node, const ValueType* value); \
  static const ValueType* current(SoState* state);                           \
                                                                             \
 private:                                                                    \
  const ValueType* value = nullptr;                                          \
                                                                             \
 public:
